#include "edit/WorkspaceLayout.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace zentor {

namespace {

bool Fits16(long long v) {
    return v >= std::numeric_limits<int16_t>::min() && v <= std::numeric_limits<int16_t>::max();
}

// A bar refuses a value outside its range (and anything past 16 bits).
ScrollBarRange Bar(int min, int max, long long value, int oldValue) {
    const int lo = min < max ? min : max;
    const int hi = min < max ? max : min;
    const bool ok = Fits16(min) && Fits16(max) && Fits16(value) && value >= lo && value <= hi;
    return {min, max, ok ? int(value) : oldValue};
}

} // namespace

ScrollBarRange ScrollOnViewportResize(int viewport, int workspace, int workspacePos, bool middle,
                                      int oldValue) {
    if (viewport >= workspace)
        return Bar(0, 0, 0, oldValue);
    const long long value = middle ? viewport + std::nearbyint((workspace - viewport) / 2.0)
                                   : (long long)viewport - workspacePos;
    return Bar(viewport, workspace, value, oldValue);
}

ScrollBarRange ScrollOnWorkspaceResize(int viewport, int workspace, int workspacePos,
                                       int oldValue) {
    return ScrollOnViewportResize(viewport, workspace, workspacePos, false, oldValue);
}

int CentreOffset(int viewport, int workspace) {
    return int(std::nearbyint((viewport - workspace) / 2.0));
}

std::optional<int> OffsetFromScroll(int min, int value) {
    const long long d = (long long)min - value;
    if (!Fits16(d))
        return std::nullopt;
    return int(d);
}

FramePaneLayout LayoutFramePane(int s, int v) {
    return {s + 1, s - 18, v - 48, v - 18, s - 18, s - 18, v - 48};
}

int FramePaneWidthTwips(int windowWidthTwips) {
    return windowWidthTwips - 240;
}
int StatusPanelWidthTwips(int windowWidthTwips) {
    return windowWidthTwips - 300;
}

std::optional<int> PropertyPaneHeight(int toolHeight) {
    const int h = toolHeight - 130;
    if (h < 0)
        return std::nullopt;
    return h;
}

std::optional<int> WordBoxHeight(int paneHeight, int paneInnerHeight, int wordBoxTop) {
    if (paneHeight <= 380)
        return std::nullopt;
    const int h = paneInnerHeight - wordBoxTop - 5;
    if (h < 0)
        return std::nullopt;
    return h;
}

} // namespace zentor
