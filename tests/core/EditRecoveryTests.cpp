#include "EditFakeView.h"
#include "edit/Recovery.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <unistd.h>

using namespace zentor;
using namespace zentor::test;
using Answer = Prompter::Answer;

namespace {

ProcessContext EditorRun(const Sandbox& box) {
    return ProcessContext::createPrivate(QStringLiteral(ZENTOR_BIN_DIR), "zentor", box.dir.path());
}

// The work folder an editor with process `pid` would have left when it was killed.
ProcessContext KilledRun(const Sandbox& box, qint64 pid, const char* unique) {
    ProcessContext ctx = box.ctx;
    ctx.WorkFolder = box.path(QStringLiteral("zentor-%1-%2/").arg(pid).arg(QLatin1String(unique)));
    EXPECT_TRUE(ctx.ensureWorkFolder());
    return ctx;
}

TEST(Recovery, EditorsSideBySideKeepTheirOwnWorkAndAnExitTakesOnlyItsOwn) {
    Sandbox box;
    auto doc = box.newDocument();
    doc->Dirty = true;
    const ProcessContext first = EditorRun(box), second = EditorRun(box);
    ASSERT_NE(first.WorkFolder, second.WorkFolder);
    for (const ProcessContext* run : {&first, &second})
        ASSERT_TRUE(Autosave(*doc, *run));
    first.removeWorkFolder();
    EXPECT_FALSE(QDir(first.WorkFolder).exists());
    EXPECT_EQ(ReadAll(RecoveryFile(second, getpid())), SavedBytes(*doc));
    EXPECT_TRUE(LeftBehindRecovery(second).isEmpty()); // both runs are alive

    doc->Dirty = false; // saved: nothing left to recover
    EXPECT_FALSE(Autosave(*doc, second));
    EXPECT_FALSE(QFile::exists(RecoveryFile(second, getpid())));
}

TEST(Recovery, WorkOfAKilledEditorIsOfferedAtTheNextStartAndOnlyGoneRunsAreCleared) {
    const qint64 gonePid = 999999999; // beyond any pid the system hands out
    for (Answer answer : {Answer::Yes, Answer::No}) {
        SCOPED_TRACE(answer == Answer::Yes ? "Yes" : "No");
        EditorFixture f;
        auto lost = f.box.newDocument();
        lost->Profile.FirstName = "Grace";
        PlaceText(*lost, 4, 3, QRect(5, 5, 50, 20), "unsaved");
        lost->ScriptPath = f.box.path("cv.qds");
        lost->Dirty = true;
        const ProcessContext killed = KilledRun(f.box, gonePid, "a1b2c3");
        ASSERT_TRUE(Autosave(*lost, killed));
        const ProcessContext emptyKilled = KilledRun(f.box, gonePid - 1, "d4e5f6");
        const ProcessContext live = EditorRun(f.box); // another editor still running
        ASSERT_TRUE(Autosave(*lost, live));
        const QByteArray fresh = SavedBytes(*f.doc);

        f.box.ctx = EditorRun(f.box); // the editor starts as a run of its own
        f.prompter.expectAsk("Recover Work",
                             QStringLiteral("Vitara Zentor did not end normally last time. Do you "
                                            "want to restore the work it had not saved?"),
                             answer);
        f.editor.offerRecovery();
        EXPECT_PROMPTS_DONE(f.prompter);
        if (answer == Answer::Yes) {
            EXPECT_EQ(SavedBytes(*f.doc), SavedBytes(*lost));
            EXPECT_EQ(f.doc->ScriptPath, lost->ScriptPath);
            EXPECT_TRUE(f.doc->Dirty);
            // Restored work is unsaved even after an edit is taken back.
            f.showTab(3);
            f.editor.menuCommand(CmdInsertText);
            f.editor.undo();
            EXPECT_TRUE(f.doc->Dirty);
        } else {
            EXPECT_EQ(SavedBytes(*f.doc), fresh);
            EXPECT_FALSE(f.doc->Dirty);
        }
        EXPECT_FALSE(QDir(killed.WorkFolder).exists());
        EXPECT_FALSE(QDir(emptyKilled.WorkFolder).exists());
        EXPECT_TRUE(QFile::exists(RecoveryFile(live, getpid())));
        f.editor.offerRecovery(); // asked once only
        EXPECT_PROMPTS_DONE(f.prompter);
    }
    // Restored work is unsaved work, whoever shows it.
    Sandbox box;
    auto doc = box.newDocument();
    doc->Dirty = true; // only unsaved work is kept
    ASSERT_TRUE(Autosave(*doc, KilledRun(box, gonePid, "g7h8i9")));
    doc->Dirty = false;
    ScriptedPrompter p;
    p.expectAsk("Recover Work",
                "Vitara Zentor did not end normally last time. Do you want to "
                "restore the work it had not saved?",
                Answer::Yes);
    EXPECT_TRUE(OfferRecovery(*doc, EditorRun(box), p));
    EXPECT_TRUE(doc->Dirty);
}

} // namespace
