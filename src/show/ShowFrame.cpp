#include "ShowFrame.h"

namespace zentor::show {

FrameSize FrameOf(const ShowHeader& h) {
    if (h.FrameWidth < 1 || h.FrameHeight < 1 || h.FrameWidth > MaxFrameSide ||
        h.FrameHeight > MaxFrameSide)
        return FrameSize();
    return {h.FrameWidth, h.FrameHeight};
}

} // namespace zentor::show
