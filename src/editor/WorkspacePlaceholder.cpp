#include "editor/WorkspacePlaceholder.h"

#include "io/FileUtil.h"
#include "model/Document.h"
#include "model/ProcessContext.h"

#include <QPainter>

namespace zentor {

void PaintWorkspacePlaceholder(QImage& target, const Document& doc, const ProcessContext& ctx,
                               int tab, int) {
    QPainter p(&target);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect all = target.rect();
    auto picture = [&](const QString& raw, const QRect& r) {
        if (raw.isEmpty())
            return;
        const QImage img(ResolvePath(doc.ScriptPath, raw));
        if (!img.isNull())
            p.drawImage(r, img);
    };
    if (tab == ProfileTab || tab == SlideShowTab) {
        const QString back = doc.Header.BackPicture.trimNull();
        picture(back.isEmpty() ? ctx.defaultBackPicture() : back, all);
        return;
    }
    if (tab < 1 || tab > 7)
        return;
    const ImageElement& tp = doc.Tabs[tab].Picture;
    picture(tp.FileName.trimNull(), QRect(tp.Left, tp.Top, tp.Width, tp.Height));
    for (int i = 1; i <= MaxImages; ++i) {
        const ImageElement& e = doc.Images[i];
        if (e.TabNo == tab)
            picture(e.FileName.trimNull(), QRect(e.Left, e.Top, e.Width, e.Height));
    }
    for (int i = 1; i <= MaxTexts; ++i) {
        const TextElement& e = doc.Texts[i];
        if (e.TabNo != tab)
            continue;
        QFont f(e.FontName.trimNull());
        f.setPointSizeF(e.FontSize > 0 ? e.FontSize : 12);
        p.setFont(f);
        p.setPen(QColor::fromRgba(uint32_t(e.FontColor)));
        p.drawText(QRect(e.Left, e.Top, e.Width, e.Height), Qt::TextWordWrap, e.Text.text());
    }
}

} // namespace zentor
