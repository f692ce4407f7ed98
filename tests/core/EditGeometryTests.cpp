#include "edit/DragGeometry.h"
#include "edit/HitTest.h"
#include "edit/TabNavigation.h"
#include "edit/WorkspaceLayout.h"
#include "render/IconRing.h"

#include <gtest/gtest.h>

using namespace zentor;

namespace {

struct ClampCase {
    const char* what;
    IntRect in, out;
};

TEST(EditGeometry, MoveAddClampsInItsOwnOrder) {
    const ClampCase cases[] = {
        {"inside stays", {10, 20, 30, 40}, {10, 20, 30, 40}},
        {"past the right edge stops on it", {750, 10, 100, 50}, {700, 10, 100, 50}},
        {"past the bottom edge stops on it", {0, 580, 10, 50}, {0, 550, 10, 50}},
        {"wider than the page: Left 0, sticks out right", {50, 0, 900, 50}, {0, 0, 900, 50}},
        {"taller than the page: Top 0", {0, 30, 20, 700}, {0, 0, 20, 700}},
        {"tiny at the right border grows after the edge clamp", {799, 598, 3, 2}, {797, 598, 7, 7}},
        {"negative position goes to 0", {-20, -5, 50, 50}, {0, 0, 50, 50}},
        {"empty and negative sizes become 7", {100, 100, -5, 0}, {100, 100, 7, 7}},
    };
    for (const ClampCase& c : cases) {
        IntRect r = c.in;
        MoveAdd(r, 800, 600);
        EXPECT_EQ(r, c.out) << c.what;
    }
}

TEST(EditGeometry, HandlesSitInsideTheFrameWithUnroundedHalves) {
    const auto h = HandlePositions({10, 20, 30, 41});
    const QPointF expected[8] = {{10, 20},   {10, 37}, {10, 54}, {21.5, 20},
                                 {21.5, 54}, {33, 20}, {33, 37}, {33, 54}};
    for (int k = 0; k < 8; ++k)
        EXPECT_EQ(h[k], expected[k]) << "handle " << k;
}

TEST(EditGeometry, ResizeByHandleKeepsTheOppositeEdge) {
    const struct {
        int handle;
        IntRect start;
        int dx, dy;
        IntRect beforeClamp, after; // ResizeByHandle, then MoveAdd
    } cases[] = {
        // Top-left past the page top: Top 0, the height grows by the old Top.
        {0, {100, 20, 100, 100}, 0, -50, {100, 0, 100, 120}, {100, 0, 100, 120}},
        // Left handle past the right edge: 7 wide, the right edge kept.
        {1, {100, 50, 100, 100}, 150, 0, {193, 50, 7, 100}, {193, 50, 7, 100}},
        // Right handle past the left edge: below 7, MoveAdd raises it.
        {6, {100, 50, 100, 100}, -150, 0, {100, 50, -50, 100}, {100, 50, 7, 100}},
        // Bottom-right past the page corner stops on it.
        {7, {700, 500, 50, 50}, 100, 100, {700, 500, 100, 100}, {700, 500, 100, 100}},
        // Left handle past the page's left: Left 0, the right edge kept.
        {1, {10, 50, 100, 100}, -30, 0, {0, 50, 110, 100}, {0, 50, 110, 100}},
        // At the page's left border a right-edge handle still resizes.
        {6, {0, 50, 100, 100}, 30, 0, {0, 50, 130, 100}, {0, 50, 130, 100}},
        // Middle handles move one axis only.
        {3, {100, 100, 50, 50}, 30, 10, {100, 110, 50, 40}, {100, 110, 50, 40}},
        {4, {100, 100, 50, 50}, 30, 25, {100, 100, 50, 75}, {100, 100, 50, 75}},
        {2, {100, 100, 50, 50}, -20, 5, {80, 100, 70, 55}, {80, 100, 70, 55}},
        // Top-right past the bottom: 7 high, the bottom edge kept.
        {5, {100, 100, 50, 50}, 10, 60, {100, 143, 60, 7}, {100, 143, 60, 7}},
        // A frame already past the right border: the width is taken from the starting Left.
        {0, {750, 0, 100, 40}, 10, 0, {760, 0, 50, 40}, {750, 0, 50, 40}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases); // the row
        IntRect r = ResizeByHandle(c.handle, c.start, c.dx, c.dy, 800, 600);
        EXPECT_EQ(r, c.beforeClamp);
        MoveAdd(r, 800, 600);
        EXPECT_EQ(r, c.after);
    }
}

TEST(EditGeometry, HoverUsesTheDrawnRingAndExcludesEdges) {
    // 400.5 and 300.5 round to the even 400 and 300: an odd frame has the same ring.
    const IconRectTable drawn = IconRects(QSize(800, 600));
    for (const QSize frame : {QSize(800, 600), QSize(801, 601)}) {
        const auto ring = IconRects(frame);
        for (int i = 0; i < 9; ++i)
            EXPECT_EQ(ring[i], drawn[i]) << i;
    }
    const auto r = IconRects(QSize(800, 600));
    const struct {
        double x, y;
        int icon;
    } cases[] = {{650, 300, 1}, {611, 261, 1}, {610, 300, 0}, {690, 300, 0}, {650, 260, 0},
                 {400, 300, 0}, {400, 550, 3}, {150, 300, 5}, {400, 50, 7}};
    for (const auto& c : cases)
        EXPECT_EQ(HoverIconAt(r, c.x, c.y), c.icon) << c.x << "," << c.y;
}

TEST(EditGeometry, NoSelectedStripMapsTheOldPageAsAPosition) {
    EXPECT_EQ(GetSelectedIndex(0, 3), 6);
    EXPECT_EQ(GetSelectedIndex(2, 3), 7);
}

TEST(EditGeometry, ScrollBarsFollowTheWorkspace) {
    // Fits: no range, and centred.
    EXPECT_EQ(ScrollOnViewportResize(1000, 800, 100, false, 0), (ScrollBarRange{0, 0, 0}));
    EXPECT_EQ(CentreOffset(1000, 800), 100);
    // Larger: Min is the viewport, Max the workspace; the vertical bar stands in the middle.
    EXPECT_EQ(ScrollOnViewportResize(500, 800, -150, true, 0), (ScrollBarRange{500, 800, 650}));
    EXPECT_EQ(CentreOffset(500, 800), -150);
    EXPECT_EQ(OffsetFromScroll(500, 650), -150);
    EXPECT_EQ(OffsetFromScroll(500, 800), -300); // Max shows the far edge
    // The horizontal bar follows where the workspace is.
    EXPECT_EQ(ScrollOnWorkspaceResize(500, 800, -100, 7), (ScrollBarRange{500, 800, 600}));
    // Out of range is refused and the old value kept; so is a 16-bit overflow.
    EXPECT_EQ(ScrollOnWorkspaceResize(500, 800, 100, 7), (ScrollBarRange{500, 800, 7}));
    EXPECT_EQ(OffsetFromScroll(-30000, 10000), std::nullopt);
    EXPECT_EQ(CentreOffset(801, 800), 0); // half rounds to even
    EXPECT_EQ(CentreOffset(803, 800), 2);
}

} // namespace
