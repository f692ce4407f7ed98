#pragma once

#include "show/Ring.h"

#include <QImage>
#include <QSize>

#include <array>

class QPainter;

namespace zentor {

// The editor's profile page and the players' home page stand on one ring.
using show::IconRect;
using show::IconRectTable;

// The ring of a frame of this size (see RingRects).
IconRectTable IconRects(QSize frame);

// Draws the eight icons of the ring (1..8; a null picture is left out) stretched to their
// rectangles and returns the rectangles.
IconRectTable GetCircle(QPainter& p, QSize frame, const std::array<QImage, 9>& icons);

} // namespace zentor
