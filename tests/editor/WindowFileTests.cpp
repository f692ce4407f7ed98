// The main window's file side: the title's modified mark and Export Video.
#include "editor/FrmMain.h"

#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "edit/Editor.h"
#include "render/ResImages.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace zentor::test {
namespace {

class WindowFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        doc = sandbox.newDocument();
        window = std::make_unique<FrmMain>(*doc, sandbox.ctx, prompter, res);
        window->formLoad();
        window->resize(1280, 860);
        window->show();
        QApplication::setActiveWindow(window.get());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    void TearDown() override {
        EXPECT_TRUE(prompter.failures().isEmpty()) << prompter.failures().join('\n').toStdString();
    }
    template <class T> T* find(const char* name) {
        T* w = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }

    Sandbox sandbox;
    ResImages res = ResImages::load();
    std::unique_ptr<Document> doc;
    ScriptedPrompter prompter;
    std::unique_ptr<FrmMain> window;
};

// The mark follows each change the moment it is made, whoever made it: no events are
// processed between the change and the look at the title.
TEST_F(WindowFileTest, TheTitleMarkFollowsEachChangeAtOnce) {
    QTest::keyClick(find<QLineEdit>("TxtFirstName"), Qt::Key_A);
    EXPECT_TRUE(window->isWindowModified());

    window->toolbarAction(CmdNextTab)->trigger(); // the Personal page
    window->toolbarAction(CmdInsertText)->trigger();
    const QString path = sandbox.path("cv.qds");
    prompter.expectFile(true, "Save QDV Script File", "*.qds|*.qds|*.*|*.*", path);
    window->toolbarAction(CmdSave)->trigger();
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(window->windowTitle(), "cv.qds[*] - Vitara Zentor");

    window->editor().undo();
    EXPECT_TRUE(window->isWindowModified());
    window->editor().redo(); // back at the save point
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(WindowFileTest, ExportVideoAsksWhereAndNamesTheFileInTheStatusBar) {
    const QString typed = sandbox.path("show");
    prompter.expectFile(true, "Export Video", "*.mp4|*.mp4", typed);
    find<QAction>("SubFileVideo")->trigger();
    EXPECT_EQ(ReadAll(typed + ".mp4").mid(4, 4), "ftyp");
    const QString status = find<QLabel>("StatusPanel1")->text();
    EXPECT_TRUE(status.startsWith("Wrote show.mp4 (")) << status.toStdString();
}

} // namespace
} // namespace zentor::test
