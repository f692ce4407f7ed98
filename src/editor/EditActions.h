#pragma once

#include <functional>

class QMenu;

namespace zentor {

class Editor;

// Undo and Redo at the head of the Edit menu, their texts naming the steps. `commitPending`
// stores a half-typed property first, so it is part of what gets undone.
void AddUndoActions(QMenu* edit, Editor& editor, std::function<void()> commitPending);

} // namespace zentor
