#pragma once

#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "edit/Editor.h"
#include "edit/EditorView.h"
#include "model/TabMap.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <memory>
#include <optional>
#include <ostream>

namespace zentor {
// Readable failures.
inline void PrintTo(const IntRect& r, std::ostream* os) {
    *os << "(" << r.Left << ", " << r.Top << ", " << r.Width << ", " << r.Height << ")";
}
} // namespace zentor

namespace zentor::test {

// A window without widgets: keeps what the editor showed and logs the calls that matter
// to a user (pop-up menu, dialogs, URLs, pointer changes).
class FakeEditorView : public EditorView {
public:
    void paintWorkspace(int tab, int hover) override {
        ++paints;
        paintedTab = tab;
        paintedHover = hover;
    }
    void setObjectRows(const QStringList& r) override { rows = r; }
    void setCurrentRow(int r) override { currentRow = r; }
    void showPropertyPane(int) override {}
    void setPropertyCaption(const QString& c) override { caption = c; }
    void loadObject(int, int) override {}
    void showObjectGeometry(int, const IntRect& r) override { boxes = r; }
    void showSelectionFrame(bool v) override { frameVisible = v; }
    void placeSelectionFrame(const IntRect& f, const std::array<QPointF, 8>&) override {
        frame = f;
    }
    void openInPlaceEditor(const IntRect&, const QString& text) override { inPlace = text; }
    std::optional<QString> inPlaceText() const override { return inPlace; }
    void closeInPlaceEditor(const QString& committed) override {
        wordBox = committed;
        inPlace.reset();
    }
    void setStripCaption(int strip, const QString& c) override { captions[strip] = c; }
    void selectStrip(int strip) override { strip_ = strip; }
    int selectedStrip() const override { return strip_; }
    IntPoint viewportSize() const override { return viewport; }
    void placeWorkspace(const IntRect& r) override { workspace = r; }
    void setPointer(PointerTarget t, Pointer p) override {
        if (t == PointerTarget::Window)
            windowPointer = p;
        else
            log << QStringLiteral("pointer %1 %2").arg(int(t)).arg(int(p));
    }
    void setStatusText(const QString& t) override { status = t; }
    void showEditMenu() override { log << QStringLiteral("edit menu"); }
    void runFileCommand(FileCommand c) override {
        log << QStringLiteral("file command %1").arg(int(c));
    }
    void showSettings() override { log << QStringLiteral("settings"); }
    void showAbout() override { log << QStringLiteral("about"); }
    void openUrl(const QString& url) override { log << url; }

    int paints = 0, paintedTab = -1, paintedHover = -1;
    QStringList rows;
    int currentRow = -1;
    QString caption;
    IntRect boxes, frame, workspace;
    bool frameVisible = false;
    std::optional<QString> inPlace;
    QString wordBox;
    QString captions[10];
    int strip_ = 1; // the strip starts on "Get Started"
    IntPoint viewport{1000, 700};
    Pointer windowPointer = Pointer::Normal;
    QString status;
    QStringList log;
};

// A default document in a sandbox, an editor on it, started as the window starts.
struct EditorFixture {
    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    FakeEditorView view;
    ScriptedPrompter prompter;
    Editor editor{*doc, box.ctx, view, prompter};

    explicit EditorFixture(bool start = true) {
        if (start)
            editor.formLoad();
    }
    // Every scripted answer was used, and nothing else was asked.
    ~EditorFixture() { EXPECT_PROMPTS_DONE(prompter); }
    // Shows content page `tab` through the strip, as a user's click does.
    void showTab(int tab) {
        view.selectStrip(GetTabIndex(tab));
        editor.stripClicked();
    }
};

} // namespace zentor::test
