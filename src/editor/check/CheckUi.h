#pragma once

#include <QObject>

class QMainWindow;
class QMenu;

namespace zentor {

class CheckPanel;
struct CheckOptions;
struct Finding;
class Editor;
class EditorView;
class PictureCache;
class SpellService;
struct Document;

// Check Résumé in the window: underlined spelling in the boxes where words are typed, Edit >
// "Check Résumé..." (F7) with its panel, and the count of findings after an output is written.
class CheckUi : public QObject {
    Q_OBJECT
public:
    CheckUi(QMainWindow* window, EditorView& view, Editor& editor, PictureCache& cache,
            QMenu* editMenu);
    // Waits for a check still running: it reads the window's decoded pictures.
    ~CheckUi() override;

    // Runs the check and lists the findings in the panel, which is shown.
    void openPanel();
    // After a package or an export was written: the status bar says how many findings remain
    // once they are counted, on a worker with a copy of the document so the window stays live.
    void reportAfterOutput();

    SpellService& spelling() { return *spelling_; }
    CheckPanel& panel() { return *panel_; }

private:
    // Checks again; `commitTyping` stores a text being typed in place first.
    void runCheck(bool commitTyping);
    CheckOptions options() const;
    void selectWord(const Finding& f);

    QMainWindow* window_;
    EditorView& view_;
    Editor& editor_;
    PictureCache& cache_;
    SpellService* spelling_;
    CheckPanel* panel_;
    bool shownOnce_ = false;
};

} // namespace zentor
