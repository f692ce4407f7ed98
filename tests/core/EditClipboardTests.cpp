#include "EditFakeView.h"
#include "edit/ObjectClipboard.h"
#include "edit/ObjectList.h"
#include "io/RecordCodec.h"
#include "io/ScriptFile.h"

#include <gtest/gtest.h>

using namespace zentor;
using namespace zentor::test;

namespace {

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
