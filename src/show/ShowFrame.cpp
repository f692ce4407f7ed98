#include "ShowFrame.h"

#include <cmath>

namespace zentor::show {

FrameSize FrameOf(const ShowHeader& h) {
    if (h.FrameWidth < 1 || h.FrameHeight < 1 || h.FrameWidth > MaxFrameSide ||
        h.FrameHeight > MaxFrameSide)
        return FrameSize();
    return {h.FrameWidth, h.FrameHeight};
}

IconRect FitFrame(FrameSize frame, int width, int height) {
    if (frame.Width <= 0 || frame.Height <= 0 || width <= 0 || height <= 0)
        return {0, 0, 0, 0};
    int64_t w = int64_t(height) * frame.Width / frame.Height;
    int64_t h = height;
    if (w > width) {
        w = width;
        h = int64_t(width) * frame.Height / frame.Width;
    }
    const int left = int((width - w) / 2);
    const int top = int((height - h) / 2);
    return {left, top, left + int(w), top + int(h)};
}

FramePoint ToFramePoint(FrameSize frame, const IconRect& fitted, double x, double y) {
    const int w = fitted.Right - fitted.Left;
    const int h = fitted.Bottom - fitted.Top;
    if (w <= 0 || h <= 0)
        return {};
    // Rounded down, not towards zero: a point just left of the frame must not land on it.
    return {int(std::floor((x - fitted.Left) * frame.Width / w)),
            int(std::floor((y - fitted.Top) * frame.Height / h))};
}

} // namespace zentor::show
