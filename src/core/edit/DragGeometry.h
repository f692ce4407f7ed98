#pragma once

#include "edit/Geometry.h"

#include <QPointF>

#include <array>

namespace zentor {

inline constexpr int HandleSize = 7; // the selection frame's square handles, and its minimum size

// Clamps the selection frame to the page, in this order: right edge, bottom edge, minimum
// size of 7, then left and top at 0. The order shows: an object wider than the page ends
// at Left 0 sticking out on the right, and a tiny object at the right border may stick out
// by up to 7 pixels.
void MoveAdd(IntRect& r, int frameW, int frameH);

// Top-left corners of handles 0..7 of a frame: 0 top-left, 1 middle left, 2 bottom-left,
// 3 middle top, 4 middle bottom, 5 top-right, 6 middle right, 7 bottom-right. The halves
// are not rounded.
std::array<QPointF, 8> HandlePositions(const IntRect& frame);

// The frame after a move by (dx, dy) from where it was when the move began, before
// MoveAdd's clamping.
IntRect MoveByDelta(const IntRect& atStart, int dx, int dy);

// The frame while handle k is dragged by (dx, dy) from `atStart`, clamped to the page
// keeping the opposite edge, before MoveAdd (which still raises a size below 7 to 7).
IntRect ResizeByHandle(int handle, const IntRect& atStart, int dx, int dy, int frameW, int frameH);

} // namespace zentor
