#include "Ring.h"

#include <cmath>

namespace zentor::show {
namespace {

constexpr double Pi = 3.1415926; // the ring's positions are fixed with this value
constexpr int Radius = 250;
constexpr int IconSize = 80;
constexpr int CentreSize = 128;

} // namespace

int RoundHalfEven(double v) {
    if (!std::isfinite(v))
        return 0;
    const double r = v - std::floor(v) == 0.5 ? 2.0 * std::round(v / 2.0) : std::round(v);
    if (r >= 2147483647.0)
        return 2147483647;
    if (r <= -2147483648.0)
        return int(-2147483647 - 1);
    return int(r);
}

IconRectTable RingRects(int frameWidth, int frameHeight) {
    IconRectTable rects{};
    const int cx = RoundHalfEven(frameWidth / 2.0);
    const int cy = RoundHalfEven(frameHeight / 2.0);
    for (int i = 1; i <= 8; ++i) {
        const double a = (i - 1) * (360.0 / 8) * Pi / 180.0;
        const double x = Radius * std::cos(a) + cx;
        const double y = Radius * std::sin(a) + cy;
        const double half = IconSize / 2.0;
        rects[size_t(i)] = {RoundHalfEven(x - half), RoundHalfEven(y - half),
                            RoundHalfEven(x - half + IconSize), RoundHalfEven(y - half + IconSize)};
    }
    const int left = RoundHalfEven((frameWidth - CentreSize) / 2.0);
    const int top = RoundHalfEven((frameHeight - CentreSize) / 2.0);
    rects[0] = {left, top, left + CentreSize, top + CentreSize};
    return rects;
}

int IconAt(const IconRectTable& rects, int x, int y) {
    for (int i = 1; i <= 8; ++i)
        if (rects[size_t(i)].contains(x, y))
            return i;
    return rects[0].contains(x, y) ? 0 : -1;
}

} // namespace zentor::show
