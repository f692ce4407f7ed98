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

TEST(FrmSet, OpensOnTheHeader) {
    const struct {
        int32_t w, h, volume, speed;
        const char* row; // the list's text, empty when custom
        int volSlider, speedSlider;
    } rows[] = {
        {800, 600, 500, 20, "800 x 600", 5, 2},
        {1000, 700, 550, 35, "", 6, 3},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.w);
        Opened o;
        o.doc->Header.FrameWidth = r.w;
        o.doc->Header.FrameHeight = r.h;
        o.doc->Header.MusicVolume = r.volume;
        o.doc->Header.ShowSpeed = r.speed;
        o.doc->Header.BackMusic = "/music/a.mp3";
        FrmSet dlg(*o.doc, o.prompter);
        const bool custom = QString(r.row).isEmpty();
        auto* list = Find<QComboBox>(dlg, "CBFrameSize");
        EXPECT_EQ(Find<QCheckBox>(dlg, "ChkCustom")->isChecked(), custom);
        EXPECT_EQ(list->isEnabled(), !custom);
        EXPECT_EQ(Find<QLineEdit>(dlg, "TxtWidth")->isEnabled(), custom);
        EXPECT_EQ(Find<QLineEdit>(dlg, "TxtWidth")->text(), QString::number(r.w));
        EXPECT_EQ(Find<QLineEdit>(dlg, "TxtHeight")->text(), QString::number(r.h));
        if (!custom) {
            EXPECT_EQ(list->currentText(), r.row);
        }
        EXPECT_EQ(Find<QSlider>(dlg, "SldBakMusicVol")->value(), r.volSlider);
        EXPECT_EQ(Find<QSlider>(dlg, "SdSpeed")->value(), r.speedSlider);
        EXPECT_EQ(Find<QLineEdit>(dlg, "TxtMusic")->text(), "/music/a.mp3");
    }
}

TEST(FrmSet, OkStoresWhatTheControlsSay) {
    Opened o;
    FrmSet dlg(*o.doc, o.prompter);
    o.prompter.expectFile(false, "Choose Background Music", "*.mp3|*.mp3", "/music/b.mp3");
    Find<QPushButton>(dlg, "CmdMusic")->click();
    Find<QSlider>(dlg, "SldBakMusicVol")->setValue(8);
    Find<QSlider>(dlg, "SdSpeed")->setValue(4);
    Find<QCheckBox>(dlg, "ChkRepeat")->setChecked(false);
    Find<QCheckBox>(dlg, "ChkSlide")->setChecked(false);
    Find<QComboBox>(dlg, "CBFrameSize")->setCurrentIndex(2); // "640 x 480"
    o.doc->Dirty = false;
    Find<QPushButton>(dlg, "CmdSet0")->click();
    EXPECT_EQ(dlg.result(), QDialog::Accepted);
    const ScriptHeader& h = o.doc->Header;
    EXPECT_EQ(h.FrameWidth, 640);
    EXPECT_EQ(h.FrameHeight, 480);
    EXPECT_EQ(h.MusicVolume, 800);
    EXPECT_EQ(h.ShowSpeed, 40);
    EXPECT_EQ(h.AutoRepeat, 0);
    EXPECT_EQ(h.ShowAsRun, 0);
    EXPECT_EQ(h.BackMusic.trimNull(), "/music/b.mp3");
    EXPECT_TRUE(o.doc->Dirty);
    EXPECT_PROMPTS_DONE(o.prompter);
}

TEST(FrmSet, CustomSwitchReadsTheBoxes) {
    Opened o;
    FrmSet dlg(*o.doc, o.prompter);
    Find<QCheckBox>(dlg, "ChkCustom")->click();
    EXPECT_FALSE(Find<QComboBox>(dlg, "CBFrameSize")->isEnabled());
    EXPECT_TRUE(Find<QLineEdit>(dlg, "TxtHeight")->isEnabled());
    Find<QLineEdit>(dlg, "TxtWidth")->setText("1000");
    Find<QLineEdit>(dlg, "TxtHeight")->setText("tall");
    Find<QPushButton>(dlg, "CmdSet0")->click();
    EXPECT_EQ(o.doc->Header.FrameWidth, 1000);
    EXPECT_EQ(o.doc->Header.FrameHeight, 0);
}

TEST(FrmSet, CancelLeavesTheHeaderByteForByte) {
    Opened o;
    const QByteArray before = EncodeHeader(o.doc->Header);
    FrmSet dlg(*o.doc, o.prompter);
    o.prompter.expectFile(false, "Choose Background Music", "*.mp3|*.mp3", "/music/c.mp3");
    Find<QPushButton>(dlg, "CmdMusic")->click();
    EXPECT_EQ(Find<QLineEdit>(dlg, "TxtMusic")->text(), "/music/c.mp3");
    Find<QComboBox>(dlg, "CBFrameSize")->setCurrentIndex(0);
    Find<QPushButton>(dlg, "CmdSet1")->click();
    EXPECT_EQ(dlg.result(), QDialog::Rejected);
    EXPECT_EQ(EncodeHeader(o.doc->Header), before);
    EXPECT_PROMPTS_DONE(o.prompter);
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
