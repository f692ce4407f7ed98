#include "edit/UndoStack.h"

#include "edit/ObjectList.h"

#include <algorithm>
#include <type_traits>

namespace zentor {

namespace {

// A step holds two document copies; older steps fall off beyond this.
constexpr int MaxSteps = 64;
// The history grows by whole documents: they must move, never be copied, when it does.
static_assert(std::is_nothrow_move_constructible_v<Document>);

// The counts are worked out anew whenever the header is written.
ScriptHeader Uncounted(ScriptHeader h) {
    h.TextCount = 0;
    h.ImageCount = 0;
    return h;
}

// The records in use of a table, in slot order, as the file lists them (slot 0, the
// template, is never written).
template <class Record, size_t N>
bool SameInUse(const std::array<Record, N>& a, const std::array<Record, N>& b) {
    size_t i = 1, j = 1;
    for (;;) {
        while (i < N && !inUse(a[i]))
            ++i;
        while (j < N && !inUse(b[j]))
            ++j;
        if (i == N || j == N)
            return i == N && j == N;
        if (!(a[i++] == b[j++]))
            return false;
    }
}

} // namespace

DocumentRecords RecordsOf(const Document& doc) {
    return doc;
}

// What saving would write, compared field by field without writing it: this runs before
// every command, on documents of up to half a megabyte of text.
bool SameRecords(const DocumentRecords& a, const DocumentRecords& b) {
    return Uncounted(a.Header) == Uncounted(b.Header) && a.Profile == b.Profile &&
           std::equal(a.Tabs.begin() + 1, a.Tabs.end(), b.Tabs.begin() + 1) &&
           SameInUse(a.Texts, b.Texts) && SameInUse(a.Images, b.Images);
}

bool UndoStack::push(const QString& name, const DocumentRecords& before, Document& doc,
                     const QString& mergeKey) {
    if (SameRecords(before, doc))
        return false;
    DocumentRecords after = RecordsOf(doc);
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
    // Moved on first: restoring tells Dirty from where the history now stands.
    ++index_;
    mergeKey_.clear();
    restore(steps_[index_ - 1].after, doc);
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
