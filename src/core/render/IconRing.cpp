#include "render/IconRing.h"

#include "render/PictureCache.h"

#include <QPainter>

namespace zentor {

IconRectTable IconRects(QSize frame) {
    return show::RingRects(frame.width(), frame.height());
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
