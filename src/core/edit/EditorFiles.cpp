#include "edit/DropFiles.h"
#include "edit/Editor.h"
#include "edit/ObjectClipboard.h"
#include "edit/ObjectList.h"
#include "edit/RecentFiles.h"
#include "edit/Recovery.h"

#include <QFileInfo>

namespace zentor {

void Editor::openProject(const QString& path) {
    commitInPlaceEdit();
    recordPending();
    if (!keepWork(QStringLiteral("Open File")))
        return;
    newOrOpen(CmdOpen, path);
    endingSteps(CmdOpen);
}

bool Editor::openRecent(const QString& path) {
    if (!QFileInfo(path).isFile()) {
        prompter_.warn(QStringLiteral("Open File"), MissingRecentText(path));
        return false;
    }
    openProject(path);
    return true;
}

void Editor::dropFiles(const QStringList& paths, std::optional<IntPoint> at) {
    const DropPlan plan = PlanDrop(paths);
    if (!plan.project.isEmpty()) {
        openProject(plan.project);
        return;
    }
    if (plan.pictures.isEmpty() || !at || st_.CurrentTab < 1 || st_.CurrentTab > 7)
        return;
    commitInPlaceEdit();
    recordPending();
    const DropResult r = DropPictures(doc_, plan.pictures, *at, st_.CurrentTab);
    if (r.full)
        prompter_.warn(QStringLiteral("Insert Image"), TableFullText(KindImage));
    if (r.added.isEmpty())
        return;
    doc_.Dirty = true;
    selectObject(KindImage, r.added.last());
    recordChange(r.added.size() == 1 ? StepName(QStringLiteral("Drop"), KindImage, r.added[0])
                                     : QStringLiteral("Drop %1 pictures").arg(r.added.size()));
}

void Editor::offerRecovery() {
    if (!OfferRecovery(doc_, ctx_, prompter_))
        return;
    sizeAndCentreWorkspace();
    applyStripCaptions();
    LoadTab(st_.CurrentTab);
    resetHistory();
    // The restored work was never saved: no step of the history is a clean one.
    undo_.markUnsaved();
    doc_.Dirty = true;
}

void Editor::autosave() {
    Autosave(doc_, ctx_);
}

void Editor::discardRecovery() {
    RemoveRecovery(ctx_);
}

} // namespace zentor
