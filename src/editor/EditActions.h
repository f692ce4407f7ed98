#pragma once

#include <functional>

class QMenu;
class QWidget;

namespace zentor {

class Editor;

// Undo and Redo at the head of the Edit menu, their texts naming the steps. `commitPending`
// stores a half-typed property first, so it is part of what gets undone.
void AddUndoActions(QMenu* edit, Editor& editor, std::function<void()> commitPending);

// Arrows nudge the selection by 1 px (10 with Shift); Tab and Shift+Tab step through the
// page's objects. Live while the workspace or one of its controls has the focus.
void AddWorkspaceKeys(QWidget* workspace, Editor& editor);

} // namespace zentor
