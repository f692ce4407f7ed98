#include "edit/DragGeometry.h"
#include "edit/Editor.h"

namespace zentor {

bool Editor::nudge(int dx, int dy) {
    const int kind = st_.SelectedKind;
    if (!st_.FrameVisible || view_.inPlaceText() || (kind != KindImage && kind != KindText))
        return false;
    recordPending();
    IntRect r = MoveByDelta(st_.Frame, dx, dy);
    moveAdd(r);
    RefreshData();
    doc_.Dirty = true;
    recordChange(StepName(QStringLiteral("Move"), kind, st_.SelectedIndex),
                 QStringLiteral("nudge %1 %2").arg(kind).arg(st_.SelectedIndex));
    view_.paintWorkspace(st_.CurrentTab, st_.HoverIcon);
    return true;
}

void Editor::selectNextObject(bool forward) {
    const int n = int(st_.Rows.size());
    if (n == 0 || view_.inPlaceText())
        return;
    recordPending();
    undo_.breakMerge();
    const int from = st_.CurrentRow < 0 ? (forward ? -1 : 0) : st_.CurrentRow;
    selectRow((from + (forward ? 1 : n - 1)) % n);
}

} // namespace zentor
