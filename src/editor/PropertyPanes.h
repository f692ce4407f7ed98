#pragma once

#include "edit/EditorView.h"
#include "edit/Geometry.h"

#include <QObject>

#include <array>

class QWidget;

namespace zentor {

class Editor;
class Prompter;
struct ProcessContext;

// The controls of the five property panes PicElementLoc(0..4) beside the workspace, and
// their commit rules. The window owns the pane widgets; this fills and drives them.
class PropertyPanes : public QObject {
    Q_OBJECT
public:
    PropertyPanes(const std::array<QWidget*, 5>& panes, Editor& editor, Prompter& prompter,
                  const ProcessContext& ctx, QObject* parent = nullptr);
    ~PropertyPanes() override;

    // The window that shows the tab strip: renaming a page renames its strip tab there. A
    // parent that is an EditorView (the main window) is taken as the view at construction.
    void setView(EditorView* view);

    // Fills pane `kind` from the document (0 tab, 1 image, 2 text, 3 profile, 4 slide show).
    void loadObject(int kind, int index);
    // Shows a selected object's geometry in its pane's four number boxes.
    void showObjectGeometry(int kind, const IntRect& r);
    // The picture-choosing commands a double-click on the workspace starts.
    void runFileCommand(EditorView::FileCommand command);
    // Commits the box being edited, if any (before a menu command or a page change).
    void commitPendingEdit();
    // The settings dialog (command 17); true when OK changed the header.
    bool showSettings(QWidget* parent);

private:
    struct Impl;
    Impl* d_;
};

} // namespace zentor
