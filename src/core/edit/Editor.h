#pragma once

#include "edit/EditorState.h"
#include "edit/EditorView.h"
#include "edit/Prompter.h"
#include "edit/UndoStack.h"
#include "export/ExportCommand.h"
#include "model/Document.h"
#include "model/ProcessContext.h"

#include <functional>
#include <optional>

namespace zentor {

// Command numbers; the toolbar button index is the command number.
enum Command : int {
    CmdNew = 2,
    CmdOpen = 3,
    CmdSave = 4,
    CmdSaveAs = 5,
    CmdInsertImage = 6,
    CmdInsertText = 7,
    CmdDelete = 8,
    CmdMoveToTop = 10,
    CmdMoveToBottom = 11,
    CmdPreviousTab = 12,
    CmdNextTab = 13,
    CmdGenerateQdv = 15,
    CmdGenerateSelfrun = 16,
    CmdSettings = 17,
    CmdExportPdf = 18,
    CmdExportWebPage = 19,
    CmdPlay = 20,
    CmdCollectMedia = 21,
    CmdExportVideo = 22,
};

enum class MouseButton { Left, Right, Middle };

// The main window's decisions, headless. The window forwards its events here and shows what
// the editor tells its EditorView; every question goes through the Prompter. Positions are
// workspace pixels (for the frame and its handles too: add the frame's offset).
class Editor {
public:
    // Writes a package to `path`, or asks where when `path` is empty; returns the path
    // written, empty when nothing was.
    using Generator = std::function<QString(bool selfRun, const QString& path)>;
    // Runs the export of `kind`; returns the path written, empty when nothing was.
    using Exporter = std::function<QString(ExportKind kind)>;
    // Starts a program on its own; false when it could not be started.
    using Launcher = std::function<bool(const QString& program, const QStringList& args)>;

    Editor(Document& doc, const ProcessContext& ctx, EditorView& view, Prompter& prompter);

    Document& document() { return doc_; }
    const EditorState& state() const { return st_; }
    EditorState& state() { return st_; }
    // Generation is reached through this (the default does nothing).
    void setGenerator(Generator g) { generate_ = std::move(g); }
    // The export commands (CmdExportPdf, CmdExportWebPage, CmdExportVideo) are reached
    // through this.
    void setExporter(Exporter e) { export_ = std::move(e); }
    // Play Résumé starts the player through this.
    void setLauncher(Launcher l) { launch_ = std::move(l); }

    // --- Window lifecycle ---
    // Start-up: frame placed, profile page shown, the command-line project opened if any.
    void formLoad();
    // The exit question; true when the window may close.
    bool queryUnload();

    // --- Commands ---
    // Runs command `index` with its prompts and the ending steps (Dirty for 6..11, status).
    void CommonModth(int index);
    // A menu or toolbar click: commits an open in-place edit first.
    void menuCommand(int index);
    // The About menu: 1 the user manual, 2 the home page, 6 the about box.
    void aboutMenu(int index);

    // --- Pages and the object list ---
    void RefreshTab(int tab); // redraw, keep the selection
    void LoadTab(int tab);    // redraw, select the page itself
    void chooseRow(int row);  // the user (or the editor) chose a row of the object list
    void Select_Object(int kind);
    void ShowAdd(bool show);
    // Places the selection frame, clamped; `r` receives the clamped values.
    void moveAdd(IntRect& r);
    // Copies the frame's geometry into the selected object and the panel's boxes.
    void RefreshData();

    // After the settings changed the frame size: the workspace takes it, centred, and the
    // page is drawn again.
    void frameSizeChanged();

    // --- Tab strip ---
    void stripClicked(); // after the user selected a strip tab

    // --- Workspace mouse ---
    void workspaceMouseDown(MouseButton b, IntPoint p);
    void workspaceMouseMove(IntPoint p);
    void workspaceMouseUp(MouseButton b);
    void workspaceClick();
    void workspaceDoubleClick();
    void frameMouseDown(MouseButton b, IntPoint p);
    void frameMouseMove(IntPoint p);
    void frameMouseUp(MouseButton b);
    void frameDoubleClick();
    void handleMouseDown(int handle, IntPoint p);
    void handleMouseMove(int handle, IntPoint p);
    void handleMouseUp(int handle);

    // --- Undo ---
    const UndoStack& undoStack() const { return undo_; }
    // What changed since the last step becomes one step called `name`; a change with the
    // merge key of the previous one extends it.
    void recordChange(const QString& name, const QString& mergeKey = {});
    // Changes made outside the editor's commands (the property panes, the settings) become
    // a step named after the selection.
    void recordPending();
    void undo();
    void redo();

    // --- Keyboard ---
    // Moves the selected picture or text by (dx, dy) with a drag's clamps; a run of nudges
    // of one object is one step. False when nothing selected can move.
    bool nudge(int dx, int dy);
    // Selects the next (previous) row of the page's object list, wrapping around.
    void selectNextObject(bool forward);

    // --- Clipboard: bytes of ObjectMimeType ---
    // The selected picture or text as clipboard bytes; empty when none is selected.
    QByteArray copySelection() const;
    // Copies, then takes the object off its page without a question; one step.
    QByteArray cutSelection();
    // Pastes onto the current page and selects the copy; one step. False when nothing came.
    bool paste(QByteArrayView clip);
    // A copy of the selection beside it, the clipboard left alone.
    bool duplicate();

    // --- Files from outside the menus ---
    // Opens `path` as Open does, after the changed-document question.
    void openProject(const QString& path);
    // A recent file: a missing one is told and false comes back, so the list drops it.
    bool openRecent(const QString& path);
    // Files dropped on the window: a project opens; pictures dropped at `at` (workspace
    // pixels, nothing when outside the page) on a content page become picture objects.
    void dropFiles(const QStringList& paths, std::optional<IntPoint> at);

    // --- Recovery ---
    // At start: offers the work a run that did not end normally left behind.
    void offerRecovery();
    // Each minute: unsaved work goes to the recovery file, saved work takes it away.
    void autosave();
    // A normal exit: nothing is left to recover.
    void discardRecovery();

    // --- In-place text editor ---
    void inPlaceTextChanged() { doc_.Dirty = true; }
    // Stores an open in-place edit into the selected text and closes the editor.
    void commitInPlaceEdit();

private:
    void fillPage(int tab);
    void selectRow(int row);
    void applyStripCaptions();
    void sizeAndCentreWorkspace();
    bool save(bool alwaysAsk);
    // Runs Save after a Yes to a question about unsaved work; true only when the file was
    // written, so the asking command may go on.
    bool saveForQuestion();
    void newOrOpen(int index, const QString& path = {});
    // The changed-document question of New and Open; false when the command must stop.
    bool keepWork(const QString& title);
    void selectObject(int kind, int slot);
    bool pasteAs(const QString& verb, QByteArrayView clip);
    void insert(int kind);
    void step(bool next);
    void endingSteps(int index);
    // A move of the selection frame starts: the pressed control shows the move pointer.
    void beginMove(EditorView::PointerTarget target, IntPoint p);
    void moveFrameTo(IntPoint p);
    void travel(bool back); // undo or redo
    void resetHistory();
    void showRestored();
    // Play Résumé: a package in the work folder, opened in the player.
    void play();
    // Collect Media: every used file copied beside the project, the document pointed there.
    void collectMedia();
    // After opening: one question about the files the project uses that are gone, and a
    // look in a folder the user picks. True when a path was re-pointed.
    bool offerMissingMedia();
    void showManual();

    Document& doc_;
    const ProcessContext& ctx_;
    EditorView& view_;
    Prompter& prompter_;
    EditorState st_;
    Generator generate_;
    Exporter export_;
    Launcher launch_;
    QString status_;               // what the status bar says after this command instead of "Ready"
    bool lastSaveWritten_ = false; // the last Save command wrote the file
    UndoStack undo_;
    DocumentRecords base_; // the records as the last step left them
};

} // namespace zentor
