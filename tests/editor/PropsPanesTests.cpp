#include "PropsFakeView.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "edit/Editor.h"
#include "editor/FrmSet.h"
#include "editor/FrmTextColor.h"
#include "editor/PropertyPanes.h"
#include "io/RecordCodec.h"
#include "model/CodePage.h"
#include "model/TabMap.h"
#include "render/TextDraw.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

using namespace zentor;
using namespace zentor::test;

namespace {

class PropsPanes : public ::testing::Test {
protected:
    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    PropsFakeView view;
    ScriptedPrompter prompter;
    QWidget window;
    QStackedWidget* stack = nullptr;
    QLineEdit* sink = nullptr; // where the focus goes when a box is left
    std::array<QWidget*, 5> paneWidgets{};
    std::unique_ptr<Editor> editor;
    std::unique_ptr<PropertyPanes> panes;

    void SetUp() override {
        // One picture and one text on page 2, as an inserted object leaves them.
        PlaceImage(*doc, 1, 2, {10, 20, 100, 80}, "photo.jpg").Name = "Photo";
        PlaceText(*doc, 1, 2, {30, 40, 200, 50}, "Hello").Name = "Intro";

        auto* layout = new QVBoxLayout(&window);
        sink = new QLineEdit;
        sink->setObjectName("sink");
        layout->addWidget(sink);
        stack = new QStackedWidget;
        layout->addWidget(stack);
        for (int i = 0; i < 5; ++i) {
            paneWidgets[size_t(i)] = new QWidget;
            paneWidgets[size_t(i)]->setObjectName(QStringLiteral("PicElementLoc%1").arg(i));
            stack->addWidget(paneWidgets[size_t(i)]);
        }
        view.stack = stack;
        editor = std::make_unique<Editor>(*doc, box.ctx, view, prompter);
        panes = std::make_unique<PropertyPanes>(paneWidgets, *editor, prompter, box.ctx);
        panes->setView(&view);
        view.panes = panes.get();
        window.resize(320, 760);
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        editor->formLoad();
    }

    void TearDown() override { EXPECT_PROMPTS_DONE(prompter); }

    void showTab(int tab) {
        editor->state().CurrentTab = tab;
        editor->LoadTab(tab);
    }

    template <typename T = QWidget> T* control(int pane, const char* name) {
        T* w = paneWidgets[size_t(pane)]->findChild<T*>(QLatin1String(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }

    void type(QWidget* box, const QString& text) {
        box->setFocus(Qt::MouseFocusReason);
        if (auto* line = qobject_cast<QLineEdit*>(box))
            line->selectAll();
        if (auto* plain = qobject_cast<QPlainTextEdit*>(box))
            plain->selectAll();
        QTest::keyClicks(box, text);
    }
    void leave() { sink->setFocus(Qt::TabFocusReason); }
};

// A row chosen as a user chooses it.
void Choose(QComboBox* c, int row) {
    c->setCurrentIndex(row);
    emit c->activated(row);
}

// A family the text painter accepts, so that previews draw something.
QString DrawableFamily() {
    for (const QString& f : QFontDatabase::families())
        if (FontFamilyAvailable(f))
            return f;
    return QString();
}

// Pixels of the preview that are neither the background nor near it.
int InkPixels(const QImage& img) {
    return img.width() * img.height() - CountPixels(img, img.pixel(0, 0));
}

struct TextDoc {
    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    TextElement& t = PlaceText(*doc, 1, 1);
    TextDoc() {
        t.FontName = DrawableFamily();
        t.FontSize = 24;
        t.FontStyle = 0;
        t.FontColor = int32_t(0xFFFF0000u);
    }
};

struct Opened {
    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    ScriptedPrompter prompter;
};

} // namespace

TEST_F(PropsPanes, ListsAndIconHaveTheirRowsAndSize) {
    EXPECT_EQ(control<QComboBox>(4, "CmbMusicVol")->count(), 11);
    EXPECT_EQ(control<QComboBox>(2, "CombAlign0")->itemText(1), "1 - Center ");
    EXPECT_EQ(control<QLabel>(0, "PicTabIcon")->size(), QSize(128, 128));
}

TEST_F(PropsPanes, NameBoxesCommitOnEnterAndOnLeaving) {
    ASSERT_EQ(stack->currentIndex(), 3); // the profile page is shown first
    auto* first = control<QLineEdit>(3, "TxtFirstName");
    auto* phone = control<QLineEdit>(3, "TxtPhone");
    EXPECT_EQ(first->text(), "Quorvix");
    doc->Dirty = false;
    const int paints = view.paints;

    type(first, "Alexandra");
    EXPECT_TRUE(doc->Dirty); // a keystroke marks the document before any commit
    EXPECT_EQ(doc->Profile.FirstName.text(), "Quorvix");
    QTest::keyClick(first, Qt::Key_Return);
    EXPECT_EQ(doc->Profile.FirstName.text(), "Alexandra");
    EXPECT_GT(view.paints, paints); // the page was redrawn

    // A phone number longer than its 16 bytes: stored cut, the box keeps what was typed
    // until the pane is filled again.
    type(phone, "+44 20 7946 0958 ext 12");
    leave();
    // Leaving the box redrew the page, which fills the pane again from the record.
    EXPECT_EQ(phone->text(), "+44 20 7946 0958");

    // A page's name renames its strip tab, as typed (the record keeps what fits).
    showTab(3);
    ASSERT_EQ(stack->currentIndex(), 0);
    auto* name = control<QLineEdit>(0, "TxtTabName");
    EXPECT_EQ(name->text(), doc->Tabs[3].Name.trimNull());
    type(name, "Career History Across Three Continents");
    QTest::keyClick(name, Qt::Key_Enter);
    EXPECT_EQ(view.captions[GetTabIndex(3)], "Career History Across Three Continents");

    // The holding time is stored without a redraw: the page does not show it.
    showTab(8);
    const int before = view.paints;
    type(control<QLineEdit>(4, "TxtKeepOnTime"), "4500");
    leave();
    EXPECT_EQ(doc->Header.KeepOnTime, 4500);
    EXPECT_EQ(view.paints, before);
}

TEST_F(PropsPanes, WordsCommitOnlyOnLeaving) {
    showTab(2);
    editor->chooseRow(2); // the text
    ASSERT_EQ(stack->currentIndex(), 2);
    auto* word = control<QPlainTextEdit>(2, "TxtWord");
    EXPECT_EQ(word->toPlainText(), "Hello");
    doc->Dirty = false;
    type(word, "Line one");
    QTest::keyClick(word, Qt::Key_Return);
    QTest::keyClicks(word, "Line two");
    EXPECT_TRUE(doc->Dirty);
    EXPECT_EQ(doc->Texts[1].Text.text(), "Hello"); // Enter is a line break, not a commit
    leave();
    EXPECT_EQ(doc->Texts[1].Text.text(), "Line one\nLine two");
    EXPECT_EQ(word->toPlainText(), "Line one\nLine two");
}

TEST_F(PropsPanes, PositionBoxesMoveTheObjectThroughTheFrame) {
    showTab(2);
    editor->chooseRow(1); // the picture
    ASSERT_EQ(stack->currentIndex(), 1);
    auto* left = control<QLineEdit>(1, "TxtImgLeft");
    auto* top = control<QLineEdit>(1, "TxtImgTop");
    auto* width = control<QLineEdit>(1, "TxtImgWidth");
    EXPECT_EQ(left->text(), "10");
    type(left, "250");
    QTest::keyClick(left, Qt::Key_Return);
    EXPECT_EQ(doc->Images[1].Left, 250);
    EXPECT_EQ(editor->state().Frame.Left, 250);

    type(top, "up there");
    leave();
    EXPECT_EQ(doc->Images[1].Top, 20); // restored from the record
    EXPECT_EQ(top->text(), "20");

    // The frame keeps to the page and to its minimum size: what the frame allows is what is
    // stored and shown.
    type(width, "3");
    leave();
    EXPECT_EQ(doc->Images[1].Width, 7);
    EXPECT_EQ(width->text(), "7");
}

TEST_F(PropsPanes, CombosStoreAndRedrawAsListed) {
    const struct {
        int tab, row, pane; // page shown, object list row, pane
        const char* name;
        int choice;
        std::function<int32_t()> field;
        int32_t expected;
        bool redraws;
    } rows[] = {
        {2, 0, 0, "CombTabPicAlign", 3, [&] { return doc->Tabs[2].Picture.PicAlign; }, 3, true},
        {2, 2, 2, "CombFontShadow", 1, [&] { return int32_t(doc->Texts[1].FontShadow); }, -1, true},
        {8, 0, 4, "CmbShowSpeed", 4, [&] { return doc->Header.ShowSpeed; }, 40, false},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        showTab(r.tab);
        editor->chooseRow(r.row);
        const int paints = view.paints;
        Choose(control<QComboBox>(r.pane, r.name), r.choice);
        EXPECT_EQ(r.field(), r.expected);
        EXPECT_EQ(view.paints > paints, r.redraws);
    }
    // The keyboard chooses a row the way a click does.
    auto* speed = control<QComboBox>(4, "CmbShowSpeed");
    speed->setFocus();
    QTest::keyClick(speed, Qt::Key_Up);
    EXPECT_EQ(doc->Header.ShowSpeed, 30);
}

TEST_F(PropsPanes, FileAndColourChoicesStoreShowAndRedrawAsListed) {
    // A small red picture for the two previews.
    const QString pic = box.path("red.png");
    ASSERT_TRUE(Solid(16, 16, qRgb(255, 0, 0)).save(pic));
    const QString pics = "*.jpg;*.bmp;*.png|*.jpg;*.bmp;*.png|*.*|*.*";
    const QString icoPics = "*.jpg;*.bmp;*.ico;*.png|*.jpg;*.bmp;*.ico;*.png|*.*|*.*";

    // Profile: the user icon redraws and shows; the background's button asks for its picture.
    prompter.expectFile(false, "Choose user icon file", pics, pic)
        .expectFile(false, "Choose Background picture file", icoPics, "");
    int paints = view.paints;
    control<QPushButton>(3, "CmdUserIcon")->click();
    EXPECT_GT(view.paints, paints);
    const QPixmap user = control<QLabel>(3, "PicUserIcon")->pixmap();
    ASSERT_EQ(user.size(), QSize(128, 128));
    EXPECT_EQ(user.toImage().pixelColor(64, 64), QColor(Qt::red));
    control<QPushButton>(3, "CmdBakPic")->click();

    // A content page: the tab icon only stores and shows, the tab picture redraws.
    showTab(5);
    prompter.expectFile(false, "Choose tab icon file", "*.ico;*.png|*.ico;*.png|*.*|*.*", pic)
        .expectFile(false, "Choose picture file", icoPics, "/pictures/wide.jpg");
    paints = view.paints;
    control<QPushButton>(0, "CmdTabIcon")->click();
    EXPECT_EQ(view.paints, paints);
    EXPECT_EQ(control<QLabel>(0, "PicTabIcon")->pixmap().toImage().pixelColor(5, 5),
              QColor(Qt::red));
    control<QPushButton>(0, "CmdTabPicture")->click();
    EXPECT_GT(view.paints, paints);
    EXPECT_EQ(control<QLineEdit>(0, "TxtTabPicture")->text(), "/pictures/wide.jpg");

    // The slide show: music only stores and shows; the colour shows as a value and a swatch.
    showTab(8);
    prompter.expectFile(false, "Choose Background Music", "*.mp3|*.mp3", "/music/theme.mp3")
        .expectColor(0x000000FF);
    paints = view.paints;
    control<QPushButton>(4, "CmdBakMusic")->click();
    EXPECT_EQ(view.paints, paints);
    EXPECT_EQ(control<QLineEdit>(4, "TxtBakMusic")->text(), "/music/theme.mp3");
    control<QPushButton>(4, "CmdBakColor")->click();
    EXPECT_EQ(doc->Header.BackColor, 0x000000FF);
    EXPECT_EQ(control<QLineEdit>(4, "TxtBakColor")->text(), "     &H000000FF");
    EXPECT_EQ(control<QLabel>(4, "PicBakColor")->palette().color(QPalette::Window),
              QColor(255, 0, 0));
}

TEST_F(PropsPanes, DoubleClickRunsTheFileChoiceAndALateCommitWritesThePanesObject) {
    showTab(2);
    editor->chooseRow(1);
    prompter.expectFile(false, "Choose image file", "*.jpg;*.bmp;*.png|*.jpg;*.bmp;*.png|*.*|*.*",
                        "/img/new.png");
    editor->frameDoubleClick();
    EXPECT_EQ(doc->Images[1].FileName.trimNull(), "/img/new.png");
    EXPECT_EQ(control<QLineEdit>(1, "TxtImgFile")->text(), "/img/new.png");

    // A late commit writes the object the pane was filled for.
    auto* name = control<QLineEdit>(1, "TxtImgName");
    type(name, "Portrait");
    // The selection moves on without the box being left (as a workspace click can do).
    editor->chooseRow(2);
    panes->commitPendingEdit();
    EXPECT_EQ(doc->Images[1].Name.text(), "Portrait");
    EXPECT_EQ(doc->Texts[1].Name.text(), "Intro");
}

TEST_F(PropsPanes, BoxesSayWhichCharactersTheCodePageLoses) {
    CodePage::overrideActive(CodePage::create("1252"));
    const struct {
        int pane;
        const char* box;
    } boxes[] = {{3, "TxtFirstName"}, {2, "TxtWord"}};
    for (const auto& b : boxes) {
        SCOPED_TRACE(b.box);
        stack->setCurrentIndex(b.pane);
        QWidget* box = control(b.pane, b.box);
        auto* note = control<QLabel>(b.pane, (std::string(b.box) + "CodePageNote").c_str());
        // Typed keys are ASCII only in the test driver; the note follows any change.
        if (auto* line = qobject_cast<QLineEdit*>(box))
            line->setText("Ελένη Łucja");
        else
            qobject_cast<QPlainTextEdit*>(box)->setPlainText("Ελένη Łucja");
        EXPECT_TRUE(note->isVisible());
        EXPECT_EQ(note->text(), "Code page windows-1252 cannot store \"ΕλένηŁ\"; saved as \"?\".");
        type(box, "Lena");
        EXPECT_FALSE(note->isVisible());
    }
    CodePage::overrideActive(nullptr);
}

TEST(FrmTextColor, OpensOnTheTextsStyleSizeAndColour) {
    const struct {
        int32_t style, size;
        uint32_t color;
        const char* styleRow;
        bool underline, strikeout;
        int sizeRow;
        const char* colorName; // empty: no colour row
    } rows[] = {
        {7, 13, 0xFF00FFFFu, "BoldItalic", true, false, -1, "Aqua"}, // a size off the list
        {8, 72, 0x80FF0000u, "Regular", false, true, 17, ""},        // a colour off the list
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.style);
        TextDoc d;
        d.t.FontStyle = r.style;
        d.t.FontSize = r.size;
        d.t.FontColor = int32_t(r.color);
        FrmTextColor dlg(*d.doc, 1);
        EXPECT_EQ(Find<QComboBox>(dlg, "CmbStyle")->currentText(), r.styleRow);
        EXPECT_EQ(Find<QCheckBox>(dlg, "ChkUnderline")->isChecked(), r.underline);
        EXPECT_EQ(Find<QCheckBox>(dlg, "ChkStrikeout")->isChecked(), r.strikeout);
        auto* size = Find<QComboBox>(dlg, "CmbSize");
        EXPECT_EQ(size->currentText(), QString::number(r.size));
        EXPECT_EQ(size->currentIndex(), r.sizeRow);
        auto* color = Find<QComboBox>(dlg, "CmbColor");
        EXPECT_EQ(color->currentIndex() >= 0 ? color->currentText() : QString(), r.colorName);
        // OK without touching anything keeps what the text had.
        Find<QPushButton>(dlg, "CmdColor0")->click();
        EXPECT_EQ(d.t.FontStyle, r.style);
        EXPECT_EQ(d.t.FontSize, r.size);
        EXPECT_EQ(uint32_t(d.t.FontColor), r.color);
    }
}

TEST(FrmTextColor, ListsTheInstalledFamiliesAndTheColoursAndPreviews) {
    TextDoc d;
    ASSERT_FALSE(DrawableFamily().isEmpty());
    FrmTextColor dlg(*d.doc, 1);
    auto* fonts = Find<QComboBox>(dlg, "CmbFont");
    QStringList shown;
    for (int i = 0; i < fonts->count(); ++i)
        shown << fonts->itemText(i);
    EXPECT_EQ(shown, QFontDatabase::families()); // in their own order
    EXPECT_EQ(fonts->currentText(), DrawableFamily());
    EXPECT_EQ(Find<QComboBox>(dlg, "CmbSize")->count(), 18);
    auto* color = Find<QComboBox>(dlg, "CmbColor");
    ASSERT_EQ(color->count(), 146);
    EXPECT_EQ(color->itemText(22), "DarkBrown"); // the colour table's own order
    const struct {
        const char* name;
        QRgb background;
        bool ink;
    } rows[] = {
        {"Black", 0xFFFFFFFFu, true},
        {"Transparent", 0xFF000000u, false}, // the sample shows nothing
        {"White", 0xFF000000u, true},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        Choose(color, color->findText(r.name));
        const QImage img = dlg.preview().convertToFormat(QImage::Format_ARGB32);
        ASSERT_EQ(img.size(), QSize(270, 180));
        EXPECT_EQ(img.pixel(0, 0), r.background);
        EXPECT_EQ(InkPixels(img) > 50, r.ink);
    }
}

TEST(FrmTextColor, ChangesGoInOnlyOnOk) {
    for (const bool ok : {false, true}) {
        TextDoc d;
        const QByteArray before = EncodeText(d.t);
        FrmTextColor dlg(*d.doc, 1);
        Choose(Find<QComboBox>(dlg, "CmbStyle"), 3);
        Find<QCheckBox>(dlg, "ChkUnderline")->click();
        Find<QCheckBox>(dlg, "ChkStrikeout")->click();
        Find<QComboBox>(dlg, "CmbSize")->setEditText("30");
        Find<QComboBox>(dlg, "CmbSize")->setEditText("big"); // not a number: 30 stays
        Choose(Find<QComboBox>(dlg, "CmbColor"), 138);       // White
        EXPECT_EQ(dlg.choice().style, 15);
        d.doc->Dirty = false;
        Find<QPushButton>(dlg, ok ? "CmdColor0" : "CmdColor1")->click();
        if (!ok) {
            EXPECT_EQ(EncodeText(d.t), before);
            continue;
        }
        EXPECT_EQ(d.t.FontStyle, 15);
        EXPECT_EQ(d.t.FontSize, 30);
        EXPECT_EQ(uint32_t(d.t.FontColor), 0xFFFFFFFFu);
        EXPECT_TRUE(d.doc->Dirty);
    }
}

TEST(FrmTextColor, FontButtonOfTheTextPane) {
    TextDoc d;
    d.t.TabNo = 2;
    d.t.FontName = "   " + DrawableFamily(); // shown and stored trimmed after the dialog
    PropsFakeView view;
    ScriptedPrompter prompter;
    Editor editor(*d.doc, d.box.ctx, view, prompter);
    PaneHost host;
    PropertyPanes panes(host.panes, editor, prompter, d.box.ctx);
    view.panes = &panes;
    editor.state().CurrentTab = 2;
    editor.LoadTab(2);
    editor.chooseRow(1);
    QTimer::singleShot(0, [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "FrmTextColor" && w->isVisible()) {
                Find<QComboBox>(*w, "CmbSize")->setEditText("40");
                Find<QPushButton>(*w, "CmdColor0")->click();
            }
    });
    const int paints = view.paints;
    Find<QPushButton>(host.pane(2), "CmdFont")->click();
    EXPECT_EQ(d.t.FontSize, 40);
    EXPECT_EQ(d.t.FontName.text(), DrawableFamily());
    EXPECT_EQ(Find<QLineEdit>(host.pane(2), "TxtFontName")->text(), DrawableFamily());
    EXPECT_GT(view.paints, paints);
}

// Opened on the header (a size off the list: the custom boxes); everything the controls then
// say is stored on OK, and not a byte of it on Cancel.
TEST(FrmSet, OpensOnTheHeaderAndOkStoresWhatTheControlsSayAndCancelNothing) {
    for (const bool ok : {true, false}) {
        Opened o;
        o.doc->Header.FrameWidth = 1000;
        o.doc->Header.MusicVolume = 550;
        o.doc->Header.ShowSpeed = 35;
        o.doc->Header.BackMusic = "/music/a.mp3";
        const QByteArray before = EncodeHeader(o.doc->Header);
        FrmSet dlg(*o.doc, o.prompter);
        auto* custom = Find<QCheckBox>(dlg, "ChkCustom");
        auto* sizes = Find<QComboBox>(dlg, "CBFrameSize");
        auto* music = Find<QLineEdit>(dlg, "TxtMusic");
        auto* volume = Find<QSlider>(dlg, "SldBakMusicVol");
        auto* speed = Find<QSlider>(dlg, "SdSpeed");
        auto* width = Find<QLineEdit>(dlg, "TxtWidth");
        EXPECT_TRUE(custom->isChecked());
        EXPECT_FALSE(sizes->isEnabled());
        custom->click();
        EXPECT_TRUE(sizes->isEnabled());
        custom->click();
        EXPECT_EQ(Find<QLineEdit>(dlg, "TxtHeight")->text(), "600");
        EXPECT_EQ(width->text(), "1000");
        EXPECT_EQ(volume->value(), 6);
        EXPECT_EQ(speed->value(), 3);
        EXPECT_EQ(music->text(), "/music/a.mp3");

        o.prompter.expectFile(false, "Choose Background Music", "*.mp3|*.mp3", "/music/b.mp3");
        Find<QPushButton>(dlg, "CmdMusic")->click();
        EXPECT_EQ(music->text(), "/music/b.mp3");
        volume->setValue(8);
        speed->setValue(4);
        Find<QCheckBox>(dlg, "ChkRepeat")->setChecked(false);
        Find<QCheckBox>(dlg, "ChkSlide")->setChecked(false);
        ASSERT_TRUE(width->isEnabled());
        width->setText("1200");
        o.doc->Dirty = false;
        Find<QPushButton>(dlg, ok ? "CmdSet0" : "CmdSet1")->click();
        EXPECT_EQ(dlg.result(), ok ? QDialog::Accepted : QDialog::Rejected);
        EXPECT_PROMPTS_DONE(o.prompter);
        if (!ok) {
            EXPECT_EQ(EncodeHeader(o.doc->Header), before);
            continue;
        }
        const ScriptHeader& h = o.doc->Header;
        EXPECT_EQ(QSize(h.FrameWidth, h.FrameHeight), QSize(1200, 600));
        EXPECT_EQ(h.MusicVolume, 800);
        EXPECT_EQ(h.ShowSpeed, 40);
        EXPECT_EQ(h.AutoRepeat, 0);
        EXPECT_EQ(h.ShowAsRun, 0);
        EXPECT_EQ(h.BackMusic.trimNull(), "/music/b.mp3");
        EXPECT_TRUE(o.doc->Dirty);
    }
}

TEST(FrmSet, ThePanesOpenItModallyAndReportOk) {
    Opened o;
    PropsFakeView view;
    Editor editor(*o.doc, o.box.ctx, view, o.prompter);
    PaneHost host;
    PropertyPanes panes(host.panes, editor, o.prompter, o.box.ctx);
    for (const int button : {1, 0}) {
        // Press the button once the dialog is up.
        QTimer::singleShot(0, [button] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (w->objectName() == "FrmSet" && w->isVisible()) {
                    Find<QComboBox>(*w, "CBFrameSize")->setCurrentIndex(7);
                    Find<QPushButton>(*w, button == 0 ? "CmdSet0" : "CmdSet1")->click();
                }
        });
        EXPECT_EQ(panes.showSettings(&host.host), button == 0);
        EXPECT_EQ(o.doc->Header.FrameWidth, button == 0 ? 1024 : 800);
    }
}
