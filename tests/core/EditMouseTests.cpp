#include "EditFakeView.h"
#include "edit/DragGeometry.h"
#include "edit/HitTest.h"
#include "edit/TabNavigation.h"
#include "edit/WorkspaceLayout.h"
#include "render/IconRing.h"

#include <gtest/gtest.h>

using namespace zentor;
using namespace zentor::test;

namespace {

// Page 1 with one image at (100, 100, 50, 50) in slot 1 and a text over part of it in slot 1.
struct PageFixture : EditorFixture {
    PageFixture() {
        showTab(1);
        editor.CommonModth(CmdInsertImage);
        ImageElement& img = doc->Images[1];
        img.Left = 100, img.Top = 100, img.Width = 50, img.Height = 50;
        editor.CommonModth(CmdInsertText);
        TextElement& txt = doc->Texts[1];
        txt.Left = 140, txt.Top = 140, txt.Width = 60, txt.Height = 20;
        doc->Dirty = false;
        view.log.clear();
    }
    IntRect image() const {
        const ImageElement& e = doc->Images[1];
        return {e.Left, e.Top, e.Width, e.Height};
    }
};

TEST(EditMouse, DraggingMovesTheRecordLiveAndOnlyTheFrameMarksTheDocument) {
    const struct {
        bool byFrame;
        IntPoint to;
        IntRect after;
    } cases[] = {
        {false, {130, 90}, {120, 80, 50, 50}},
        {true, {130, 90}, {120, 80, 50, 50}},
        {false, {900, 110}, {750, 100, 50, 50}}, // stops on the right border
        {true, {0, -300}, {0, 0, 50, 50}},       // and on the left and top
    };
    for (const auto& c : cases) {
        PageFixture f;
        const IntPoint from{110, 110};
        if (c.byFrame) {
            f.editor.workspaceMouseDown(MouseButton::Left, from); // selects the image
            f.editor.workspaceMouseUp(MouseButton::Left);
            f.doc->Dirty = false;
            f.editor.frameMouseDown(MouseButton::Left, from);
            f.editor.frameMouseMove(c.to);
        } else {
            f.editor.workspaceMouseDown(MouseButton::Left, from);
            f.editor.workspaceMouseMove(c.to);
        }
        EXPECT_EQ(f.image(), c.after);
        EXPECT_EQ(f.view.boxes, c.after);
        const int paints = f.view.paints;
        if (c.byFrame)
            f.editor.frameMouseUp(MouseButton::Left);
        else
            f.editor.workspaceMouseUp(MouseButton::Left);
        EXPECT_EQ(f.doc->Dirty, c.byFrame);
        EXPECT_GT(f.view.paints, paints);
        EXPECT_EQ(f.editor.state().SelectedKind, KindImage);
        // Released: further moves change nothing.
        f.editor.workspaceMouseMove({300, 300});
        f.editor.frameMouseMove({300, 300});
        EXPECT_EQ(f.image(), c.after);
    }
}

TEST(EditMouse, RightButtonSelectsWithoutDragAndOpensTheEditMenu) {
    PageFixture f;
    f.editor.workspaceMouseDown(MouseButton::Right, {145, 145});
    EXPECT_EQ(f.editor.state().SelectedKind, KindText); // the text beats the image under it
    f.editor.workspaceMouseMove({200, 200});
    EXPECT_EQ(f.doc->Texts[1].Left, 140);
    f.editor.workspaceMouseUp(MouseButton::Right);
    f.editor.frameMouseDown(MouseButton::Right, {145, 145});
    f.editor.frameMouseMove({200, 200});
    f.editor.frameMouseUp(MouseButton::Right);
    EXPECT_EQ(f.doc->Texts[1].Left, 140);
    EXPECT_EQ(f.view.log, (QStringList{"edit menu", "edit menu"}));
    EXPECT_FALSE(f.doc->Dirty);

    f.showTab(0);
    f.view.log.clear();
    f.editor.workspaceMouseUp(MouseButton::Right);
    EXPECT_TRUE(f.view.log.isEmpty());
}

TEST(EditMouse, RedrawKeepsTheSelectedObjectButNotThePageRow) {
    PageFixture f;
    f.editor.workspaceMouseDown(MouseButton::Left, {110, 110});
    f.editor.RefreshTab(1);
    EXPECT_EQ(f.view.currentRow, 1);
    EXPECT_EQ(f.editor.state().SelectedKind, KindImage);
    // The page row matches the map's unused (0, 0) rows first, past the list's end: the
    // list is left without a selection, as the program always did.
    f.editor.workspaceMouseDown(MouseButton::Left, {500, 500});
    f.editor.RefreshTab(1);
    EXPECT_EQ(f.view.currentRow, -1);
    EXPECT_EQ(f.editor.state().SelectedKind, KindTab);
}

TEST(EditMouse, HandlesResizeTheSelectedObject) {
    PageFixture f;
    f.editor.workspaceMouseDown(MouseButton::Left, {110, 110});
    f.editor.workspaceMouseUp(MouseButton::Left);
    f.editor.handleMouseDown(7, {150, 150});
    f.editor.handleMouseMove(7, {170, 160});
    EXPECT_EQ(f.image(), (IntRect{100, 100, 70, 60}));
    f.editor.handleMouseMove(0, {400, 150}); // the left handle past the right edge
    f.editor.handleMouseUp(0);
    EXPECT_EQ(f.image(), (IntRect{143, 100, 7, 50}));
    f.editor.handleMouseMove(7, {0, 0}); // no longer held
    EXPECT_EQ(f.image(), (IntRect{143, 100, 7, 50}));
    EXPECT_FALSE(f.doc->Dirty);
}

// Left by a page change (the window tests leave it by a click), the words still go to the
// page the text is on.
TEST(EditMouse, InPlaceEditIsStoredIntoThePageItBelongsTo) {
    PageFixture f;
    f.editor.workspaceMouseDown(MouseButton::Left, {190, 150});
    f.editor.workspaceMouseUp(MouseButton::Left);
    f.editor.frameDoubleClick();
    ASSERT_TRUE(f.view.inPlace.has_value());
    EXPECT_EQ(*f.view.inPlace, f.doc->Texts[0].Text.text());
    EXPECT_TRUE(f.doc->Dirty); // opening the editor already counts as a change
    f.view.inPlace = "Hello";
    f.showTab(2);
    EXPECT_EQ(f.doc->Texts[1].Text.text(), "Hello");
    EXPECT_EQ(f.doc->Texts[1].TabNo, 1);
    EXPECT_EQ(f.view.wordBox, "Hello");
    EXPECT_FALSE(f.view.inPlace.has_value());
}

TEST(EditMouse, ProfileRingHoverAndClickLeadToTheTab) {
    EditorFixture f;
    const int paints = f.view.paints;
    f.editor.workspaceMouseMove({400, 550}); // icon 3, below the centre
    EXPECT_EQ(f.editor.state().HoverIcon, 3);
    EXPECT_EQ(f.view.paintedHover, 3);
    EXPECT_EQ(f.view.paints, paints + 1);
    f.editor.workspaceMouseMove({401, 551}); // same icon: no repaint
    EXPECT_EQ(f.view.paints, paints + 1);
    f.editor.workspaceClick();
    EXPECT_EQ(f.view.rows.value(0), "Tab - Education" + QString(23, ' ')); // 32-char name
    f.showTab(0);
    f.editor.workspaceMouseMove({10, 10}); // beside every icon a click stays
    f.editor.workspaceClick();
    EXPECT_EQ(f.editor.state().CurrentTab, 0);
}

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
