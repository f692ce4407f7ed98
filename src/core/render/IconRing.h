#pragma once

#include <QImage>
#include <QSize>

#include <array>

class QPainter;

namespace zentor {

// One rectangle of the profile page's icon ring, edges as left, top, right, bottom.
struct IconRect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
    friend bool operator==(const IconRect&, const IconRect&) = default;
};

// 0 the 128 x 128 centre picture, 1..8 the 80 x 80 icons of tabs 1..8 on a circle of
// radius 250 around the frame's centre, icon 1 to the right, then clockwise (3 below).
using IconRectTable = std::array<IconRect, 9>;

IconRectTable IconRects(QSize frame);

// Draws the eight icons of the ring (1..8; a null picture is left out) stretched to their
// rectangles and returns the rectangles.
IconRectTable GetCircle(QPainter& p, QSize frame, const std::array<QImage, 9>& icons);

} // namespace zentor
