#include "edit/UndoStack.h"

#include "edit/ObjectList.h"
#include "io/ScriptFile.h"

namespace zentor {

namespace {

// A step holds two document copies; older steps fall off beyond this.
constexpr int MaxSteps = 64;

QByteArray BytesOf(DocumentRecords copy) {
    return SerializeScript(copy);
}

} // namespace

DocumentRecords RecordsOf(const Document& doc) {
    return doc;
}

bool SameRecords(const DocumentRecords& a, const DocumentRecords& b) {
    return BytesOf(a) == BytesOf(b);
}

bool UndoStack::push(const QString& name, const DocumentRecords& before, Document& doc,
                     const QString& mergeKey) {
    DocumentRecords after = RecordsOf(doc);
    if (SameRecords(before, after))
        return false;
    const bool merge =
        !mergeKey.isEmpty() && mergeKey == mergeKey_ && canUndo() && !canRedo() && clean_ != index_;
    if (merge) {
        steps_.back().after = std::move(after);
    } else {
        steps_.erase(steps_.begin() + index_, steps_.end());
        if (clean_ > index_)
            clean_ = -1;
        steps_.push_back({name, before, std::move(after)});
        if (int(steps_.size()) > MaxSteps) {
            steps_.erase(steps_.begin());
            clean_ = clean_ > 0 ? clean_ - 1 : -1;
        }
        index_ = int(steps_.size());
    }
    mergeKey_ = mergeKey;
    return true;
}

bool UndoStack::undo(Document& doc) {
    if (!canUndo())
        return false;
    --index_;
    mergeKey_.clear();
    restore(steps_[index_].before, doc);
    return true;
}

bool UndoStack::redo(Document& doc) {
    if (!canRedo())
        return false;
    restore(steps_[index_].after, doc);
    ++index_;
    mergeKey_.clear();
    return true;
}

void UndoStack::restore(const DocumentRecords& r, Document& doc) const {
    const QString path = doc.ScriptPath;
    doc = r;
    doc.ScriptPath = path;
    doc.Dirty = !isClean();
}

void UndoStack::clear() {
    steps_.clear();
    index_ = 0;
    clean_ = 0;
    mergeKey_.clear();
}

void UndoStack::rewrite(const std::function<void(DocumentRecords&)>& f) {
    for (Step& s : steps_) {
        f(s.before);
        f(s.after);
    }
}

void UndoStack::setClean() {
    clean_ = index_;
    mergeKey_.clear();
}

QString StepName(const QString& verb, int kind, int slot) {
    if (kind == KindImage)
        return verb + QStringLiteral(" image %1").arg(slot);
    if (kind == KindText)
        return verb + QStringLiteral(" text %1").arg(slot);
    return verb;
}

} // namespace zentor
