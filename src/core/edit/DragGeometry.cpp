#include "edit/DragGeometry.h"

namespace zentor {

void MoveAdd(IntRect& r, int frameW, int frameH) {
    if (r.Left + r.Width > frameW)
        r.Left = frameW - r.Width;
    if (r.Top + r.Height > frameH)
        r.Top = frameH - r.Height;
    if (r.Width < HandleSize)
        r.Width = HandleSize;
    if (r.Height < HandleSize)
        r.Height = HandleSize;
    if (r.Left < 0)
        r.Left = 0;
    if (r.Top < 0)
        r.Top = 0;
}

std::array<QPointF, 8> HandlePositions(const IntRect& f) {
    const double l = f.Left, t = f.Top;
    const double midX = l + (f.Width - HandleSize) / 2.0;
    const double midY = t + (f.Height - HandleSize) / 2.0;
    const double right = l + f.Width - HandleSize;
    const double bottom = t + f.Height - HandleSize;
    return {QPointF(l, t),         QPointF(l, midY),  QPointF(l, bottom),   QPointF(midX, t),
            QPointF(midX, bottom), QPointF(right, t), QPointF(right, midY), QPointF(right, bottom)};
}

IntRect MoveByDelta(const IntRect& atStart, int dx, int dy) {
    return {atStart.Left + dx, atStart.Top + dy, atStart.Width, atStart.Height};
}

IntRect ResizeByHandle(int handle, const IntRect& s, int dx, int dy, int frameW, int frameH) {
    IntRect r = s;
    const bool leftEdge = handle == 0 || handle == 1 || handle == 2;
    const bool topEdge = handle == 0 || handle == 3 || handle == 5;
    const bool rightEdge = handle == 5 || handle == 6 || handle == 7;
    const bool bottomEdge = handle == 2 || handle == 4 || handle == 7;
    if (leftEdge) {
        // Past the right edge the right side stays put and the width stops at 7.
        if (dx + HandleSize <= s.Width) {
            r.Left = s.Left + dx;
            r.Width = s.Width - dx;
        } else {
            r.Left = s.Left + s.Width - HandleSize;
            r.Width = HandleSize;
        }
    }
    if (topEdge) {
        if (dy + HandleSize <= s.Height) {
            r.Top = s.Top + dy;
            r.Height = s.Height - dy;
        } else {
            r.Top = s.Top + s.Height - HandleSize;
            r.Height = HandleSize;
        }
    }
    if (rightEdge)
        r.Width = s.Width + dx;
    if (bottomEdge)
        r.Height = s.Height + dy;

    // Keep the opposite edge where it was when the frame would leave the page. The width
    // past the right border is measured from the starting Left, as it always was.
    if (r.Left >= 0) {
        if (r.Left + r.Width > frameW)
            r.Width = frameW - s.Left;
    } else {
        r.Left = 0;
        r.Width = s.Width + s.Left;
    }
    if (r.Top >= 0) {
        if (r.Top + r.Height > frameH)
            r.Height = frameH - s.Top;
    } else {
        r.Top = 0;
        r.Height = s.Height + s.Top;
    }
    return r;
}

} // namespace zentor
