#include "render/IconRing.h"

#include "render/PictureCache.h"
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

IconRectTable GetCircle(QPainter& p, QSize frame, const std::array<QImage, 9>& icons) {
    const IconRectTable rects = IconRects(frame);
    for (size_t i = 1; i <= 8; ++i) {
        const IconRect& r = rects[i];
        DrawStretched(p, icons[i], QRect(r.Left, r.Top, r.Right - r.Left, r.Bottom - r.Top));
    }
    return rects;
}

} // namespace zentor
