#include "editor/FrmMain.h"

#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "check/SpellSettings.h"
#include "edit/ObjectClipboard.h"
#include "edit/RecentFiles.h"
#include "editor/check/CheckPanel.h"
#include "editor/check/CheckUi.h"
#include "editor/check/SpellService.h"
#include "editor/check/SpellUnderline.h"
#include "io/ScriptFile.h"
#include "render/ResImages.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSettings>
#include <QTabBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QTreeWidget>
#include <QUrl>

namespace zentor::test {
namespace {

const QString ScriptFilter = "*.qds|*.qds|*.*|*.*";

class WindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        doc = sandbox.newDocument();
        prepare();
        window = std::make_unique<FrmMain>(*doc, sandbox.ctx, prompter, res);
        window->formLoad();
        // The offscreen screen is small; the window keeps a desktop size regardless.
        window->resize(1280, 860);
        window->show();
        QApplication::setActiveWindow(window.get());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        ws = find<QWidget>("PicWorkSpace");
        frame = find<QWidget>("LabAdd");
        strip = find<QTabBar>("TabTitle");
        list = find<QComboBox>("CmbPropertity");
    }
    void TearDown() override {
        EXPECT_TRUE(prompter.failures().isEmpty()) << prompter.failures().join('\n').toStdString();
    }
    // What a test needs in the document or the settings before the window opens.
    virtual void prepare() {}

    template <class T> T* find(const char* name) {
        T* w = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }
    QWidget* handle(int k) { return find<QWidget>(QStringLiteral("LabSize%1").arg(k).toLatin1()); }
    const EditorState& state() { return window->editor().state(); }
    void run(int command) { window->toolbarAction(command)->trigger(); }
    void clickStrip(int position) {
        QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(position - 1).center());
    }
    // A text on the Personal page (strip 2, tab 7) at the given place, selected.
    int insertText(const QRect& at) {
        clickStrip(2);
        run(CmdInsertText);
        const int slot = state().SelectedIndex;
        TextElement& t = doc->Texts[slot];
        t.Left = at.x(), t.Top = at.y(), t.Width = at.width(), t.Height = at.height();
        window->editor().RefreshTab(state().CurrentTab);
        return slot;
    }
    QRect record(int slot) {
        const TextElement& t = doc->Texts[slot];
        return QRect(t.Left, t.Top, t.Width, t.Height);
    }
    // A drag on `pressed`, with every point in workspace pixels.
    void drag(QWidget* pressed, QPoint from, QPoint to, Qt::MouseButton b = Qt::LeftButton) {
        QTest::mousePress(pressed, b, {}, pressed->mapFrom(ws, from));
        QTest::mouseMove(ws, to);
        QTest::mouseRelease(ws, b, {}, to);
    }

    Sandbox sandbox;
    ResImages res = ResImages::load();
    std::unique_ptr<Document> doc;
    ScriptedPrompter prompter;
    std::unique_ptr<FrmMain> window;
    QWidget* ws = nullptr;
    QWidget* frame = nullptr;
    QTabBar* strip = nullptr;
    QComboBox* list = nullptr;
};

TEST_F(WindowTest, StartsOnTheProfilePageWithTheDocumentsTabNames) {
    ASSERT_EQ(strip->count(), 9);
    EXPECT_EQ(strip->tabText(0), "Get Started");
    EXPECT_EQ(strip->tabText(3), "Skills && Interests"); // the page's own name, its & shown
    EXPECT_EQ(strip->tabText(8), "Slide Show");
    EXPECT_EQ(strip->currentIndex(), 0);
    EXPECT_EQ(list->currentText(), "Profile ");
    EXPECT_EQ(find<QLabel>("StatusPanel1")->text(), "Ready");
    EXPECT_EQ(find<QLabel>("LabPropertity")->text(), "Propertity - Profile ");
    EXPECT_FALSE(frame->isVisible());

    // An 800 x 600 page in a larger viewport sits in the middle.
    const QWidget* show = find<QWidget>("PicShow");
    ASSERT_GT(show->width(), 800);
    ASSERT_GT(show->height(), 600);
    EXPECT_EQ(ws->geometry(),
              QRect((show->width() - 800) / 2, (show->height() - 600) / 2, 800, 600));
    // The menus carry their items at the indices the commands are known by.
    EXPECT_EQ(find<QAction>("SubFile5")->text(), "Generate &Selfrun Resume File");
    EXPECT_TRUE(find<QAction>("SubFile9")->isSeparator());
    EXPECT_EQ(find<QAction>("SubEdit10")->text(), "Setting");
    EXPECT_EQ(find<QAction>("SubAbout6")->text(), "&About");
    EXPECT_EQ(window->toolbarAction(16)->toolTip(), "Generate Selfrun Resume");
    // Save As has its key whatever the desktop's key theme says.
    EXPECT_EQ(find<QAction>("SubFile8")->shortcut(), QKeySequence("Ctrl+Shift+S"));
}

TEST_F(WindowTest, InsertingATextSelectsItUnderTheFrame) {
    clickStrip(2);
    run(CmdInsertText);
    EXPECT_EQ(list->currentIndex(), 1);
    // The text's pane is the one shown, 130 pixels shorter than the tool pane.
    const int toolHeight = find<QWidget>("PicTool")->height();
    for (int k = 0; k < 5; ++k) {
        const QWidget* pane = find<QWidget>(QStringLiteral("PicElementLoc%1").arg(k).toLatin1());
        EXPECT_EQ(pane->isVisible(), k == KindText) << k;
        EXPECT_EQ(pane->height(), toolHeight - 130) << k;
    }
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(frame->geometry(), QRect(0, 0, 150, 150));
    EXPECT_EQ(handle(7)->geometry(), QRect(143, 143, 7, 7)); // inside the frame
}

TEST_F(WindowTest, DragsOnTheFrameTheWorkspaceAndAHandleChangeTheRecordLive) {
    const int slot = insertText(QRect(100, 100, 150, 80));
    QTest::mousePress(frame, Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(frame->cursor().shape(), Qt::SizeAllCursor);
    QTest::mouseMove(ws, QPoint(150, 140));
    EXPECT_EQ(frame->geometry(), QRect(140, 130, 150, 80)); // before the release
    QTest::mouseRelease(ws, Qt::LeftButton, {}, QPoint(150, 140));
    EXPECT_NE(frame->cursor().shape(), Qt::SizeAllCursor);

    // From the page itself: the press selects the text under it and drags it.
    QTest::mouseClick(ws, Qt::LeftButton, {}, QPoint(600, 500));
    EXPECT_FALSE(frame->isVisible());
    QTest::mousePress(ws, Qt::LeftButton, {}, QPoint(150, 140));
    EXPECT_EQ(ws->cursor().shape(), Qt::SizeAllCursor);
    QTest::mouseMove(ws, QPoint(90, 160));
    QTest::mouseRelease(ws, Qt::LeftButton, {}, QPoint(90, 160));
    EXPECT_EQ(record(slot), QRect(80, 150, 150, 80));
    EXPECT_EQ(list->currentIndex(), 1);

    // A right press selects but does not drag, and its release opens the Edit menu.
    QTest::mouseClick(ws, Qt::LeftButton, {}, QPoint(600, 500));
    drag(ws, QPoint(100, 200), QPoint(300, 300), Qt::RightButton);
    EXPECT_EQ(list->currentIndex(), 1);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "MainEdit");
    menu->close();

    // The top-left handle grows the text up and left, keeping the bottom-right corner.
    QWidget* h = handle(0);
    drag(h, h->geometry().center(), h->geometry().center() + QPoint(-30, -40));
    EXPECT_EQ(record(slot), QRect(50, 110, 180, 120));
    EXPECT_EQ(frame->geometry(), QRect(50, 110, 180, 120));
}

TEST_F(WindowTest, TheInPlaceEditorStoresItsTextWhenLeft) {
    const int slot = insertText(QRect(100, 100, 200, 90));
    doc->Texts[slot].Text = "Hello";
    QTest::mouseDClick(frame, Qt::LeftButton, {}, QPoint(20, 20));
    auto* box = find<QPlainTextEdit>("TxtAdd");
    ASSERT_TRUE(box->isVisible());
    EXPECT_EQ(box->geometry(), QRect(100, 100, 200, 90));
    EXPECT_EQ(box->toPlainText(), "Hello");
    EXPECT_EQ(record(slot), QRect(100, 100, 200, 90)); // a double-click moves nothing

    // Delete edits the text in the box; it does not delete the object.
    QTest::keyClick(box, Qt::Key_Home);
    QTest::keyClick(box, Qt::Key_Delete);
    EXPECT_EQ(box->toPlainText(), "ello");
    EXPECT_EQ(doc->Texts[slot].TabNo, 7);
    QTest::keyClicks(box, "H");
    QTest::keyClick(box, Qt::Key_End);
    QTest::keyClicks(box, " world");
    QTest::mouseClick(ws, Qt::LeftButton, {}, QPoint(700, 550));
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(doc->Texts[slot].Text.text(), "Hello world");
}

TEST_F(WindowTest, TheProfileRingShowsAHandAndLeadsToItsPage) {
    const IconRect icon = state().IconRects[3];
    const QPoint over((icon.Left + icon.Right) / 2, (icon.Top + icon.Bottom) / 2);
    QTest::mouseMove(ws, over);
    EXPECT_EQ(ws->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseClick(ws, Qt::LeftButton, {}, over);
    EXPECT_EQ(state().CurrentTab, 3);
    EXPECT_EQ(strip->currentIndex(), 5);
}

// Each page's double-click chooses its picture.
TEST_F(WindowTest, TheStripAndItsKeysChangePagesStoreTheNameBeingTypedAndChoosePictures) {
    const QString pictures = "*.jpg;*.bmp;*.ico;*.png|*.jpg;*.bmp;*.ico;*.png|*.*|*.*";
    const auto doubleClick = [&](const char* title, const QString& filter) {
        prompter.expectFile(false, title, filter, QString());
        QTest::mouseDClick(ws, Qt::LeftButton, {}, QPoint(300, 300));
    };
    clickStrip(2);
    EXPECT_EQ(state().CurrentTab, 7);
    EXPECT_TRUE(find<QLabel>("LabPropertity")->text().startsWith("Propertity - Tab - Personal"));
    doubleClick("Choose picture file", pictures);
    auto* name = find<QLineEdit>("TxtTabName");
    ASSERT_TRUE(name->isVisible());
    name->setFocus();
    name->selectAll();
    QTest::keyClicks(name, "About me");
    clickStrip(3);
    EXPECT_EQ(doc->Tabs[7].Name.text(), "About me");
    EXPECT_EQ(strip->tabText(1), "About me");
    EXPECT_EQ(state().CurrentTab, 6);

    clickStrip(9);
    EXPECT_EQ(list->currentText(), "Slide Show");
    doubleClick("Choose Background picture file", pictures);
    QTest::keyClick(window.get(), Qt::Key_PageDown, Qt::ControlModifier); // round the end
    EXPECT_EQ(state().CurrentTab, 0);
    doubleClick("Choose user icon file", "*.jpg;*.bmp;*.png|*.jpg;*.bmp;*.png|*.*|*.*");
    QTest::keyClick(window.get(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(strip->currentIndex(), 8);
}

TEST_F(WindowTest, ALargeFrameScrollsByMovingTheWorkspace) {
    auto big = sandbox.newDocument();
    big->Header.FrameWidth = 2000;
    big->Header.FrameHeight = 1500;
    const QString path = sandbox.path("big.qds");
    ASSERT_TRUE(SaveScript(*big, path));
    prompter.expectFile(false, "Open QDV Script File", ScriptFilter, path);
    run(CmdOpen);

    const QWidget* show = find<QWidget>("PicShow");
    auto* hs = find<QScrollBar>("HSShow");
    auto* vs = find<QScrollBar>("VSShow");
    EXPECT_EQ(ws->size(), QSize(2000, 1500));
    // The bars run from the viewport to the page; at their ends the page shows its far edges.
    hs->setValue(hs->maximum());
    vs->setValue(vs->maximum());
    EXPECT_EQ(ws->pos(), QPoint(show->width() - 2000, show->height() - 1500));

    // A larger window: the viewport grows and the bars follow; position = Min - Value.
    window->resize(window->width() + 60, window->height() + 40);
    QApplication::processEvents();
    EXPECT_EQ(ws->x(), hs->minimum() - hs->value());
    EXPECT_EQ(ws->y(), vs->minimum() - vs->value());
}

TEST_F(WindowTest, TheFileMenuWritesEveryKindOfOutput) {
    const struct {
        const char* item;
        const char* title;
        const char* filter;
        const char* typed;
        const char* written;
        QByteArray start; // the file's first bytes (from its fifth for the video)
    } cases[] = {
        {"SubFile4", "Generate QDV File", "*.qdv|*.qdv", "cv.qdv", "cv.qdv", ""},
        {"SubFile5", "Generate Selfrun File", "*.exe|*.exe", "cv.exe", "cv.exe", ""},
        {"SubFile11", "Export PDF", "*.pdf|*.pdf", "cv.pdf", "cv.pdf", "%PDF"},
        {"SubFile12", "Export Web Page", "*.html|*.html", "cv.html", "cv.html", "<!DOCTYPE html>"},
        {"SubFileVideo", "Export Video", "*.mp4|*.mp4", "show", "show.mp4", "ftyp"},
    };
    for (const auto& c : cases) {
        const QString path = sandbox.path(QString::fromLatin1(c.written));
        prompter.expectFile(true, c.title, c.filter, sandbox.path(QString::fromLatin1(c.typed)));
        find<QAction>(c.item)->trigger();
        const QByteArray bytes = ReadAll(path);
        EXPECT_TRUE(bytes.mid(c.start == "ftyp" ? 4 : 0).startsWith(c.start)) << c.written;
        EXPECT_TRUE(find<QLabel>("StatusPanel1")->text().startsWith("Wrote " + QString(c.written)))
            << c.written;
    }
    // The self-running one is the same package behind the player.
    EXPECT_EQ(QFileInfo(sandbox.path("cv.exe")).size() - QFileInfo(sandbox.path("cv.qdv")).size(),
              sandbox.ctx.PlayerStubSize);
}

TEST_F(WindowTest, ClosingAsksEveryTimeAndFollowsTheAnswer) {
    struct Case {
        Prompter::Answer answer;
        bool closes;
    };
    const QString title = "Exit Vitara Zentor";
    const QString text = "Please save the work before exit. Exit with save?";
    for (const Case c : {Case{Prompter::Answer::Cancel, false}, Case{Prompter::Answer::No, true}}) {
        ASSERT_TRUE(QDir(sandbox.ctx.WorkFolder).exists() || sandbox.ctx.ensureWorkFolder());
        prompter.expectYesNoCancel(title, text, c.answer);
        EXPECT_EQ(window->close(), c.closes);
        EXPECT_EQ(window->isVisible(), !c.closes);
        // The work folder goes with the window.
        EXPECT_EQ(QDir(sandbox.ctx.WorkFolder).exists(), !c.closes);
        window->show();
    }

    // Yes and then no save after all keeps the window open, so the work is not lost.
    prompter.expectYesNoCancel(title, text, Prompter::Answer::Yes);
    prompter.expectFile(true, "Save QDV Script File", ScriptFilter, QString());
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());

    // Yes with a path saves first; the File menu's Exit asks the same.
    window->show();
    const QString path = sandbox.path("cv.qds");
    prompter.expectYesNoCancel(title, text, Prompter::Answer::Yes);
    prompter.expectFile(true, "Save QDV Script File", ScriptFilter, path);
    find<QAction>("SubFile10")->trigger();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(QFileInfo::exists(path));
}

TEST_F(WindowTest, WorkspaceKeysNudgeStepDeleteAndUseTheClipboardAndTheEditMenuUndoesByName) {
    const int slot = insertText({100, 100, 60, 20});
    ws->setFocus();
    QTest::keyClick(ws, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(ws, Qt::Key_Down);
    EXPECT_EQ(record(slot), QRect(110, 101, 60, 20));

    QMenu* edit = find<QMenu>("MainEdit");
    QMetaObject::invokeMethod(edit, "aboutToShow");
    EXPECT_EQ(find<QAction>("EditUndo")->text(), QStringLiteral("&Undo Move text %1").arg(slot));
    QMetaObject::invokeMethod(edit, "aboutToHide");
    QTest::keyClick(ws, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(record(slot), QRect(100, 100, 60, 20));
    QTest::keyClick(ws, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(record(slot), QRect(110, 101, 60, 20));
    QTest::keyClick(ws, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(ws, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(record(slot), QRect(110, 101, 60, 20));

    const int row = state().CurrentRow;
    QTest::keyClick(ws, Qt::Key_Tab);
    EXPECT_EQ(state().CurrentRow, (row + 1) % int(state().Rows.size()));
    QTest::keyClick(ws, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(state().CurrentRow, row);
    EXPECT_EQ(state().SelectedIndex, slot);

    prompter.expectQuestion("Delete Text", "Are you sure to delete text 1?", Prompter::Answer::Yes);
    QTest::keyClick(window.get(), Qt::Key_Delete);
    EXPECT_EQ(doc->Texts[slot].TabNo, 0);
    EXPECT_EQ(list->count(), 1);

    // The clipboard keys copy, paste, duplicate and cut through our own type.
    const int copied = insertText({100, 100, 60, 20});
    ws->setFocus();
    QTest::keyClick(ws, Qt::Key_C, Qt::ControlModifier);
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    ASSERT_NE(data, nullptr);
    EXPECT_TRUE(data->hasFormat(QString::fromLatin1(ObjectMimeType)));
    QTest::keyClick(ws, Qt::Key_V, Qt::ControlModifier);
    const int pasted = state().SelectedIndex;
    EXPECT_NE(pasted, copied);
    EXPECT_EQ(record(pasted), QRect(110, 110, 60, 20));
    QTest::keyClick(ws, Qt::Key_D, Qt::ControlModifier);
    const int duplicated = state().SelectedIndex;
    EXPECT_EQ(record(duplicated), QRect(120, 120, 60, 20));
    QTest::keyClick(ws, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(doc->Texts[duplicated].TabNo, 0);
    QTest::keyClick(ws, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(doc->Texts[duplicated].TabNo, state().CurrentTab);
}

TEST_F(WindowTest, CollectMediaFromTheFileMenuCopiesBesideTheProject) {
    ASSERT_TRUE(WriteAll(sandbox.path("art.png"), "png"));
    doc->Header.BackPicture = sandbox.path("art.png");
    ASSERT_TRUE(SaveScript(*doc, sandbox.path("cv.qds")));
    find<QAction>("SubFileCollect")->trigger();
    EXPECT_EQ(doc->Header.BackPicture.trimNull(), "cv media/art.png");
    EXPECT_TRUE(find<QLabel>("StatusPanel1")->text().startsWith("Collected 1 file into "));
}

TEST_F(WindowTest, SavedProjectsHeadOpenRecentAndAMissingOneIsTakenOff) {
    QSettings().remove("recentFiles");
    const QString path = sandbox.path("recent.qds");
    prompter.expectFile(true, "Save as QDV Script File", ScriptFilter, path);
    find<QAction>("SubFile8")->trigger();
    // Built afresh by the next window too: the list lives in the settings.
    auto* recent = find<QMenu>("MenuRecent");
    ASSERT_EQ(recent->actions().size(), 1);
    EXPECT_EQ(recent->actions()[0]->text(), QStringLiteral("&1 ") + QDir::toNativeSeparators(path));

    QFile::remove(path);
    prompter.expectWarning("Open File", MissingRecentText(path));
    recent->actions()[0]->trigger();
    QTest::qWait(0);
    EXPECT_TRUE(recent->actions().isEmpty());
    EXPECT_FALSE(recent->isEnabled());
}

TEST_F(WindowTest, APictureDroppedOnAPageBecomesAPictureObjectThere) {
    clickStrip(2);
    const QString picture = sandbox.path("drop.png");
    ASSERT_TRUE(Solid(100, 80, 0xff2266aa).save(picture));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(picture)});
    const QPointF at = ws->mapTo(window.get(), QPoint(300, 200));
    QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(state().SelectedKind, KindImage);
    const ImageElement& e = doc->Images[state().SelectedIndex];
    EXPECT_EQ(QRect(e.Left, e.Top, e.Width, e.Height), QRect(250, 160, 100, 80));
    EXPECT_EQ(e.FileName.trimNull(), picture);
}

// The mark follows each change the moment it is made, whoever made it: no events are
// processed between the change and the look at the title.
TEST_F(WindowTest, TheTitleMarkFollowsEachChangeAtOnce) {
    EXPECT_EQ(window->windowTitle(), "Untitled[*] - Vitara Zentor");
    EXPECT_FALSE(window->isWindowModified());
    QTest::keyClick(find<QLineEdit>("TxtFirstName"), Qt::Key_A);
    EXPECT_TRUE(window->isWindowModified());

    window->toolbarAction(CmdNextTab)->trigger(); // the Personal page
    window->toolbarAction(CmdInsertText)->trigger();
    const QString path = sandbox.path("cv.qds");
    prompter.expectFile(true, "Save QDV Script File", ScriptFilter, path);
    window->toolbarAction(CmdSave)->trigger();
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(window->windowTitle(), "cv.qds[*] - Vitara Zentor");
    window->editor().undo();
    EXPECT_TRUE(window->isWindowModified());
}

// The window over a Personal page with one misspelt word.
class CheckWindowTest : public WindowTest {
protected:
    void prepare() override {
        // The personal dictionary and the language live in the user's settings (the test
        // ones here), which earlier runs may have filled.
        QSettings("Vitara", "Zentor").remove("spelling");
        SaveSpellingLanguage("en_US");
        PlaceText(*doc, 1, 7, QRect(20, 20, 300, 100), "Quorvix recieved the award.").FontColor =
            int32_t(0xFF000000);
    }
    void SetUp() override {
        WindowTest::SetUp();
        check = window->findChild<CheckUi*>();
        ASSERT_NE(check, nullptr);
    }
    void TearDown() override {
        WindowTest::TearDown();
        QSettings("Vitara", "Zentor").remove("spelling");
    }

    // The wavy underlines of the first paragraph of a box: (start, length) each.
    static QList<QPair<int, int>> Underlined(QPlainTextEdit* box) {
        QList<QPair<int, int>> spans;
        for (const QTextLayout::FormatRange& r : box->document()->firstBlock().layout()->formats())
            if (r.format.underlineStyle() == QTextCharFormat::WaveUnderline)
                spans.append({r.start, r.length});
        return spans;
    }

    CheckUi* check = nullptr;
};

TEST_F(CheckWindowTest, ChoosingAFindingShowsItsPageAndSelectsItsObject) {
    QAction* item = window->findChild<QAction*>("SubEditCheck");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->text(), "Check Résumé...");
    EXPECT_EQ(item->shortcut(), QKeySequence(Qt::Key_F7));
    item->trigger();
    ASSERT_TRUE(check->panel().isVisible());

    auto* list = window->findChild<QTreeWidget*>("LstFindings");
    QTreeWidgetItem* row = nullptr;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        if (list->topLevelItem(i)->text(3).contains(QLatin1String("\"recieved\"")))
            row = list->topLevelItem(i);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->text(0), "Personal");
    emit list->itemClicked(row, 0);
    EXPECT_EQ(window->editor().state().CurrentTab, 7);
    EXPECT_EQ(window->editor().state().SelectedKind, 2);
    EXPECT_EQ(window->editor().state().SelectedIndex, 1);
}

TEST_F(CheckWindowTest, MisspeltWordsAreUnderlinedUntilAccepted) {
    window->editor().state().SelectedIndex = 1;
    auto* box = window->findChild<QPlainTextEdit*>("TxtWord");
    ASSERT_NE(box, nullptr);
    box->setPlainText("Quorvix acheived the awward.");
    // The person's name is never underlined.
    EXPECT_EQ(Underlined(box), (QList<QPair<int, int>>{{8, 8}, {21, 6}}));

    check->spelling().ignore("awward");
    EXPECT_EQ(Underlined(box), (QList<QPair<int, int>>{{8, 8}}));
    check->spelling().addToDictionary("acheived");
    EXPECT_TRUE(Underlined(box).isEmpty());
    // Ignoring lasts the session; the dictionary is kept.
    EXPECT_TRUE(PersonalWords().contains("acheived"));
    EXPECT_FALSE(PersonalWords().contains("awward"));
}

TEST_F(CheckWindowTest, AOneLineBoxUnderlinesAsItsTextChangesNotAsItsCursorMoves) {
    QLineEdit box;
    UnderlineSpelling(&box, check->spelling());
    box.resize(400, 30);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
    // The columns the red wavy line covers, first and last.
    const auto red = [&box] {
        const QImage shot = box.grab().toImage();
        int first = -1, last = -1;
        for (int y = 0; y < shot.height(); ++y)
            for (int x = 0; x < shot.width(); ++x) {
                const QColor c = shot.pixelColor(x, y);
                if (c.red() - c.green() > 60 && c.red() - c.blue() > 60) {
                    first = first < 0 ? x : std::min(first, x);
                    last = std::max(last, x);
                }
            }
        return std::pair(first, last);
    };
    box.setText("Objectve and pages");
    const auto underlined = red();
    ASSERT_GE(underlined.first, 0);
    box.setCursorPosition(2);
    box.setCursorPosition(15);
    EXPECT_EQ(red(), underlined);
    box.setText("Pages and objectve");
    EXPECT_GT(red().first, underlined.second);
    box.setText("Pages and objectives");
    EXPECT_EQ(red().first, -1);
}

TEST_F(CheckWindowTest, AWrittenPackageLeavesTheCountInTheStatusBar) {
    const QString path = sandbox.path("cv.qdv");
    prompter.expectFile(true, "Generate QDV File", "*.qdv|*.qdv", path);
    window->toolbarAction(CmdGenerateQdv)->trigger();
    // Counted on a worker: the window goes on meanwhile.
    const auto* panel = window->findChild<QLabel*>("StatusPanel1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel->text().contains(QLatin1String("remain")); }));
    // Six pages are empty and one word is misspelt; said after what was written.
    const QString status = panel->text();
    EXPECT_TRUE(status.startsWith(QLatin1String("Wrote cv.qdv"))) << status.toStdString();
    EXPECT_TRUE(status.endsWith("; 7 findings remain: Edit > Check Résumé... (F7) lists them"))
        << status.toStdString();
}

} // namespace
} // namespace zentor::test
