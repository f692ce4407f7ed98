#include "edit/Editor.h"
#include "edit/ObjectClipboard.h"

namespace zentor {

QByteArray Editor::copySelection() const {
    return CopyObject(doc_, st_.SelectedKind, st_.SelectedIndex);
}

QByteArray Editor::cutSelection() {
    commitInPlaceEdit();
    recordPending();
    const QByteArray clip = copySelection();
    if (clip.isEmpty())
        return clip;
    const int kind = st_.SelectedKind;
    RemoveObject(doc_, kind, st_.SelectedIndex);
    doc_.Dirty = true;
    const QString name = StepName(QStringLiteral("Cut"), kind, st_.SelectedIndex);
    LoadTab(st_.CurrentTab);
    recordChange(name);
    return clip;
}

bool Editor::paste(QByteArrayView clip) {
    return pasteAs(QStringLiteral("Paste"), clip);
}

bool Editor::duplicate() {
    const QByteArray clip = copySelection();
    return !clip.isEmpty() && pasteAs(QStringLiteral("Duplicate"), clip);
}

bool Editor::pasteAs(const QString& verb, QByteArrayView clip) {
    commitInPlaceEdit();
    recordPending();
    const PasteResult r = PasteObject(doc_, clip, st_.CurrentTab);
    if (r.outcome == PasteResult::Outcome::TableFull)
        prompter_.warn(verb, TableFullText(r.kind));
    if (r.outcome != PasteResult::Outcome::Pasted)
        return false;
    doc_.Dirty = true;
    selectObject(r.kind, r.slot);
    recordChange(StepName(verb, r.kind, r.slot));
    return true;
}

} // namespace zentor
