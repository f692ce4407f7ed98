#pragma once

#include "model/Document.h"

#include <QString>

#include <functional>
#include <vector>

namespace zentor {

// A snapshot of a document: a step restores its records but never its path or dirty flag,
// which belong to the file rather than to an edit.
using DocumentRecords = Document;

DocumentRecords RecordsOf(const Document& doc);
// True when both would be saved as the same bytes.
bool SameRecords(const DocumentRecords& a, const DocumentRecords& b);

// Undo history of whole-record snapshots: a document is a few hundred fixed records, so a
// copy per step is cheaper to get right than per-field inverse operations. Recording leaves
// Dirty to the command that changed the document; undo and redo set it from the stack: clean
// exactly at the step the document was last saved or opened at.
class UndoStack {
public:
    // Records a change that turned `before` into `doc`. Nothing is recorded when the bytes
    // did not change. A change with the same non-empty `mergeKey` as the previous one
    // extends that step (a run of nudges of one object is one step). Returns true when a
    // step was added or extended.
    bool push(const QString& name, const DocumentRecords& before, Document& doc,
              const QString& mergeKey = {});

    bool canUndo() const { return index_ > 0; }
    bool canRedo() const { return index_ < int(steps_.size()); }
    QString undoName() const { return canUndo() ? steps_[index_ - 1].name : QString(); }
    QString redoName() const { return canRedo() ? steps_[index_].name : QString(); }

    bool undo(Document& doc);
    bool redo(Document& doc);

    // A new or opened document: no history, clean.
    void clear();
    // The document was saved: this point of the history is the clean one.
    void setClean();
    bool isClean() const { return index_ == clean_; }
    // The document matches no saved file (restored work): no point of the history is clean.
    void markUnsaved() { clean_ = -1; }
    // Applies `f` to every state of the history, for what must hold in all of them (media
    // paths made relative to where the project now lies).
    void rewrite(const std::function<void(DocumentRecords&)>& f);
    // A following change starts a step of its own even with the same merge key.
    void breakMerge() { mergeKey_.clear(); }

private:
    struct Step {
        QString name;
        DocumentRecords before;
        DocumentRecords after;
    };
    void restore(const DocumentRecords& r, Document& doc) const;

    std::vector<Step> steps_;
    int index_ = 0; // steps below this are done
    int clean_ = 0; // -1 when the saved state is no longer reachable
    QString mergeKey_;
};

// "Move image 13", "Delete text 4": the object's kind and slot as the user sees them.
QString StepName(const QString& verb, int kind, int slot);

} // namespace zentor
