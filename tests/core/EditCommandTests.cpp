#include "EditFakeView.h"
#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

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
        EXPECT_PROMPTS_DONE(f.prompter);
    }
    // Nothing was created at start-up; Save writes the new project where it was named.
    EditorFixture f(false);
    f.box.ctx.CommandLine = other.path("missing.qds");
    f.editor.formLoad();
    EXPECT_FALSE(QFile::exists(other.path("missing.qds")));
    f.editor.CommonModth(CmdSave);
    EXPECT_TRUE(QFile::exists(other.path("missing.qds")));
    EXPECT_PROMPTS_DONE(f.prompter);
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
        EXPECT_PROMPTS_DONE(f.prompter);
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
        EXPECT_PROMPTS_DONE(f.prompter);
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
    EXPECT_PROMPTS_DONE(f.prompter);
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
    EXPECT_EQ(f.editor.state().SelectedIndex, 2);
    EXPECT_EQ(f.doc->Texts[2].Name.text(), "text 1");
    EXPECT_EQ(f.view.currentRow, 2); // the list follows the moved object

    f.prompter.expectQuestion("Delete Text", "Are you sure to delete text 1?", Answer::Yes);
    f.editor.CommonModth(CmdDelete);
    EXPECT_EQ(f.doc->Texts[2].TabNo, 0);
    EXPECT_EQ(f.view.rows.size(), 2);
    EXPECT_EQ(f.view.currentRow, 0);
    EXPECT_PROMPTS_DONE(f.prompter);
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

} // namespace
