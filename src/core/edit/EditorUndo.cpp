#include "edit/Editor.h"

namespace zentor {

void Editor::recordChange(const QString& name, const QString& mergeKey) {
    if (undo_.push(name, base_, doc_, mergeKey))
        base_ = RecordsOf(doc_);
}

void Editor::recordPending() {
    recordChange(StepName(QStringLiteral("Edit"), st_.SelectedKind, st_.SelectedIndex));
}

void Editor::undo() {
    travel(true);
}

void Editor::redo() {
    travel(false);
}

void Editor::travel(bool back) {
    commitInPlaceEdit();
    recordPending();
    if (!(back ? undo_.undo(doc_) : undo_.redo(doc_)))
        return;
    base_ = RecordsOf(doc_);
    showRestored();
}

void Editor::resetHistory() {
    undo_.clear();
    base_ = RecordsOf(doc_);
}

void Editor::showRestored() {
    // The frame size and the page names may be what the step restored.
    sizeAndCentreWorkspace();
    applyStripCaptions();
    const bool kept =
        (st_.SelectedKind == KindImage && st_.SelectedIndex >= 1 &&
         st_.SelectedIndex <= MaxImages &&
         doc_.Images[st_.SelectedIndex].TabNo == st_.CurrentTab) ||
        (st_.SelectedKind == KindText && st_.SelectedIndex >= 1 && st_.SelectedIndex <= MaxTexts &&
         doc_.Texts[st_.SelectedIndex].TabNo == st_.CurrentTab);
    if (kept)
        RefreshTab(st_.CurrentTab);
    else
        LoadTab(st_.CurrentTab);
}

} // namespace zentor
