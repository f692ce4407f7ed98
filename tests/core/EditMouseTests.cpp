#include "EditFakeView.h"

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

} // namespace
