#pragma once

class QLineEdit;
class QPlainTextEdit;

namespace zentor {

// Shows, just below a box and while the user types, which characters the active code page
// will store as '?', so a name is never lost without a word.
void AttachCodePageNote(QLineEdit* box);
void AttachCodePageNote(QPlainTextEdit* box);

} // namespace zentor
