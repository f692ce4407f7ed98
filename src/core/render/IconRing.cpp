#include "render/IconRing.h"

#include "io/FileUtil.h"
#include "model/Document.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/TabPictureLayout.h"
#include "show/Ring.h"

#include <QPainter>

namespace zentor {
IconRectTable IconRects(QSize frame) {
    const show::IconRectTable ring = show::RingRects(frame.width(), frame.height());
    IconRectTable rects{};
    for (size_t i = 0; i < rects.size(); ++i)
        rects[i] = {ring[i].Left, ring[i].Top, ring[i].Right, ring[i].Bottom};
    return rects;
}

IconRectTable GetCircle(QPainter& p, Document& doc, const ResImages& res, PictureCache* cache) {
    const IconRectTable rects = IconRects(FrameSize(doc));
    for (int i = 1; i <= 8; ++i) {
        const IconRect& r = rects[size_t(i)];
        const QRect box(r.Left, r.Top, r.Right - r.Left, r.Bottom - r.Top);
        auto& icon = doc.Tabs[size_t(i)].Icon;
        const QString path = icon.text();
        icon = path;
        if (path.isEmpty())
            DrawStretched(p, res.image(i), box);
        else
            DrawPictureFile(p, ResolvePath(doc.ScriptPath, path), box, cache);
    }
    return rects;
}

} // namespace zentor
