#pragma once

#include "PackageData.h"
#include "Ring.h"

namespace zentor::show {

struct FrameSize {
    int Width = 800;
    int Height = 600;
};

// The largest side a frame may have; a header asking for more is damaged.
inline constexpr int MaxFrameSide = 16384;

// The size a package is shown at: its header's frame, or 800 x 600 when that is not a sane
// one, so that a damaged header can neither make the frame enormous nor empty.
FrameSize FrameOf(const ShowHeader& h);

// Where the frame lies in a window of `width` x `height`: scaled to fit keeping its shape
// (whole pixels, rounded down), centred.
IconRect FitFrame(FrameSize frame, int width, int height);

// The frame's pixel under the window point (x, y) when the frame lies at `fitted`; a point
// beside the frame lands beside it, outside 0 .. Width-1 (or Height-1).
struct FramePoint {
    int X = -1;
    int Y = -1;
};
FramePoint ToFramePoint(FrameSize frame, const IconRect& fitted, double x, double y);

// The slide show's tab name is not carried in a package; the home page names it so.
inline constexpr const char* SlideShowTabName = "Slide Show";

} // namespace zentor::show
