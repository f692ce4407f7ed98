#pragma once

#include "edit/Editor.h"
#include "edit/EditorView.h"

#include "render/PictureCache.h"

#include <QMainWindow>

#include <array>
#include <functional>
#include <map>
#include <memory>

class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QScrollBar;
class QTabBar;
class QToolBar;

namespace zentor {

class InPlaceEdit;
class PropertyPanes;
class RecentFilesMenu;
class RenderedPictures;
class ResImages;
class ResumeGenerator;
class SelectionFrame;
class SizeHandle;
class WorkspaceCanvas;
struct ProcessContext;

// The main window. It owns the Editor, forwards every event to it and shows what it is told;
// the rules live in the editor.
class FrmMain : public QMainWindow, public EditorView {
    Q_OBJECT
public:
    FrmMain(Document& doc, const ProcessContext& ctx, Prompter& prompter, const ResImages& res,
            QWidget* parent = nullptr);
    ~FrmMain() override;

    Editor& editor() { return editor_; }
    PropertyPanes& panes() { return *panes_; }

    // Start-up once the window exists: workspace, strip captions, the command-line project,
    // the profile page.
    void formLoad();

    // The toolbar button of command `index` (nothing for 1, 5, 9, 14).
    QAction* toolbarAction(int index) const;

    // --- EditorView ---
    void paintWorkspace(int tab, int hoverIcon) override;
    void setObjectRows(const QStringList& rows) override;
    void setCurrentRow(int row) override;
    void showPropertyPane(int kind) override;
    void setPropertyCaption(const QString& caption) override;
    void loadObject(int kind, int index) override;
    void showObjectGeometry(int kind, const IntRect& r) override;
    void showSelectionFrame(bool visible) override;
    void placeSelectionFrame(const IntRect& frame, const std::array<QPointF, 8>& handles) override;
    void openInPlaceEditor(const IntRect& at, const QString& text) override;
    std::optional<QString> inPlaceText() const override;
    void closeInPlaceEditor(const QString& committed) override;
    void setStripCaption(int strip, const QString& caption) override;
    void selectStrip(int strip) override;
    int selectedStrip() const override;
    IntPoint viewportSize() const override;
    void placeWorkspace(const IntRect& r) override;
    void setPointer(PointerTarget target, Pointer pointer) override;
    void setStatusText(const QString& text) override;
    void showEditMenu() override;
    void runFileCommand(FileCommand command) override;
    void showSettings() override;
    void showAbout() override;
    void openUrl(const QString& url) override;
    void projectFileUsed(const QString& path) override;

protected:
    void closeEvent(QCloseEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    void buildMenus();
    void buildToolbar();
    void buildPanes();
    void buildFrame();
    void wireWorkspace();
    void command(int index);
    void layoutFramePane();
    void layoutToolPane();
    void viewportResized();
    void updateScrollBars(bool middleVertically);
    void updateTitle();

    Document& doc_;
    const ProcessContext& ctx_;
    Prompter& prompter_;
    Editor editor_;
    PropertyPanes* panes_ = nullptr;
    const ResImages& res_;
    PictureCache pictures_; // decoded once, so repainting after a drag stays quick
    std::unique_ptr<RenderedPictures> packagePictures_;
    std::unique_ptr<ResumeGenerator> generator_;

    QMenu* mainFile_ = nullptr;
    QMenu* mainEdit_ = nullptr;
    QMenu* mainAbout_ = nullptr;
    RecentFilesMenu* recent_ = nullptr;
    QToolBar* toolbar_ = nullptr;
    std::map<int, QAction*> toolbarActions_;

    QWidget* picTool_ = nullptr;
    QLabel* labPropertity_ = nullptr;
    QComboBox* cmbPropertity_ = nullptr;
    std::array<QWidget*, 5> picElementLoc_{};

    QWidget* picFrame_ = nullptr;
    QTabBar* tabTitle_ = nullptr;
    QWidget* picShow_ = nullptr;
    WorkspaceCanvas* picWorkSpace_ = nullptr;
    SelectionFrame* labAdd_ = nullptr;
    std::array<SizeHandle*, 8> labSize_{};
    InPlaceEdit* txtAdd_ = nullptr;
    QScrollBar* hsShow_ = nullptr;
    QScrollBar* vsShow_ = nullptr;
    QLabel* statusPanel_ = nullptr;

    bool inPlaceOpen_ = false;
    bool syncingStrip_ = false;
    bool hourglass_ = false;
};

} // namespace zentor
