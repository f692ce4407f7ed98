#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

namespace zentor {

class CodePage;

// The Windows ANSI code page number for a language ("1250", "932", ...; "1252" otherwise).
QString WindowsCodePageFor(const QLocale& locale);

// The characters of text the code page cannot hold, each once, in order of appearance.
QString UnstorableCharacters(const CodePage& page, QStringView text);

// What to tell the user about text: which characters will be stored as '?' and in which
// code page; empty when every character is kept.
QString UnstorableNote(const CodePage& page, QStringView text);

} // namespace zentor
