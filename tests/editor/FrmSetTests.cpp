#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "edit/Editor.h"
#include "editor/FrmSet.h"
#include "editor/PropertyPanes.h"
#include "io/RecordCodec.h"

#include "PropsFakeView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTimer>

using namespace zentor;
using namespace zentor::test;

namespace {

struct Opened {
    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    ScriptedPrompter prompter;
};

} // namespace

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
