#include "EditFakeView.h"
#include "edit/DropFiles.h"
#include "edit/ObjectList.h"
#include "edit/RecentFiles.h"
#include "io/ScriptFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using namespace zentor;
using namespace zentor::test;
using Answer = Prompter::Answer;

namespace {

QString Picture(const Sandbox& box, const char* name, int w, int h) {
    const QString path = box.path(QLatin1String(name));
    Solid(w, h, 0xff336699).save(path, "PNG");
    return path;
}

TEST(DropFiles, APictureIsFittedToHalfThePageCentredOnThePointAndKeptOnThePage) {
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
}

TEST(DropFiles, AProjectWinsAndOnlyReadablePicturesComeOtherwise) {
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
    f.showTab(2);
    f.editor.dropFiles({a}, std::nullopt); // beside the page
    EXPECT_EQ(SavedBytes(*f.doc), clean);

    f.editor.dropFiles({a, b}, IntPoint{400, 300});
    EXPECT_EQ(f.doc->Images[1].FileName.trimNull(), a);
    EXPECT_EQ(f.doc->Images[2].TabNo, 2);
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
    EXPECT_PROMPTS_DONE(f.prompter);
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
    EXPECT_PROMPTS_DONE(f.prompter);
}

} // namespace
