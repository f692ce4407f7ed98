#include "EditFakeView.h"
#include "io/MediaFiles.h"
#include "io/ScriptFile.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace zentor;
using namespace zentor::test;

namespace {

const QString Filter = "*.qds|*.qds|*.*|*.*";

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
        prompter.expectFile(true, "Save as QDV Script File", Filter, path);
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

TEST(SaveAs, CollectedMediaStillResolvesFromAnotherFolderAndThroughUndo) {
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
    EXPECT_PROMPTS_DONE(f.prompter);
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
}

TEST(SaveAs, ARefusedSaveLeavesPathsAndProjectAsTheyWere) {
    MediaProject f;
    const QStringList collected = f.collectIntoOld();
    const QString nowhere = f.box.path("missing/folder/cv.qds");
    f.prompter.expectFile(true, "Save as QDV Script File", Filter, nowhere);
    f.prompter.expectWarning("Save QDV Script File",
                             QStringLiteral("Can't save file : ") + nowhere);
    f.editor.menuCommand(CmdSaveAs);
    EXPECT_PROMPTS_DONE(f.prompter);
    EXPECT_EQ(f.storedPaths(), collected);
    EXPECT_EQ(f.doc->ScriptPath, f.box.path("old/cv.qds"));
    EXPECT_TRUE(MissingMedia(*f.doc).isEmpty());
}

} // namespace
