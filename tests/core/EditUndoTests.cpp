#include "EditFakeView.h"
#include "edit/ObjectClipboard.h"
#include "edit/ObjectList.h"
#include "edit/UndoStack.h"
#include "io/RecordCodec.h"
#include "io/ScriptFile.h"

#include <gtest/gtest.h>

#include <functional>

using namespace zentor;
using namespace zentor::test;
using Answer = Prompter::Answer;

namespace {

// Page 1 with image 1 at (100, 100, 50, 50) selected and text 1 beside it, all recorded.
struct UndoFixture : EditorFixture {
    UndoFixture() {
        showTab(1);
        editor.CommonModth(CmdInsertImage);
        ImageElement& img = doc->Images[1];
        img.Left = 100, img.Top = 100, img.Width = 50, img.Height = 50;
        editor.CommonModth(CmdInsertText);
        TextElement& txt = doc->Texts[1];
        txt.Left = 300, txt.Top = 300, txt.Width = 60, txt.Height = 20;
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
        if (st.SelectedKind == KindImage)
            EXPECT_EQ(f.doc->Images[st.SelectedIndex].TabNo, 1);
        if (st.SelectedKind == KindText)
            EXPECT_EQ(f.doc->Texts[st.SelectedIndex].TabNo, 1);
        EXPECT_EQ(f.editor.undoStack().redoName(), c.name);
        f.editor.redo();
        EXPECT_EQ(SavedBytes(*f.doc), after);
        EXPECT_TRUE(f.doc->Dirty);
        EXPECT_PROMPTS_DONE(f.prompter);
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
    EXPECT_PROMPTS_DONE(f.prompter);
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

// Page 1 with picture 1 selected.
struct ClipFixture : EditorFixture {
    ClipFixture() {
        showTab(1);
        editor.menuCommand(CmdInsertImage);
        editor.recordPending();
    }
};

TEST(EditClipboard, CutPasteAndDuplicateAreOneNamedStepEachThatUndoesToTheSameBytes) {
    const struct {
        const char* name;
        std::function<void(ClipFixture&)> change;
    } cases[] = {
        {"Cut image 1", [](ClipFixture& f) { EXPECT_FALSE(f.editor.cutSelection().isEmpty()); }},
        {"Paste image 2",
         [](ClipFixture& f) { EXPECT_TRUE(f.editor.paste(f.editor.copySelection())); }},
        {"Duplicate image 2", [](ClipFixture& f) { EXPECT_TRUE(f.editor.duplicate()); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ClipFixture f;
        const QByteArray before = SavedBytes(*f.doc);
        c.change(f);
        EXPECT_TRUE(f.doc->Dirty);
        const QByteArray after = SavedBytes(*f.doc);
        EXPECT_NE(after, before);
        EXPECT_EQ(f.editor.undoStack().undoName(), QLatin1String(c.name));
        f.editor.undo();
        EXPECT_EQ(SavedBytes(*f.doc), before);
        f.editor.redo();
        EXPECT_EQ(SavedBytes(*f.doc), after);
        EXPECT_PROMPTS_DONE(f.prompter);
    }
}

TEST(EditClipboard, ThePasteIsSelectedAndAFullTableSaysSo) {
    ClipFixture f;
    ASSERT_TRUE(f.editor.duplicate());
    EXPECT_EQ(f.editor.state().SelectedIndex, 2);
    for (int i = 3; i <= MaxImages; ++i)
        PlaceImage(*f.doc, i, 2);
    f.prompter.expectWarning("Paste", TableFullText(KindImage));
    EXPECT_FALSE(f.editor.paste(f.editor.copySelection()));
    EXPECT_PROMPTS_DONE(f.prompter);
}

} // namespace
