#include "export/WebShow.h"

#include "model/Document.h"
#include "render/IconRing.h"
#include "render/PageCompositor.h"

#include <QJsonArray>

#include <algorithm>

namespace zentor {
namespace {

// A page is held at least this long, whatever a damaged file says.
constexpr int MinHoldMs = 500;
// The speed setting (0..100 in steps of 10) as a fade length: 20 fades in half a second.
constexpr int FadeMsPerSpeed = 25;

} // namespace

QJsonObject WebShowNumbers(const Document& doc) {
    const QSize frame = FrameSize(doc);
    const ScriptHeader& h = doc.Header;
    QJsonArray order;
    for (int tab = 7; tab >= 1; --tab)
        order.append(tab);
    order.append(SlideShowTab);

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
        {"width", frame.width()},
        {"height", frame.height()},
        {"order", order},
        {"holdMs", std::max(MinHoldMs, h.KeepOnTime)},
        {"fadeMs", std::clamp(h.ShowSpeed, 0, 100) * FadeMsPerSpeed},
        {"autoRun", h.ShowAsRun == 1},
        {"volume", std::clamp(h.MusicVolume, 0, 1000) / 1000.0},
        {"loop", h.AutoRepeat == 1},
        {"ring", ring},
    };
}

} // namespace zentor
