#include "PropsFakeView.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "edit/Editor.h"
#include "editor/FrmSet.h"
#include "editor/FrmTextColor.h"
#include "editor/PropertyPanes.h"
#include "io/RecordCodec.h"
#include "render/TextDraw.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTimer>

using namespace zentor;
using namespace zentor::test;

namespace {

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

void Choose(QComboBox* c, int row) {
    c->setCurrentIndex(row);
    emit c->activated(row);
}

struct Opened {
    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    ScriptedPrompter prompter;
};

} // namespace

TEST(FrmTextColor, ListsTheInstalledFamiliesInTheirOwnOrder) {
    TextDoc d;
    FrmTextColor dlg(*d.doc, 1);
    auto* fonts = Find<QComboBox>(dlg, "CmbFont");
    QStringList shown;
    for (int i = 0; i < fonts->count(); ++i)
        shown << fonts->itemText(i);
    EXPECT_EQ(shown, QFontDatabase::families());
    EXPECT_EQ(fonts->currentText(), DrawableFamily());
    auto* colors = Find<QComboBox>(dlg, "CmbColor");
    ASSERT_EQ(colors->count(), 146);
    EXPECT_EQ(colors->itemText(22), "DarkBrown"); // the colour table's own order
    EXPECT_EQ(Find<QComboBox>(dlg, "CmbSize")->count(), 18);
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

TEST(FrmTextColor, PreviewBackgroundAndInk) {
    TextDoc d;
    ASSERT_FALSE(DrawableFamily().isEmpty());
    FrmTextColor dlg(*d.doc, 1);
    auto* color = Find<QComboBox>(dlg, "CmbColor");
    const struct {
        const char* name;
        QRgb background;
        bool ink;
    } rows[] = {
        {"Black", 0xFFFFFFFFu, true},
        {"Red", 0xFF000000u, true},
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

TEST(FrmSet, OpensOnTheHeaderAndACustomSizeReadsTheBoxes) {
    Opened o;
    o.doc->Header.FrameWidth = 1000; // no row of the list: the custom boxes
    o.doc->Header.MusicVolume = 550;
    o.doc->Header.ShowSpeed = 35;
    o.doc->Header.BackMusic = "/music/a.mp3";
    FrmSet dlg(*o.doc, o.prompter);
    auto* custom = Find<QCheckBox>(dlg, "ChkCustom");
    auto* sizes = Find<QComboBox>(dlg, "CBFrameSize");
    EXPECT_TRUE(custom->isChecked());
    EXPECT_FALSE(sizes->isEnabled());
    custom->click();
    EXPECT_TRUE(sizes->isEnabled());
    custom->click();
    EXPECT_EQ(Find<QLineEdit>(dlg, "TxtHeight")->text(), "600");
    EXPECT_EQ(Find<QSlider>(dlg, "SldBakMusicVol")->value(), 6);
    EXPECT_EQ(Find<QSlider>(dlg, "SdSpeed")->value(), 3);
    EXPECT_EQ(Find<QLineEdit>(dlg, "TxtMusic")->text(), "/music/a.mp3");
    auto* width = Find<QLineEdit>(dlg, "TxtWidth");
    ASSERT_TRUE(width->isEnabled());
    EXPECT_EQ(width->text(), "1000");
    width->setText("1200");
    Find<QPushButton>(dlg, "CmdSet0")->click();
    EXPECT_EQ(o.doc->Header.FrameWidth, 1200);
    EXPECT_EQ(o.doc->Header.FrameHeight, 600);
}

// Everything the controls say is stored on OK, and not a byte of it on Cancel.
TEST(FrmSet, OkStoresWhatTheControlsSayAndCancelNothing) {
    for (const bool ok : {true, false}) {
        Opened o;
        const QByteArray before = EncodeHeader(o.doc->Header);
        FrmSet dlg(*o.doc, o.prompter);
        o.prompter.expectFile(false, "Choose Background Music", "*.mp3|*.mp3", "/music/b.mp3");
        Find<QPushButton>(dlg, "CmdMusic")->click();
        EXPECT_EQ(Find<QLineEdit>(dlg, "TxtMusic")->text(), "/music/b.mp3");
        Find<QSlider>(dlg, "SldBakMusicVol")->setValue(8);
        Find<QSlider>(dlg, "SdSpeed")->setValue(4);
        Find<QCheckBox>(dlg, "ChkRepeat")->setChecked(false);
        Find<QCheckBox>(dlg, "ChkSlide")->setChecked(false);
        Find<QComboBox>(dlg, "CBFrameSize")->setCurrentIndex(2); // "640 x 480"
        o.doc->Dirty = false;
        Find<QPushButton>(dlg, ok ? "CmdSet0" : "CmdSet1")->click();
        EXPECT_EQ(dlg.result(), ok ? QDialog::Accepted : QDialog::Rejected);
        EXPECT_PROMPTS_DONE(o.prompter);
        if (!ok) {
            EXPECT_EQ(EncodeHeader(o.doc->Header), before);
            continue;
        }
        const ScriptHeader& h = o.doc->Header;
        EXPECT_EQ(QSize(h.FrameWidth, h.FrameHeight), QSize(640, 480));
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
