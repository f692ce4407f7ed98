#pragma once

class QLineEdit;
class QPlainTextEdit;

namespace zentor {

class SpellService;

// Misspelt words get a red wavy underline while the user types, and a right-click on one
// offers the dictionary's suggestions, "Add to Dictionary" and "Ignore" above the box's own
// menu. A several-line box is underlined by a syntax highlighter; a one-line box (which has
// none) through the formats its input method support draws.
void UnderlineSpelling(QPlainTextEdit* box, SpellService& spelling);
void UnderlineSpelling(QLineEdit* box, SpellService& spelling);

} // namespace zentor
