#include "edit/DeleteObject.h"
#include "edit/Editor.h"
#include "edit/InsertObject.h"
#include "edit/Locations.h"
#include "edit/StatusText.h"
#include "edit/TabNavigation.h"
#include "edit/ZOrder.h"
#include "io/MediaFiles.h"
#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"

#include <QFileInfo>
#include <QUrl>

#include <utility>

namespace zentor {

namespace {

const QString ScriptFilter = QStringLiteral("*.qds|*.qds|*.*|*.*");
const QString SaveTitle = QStringLiteral("Save QDV Script File");

} // namespace

void Editor::menuCommand(int index) {
    commitInPlaceEdit();
    recordPending();
    CommonModth(index);
}

void Editor::aboutMenu(int index) {
    if (index == 1)
        showManual();
    else if (index == 2)
        view_.openUrl(QString::fromLatin1(HomePage));
    else if (index == 6)
        view_.showAbout();
}

void Editor::showManual() {
    const QString manual = ManualPath(ctx_);
    if (manual.isEmpty())
        prompter_.warn(QStringLiteral("Help"),
                       QStringLiteral("Can't find the user manual beside the program: ") +
                           ctx_.AppPath + QStringLiteral("doc/manual.html"));
    else
        view_.openUrl(QUrl::fromLocalFile(manual).toString());
}

void Editor::CommonModth(int index) {
    using Pointer = EditorView::Pointer;
    const auto window = EditorView::PointerTarget::Window;
    switch (index) {
    case CmdNew:
    case CmdOpen:
        if (!keepWork(index == CmdNew ? QStringLiteral("New File") : QStringLiteral("Open File")))
            return;
        newOrOpen(index);
        break;
    case CmdSave:
    case CmdSaveAs:
        view_.setPointer(window, Pointer::Hourglass);
        if (!save(index == CmdSaveAs))
            return;
        view_.setPointer(window, Pointer::Normal);
        break;
    case CmdInsertImage:
    case CmdInsertText:
        if (st_.CurrentTab < 1 || st_.CurrentTab > 7)
            return;
        insert(index == CmdInsertImage ? KindImage : KindText);
        recordChange(StepName(QStringLiteral("Insert"), st_.SelectedKind, st_.SelectedIndex));
        break;
    case CmdDelete: {
        const QString name =
            StepName(QStringLiteral("Delete"), st_.SelectedKind, st_.SelectedIndex);
        DelObject(doc_, st_.SelectedKind, st_.SelectedIndex, st_.CurrentTab, prompter_, ctx_);
        recordChange(name);
        // Reloaded whatever the answer.
        LoadTab(st_.CurrentTab);
        break;
    }
    case CmdMoveToTop:
    case CmdMoveToBottom: {
        const QString name =
            StepName(index == CmdMoveToTop ? QStringLiteral("Bring") : QStringLiteral("Send"),
                     st_.SelectedKind, st_.SelectedIndex) +
            (index == CmdMoveToTop ? QStringLiteral(" to top") : QStringLiteral(" to bottom"));
        st_.SelectedIndex = ZOrderArr(doc_, st_.SelectedKind, st_.SelectedIndex, st_.CurrentTab,
                                      index == CmdMoveToTop);
        recordChange(name);
        RefreshTab(st_.CurrentTab);
        break;
    }
    case CmdPreviousTab:
    case CmdNextTab:
        step(index == CmdNextTab);
        break;
    case CmdGenerateQdv:
    case CmdGenerateSelfrun:
        view_.setPointer(window, Pointer::Hourglass);
        if (generate_) {
            const QString written = generate_(index == CmdGenerateSelfrun, QString());
            if (!written.isEmpty())
                status_ = PackageStatus(doc_, written);
        }
        view_.setPointer(window, Pointer::Normal);
        break;
    case CmdExportPdf:
    case CmdExportWebPage:
    case CmdExportVideo:
        view_.setPointer(window, Pointer::Hourglass);
        if (export_) {
            const QString written = export_(index == CmdExportPdf       ? ExportKind::Pdf
                                            : index == CmdExportWebPage ? ExportKind::WebPage
                                                                        : ExportKind::Video);
            if (!written.isEmpty())
                status_ = WrittenStatus(written);
        }
        view_.setPointer(window, Pointer::Normal);
        break;
    case CmdPlay:
        play();
        break;
    case CmdCollectMedia:
        collectMedia();
        break;
    case CmdSettings:
        view_.showSettings();
        break;
    default:
        break;
    }
    endingSteps(index);
}

void Editor::endingSteps(int index) {
    // Delete and the z-order commands mark the document even when nothing was selected.
    if (index >= CmdInsertImage && index <= CmdMoveToBottom)
        doc_.Dirty = true;
    view_.setStatusText(status_.isEmpty() ? QStringLiteral("Ready") : std::exchange(status_, {}));
}

bool Editor::keepWork(const QString& title) {
    if (!doc_.Dirty)
        return true;
    const Prompter::Answer a = prompter_.ask(title, QStringLiteral("Do you want to save the work?"),
                                             Prompter::Buttons::YesNoCancel,
                                             Prompter::Icon::Question, Prompter::Answer::No);
    // Yes and then no save after all (dialog cancelled, disk refused): the work would be
    // lost, so the command stops with everything as it was.
    return a == Prompter::Answer::No || (a == Prompter::Answer::Yes && saveForQuestion());
}

void Editor::newOrOpen(int index, const QString& given) {
    bool opened = false;
    if (index == CmdNew) {
        NewDocument(doc_, ctx_);
    } else {
        const QString path =
            !given.isEmpty()
                ? given
                : prompter_.chooseFile(false, QStringLiteral("Open QDV Script File"), ScriptFilter);
        // Loaded over the current document: slots the file does not fill keep their objects.
        if (!path.isEmpty() && LoadScript(doc_, path).opened) {
            view_.projectFileUsed(doc_.ScriptPath);
            opened = true;
        }
    }
    sizeAndCentreWorkspace();
    applyStripCaptions();
    LoadTab(st_.CurrentTab);
    doc_.Dirty = false;
    resetHistory();
    if (opened && offerMissingMedia())
        RefreshTab(st_.CurrentTab);
}

bool Editor::saveForQuestion() {
    CommonModth(CmdSave);
    return lastSaveWritten_;
}

// Returns false when the user refused to overwrite (the command stops there).
bool Editor::save(bool alwaysAsk) {
    lastSaveWritten_ = false;
    QString path = doc_.ScriptPath;
    if (alwaysAsk || path.isEmpty()) {
        path = prompter_.chooseFile(
            true, alwaysAsk ? QStringLiteral("Save as QDV Script File") : SaveTitle, ScriptFilter);
        if (path.isEmpty())
            return true;
        // Case-sensitive on purpose: "cv.QDS" becomes "cv.QDS.qds".
        if (!path.endsWith(QStringLiteral(".qds")))
            path += QStringLiteral(".qds");
        if (QFileInfo::exists(path) &&
            !prompter_.askYesNo(SaveTitle,
                                QStringLiteral("This file already exists. Do you want to "
                                               "overwrite it?"))) {
            view_.setPointer(EditorView::PointerTarget::Window, EditorView::Pointer::Normal);
            return false;
        }
    }
    recordPending();
    // Saved into another folder, relative media paths are rebased so they still name the
    // same files; the document takes them only once the file is written.
    const QString from = doc_.ScriptPath;
    Document saved = RecordsOf(doc_);
    RebaseMediaPaths(saved, from, path);
    if (!SaveScript(saved, path)) {
        view_.setPointer(EditorView::PointerTarget::Window, EditorView::Pointer::Normal);
        prompter_.warn(SaveTitle, QStringLiteral("Can't save file : ") + path);
    } else {
        doc_ = saved;
        undo_.rewrite([&](DocumentRecords& r) { RebaseMediaPaths(r, from, path); });
        base_ = RecordsOf(doc_);
        lastSaveWritten_ = true;
        undo_.setClean();
        view_.projectFileUsed(doc_.ScriptPath);
    }
    return true;
}

void Editor::insert(int kind) {
    const int slot = InsertObject(doc_, kind, st_.CurrentTab);
    st_.SelectedKind = kind;
    st_.SelectedIndex = slot;
    selectObject(kind, slot);
}

void Editor::selectObject(int kind, int slot) {
    LoadTab(st_.CurrentTab);
    // LoadTab selected the page; now the object's own row.
    const int row = FindObjectRow(st_.ObjectMap, {kind, slot});
    if (row >= 0 && row < st_.Rows.size())
        selectRow(row);
}

void Editor::step(bool next) {
    const int k = view_.selectedStrip();
    const int target = next ? NextStrip(k) : PrevStrip(k);
    if (target < 1 || target > StripCount)
        return;
    view_.selectStrip(target);
    stripClicked();
}

} // namespace zentor
