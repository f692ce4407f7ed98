#include "editor/FrmMain.h"

#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "check/SpellSettings.h"
#include "editor/check/CheckPanel.h"
#include "editor/check/CheckUi.h"
#include "editor/check/SpellService.h"
#include "editor/check/SpellUnderline.h"
#include "render/ResImages.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSettings>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QTreeWidget>

namespace zentor::test {
namespace {

class CheckWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        // The personal dictionary and the language live in the user's settings (the test
        // ones here), which earlier runs may have filled.
        QSettings("Vitara", "Zentor").remove("spelling");
        SaveSpellingLanguage("en_US");
        doc = sandbox.newDocument();
        TextElement& t =
            PlaceText(*doc, 1, 7, QRect(20, 20, 300, 100), "Quorvix recieved the award.");
        t.FontColor = int32_t(0xFF000000);
        window = std::make_unique<FrmMain>(*doc, sandbox.ctx, prompter, res);
        window->formLoad();
        window->resize(1280, 860);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        check = window->findChild<CheckUi*>();
        ASSERT_NE(check, nullptr);
    }

    void TearDown() override { QSettings("Vitara", "Zentor").remove("spelling"); }

    // The wavy underlines of the first paragraph of a box: (start, length) each.
    static QList<QPair<int, int>> Underlined(QPlainTextEdit* box) {
        QList<QPair<int, int>> spans;
        for (const QTextLayout::FormatRange& r : box->document()->firstBlock().layout()->formats())
            if (r.format.underlineStyle() == QTextCharFormat::WaveUnderline)
                spans.append({r.start, r.length});
        return spans;
    }

    Sandbox sandbox;
    std::unique_ptr<Document> doc;
    ScriptedPrompter prompter;
    ResImages res;
    std::unique_ptr<FrmMain> window;
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
