#include "export/WebShow.h"

#include "model/Document.h"
#include "render/IconRing.h"
#include "render/PageCompositor.h"
#include "show/ShowModel.h"

#include <QJsonArray>

namespace zentor {
namespace {

show::ShowHeader showHeaderOf(const ScriptHeader& h) {
    show::ShowHeader s;
    s.MusicVolume = h.MusicVolume;
    s.AutoRepeat = h.AutoRepeat;
    s.ShowSpeed = h.ShowSpeed;
    s.ShowAsRun = h.ShowAsRun;
    s.KeepOnTime = h.KeepOnTime;
    return s;
}

} // namespace

QJsonObject WebShowNumbers(const Document& doc, const std::vector<int>& showOrder) {
    const QSize frame = FrameSize(doc);
    const show::ShowHeader h = showHeaderOf(doc.Header);
    const show::ShowSettings settings = show::ShowSettingsOf(h);
    const show::MusicSettings music = show::MusicSettingsOf(h, true);
    QJsonArray order;
    for (int entry : showOrder)
        order.append(entry - show::Package::FirstPageEntry + 1);

    QJsonArray ring;
    const IconRectTable rects = IconRects(frame);
    for (size_t i = 0; i < rects.size(); ++i) {
        const IconRect& r = rects[i];
        const QString name = i == 0 ? QString() : doc.Tabs[i].Name.trimNull();
        ring.append(QJsonObject{
            {"left", r.Left},
            {"top", r.Top},
            {"width", r.Right - r.Left},
            {"height", r.Bottom - r.Top},
            {"name", i == SlideShowTab && name.isEmpty() ? QStringLiteral("Slide Show") : name}});
    }
    return QJsonObject{
        {"width", frame.width()},    {"height", frame.height()},  {"order", order},
        {"holdMs", settings.HoldMs}, {"fadeMs", settings.FadeMs}, {"autoRun", settings.AutoRun},
        {"volume", music.Volume},    {"loop", music.Loop},        {"ring", ring},
    };
}

} // namespace zentor
