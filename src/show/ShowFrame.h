#pragma once

#include "PackageData.h"

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

// The slide show's tab name is not carried in a package; the home page names it so.
inline constexpr const char* SlideShowTabName = "Slide Show";

} // namespace zentor::show
