#pragma once

#include <functional>

class QMenu;

namespace zentor {

class Editor;

// Cut, Copy, Paste and Duplicate of the selected picture or text (Ctrl+X, C, V, D) in the
// Edit menu. The clipboard carries our own type, so another open editor can paste it; a
// text box with the focus keeps these keys for its own text.
void AddClipboardActions(QMenu* edit, Editor& editor, std::function<void()> commitPending);

} // namespace zentor
