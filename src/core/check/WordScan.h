#pragma once

#include <QSet>
#include <QString>
#include <QStringView>

#include <vector>

namespace zentor {

struct Document;
class SpellChecker;

// A word in a text: where it starts and how many characters it has.
struct WordSpan {
    int start = 0;
    int length = 0;
    friend bool operator==(const WordSpan&, const WordSpan&) = default;
};

// The words of `text` that spelling applies to: runs of letters, apostrophes inside them
// kept ("don't"), hyphens splitting them. E-mail and web addresses, words touching a digit
// ("3D", "2nd", "MP3") and words in `exempt` (lower case) are left out.
std::vector<WordSpan> SpellableWords(QStringView text, const QSet<QString>& exempt);

// The words of the person's own names and addresses (lower case): never misspelt anywhere.
QSet<QString> ProfileWords(const Document& doc);

// The spellable words the dictionary does not know.
std::vector<WordSpan> MisspeltWords(QStringView text, const SpellChecker& speller,
                                    const QSet<QString>& exempt);

} // namespace zentor
