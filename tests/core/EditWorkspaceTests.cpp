#include "EditFakeView.h"
#include "edit/DragGeometry.h"
#include "edit/HitTest.h"
#include "edit/ObjectClipboard.h"
#include "edit/ObjectList.h"
#include "edit/TabNavigation.h"
#include "edit/UndoStack.h"
#include "edit/WorkspaceLayout.h"
#include "io/RecordCodec.h"
#include "io/ScriptFile.h"
#include "render/IconRing.h"

#include <gtest/gtest.h>

#include <functional>

using namespace zentor;
using namespace zentor::test;
using Answer = Prompter::Answer;

namespace {

// Page 1 with image 1 at (100, 100, 50, 50) and text 1 (60 x 20) at `textAt`.
struct TwoObjects : EditorFixture {
    explicit TwoObjects(IntPoint textAt) {
        showTab(1);
        editor.CommonModth(CmdInsertImage);
        ImageElement& img = doc->Images[1];
        img.Left = 100, img.Top = 100, img.Width = 50, img.Height = 50;
        editor.CommonModth(CmdInsertText);
        TextElement& txt = doc->Texts[1];
        txt.Left = textAt.x, txt.Top = textAt.y, txt.Width = 60, txt.Height = 20;
    }
};

// The text lies over part of the image.
struct PageFixture : TwoObjects {
    PageFixture() : TwoObjects({140, 140}) {
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

TEST(EditMouse, RightButtonSelectsWithoutDragAndOpensTheEditMenuAndARedrawKeepsTheSelection) {
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

    // A redraw keeps the selected object but not the page row.
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

    f.showTab(0);
    f.view.log.clear();
    f.editor.workspaceMouseUp(MouseButton::Right);
    EXPECT_TRUE(f.view.log.isEmpty());
}

TEST(EditMouse, HandlesResizeTheSelectedObject) {
    PageFixture f;
    f.editor.workspaceMouseDown(MouseButton::Left, {110, 110});
    f.editor.workspaceMouseUp(MouseButton::Left);
    f.editor.handleMouseDown(0, {150, 150});
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

TEST(EditGeometry, HandlesSitInsideTheFrameAndNoStripMapsThePage) {
    const auto h = HandlePositions({10, 20, 30, 41});
    const QPointF expected[8] = {{10, 20},   {10, 37}, {10, 54}, {21.5, 20},
                                 {21.5, 54}, {33, 20}, {33, 37}, {33, 54}};
    for (int k = 0; k < 8; ++k)
        EXPECT_EQ(h[k], expected[k]) << "handle " << k;
    // With no strip selected the old page is mapped as a position.
    EXPECT_EQ(GetSelectedIndex(0, 3), 6);
    EXPECT_EQ(GetSelectedIndex(2, 3), 7);
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

// The image selected and the text beside it, all recorded.
struct UndoFixture : TwoObjects {
    UndoFixture() : TwoObjects({300, 300}) {
        editor.recordPending();
        editor.workspaceMouseDown(MouseButton::Left, {110, 110});
        editor.workspaceMouseUp(MouseButton::Left);
    }
};

TEST(EditUndo, EveryKindOfChangeIsOneNamedStepThatUndoesAndRedoesToTheSameBytes) {
    const struct {
        const char* name;
        std::function<void(UndoFixture&)> change;
    } cases[] = {
        {"Insert image 2", [](UndoFixture& f) { f.editor.menuCommand(CmdInsertImage); }},
        {"Insert text 2", [](UndoFixture& f) { f.editor.menuCommand(CmdInsertText); }},
        {"Delete image 1",
         [](UndoFixture& f) {
             f.prompter.expectQuestion("Delete Image", "Are you sure to delete image 1?",
                                       Answer::Yes);
             f.editor.menuCommand(CmdDelete);
         }},
        {"Move image 1",
         [](UndoFixture& f) {
             f.editor.frameMouseDown(MouseButton::Left, {110, 110});
             f.editor.frameMouseMove({140, 130});
             f.editor.frameMouseUp(MouseButton::Left);
         }},
        {"Resize image 1",
         [](UndoFixture& f) {
             f.editor.handleMouseDown(7, {150, 150});
             f.editor.handleMouseMove(7, {170, 160});
             f.editor.handleMouseUp(7);
         }},
        {"Edit text 1",
         [](UndoFixture& f) {
             f.editor.workspaceMouseDown(MouseButton::Left, {310, 305});
             f.editor.workspaceMouseUp(MouseButton::Left);
             f.editor.frameDoubleClick();
             f.view.inPlace = "Hello";
             f.editor.commitInPlaceEdit();
         }},
        {"Edit image 1", // a property pane writes the record itself
         [](UndoFixture& f) {
             f.doc->Images[1].Name = "renamed";
             f.editor.recordPending();
         }},
        {"Cut image 1", [](UndoFixture& f) { EXPECT_FALSE(f.editor.cutSelection().isEmpty()); }},
        {"Paste image 2",
         [](UndoFixture& f) { EXPECT_TRUE(f.editor.paste(f.editor.copySelection())); }},
        {"Duplicate image 2", [](UndoFixture& f) { EXPECT_TRUE(f.editor.duplicate()); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        UndoFixture f;
        f.doc->Dirty = false;
        const QByteArray before = SavedBytes(*f.doc);
        c.change(f);
        const QByteArray after = SavedBytes(*f.doc);
        ASSERT_NE(before, after);
        EXPECT_EQ(f.editor.undoStack().undoName(), c.name);
        f.editor.undo();
        EXPECT_EQ(SavedBytes(*f.doc), before);
        // The selection never stays on an object the step took away.
        const EditorState& st = f.editor.state();
        if (st.SelectedKind == KindImage) {
            EXPECT_EQ(f.doc->Images[st.SelectedIndex].TabNo, 1);
        }
        if (st.SelectedKind == KindText) {
            EXPECT_EQ(f.doc->Texts[st.SelectedIndex].TabNo, 1);
        }
        EXPECT_EQ(f.editor.undoStack().redoName(), c.name);
        f.editor.redo();
        EXPECT_EQ(SavedBytes(*f.doc), after);
        EXPECT_TRUE(f.doc->Dirty);
    }
}

TEST(EditUndo, DirtyFollowsTheSavedPointAndNewClearsTheHistory) {
    UndoFixture f;
    Sandbox out;
    const QString path = out.path("cv.qds");
    f.prompter.expectFile(true, "Save QDV Script File", "*.qds|*.qds|*.*|*.*", path);
    f.editor.menuCommand(CmdSave);
    ASSERT_FALSE(f.doc->Dirty);
    f.editor.menuCommand(CmdInsertImage);
    EXPECT_TRUE(f.doc->Dirty);
    f.editor.undo();
    EXPECT_FALSE(f.doc->Dirty); // back at the saved bytes
    f.editor.undo();
    EXPECT_TRUE(f.doc->Dirty);
    // A new change after undoing past the save: the saved state cannot come back.
    f.editor.menuCommand(CmdInsertImage);
    f.editor.undo();
    EXPECT_TRUE(f.doc->Dirty);

    f.prompter.expectYesNoCancel("New File", "Do you want to save the work?", Answer::No);
    f.editor.menuCommand(CmdNew);
    EXPECT_FALSE(f.editor.undoStack().canUndo());
    EXPECT_FALSE(f.editor.undoStack().canRedo());
}

TEST(EditUndo, ChangesWithOneMergeKeyAreOneStep) {
    Sandbox box;
    auto doc = box.newDocument();
    doc->Images[1].TabNo = doc->Images[2].TabNo = 1; // in use, so saved
    UndoStack s;
    const QByteArray start = SavedBytes(*doc);
    for (int i = 1; i <= 3; ++i) {
        const DocumentRecords before = RecordsOf(*doc);
        doc->Images[1].Left = i;
        s.push("Move image 1", before, *doc, "nudge 1 1");
    }
    DocumentRecords before = RecordsOf(*doc);
    doc->Images[2].Left = 7;
    s.push("Move image 2", before, *doc, "nudge 1 2");
    before = RecordsOf(*doc);
    EXPECT_FALSE(s.push("Nothing", before, *doc)); // unchanged bytes make no step

    EXPECT_EQ(s.undoName(), "Move image 2");
    s.undo(*doc);
    EXPECT_EQ(s.undoName(), "Move image 1");
    s.undo(*doc);
    EXPECT_FALSE(s.canUndo());
    EXPECT_EQ(SavedBytes(*doc), start);
}

TEST(EditKeys, NudgesMoveTheSelectionWithTheDragClampsAndARunIsOneStep) {
    const struct {
        IntPoint step; // per key press
        int presses;
        IntRect after;
    } cases[] = {
        {{1, 0}, 3, {103, 100, 50, 50}},
        {{0, -10}, 2, {100, 80, 50, 50}},
        {{-10, 0}, 20, {0, 100, 50, 50}},   // stops on the left border
        {{0, 10}, 100, {100, 550, 50, 50}}, // and on the bottom one
    };
    for (const auto& c : cases) {
        UndoFixture f;
        const QByteArray before = SavedBytes(*f.doc);
        for (int i = 0; i < c.presses; ++i)
            EXPECT_TRUE(f.editor.nudge(c.step.x, c.step.y));
        const ImageElement& e = f.doc->Images[1];
        EXPECT_EQ((IntRect{e.Left, e.Top, e.Width, e.Height}), c.after);
        EXPECT_EQ(f.view.frame, c.after);
        EXPECT_TRUE(f.doc->Dirty);
        EXPECT_EQ(f.editor.undoStack().undoName(), "Move image 1");
        f.editor.undo();
        EXPECT_EQ(SavedBytes(*f.doc), before);
    }
}

TEST(EditKeys, TabStepsThroughThePageObjectsAndNothingElseNudges) {
    UndoFixture f;
    ASSERT_EQ(f.view.rows.size(), 3); // the page, image 1, text 1
    ASSERT_EQ(f.view.currentRow, 1);
    f.editor.selectNextObject(true);
    EXPECT_EQ(f.view.currentRow, 2);
    f.editor.selectNextObject(true);
    EXPECT_EQ(f.view.currentRow, 0); // wraps to the page itself
    EXPECT_FALSE(f.editor.nudge(1, 0));
    f.editor.selectNextObject(false);
    EXPECT_EQ(f.view.currentRow, 2);
    EXPECT_EQ(f.editor.state().SelectedKind, KindText);
}

// Whether a change is a step of the history is whether the saved file would differ: the
// comparison must agree with the bytes for what is saved and for what is not.
TEST(UndoRecords, AChangeCountsExactlyWhenTheSavedBytesDiffer) {
    const struct {
        const char* what;
        std::function<void(Document&)> change;
        bool same;
    } cases[] = {
        {"nothing", [](Document&) {}, true},
        {"a letter of a text in use", [](Document& d) { d.Texts[3].Text.data()[4095] = 'y'; },
         false},
        {"a picture's hidden field", [](Document& d) { d.Images[2].Reserved = 7; }, false},
        {"the page colour", [](Document& d) { d.Header.BackColor ^= 1; }, false},
        {"a page name", [](Document& d) { d.Tabs[8].Name = "Show"; }, false},
        {"a profile field", [](Document& d) { d.Profile.PostCode = "75001"; }, false},
        {"a text taken off its page", [](Document& d) { d.Texts[3].TabNo = 0; }, false},
        {"a slot not in use", [](Document& d) { d.Texts[9].Text = "unseen"; }, true},
        {"the template slot", [](Document& d) { d.Images[0].Left = 99; }, true},
        {"the profile page's record", [](Document& d) { d.Tabs[0].Extra = 5; }, true},
        {"the stored counts", [](Document& d) { d.Header.TextCount = 77; }, true},
        {"a text moved to a free slot further on",
         [](Document& d) { std::swap(d.Texts[3], d.Texts[5]); }, true},
        {"two texts swapped", [](Document& d) { std::swap(d.Texts[3], d.Texts[6]); }, false},
    };
    Sandbox box;
    auto base = box.newDocument();
    PlaceText(*base, 3, 2, QRect(1, 2, 30, 40), QString(4096, QLatin1Char('x')));
    PlaceText(*base, 6, 2, QRect(5, 6, 70, 80), "second");
    PlaceImage(*base, 2, 1, QRect(3, 3, 9, 9), "a.png");
    for (const auto& c : cases) {
        Document changed = *base;
        c.change(changed);
        EXPECT_EQ(SavedBytes(changed) == SavedBytes(*base), c.same) << c.what; // the oracle
        EXPECT_EQ(SameRecords(*base, changed), c.same) << c.what;
        UndoStack undo;
        EXPECT_EQ(undo.push("Edit", *base, changed), !c.same) << c.what;
    }
}

IntRect RectOf(const ImageElement& e) {
    return {e.Left, e.Top, e.Width, e.Height};
}

TEST(ObjectClipboard, PastesOnlyObjectsOntoContentPagesWithRoomAndOtherwiseChangesNothing) {
    Sandbox box;
    auto source = box.newDocument();
    PlaceImage(*source, 3, 2, QRect(10, 10, 40, 30), "a.png");
    PlaceText(*source, 5, 2, QRect(10, 10, 40, 30), "hello");
    const QByteArray image = CopyObject(*source, KindImage, 3);
    const QByteArray text = CopyObject(*source, KindText, 5);
    using O = PasteResult::Outcome;
    const struct {
        const char* what;
        QByteArray clip;
        int tab;
        bool fill; // every slot of the clip's table in use
        O outcome;
        int slot;
    } cases[] = {
        {"image on a content page", image, 1, false, O::Pasted, 1},
        {"text on a content page", text, 7, false, O::Pasted, 1},
        {"on the profile page", image, 0, false, O::NotHere, 0},
        {"on the slide show", text, 8, false, O::NotHere, 0},
        {"image table full", image, 1, true, O::TableFull, 0},
        {"text table full", text, 1, true, O::TableFull, 0},
        {"cut short", text.left(text.size() - 1), 1, false, O::NotAnObject, 0},
        {"foreign bytes", QByteArray("hello world"), 1, false, O::NotAnObject, 0},
        {"a free slot copied", CopyObject(*source, KindImage, 4), 1, false, O::NotAnObject, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        auto doc = box.newDocument();
        if (c.fill) {
            for (int i = 1; i <= MaxImages; ++i)
                PlaceImage(*doc, i, 3);
            for (int i = 1; i <= MaxTexts; ++i)
                PlaceText(*doc, i, 3);
        }
        const QByteArray before = SavedBytes(*doc);
        const ImageElement imageTemplate = doc->Images[0];
        const PasteResult r = PasteObject(*doc, c.clip, c.tab);
        EXPECT_EQ(r.outcome, c.outcome);
        if (c.outcome != O::Pasted) {
            EXPECT_EQ(SavedBytes(*doc), before);
            EXPECT_EQ(doc->Images[0], imageTemplate);
            continue;
        }
        EXPECT_EQ(r.slot, c.slot);
        if (r.kind == KindImage) {
            EXPECT_EQ(doc->Images[r.slot].TabNo, c.tab);
            EXPECT_EQ(doc->Images[r.slot].Name.trimNull(), "image 1");
            EXPECT_EQ(doc->Images[r.slot].FileName.trimNull(), "a.png");
        } else {
            EXPECT_EQ(doc->Texts[r.slot].TabNo, c.tab);
            EXPECT_EQ(doc->Texts[r.slot].Name.trimNull(), "text 1");
            EXPECT_EQ(doc->Texts[r.slot].Text.trimNull(), "hello");
        }
    }
}

TEST(ObjectClipboard, APasteLandsTenPixelsOnStaysOnThePageAndStepsPastEarlierCopies) {
    Sandbox box;
    const struct {
        QRect source;
        int pastes;
        IntRect last;
    } cases[] = {
        {QRect(100, 100, 50, 40), 1, {110, 110, 50, 40}},
        {QRect(100, 100, 50, 40), 3, {130, 130, 50, 40}},
        {QRect(745, 555, 50, 40), 1, {750, 560, 50, 40}}, // held at the right and bottom edges
        {QRect(0, 0, 900, 40), 1, {0, 10, 900, 40}},      // wider than the page: Left 0
    };
    for (const auto& c : cases) {
        auto doc = box.newDocument(); // an 800 x 600 frame
        PlaceImage(*doc, 1, 1, c.source);
        const QByteArray clip = CopyObject(*doc, KindImage, 1);
        PasteResult r;
        for (int i = 0; i < c.pastes; ++i)
            r = PasteObject(*doc, clip, 1);
        EXPECT_EQ(RectOf(doc->Images[r.slot]), c.last) << c.source.x() << " x" << c.pastes;
    }
}

TEST(EditClipboard, ThePasteIsSelectedAndAFullTableSaysSo) {
    UndoFixture f;
    ASSERT_TRUE(f.editor.duplicate());
    EXPECT_EQ(f.editor.state().SelectedIndex, 2);
    for (int i = 3; i <= MaxImages; ++i)
        PlaceImage(*f.doc, i, 2);
    f.prompter.expectWarning("Paste", TableFullText(KindImage));
    EXPECT_FALSE(f.editor.paste(f.editor.copySelection()));
}

} // namespace
