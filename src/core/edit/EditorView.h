#pragma once

#include "edit/Geometry.h"

#include <QPointF>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace zentor {

// What the editor asks of its window. The editor decides; the window shows. None of these
// calls may call back into the editor (setting the list row or the strip tab from here is
// not a user's choice; the editor runs the follow-up itself).
class EditorView {
public:
    enum class Pointer { Normal, Hourglass, Move, RingIcon };
    enum class PointerTarget { Window, Workspace, Frame };
    // The picture-choosing commands of the property panel a double-click starts.
    enum class FileCommand { UserIcon, TabPicture, ImageFile, BackPicture };

    virtual ~EditorView() = default;

    // Paint page `tab` into the workspace (cleared to white first) from the document, with
    // `hoverIcon` (0..8) highlighted as the profile page's caption; then show it. Painting
    // stores back what drawing a page changes in the document (trimmed paths, an image's
    // mode 4, a tab picture's laid-out box).
    virtual void paintWorkspace(int tab, int hoverIcon) = 0;

    // The object list: replace every row, or select row `row` (-1 selects nothing). The
    // editor selects after every fill, -1 first.
    virtual void setObjectRows(const QStringList& rows) = 0;
    virtual void setCurrentRow(int row) = 0;

    // The property panel: bring the pane of `kind` (0..4) to the front, set its caption,
    // fill it from the document, and show a selected object's geometry in its number boxes.
    virtual void showPropertyPane(int kind) = 0;
    virtual void setPropertyCaption(const QString& caption) = 0;
    virtual void loadObject(int kind, int index) = 0;
    virtual void showObjectGeometry(int kind, const IntRect& r) = 0;

    // The selection frame over the selected object and its eight handles (top-left corners,
    // see HandlePositions).
    virtual void showSelectionFrame(bool visible) = 0;
    virtual void placeSelectionFrame(const IntRect& frame,
                                     const std::array<QPointF, 8>& handles) = 0;

    // The in-place text editor over the selection frame. `inPlaceText` is nothing while it is
    // hidden. Closing copies `committed` into the panel's text box, empties and hides it.
    virtual void openInPlaceEditor(const IntRect& at, const QString& text) = 0;
    virtual std::optional<QString> inPlaceText() const = 0;
    virtual void closeInPlaceEditor(const QString& committed) = 0;

    // The tab strip, positions 1..9: caption, selection, and which is selected (0 none).
    virtual void setStripCaption(int strip, const QString& caption) = 0;
    virtual void selectStrip(int strip) = 0;
    virtual int selectedStrip() const = 0;

    // The workspace: the viewport's inner size, and the workspace's place and size in it.
    virtual IntPoint viewportSize() const = 0;
    virtual void placeWorkspace(const IntRect& r) = 0;

    virtual void setPointer(PointerTarget target, Pointer pointer) = 0;
    virtual void setStatusText(const QString& text) = 0;
    virtual void showEditMenu() = 0;
    virtual void runFileCommand(FileCommand command) = 0;
    virtual void showSettings() = 0;
    virtual void showAbout() = 0;
    virtual void openUrl(const QString& url) = 0;
    // A project file was opened or saved: it heads the recent files.
    virtual void projectFileUsed(const QString& /*path*/) {}
};

} // namespace zentor
