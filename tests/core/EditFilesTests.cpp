#include "EditFakeView.h"
#include "TestSupport.h"
#include "edit/DropFiles.h"
#include "edit/ObjectList.h"
#include "edit/RecentFiles.h"
#include "edit/Recovery.h"
#include "io/CollectMedia.h"
#include "io/MediaFiles.h"
#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QUrl>

#include <sys/stat.h>
#include <unistd.h>

using namespace zentor;
using namespace zentor::test;
using Answer = Prompter::Answer;

namespace {

const QString ScriptFilter = "*.qds|*.qds|*.*|*.*";
const QString NothingOn = " - pages holding nothing: Personal, Objective, Skills & Interests, "
                          "Experience, Education, Overview";

bool Put(const Sandbox& box, const QString& name, const QByteArray& bytes) {
    return QDir().mkpath(QFileInfo(box.path(name)).path()) && WriteAll(box.path(name), bytes);
}

// A saved project in proj/ whose music and picture lived in gone/.
QString SaveMovedProject(const Sandbox& box) {
    auto doc = box.newDocument();
    doc->Header.BackMusic = box.path("gone/song.mp3");
    PlaceImage(*doc, 1, 2, QRect(0, 0, 10, 10), box.path("gone/a.png"));
    PlaceImage(*doc, 2, 3, QRect(0, 0, 10, 10), box.path("gone/a.png")); // the same file twice
    QDir().mkpath(box.path("proj"));
    EXPECT_TRUE(SaveScript(*doc, box.path("proj/cv.qds")));
    return box.path("proj/cv.qds");
}

TEST(EditMedia, OpeningAProjectWithMovedMediaAsksOnceAndLooksInAFolder) {
    const struct {
        const char* what;
        Answer answer;
        const char* folder; // chosen in the folder dialog; nullptr: not shown
        bool repointed;
        const char* status;
    } cases[] = {
        {"declined", Answer::No, nullptr, false, "Ready"},
        {"folder dialog cancelled", Answer::Yes, "", false, "Ready"},
        {"nothing there", Answer::Yes, "empty", false, "Found 0 of 2 missing files"},
        {"found, the shallowest copy wins", Answer::Yes, "found", true,
         "Found 2 of 2 missing files"},
    };
    for (const auto& c : cases) {
        EditorFixture f;
        const QString project = SaveMovedProject(f.box);
        ASSERT_TRUE(QDir().mkpath(f.box.path("empty")));
        ASSERT_TRUE(Put(f.box, "found/deep/a.png", "png"));
        ASSERT_TRUE(Put(f.box, "found/deep/er/song.mp3", "deeper"));
        ASSERT_TRUE(Put(f.box, "found/x/song.mp3", "mp3"));
        f.prompter.expectFile(false, "Open QDV Script File", ScriptFilter, project)
            .expectQuestion("Missing Media",
                            "These files of the project cannot be found:\n" +
                                QDir::toNativeSeparators(f.box.path("gone/song.mp3")) + "\n" +
                                QDir::toNativeSeparators(f.box.path("gone/a.png")) +
                                "\n\nDo you want to look for them in a folder?",
                            c.answer);
        if (c.folder)
            f.prompter.expectFolder("Find Missing Media",
                                    *c.folder ? f.box.path(c.folder) : QString());
        f.editor.CommonModth(CmdOpen);
        EXPECT_EQ(f.doc->Dirty, c.repointed) << c.what;
        EXPECT_EQ(f.view.status.toStdString(), c.status) << c.what;
        EXPECT_EQ(f.doc->Header.BackMusic.trimNull(),
                  f.box.path(c.repointed ? "found/x/song.mp3" : "gone/song.mp3"))
            << c.what;
        EXPECT_EQ(f.doc->Images[1].FileName.trimNull(),
                  f.box.path(c.repointed ? "found/deep/a.png" : "gone/a.png"))
            << c.what;
        EXPECT_EQ(f.doc->Images[2].FileName, f.doc->Images[1].FileName) << c.what;
        if (c.repointed) {
            EXPECT_TRUE(MissingMedia(*f.doc).isEmpty());
            f.editor.undo(); // the re-pointing is one step
            EXPECT_EQ(MissingMedia(*f.doc).size(), 2);
        }
    }
}

TEST(EditMedia, AFoundFileWhosePathDoesNotFitTheFieldStaysMissing) {
    Sandbox box;
    auto doc = box.newDocument();
    PlaceImage(*doc, 1, 1, {}, box.path("gone/a.png"));
    const QString deep = "found/" + QString(200, 'd') + "/" + QString(60, 'e') + "/a.png";
    ASSERT_TRUE(Put(box, deep, "png"));
    EXPECT_EQ(FindMissingMedia(*doc, box.path("found")), 0);
    EXPECT_EQ(doc->Images[1].FileName.trimNull(), box.path("gone/a.png"));
    EXPECT_FALSE(doc->Dirty);
}

TEST(EditMedia, CollectMediaCopiesBesideTheProjectAndPointsThere) {
    EditorFixture f;
    ASSERT_TRUE(Put(f.box, "one/a.png", "first"));
    ASSERT_TRUE(Put(f.box, "two/a.png", "second"));
    ASSERT_TRUE(Put(f.box, "three/a.png", "first"));
    ASSERT_TRUE(Put(f.box, "music/song.mp3", "mp3"));
    ASSERT_TRUE(Put(f.box, "music/show.png", "icon"));
    f.doc->Header.BackMusic = f.box.path("music/song.mp3");
    f.doc->Tabs[SlideShowTab].Icon = f.box.path("music/show.png");
    PlaceImage(*f.doc, 1, 1, {}, f.box.path("one/a.png"));
    PlaceImage(*f.doc, 2, 1, {}, f.box.path("two/a.png"));
    PlaceImage(*f.doc, 3, 1, {}, f.box.path("three/a.png")); // same bytes as one/a.png
    PlaceImage(*f.doc, 4, 1, {}, f.box.path("gone/b.png"));
    f.doc->Images[5].FileName = f.box.path("gone/stale.png"); // a free slot is not used
    f.doc->ScriptPath = f.box.path("cv.qds");

    const QString media = f.box.path("cv media");
    f.prompter.expectWarning("Collect Media",
                             "These files could not be copied and stay where they were:\n" +
                                 QDir::toNativeSeparators(f.box.path("gone/b.png")));
    f.editor.CommonModth(CmdCollectMedia);
    EXPECT_TRUE(f.doc->Dirty);
    // The default background beside the program is one of the files the project uses.
    EXPECT_EQ(f.view.status, "Collected 5 files into " + QDir::toNativeSeparators(media));
    EXPECT_EQ(QDir(media).entryList(QDir::Files),
              (QStringList{"a (2).png", "a.png", "bakpic.jpg", "show.png", "song.mp3"}));
    EXPECT_EQ(ReadAll(media + "/a (2).png"), "second");
    EXPECT_EQ(f.doc->Header.BackMusic.trimNull(), "cv media/song.mp3");
    EXPECT_EQ(f.doc->Header.BackPicture.trimNull(), "cv media/bakpic.jpg");
    EXPECT_EQ(f.doc->Tabs[SlideShowTab].Icon.trimNull(), "cv media/show.png");
    EXPECT_EQ(f.doc->Images[1].FileName.trimNull(), "cv media/a.png");
    EXPECT_EQ(f.doc->Images[2].FileName.trimNull(), "cv media/a (2).png");
    EXPECT_EQ(f.doc->Images[3].FileName.trimNull(), "cv media/a.png");
    EXPECT_EQ(f.doc->Images[4].FileName.trimNull(), f.box.path("gone/b.png"));

    // A second run finds everything in place and changes nothing.
    f.doc->Dirty = false;
    EXPECT_EQ(CollectMedia(*f.doc, media).collected, 5);
    EXPECT_FALSE(f.doc->Dirty);
    EXPECT_EQ(QDir(media).entryList(QDir::Files).size(), 5);

    // A project that was never saved is saved first; no save, no copies.
    EditorFixture unsaved;
    unsaved.prompter.expectFile(true, "Save QDV Script File", ScriptFilter, "");
    unsaved.editor.CommonModth(CmdCollectMedia);
    EXPECT_EQ(unsaved.doc->Header.BackPicture.trimNull(), unsaved.box.ctx.defaultBackPicture());
}

TEST(EditMedia, WrittenFilesAndPlayingAreToldInTheStatusBar) {
    const struct {
        const char* what;
        int command;
        qsizetype bytes; // the file written; -1: nothing written
        bool launches;
        const char* status;
    } cases[] = {
        {"package", CmdGenerateQdv, 2048, false, "Wrote out.qdv (2.0 kB)"},
        {"cancelled", CmdGenerateSelfrun, -1, false, "Ready"},
        {"export", CmdExportPdf, 100, false, "Wrote out.qdv (100 bytes)"},
        {"play", CmdPlay, 10, true, "Wrote resume.qdv (10 bytes)"},
        {"play, no player", CmdPlay, 10, false, nullptr},
        {"play, not written", CmdPlay, -1, false, "Ready"},
    };
    for (const auto& c : cases) {
        EditorFixture f;
        PlaceText(*f.doc, 1, 2); // Awards holds something
        QStringList asked, launched;
        auto write = [&](const QString& path) {
            if (c.bytes < 0)
                return QString();
            const QString out = path.isEmpty() ? f.box.path("out.qdv") : path;
            EXPECT_TRUE(WriteAll(out, QByteArray(c.bytes, 'x')));
            return out;
        };
        f.editor.setGenerator([&](bool, const QString& path) {
            asked << path;
            return write(path);
        });
        f.editor.setExporter([&](ExportKind) { return write(QString()); });
        f.editor.setLauncher([&](const QString& program, const QStringList& args) {
            launched << program << args;
            return c.launches;
        });
        const QString player = f.box.ctx.AppPath + "zentor-player";
        if (c.command == CmdPlay && c.bytes >= 0 && !c.launches)
            f.prompter.expectWarning("Play Résumé",
                                     "Can't start the player: " + QDir::toNativeSeparators(player));
        f.editor.CommonModth(c.command);
        // Packages name the pages that hold nothing; an export does not.
        const QString empty = c.command == CmdExportPdf || c.bytes < 0 ? "" : NothingOn;
        if (c.status) {
            EXPECT_EQ(f.view.status, c.status + empty) << c.what;
        }
        if (c.command == CmdPlay) {
            const QString package = f.box.ctx.WorkFolder + "resume.qdv";
            EXPECT_EQ(asked, QStringList{package}) << c.what;
            EXPECT_EQ(launched, c.bytes < 0 ? QStringList() : QStringList({player, package}))
                << c.what;
        }
    }
}

TEST(EditMedia, HelpOpensTheManualBesideTheProgramOrInstalled) {
    const struct {
        const char* manual; // nullptr: none
        const char* opened;
    } cases[] = {
        {"bin/doc/manual.html", "bin/doc/manual.html"},
        {"share/doc/zentor/manual.html", "share/doc/zentor/manual.html"},
        {nullptr, nullptr},
    };
    for (const auto& c : cases) {
        EditorFixture f;
        f.box.ctx.AppPath = f.box.path("bin/");
        if (c.manual)
            ASSERT_TRUE(Put(f.box, c.manual, "<html></html>"));
        else
            f.prompter.expectWarning("Help", "Can't find the user manual beside the program: " +
                                                 f.box.path("bin/doc/manual.html"));
        f.editor.aboutMenu(1);
        EXPECT_EQ(f.view.log,
                  c.opened ? QStringList{QUrl::fromLocalFile(f.box.path(c.opened)).toString()}
                           : QStringList());
    }
    // The menu's other items: the home page and the About box.
    EditorFixture f;
    f.editor.aboutMenu(2);
    f.editor.aboutMenu(6);
    EXPECT_EQ(f.view.log, (QStringList{QString::fromLatin1(HomePage), "about"}));
}

TEST(EditMedia, InfoListsMissingFilesOnStderrAndStillSucceeds) {
    Sandbox box;
    const QString project = SaveMovedProject(box);
    QByteArray out, err;
    EXPECT_EQ(RunCli({"info", project}, &out, &err), 0);
    EXPECT_FALSE(out.isEmpty());
    EXPECT_EQ(QString::fromUtf8(err),
              QString("zentor-cli: warning: %1: missing file %2\n"
                      "zentor-cli: warning: %1: missing file %3\n")
                  .arg(project, box.path("gone/song.mp3"), box.path("gone/a.png")));
}

struct MediaProject : EditorFixture {
    MediaProject() {
        QDir(box.dir.path()).mkpath("photos");
        Solid(40, 30, 0xff336699).save(box.path("photos/face.png"), "PNG");
        Solid(80, 60, 0xff996633).save(box.path("photos/page.png"), "PNG");
        WriteAll(box.path("photos/song.mp3"), QByteArray(64, 'm'));
        doc->Profile.UserIcon = box.path("photos/face.png");
        doc->Header.BackMusic = box.path("photos/song.mp3");
        PlaceImage(*doc, 1, 2, QRect(10, 10, 80, 60), box.path("photos/page.png"));
    }
    // Save As through the editor, the dialog answering `path`.
    void saveAs(const QString& path) {
        prompter.expectFile(true, "Save as QDV Script File", ScriptFilter, path);
        editor.menuCommand(CmdSaveAs);
    }
    // Saved as old/cv.qds with its media collected beside it; the paths then stored.
    QStringList collectIntoOld() {
        QDir(box.dir.path()).mkpath("old");
        saveAs(box.path("old/cv.qds"));
        editor.menuCommand(CmdCollectMedia);
        return storedPaths();
    }
    QStringList storedPaths() {
        QStringList stored;
        ForEachMediaField(*doc, [&](const QString& s, const auto&) { stored << s; });
        return stored;
    }
};

TEST(SaveAs, CollectedMediaStillResolvesFromAnotherFolderAndThroughUndoOrARefusal) {
    MediaProject f;
    const QStringList collected = f.collectIntoOld();
    ASSERT_GE(collected.size(), 3);
    for (const QString& p : collected)
        ASSERT_TRUE(p.startsWith("cv media/")) << qPrintable(p);
    f.showTab(2);
    f.editor.menuCommand(CmdInsertText); // a step after the collection, to undo later

    // The same folder keeps the paths as they are.
    f.saveAs(f.box.path("old/copy.qds"));
    EXPECT_EQ(f.storedPaths(), collected);

    QDir(f.box.dir.path()).mkpath("new/deeper");
    const QString moved = f.box.path("new/deeper/cv.qds");
    f.saveAs(moved);
    EXPECT_TRUE(f.storedPaths().contains("../../old/cv media/song.mp3"));
    EXPECT_TRUE(MissingMedia(*f.doc).isEmpty()) << qPrintable(MissingMedia(*f.doc).join('\n'));
    EXPECT_FALSE(f.doc->Dirty);

    auto reopened = f.box.newDocument();
    ASSERT_TRUE(LoadScript(*reopened, moved).opened);
    EXPECT_EQ(MediaFiles(*reopened), MediaFiles(*f.doc));
    EXPECT_TRUE(MissingMedia(*reopened).isEmpty());

    // Every earlier state of the history lies where the project now is, too.
    f.editor.undo();
    EXPECT_TRUE(MissingMedia(*f.doc).isEmpty());
    EXPECT_TRUE(f.doc->Dirty);
    f.editor.redo();
    EXPECT_TRUE(MissingMedia(*f.doc).isEmpty());
    EXPECT_FALSE(f.doc->Dirty); // back at the saved state, not an edit
    EXPECT_EQ(f.editor.undoStack().undoName(), "Insert text 1");

    // A refused save leaves the paths and the project as they were.
    const QStringList stored = f.storedPaths();
    const QString nowhere = f.box.path("missing/folder/cv.qds");
    f.prompter.expectFile(true, "Save as QDV Script File", ScriptFilter, nowhere);
    f.prompter.expectWarning("Save QDV Script File",
                             QStringLiteral("Can't save file : ") + nowhere);
    f.editor.menuCommand(CmdSaveAs);
    EXPECT_EQ(f.storedPaths(), stored);
    EXPECT_EQ(f.doc->ScriptPath, moved);
    EXPECT_TRUE(MissingMedia(*f.doc).isEmpty());
}

TEST(DropFiles, APictureIsFittedToHalfThePageAndAProjectWinsOverPictures) {
    const struct {
        QSize size;
        IntPoint at;
        IntRect expected;
    } cases[] = {
        {{100, 50}, {400, 300}, {350, 275, 100, 50}},    // small: as it is
        {{1600, 400}, {400, 300}, {200, 250, 400, 100}}, // wide: half the width
        {{300, 1200}, {400, 300}, {363, 150, 75, 300}},  // tall: half the height
        {{100, 100}, {790, 5}, {700, 0, 100, 100}},      // at a corner: pushed in
    };
    for (const auto& c : cases)
        EXPECT_EQ(DroppedPictureRect(c.size, c.at, 800, 600), c.expected)
            << c.size.width() << "x" << c.size.height();

    // A project wins; otherwise only readable pictures come.
    Sandbox box;
    const QString png = Picture(box, "a.png", 20, 10);
    const QString text = box.path("notes.txt");
    WriteAll(text, "not a picture");
    const QString fifo = box.path("pipe.png");
    ASSERT_EQ(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QString project = box.path("cv.QDS");

    const DropPlan mixed = PlanDrop({png, text, fifo, png});
    EXPECT_TRUE(mixed.project.isEmpty());
    EXPECT_EQ(mixed.pictures, QStringList({png, png}));
    const DropPlan withProject = PlanDrop({png, project, text});
    EXPECT_EQ(withProject.project, project);
    EXPECT_TRUE(withProject.pictures.isEmpty());
}

TEST(DropFiles, PicturesOnAContentPageAreOneStepAndElsewhereNothing) {
    EditorFixture f;
    const QString a = Picture(f.box, "a.png", 200, 100);
    const QString b = Picture(f.box, "b.png", 40, 40);
    const QByteArray clean = SavedBytes(*f.doc);
    f.editor.dropFiles({a}, IntPoint{400, 300}); // the profile page
    f.showTab(1);
    f.editor.dropFiles({a}, std::nullopt); // beside the page
    EXPECT_EQ(SavedBytes(*f.doc), clean);

    f.editor.dropFiles({a, b}, IntPoint{400, 300});
    EXPECT_TRUE(f.doc->Dirty);
    EXPECT_EQ(f.doc->Images[1].FileName.trimNull(), a);
    EXPECT_EQ(f.doc->Images[2].TabNo, 1);
    EXPECT_EQ(f.doc->Images[2].Left, 390); // the next one 10 pixels on
    EXPECT_EQ(f.editor.state().SelectedIndex, 2);
    EXPECT_EQ(f.editor.undoStack().undoName(), "Drop 2 pictures");
    f.editor.undo();
    EXPECT_EQ(SavedBytes(*f.doc), clean);
    EXPECT_FALSE(f.doc->Dirty);

    // The first and last content pages take drops; a full table takes what it can.
    for (int tab : {1, 7})
        EXPECT_EQ(DropPictures(*f.doc, {a}, {400, 300}, tab).added.size(), 1) << tab;
    for (int s = 3; s <= MaxImages; ++s)
        PlaceImage(*f.doc, s, 3);
    const DropResult full = DropPictures(*f.doc, {a, b}, {400, 300}, 3);
    EXPECT_EQ(full.added.size(), 0);
    EXPECT_TRUE(full.full);
}

TEST(DropFiles, ADroppedProjectOpensAfterTheChangedDocumentQuestion) {
    EditorFixture f;
    auto other = f.box.newDocument();
    other->Profile.FirstName = "Ada";
    const QString path = f.box.path("other.qds");
    ASSERT_TRUE(SaveScript(*other, path));
    f.doc->Dirty = true;
    f.prompter.expectYesNoCancel("Open File", "Do you want to save the work?", Answer::No);
    f.editor.dropFiles({path}, std::nullopt);
    EXPECT_EQ(f.doc->Profile.FirstName.trimNull(), "Ada");
    EXPECT_EQ(f.doc->ScriptPath, path);
    EXPECT_FALSE(f.doc->Dirty);
}

TEST(RecentFiles, TheLatestComesFirstOnceEightAreKeptAndAMissingOneIsTold) {
    QStringList list;
    for (int i = 1; i <= 9; ++i)
        list = WithRecentFile(list, QStringLiteral("/p/%1.qds").arg(i));
    EXPECT_EQ(list.size(), 8);
    EXPECT_EQ(list.first(), "/p/9.qds");
    EXPECT_EQ(list.last(), "/p/2.qds");
    list = WithRecentFile(list, "/p/5.qds");
    EXPECT_EQ(list.mid(0, 3), QStringList({"/p/5.qds", "/p/9.qds", "/p/8.qds"}));
    EXPECT_EQ(list.count("/p/5.qds"), 1);
    EXPECT_TRUE(WithRecentFile({}, "rel.qds").first().startsWith('/'));

    EditorFixture f;
    const QString gone = f.box.path("gone.qds");
    f.prompter.expectWarning("Open File", MissingRecentText(gone));
    EXPECT_FALSE(f.editor.openRecent(gone)); // the menu drops it
}

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
    }
}

} // namespace
