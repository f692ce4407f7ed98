#pragma once

#include <optional>

namespace zentor {

// The main window's panes are laid out by hand. Scroll bars and the workspace's position in
// its viewport keep one rule on each axis: workspace position = bar Min - bar Value.

struct ScrollBarRange {
    int Min = 0;
    int Max = 0;
    int Value = 0;
    friend bool operator==(const ScrollBarRange&, const ScrollBarRange&) = default;
};

// The bar of one axis when the viewport changed size. A workspace larger than the viewport
// gets Min = viewport, Max = workspace; the horizontal bar follows the workspace's current
// position, the vertical one stands in the middle (`middle`). Otherwise Min = Max = 0.
// A Value out of Min..Max is refused, keeping `oldValue`, as the bar itself would.
ScrollBarRange ScrollOnViewportResize(int viewport, int workspace, int workspacePos, bool middle,
                                      int oldValue);

// The same when the workspace itself changed size: Value follows the workspace's position.
ScrollBarRange ScrollOnWorkspaceResize(int viewport, int workspace, int workspacePos, int oldValue);

// Where the workspace goes to be centred in the viewport; negative when it is larger
// (its middle shows). Halves round to even.
int CentreOffset(int viewport, int workspace);

// The workspace position for a scroll bar value; nothing when it overflows 16 bits.
std::optional<int> OffsetFromScroll(int min, int value);

// The frame pane's children for its inner size S x V (pixels): 18 is a scroll bar.
struct FramePaneLayout {
    int tabStripWidth;
    int viewportWidth;
    int viewportHeight;
    int hScrollTop;
    int hScrollWidth;
    int vScrollLeft;
    int vScrollHeight;
};
FramePaneLayout LayoutFramePane(int innerWidth, int innerHeight);

// Window width in twips -> frame pane width and the status panel's width (twips).
inline constexpr int TwipsPerPixel = 15;
int FramePaneWidthTwips(int windowWidthTwips);
int StatusPanelWidthTwips(int windowWidthTwips);

// The property panes' height in a tool pane of `toolHeight`; nothing when negative.
std::optional<int> PropertyPaneHeight(int toolHeight);
// The text box of the text pane: grows with pane 0 only while the pane is above 380.
std::optional<int> WordBoxHeight(int paneHeight, int paneInnerHeight, int wordBoxTop);

} // namespace zentor
