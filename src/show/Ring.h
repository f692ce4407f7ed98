#pragma once

#include <array>

namespace zentor::show {

// One rectangle of the home page's icon ring, edges as left, top, right, bottom.
struct IconRect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
    bool contains(int x, int y) const { return x >= Left && x < Right && y >= Top && y < Bottom; }
    bool operator==(const IconRect& o) const {
        return Left == o.Left && Top == o.Top && Right == o.Right && Bottom == o.Bottom;
    }
    bool operator!=(const IconRect& o) const { return !(*this == o); }
};

// 0 the 128 x 128 centre picture, 1..8 the 80 x 80 icons of tabs 1..8 on a circle of
// radius 250 around the frame's centre, icon 1 to the right, then clockwise (3 below).
using IconRectTable = std::array<IconRect, 9>;

inline constexpr int SlideShowIcon = 8;

IconRectTable RingRects(int frameWidth, int frameHeight);

// The ring icon (1..8) under a point, 0 for the centre picture, -1 for none.
int IconAt(const IconRectTable& rects, int x, int y);

// Nearest whole number, halves to even.
int RoundHalfEven(double v);

} // namespace zentor::show
