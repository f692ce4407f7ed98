#include "EditFakeView.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "edit/DeleteObject.h"
#include "edit/HitTest.h"
#include "edit/InsertObject.h"
#include "edit/ObjectList.h"
#include "edit/ZOrder.h"
#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"
#include "model/TabMap.h"

#include <gtest/gtest.h>

#include <QFile>

#include <functional>

using namespace zentor;
using namespace zentor::test;
using Answer = Prompter::Answer;
using Pointer = EditorView::Pointer;

namespace {

const QString Filter = "*.qds|*.qds|*.*|*.*";

// Without a project the window starts on the default document's profile page (see the window
// tests); with one it opens it.
TEST(EditCommands, StartUpOpensTheCommandLineProject) {
    Sandbox other;
    auto saved = other.newDocument();
    saved->Header.FrameWidth = 1000;
    saved->Header.FrameHeight = 500;
    saved->Profile.FirstName = "Lumen";
    ASSERT_TRUE(SaveScript(*saved, other.path("cv.qds")));
    const struct {
        QString commandLine;
        QString firstName;
        IntRect workspace;
    } cases[] = {
        {other.path("cv.qds"), "Lumen", {0, 100, 1000, 500}},
        {other.path("missing.qds"), "Quorvix", {100, 50, 800, 600}}, // silently the default
    };
    for (const auto& c : cases) {
        EditorFixture f(false);
        f.box.ctx.CommandLine = c.commandLine;
        f.editor.formLoad();
        // A project that does not exist yet is where the first Save writes, without a dialog.
        EXPECT_EQ(f.doc->ScriptPath, c.commandLine);
        EXPECT_EQ(f.doc->Profile.FirstName.text(), c.firstName);
        EXPECT_EQ(f.view.workspace, c.workspace);
        EXPECT_FALSE(f.doc->Dirty);
        EXPECT_EQ(QFile::exists(c.commandLine), c.firstName == "Lumen"); // nothing created
    }
}

TEST(EditCommands, NewAndOpenAskOnlyForAChangedDocumentAndNeverDropUnsavedWork) {
    enum Save { NotAsked, Cancelled, Refused, Written };
    const struct {
        int command;
        bool dirty;
        Answer answer;
        Save save;
        bool goesOn; // the document was replaced (New) or the open dialog shown (Open)
    } cases[] = {
        {CmdNew, false, Answer::No, NotAsked, true},
        {CmdNew, true, Answer::Cancel, NotAsked, false},
        {CmdNew, true, Answer::No, NotAsked, true},
        {CmdNew, true, Answer::Yes, Cancelled, false},
        {CmdNew, true, Answer::Yes, Refused, false},
        {CmdNew, true, Answer::Yes, Written, true},
        {CmdOpen, true, Answer::Cancel, NotAsked, false},
        {CmdOpen, true, Answer::Yes, Cancelled, false},
        {CmdOpen, true, Answer::Yes, Written, true},
        {CmdOpen, false, Answer::No, NotAsked, true},
    };
    for (const auto& c : cases) {
        EditorFixture f;
        f.doc->Profile.FirstName = "Edited";
        f.doc->Dirty = c.dirty;
        const QString title = c.command == CmdNew ? "New File" : "Open File";
        const QString bad = f.box.path("no/such/folder/cv.qds");
        const QString good = f.box.path("cv.qds");
        if (c.dirty)
            f.prompter.expectYesNoCancel(title, "Do you want to save the work?", c.answer);
        if (c.save != NotAsked) // a never-saved document: the save dialog comes first
            f.prompter.expectFile(true, "Save QDV Script File", Filter,
                                  c.save == Cancelled ? QString()
                                  : c.save == Refused ? bad
                                                      : good);
        if (c.save == Refused)
            f.prompter.expectWarning("Save QDV Script File", "Can't save file : " + bad);
        if (c.command == CmdOpen && c.goesOn)
            f.prompter.expectFile(false, "Open QDV Script File", Filter, QString());
        f.editor.CommonModth(c.command);
        const bool replaced = c.goesOn && c.command == CmdNew;
        const bool kept = !c.goesOn || c.command == CmdOpen;
        EXPECT_EQ(f.doc->Profile.FirstName.text(), replaced ? "Quorvix" : "Edited");
        EXPECT_EQ(f.doc->Dirty, c.goesOn ? false : c.dirty);
        EXPECT_EQ(f.doc->ScriptPath,
                  c.save == Written ? (kept && !replaced ? good : QString()) : QString());
    }
}

TEST(EditCommands, SaveAddsTheExtensionAndAsksBeforeOverwriting) {
    const struct {
        const char* what;
        int command;
        QString typed, written;
        bool exists;
        Answer overwrite;
        bool saved;
    } cases[] = {
        {"upper-case extension is not ours", CmdSave, "cv.QDS", "cv.QDS.qds", false, Answer::No,
         true},
        {"own extension kept", CmdSave, "cv.qds", "cv.qds", false, Answer::No, true},
        {"no extension", CmdSaveAs, "cv", "cv.qds", false, Answer::No, true},
        {"overwrite refused", CmdSave, "cv.qds", "cv.qds", true, Answer::No, false},
        {"overwrite accepted", CmdSaveAs, "cv", "cv.qds", true, Answer::Yes, true},
        {"dialog cancelled", CmdSave, "", "cv.qds", false, Answer::No, false},
    };
    for (const auto& c : cases) {
        EditorFixture f;
        f.doc->Dirty = true;
        const QString target = f.box.path(c.written);
        if (c.exists) {
            ASSERT_TRUE(WriteAll(target, "old"));
        }
        f.prompter.expectFile(
            true, c.command == CmdSave ? "Save QDV Script File" : "Save as QDV Script File", Filter,
            c.typed.isEmpty() ? QString() : f.box.path(c.typed));
        if (c.exists)
            f.prompter.expectQuestion("Save QDV Script File",
                                      "This file already exists. Do you want to overwrite it?",
                                      c.overwrite);
        f.view.status.clear();
        f.editor.CommonModth(c.command);
        EXPECT_EQ(QFile::exists(target) && ReadAll(target) != "old", c.saved) << c.what;
        EXPECT_EQ(f.doc->Dirty, !c.saved) << c.what;
        EXPECT_EQ(f.view.windowPointer, Pointer::Normal) << c.what;
        // A refused overwrite stops the command before its ending steps.
        EXPECT_EQ(f.view.status, c.exists && !c.saved ? "" : "Ready") << c.what;
    }
}

TEST(EditCommands, SaveToTheKnownPathAsksNothingAndAFailedSaveSaysSo) {
    EditorFixture f;
    f.doc->ScriptPath = f.box.path("cv.qds");
    f.doc->Dirty = true;
    f.editor.CommonModth(CmdSave);
    EXPECT_TRUE(QFile::exists(f.box.path("cv.qds")));
    EXPECT_FALSE(f.doc->Dirty);

    const QString bad = f.box.path("no/such/folder/cv.qds");
    f.prompter.expectFile(true, "Save as QDV Script File", Filter, bad);
    f.prompter.expectWarning("Save QDV Script File", "Can't save file : " + bad);
    f.doc->Dirty = true;
    f.editor.CommonModth(CmdSaveAs);
    EXPECT_TRUE(f.doc->Dirty);
    EXPECT_EQ(f.doc->ScriptPath, f.box.path("cv.qds"));
}

TEST(EditCommands, InsertOnlyOnContentPagesAndSelectsTheNewObject) {
    for (int tab : {0, 8}) {
        EditorFixture f;
        f.showTab(tab);
        f.view.status.clear();
        f.editor.CommonModth(CmdInsertText);
        EXPECT_FALSE(f.doc->Dirty);
        EXPECT_EQ(f.view.status, "");
        EXPECT_EQ(f.doc->Texts[1].TabNo, 0);
    }
    EditorFixture f;
    f.showTab(4);
    f.editor.CommonModth(CmdInsertImage);
    f.editor.CommonModth(CmdInsertText);
    EXPECT_TRUE(f.doc->Dirty);
    EXPECT_EQ(f.editor.state().SelectedKind, KindText);
    EXPECT_EQ(f.editor.state().SelectedIndex, 1);
    EXPECT_EQ(f.view.currentRow, 2);
    EXPECT_EQ(f.view.caption, "Propertity - Text - text 1" + QString(26, ' '));
    EXPECT_TRUE(f.view.frameVisible);
    const TextElement& t = f.doc->Texts[1];
    EXPECT_EQ(f.view.frame, (IntRect{t.Left, t.Top, t.Width, t.Height}));
}

TEST(EditCommands, DeleteAndZOrderMarkTheDocumentEvenWithNothingSelected) {
    EditorFixture f;
    f.showTab(1);
    f.prompter.expectQuestion("Reset Tab", "Are you sure to reset tab - Overview?", Answer::No);
    f.editor.CommonModth(CmdDelete);
    EXPECT_TRUE(f.doc->Dirty);
    EXPECT_EQ(f.view.currentRow, 0);

    f.editor.CommonModth(CmdInsertText);
    f.editor.CommonModth(CmdInsertText);
    f.view.setCurrentRow(1);
    f.editor.chooseRow(1); // text 1, under text 2
    f.doc->Dirty = false;
    f.editor.CommonModth(CmdMoveToTop);
    EXPECT_TRUE(f.doc->Dirty);
    EXPECT_EQ(f.editor.undoStack().undoName(), "Bring text 1 to top");
    EXPECT_EQ(f.editor.state().SelectedIndex, 2);
    EXPECT_EQ(f.doc->Texts[2].Name.text(), "text 1");
    EXPECT_EQ(f.view.currentRow, 2); // the list follows the moved object

    f.prompter.expectQuestion("Delete Text", "Are you sure to delete text 1?", Answer::Yes);
    f.editor.CommonModth(CmdDelete);
    EXPECT_EQ(f.doc->Texts[2].TabNo, 0);
    EXPECT_EQ(f.view.rows.size(), 2);
    EXPECT_EQ(f.view.currentRow, 0);
}

TEST(EditCommands, PreviousAndNextWrapAround) {
    const struct {
        int strip, command, toStrip, toTab;
    } cases[] = {{9, CmdNextTab, 1, 0},
                 {1, CmdPreviousTab, 9, 8},
                 {2, CmdNextTab, 3, 6},
                 {8, CmdNextTab, 9, 8},
                 {2, CmdPreviousTab, 1, 0}};
    for (const auto& c : cases) {
        EditorFixture f;
        f.view.selectStrip(c.strip);
        f.editor.stripClicked();
        f.editor.CommonModth(c.command);
        EXPECT_EQ(f.view.selectedStrip(), c.toStrip);
        EXPECT_EQ(f.editor.state().CurrentTab, c.toTab);
        EXPECT_EQ(f.view.paintedTab, c.toTab);
        EXPECT_FALSE(f.doc->Dirty);
    }
}

TEST(EditCommands, OtherCommandsAndTheirEndingSteps) {
    EditorFixture f;
    QList<bool> generated;
    f.editor.setGenerator([&](bool selfRun, const QString&) {
        EXPECT_EQ(f.view.windowPointer, Pointer::Hourglass);
        generated << selfRun;
        return QString();
    });
    f.editor.CommonModth(CmdGenerateQdv);
    f.editor.CommonModth(CmdGenerateSelfrun);
    EXPECT_EQ(generated, (QList<bool>{false, true}));
    EXPECT_EQ(f.view.windowPointer, Pointer::Normal);
    f.editor.CommonModth(14);
    f.editor.CommonModth(CmdSettings);
    EXPECT_FALSE(f.doc->Dirty);
    f.editor.CommonModth(9); // no command, but inside the range that marks the document
    EXPECT_TRUE(f.doc->Dirty);
    EXPECT_EQ(f.view.log, QStringList{"settings"});
}

void PutImage(Document& d, int slot, int tab, IntRect r, const char* name) {
    PlaceImage(d, slot, tab, {r.Left, r.Top, r.Width, r.Height}).Name = name;
}

void PutText(Document& d, int slot, int tab, IntRect r, const char* name) {
    PlaceText(d, slot, tab, {r.Left, r.Top, r.Width, r.Height}).Name = name;
}

TEST(EditObjects, ObjectListRowsAndMap) {
    Sandbox box;
    auto d = box.newDocument();
    PutText(*d, 4, 1, {0, 0, 10, 10}, "caption");
    PutImage(*d, 9, 1, {0, 0, 10, 10}, "photo");
    PutImage(*d, 2, 1, {0, 0, 10, 10}, "logo");
    PutImage(*d, 3, 2, {0, 0, 10, 10}, "elsewhere");
    const ObjectList l = BuildObjectList(*d, 1);
    const QString pad24(24, QLatin1Char(' '));
    EXPECT_EQ(l.rows, (QStringList{"Tab - Overview" + pad24, "Image - logo" + QString(28, ' '),
                                   "Image - photo" + QString(27, ' '),
                                   "Text - caption" + QString(25, ' ')}));
    EXPECT_EQ(l.map[0], (ObjectRef{KindTab, 0}));
    EXPECT_EQ(l.map[1], (ObjectRef{KindImage, 2}));
    EXPECT_EQ(l.map[2], (ObjectRef{KindImage, 9}));
    EXPECT_EQ(l.map[3], (ObjectRef{KindText, 4}));
    EXPECT_EQ(l.map[4], (ObjectRef{}));
    EXPECT_EQ(BuildObjectList(*d, 0).rows, QStringList{"Profile "});
    EXPECT_EQ(BuildObjectList(*d, 0).map[0].kind, KindProfile);
    EXPECT_EQ(BuildObjectList(*d, 8).rows, QStringList{"Slide Show"});
    EXPECT_EQ(BuildObjectList(*d, 8).map[0].kind, KindSlideShow);
}

struct HitCase {
    const char* what;
    double x, y;
    ObjectRef picked; // (0, 0): the page row
};

TEST(EditObjects, SelectByMousePrefersTextsThenHigherSlots) {
    Sandbox box;
    auto d = box.newDocument();
    PutImage(*d, 6, 1, {100, 100, 200, 200}, "big picture"); // drawn over nothing, still loses
    PutImage(*d, 2, 1, {400, 400, 50, 50}, "low");
    PutImage(*d, 3, 1, {420, 420, 50, 50}, "high");
    PutText(*d, 3, 1, {150, 150, 40, 40}, "under");
    PutText(*d, 7, 1, {160, 160, 40, 40}, "over");
    PutText(*d, MaxTexts, 1, {600, 100, 50, 50}, "last slot");
    PutImage(*d, MaxImages, 1, {600, 300, 50, 50}, "last slot");
    PutImage(*d, 5, 1, {600, 300, 50, 50}, "under the last");
    PutText(*d, 9, 2, {0, 0, 800, 600}, "other page");
    const ObjectList l = BuildObjectList(*d, 1);
    const HitCase cases[] = {
        {"text over the image", 155, 155, {KindText, 3}},
        {"higher text slot wins", 170, 170, {KindText, 7}},
        {"image alone", 110, 110, {KindImage, 6}},
        {"higher image slot wins", 430, 430, {KindImage, 3}},
        {"the right edge is inside", 450, 410, {KindImage, 2}},
        {"the bottom edge is inside", 410, 450, {KindImage, 2}},
        {"one past the edge", 470.5, 430, {}},
        {"left and top edges are inside", 400, 400, {KindImage, 2}},
        {"last text slot is never found", 610, 110, {}},
        {"last image slot falls through to a lower one", 610, 310, {KindImage, 5}},
        {"empty place selects the page", 10, 10, {}},
    };
    for (const HitCase& c : cases) {
        const int row = SelectByMouse(*d, l.map, 1, c.x, c.y);
        ASSERT_GE(row, 0) << c.what;
        EXPECT_EQ(l.map[row], c.picked) << c.what;
        EXPECT_EQ(row == 0, c.picked == ObjectRef{}) << c.what;
    }
    EXPECT_EQ(SelectByMouse(*d, l.map, 0, 155, 155), -1);
    EXPECT_EQ(SelectByMouse(*d, l.map, 8, 155, 155), -1);
    EXPECT_EQ(SelectByMouse(*d, BuildObjectList(*d, 7).map, 7, 155, 155),
              0); // the last content page
}

TEST(EditObjects, ZOrderMovesOnlyThePagesRecords) {
    Sandbox box;
    auto d = box.newDocument();
    const char* names[] = {"", "A", "b", "C", "d", "E"};
    for (int s = 1; s <= 5; ++s) {
        PutImage(*d, s, s % 2 ? 1 : 2, {s, s, 10, 10}, names[s]);
        PutText(*d, s, s % 2 ? 1 : 2, {s, s, 10, 10}, names[s]);
    }
    auto order = [&](bool texts) {
        QString s;
        for (int i = 1; i <= 5; ++i)
            s += texts ? d->Texts[i].Name.text() : d->Images[i].Name.text();
        return s;
    };
    const struct {
        int kind, slot;
        bool fore;
        int newSlot;
        const char* after;
    } cases[] = {
        {KindImage, 1, true, 5, "CbEdA"}, {KindImage, 5, false, 1, "EbAdC"},
        {KindImage, 5, true, 5, "AbCdE"}, {KindImage, 1, false, 1, "AbCdE"},
        {KindText, 3, true, 5, "AbEdC"},  {KindText, 5, false, 1, "CbAdE"},
        {KindText, 4, false, 2, "CdAbE"}, {KindTab, 3, true, 3, "CdAbE"},
    };
    for (const auto& c : cases) {
        // Texts and images are reordered independently; the image table restarts each time.
        if (c.kind == KindImage)
            for (int s = 1; s <= 5; ++s)
                d->Images[s].Name = names[s];
        EXPECT_EQ(ZOrderArr(*d, c.kind, c.slot, 1 + (c.slot % 2 == 0), c.fore), c.newSlot);
        EXPECT_EQ(order(c.kind != KindImage), c.after) << c.kind << " " << c.slot;
    }
    // Whole records move: each text still carries the geometry it was made with.
    for (int s = 1; s <= 5; ++s)
        EXPECT_EQ(d->Texts[s].Name.text(), names[d->Texts[s].Left]) << s;
}

TEST(EditObjects, InsertUsesTheLowestFreeSlotOrTheTemplate) {
    Sandbox box;
    auto d = box.newDocument();
    EXPECT_EQ(InsertObject(*d, KindImage, 0), -1);
    EXPECT_EQ(InsertObject(*d, KindText, 8), -1);
    EXPECT_EQ(InsertObject(*d, KindImage, 3), 1);
    EXPECT_EQ(InsertObject(*d, KindImage, 3), 2);
    EXPECT_EQ(d->Images[2].Name.text(), "image 2");
    EXPECT_EQ(d->Images[2].TabNo, 3);
    EXPECT_EQ(d->Images[2].Width, d->Images[0].Width);
    d->Images[1] = d->Images[0]; // deleted: its slot comes back first
    d->Images[3].TabNo = -1;     // neither free nor in use: skipped
    EXPECT_EQ(InsertObject(*d, KindImage, 4), 1);
    EXPECT_EQ(InsertObject(*d, KindImage, 4), 4);
    const int t = InsertObject(*d, KindText, 7);
    EXPECT_EQ(d->Texts[t].Name.text(), "text 1");
    EXPECT_EQ(d->Texts[t].Text, d->Texts[0].Text);
    for (int s = 1; s <= MaxImages; ++s)
        d->Images[s].TabNo = 1;
    EXPECT_EQ(InsertObject(*d, KindImage, 5), 0);
    EXPECT_EQ(d->Images[0].TabNo, 5);
    EXPECT_EQ(d->Images[0].Name.text(), "image 0");
    // The last slot of each table is found when it is the only free one.
    d->Images[MaxImages].TabNo = 0;
    EXPECT_EQ(InsertObject(*d, KindImage, 2), MaxImages);
    for (int s = 1; s < MaxTexts; ++s)
        d->Texts[s].TabNo = 1;
    EXPECT_EQ(InsertObject(*d, KindText, 2), MaxTexts);
}

struct DeleteCase {
    int kind;
    const char* title;
    const char* text;
    std::function<bool(const Document&)> changed; // after the question
};

TEST(EditObjects, DelObjectAsksAndOnlyYesChanges) {
    Sandbox box;
    const DeleteCase cases[] = {
        {KindTab, "Reset Tab", "Are you sure to reset tab - Overview?",
         [](const Document& a) {
             return a.Tabs[1].Picture == a.Images[0] && a.Tabs[1].Icon.raw().trimmed().isEmpty();
         }},
        {KindImage, "Delete Image", "Are you sure to delete image 2?",
         [](const Document& a) { return a.Images[2] == a.Images[0]; }},
        {KindText, "Delete Text", "Are you sure to delete text 2?",
         [](const Document& a) { return a.Texts[2] == a.Texts[0]; }},
        {KindProfile, "Delete User Icon", "Are you sure to delete user icon?",
         [](const Document& a) { return a.Profile.UserIcon.trimNull().isEmpty(); }},
        {KindSlideShow, "Delete Background Picture", "Are you sure to delete Background picture?",
         [&](const Document& a) {
             return a.Header.BackPicture.trimNull() == box.ctx.defaultBackPicture();
         }},
    };
    for (const DeleteCase& c : cases) {
        for (Answer answer : {Answer::No, Answer::Yes}) {
            auto d = box.newDocument();
            d->Tabs[1].Name = "  Overview";
            d->Tabs[1].Icon = "icon.png";
            d->Tabs[1].Picture.FileName = "tab.jpg";
            d->Profile.UserIcon = "me.png";
            d->Header.BackPicture = "back.jpg";
            PutImage(*d, 2, 1, {1, 2, 3, 4}, "image 2");
            PutText(*d, 2, 1, {1, 2, 3, 4}, "text 2");
            ScriptedPrompter p;
            p.expectQuestion(c.title, c.text, answer);
            EXPECT_EQ(DelObject(*d, c.kind, 2, 1, p, box.ctx), answer == Answer::Yes);
            EXPECT_PROMPTS_DONE(p);
            EXPECT_EQ(c.changed(*d), answer == Answer::Yes) << c.title;
        }
    }
    // The last slot of each table is deleted; a slot or page past the tables asks nothing.
    const struct {
        int kind, slot, tab;
        const char* title; // nullptr: refused without a question
    } edges[] = {
        {KindImage, MaxImages, 1, "Delete Image"}, {KindText, MaxTexts, 1, "Delete Text"},
        {KindImage, MaxImages + 1, 1, nullptr},    {KindImage, -1, 1, nullptr},
        {KindText, MaxTexts + 1, 1, nullptr},      {KindText, -1, 1, nullptr},
        {KindTab, 0, MaxTab + 1, nullptr},         {KindTab, 0, -1, nullptr},
    };
    for (const auto& e : edges) {
        auto d = box.newDocument();
        d->Images[MaxImages].Name = d->Texts[MaxTexts].Name = "last";
        ScriptedPrompter p;
        if (e.title)
            p.expectAsk(e.title, "Are you sure to delete last?", Answer::Yes);
        EXPECT_EQ(DelObject(*d, e.kind, e.slot, e.tab, p, box.ctx), e.title != nullptr)
            << e.kind << " " << e.slot << " " << e.tab;
        EXPECT_PROMPTS_DONE(p);
    }
}

} // namespace
