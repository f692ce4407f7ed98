#pragma once

#include <QString>
#include <QStringList>

namespace zentor {

// The user's spelling choices, kept in the user's settings so the editor and zentor-cli
// agree: the personal dictionary and the editor's language (empty: the locale's).
QStringList PersonalWords();
void AddPersonalWord(const QString& word);
QString SavedSpellingLanguage();
void SaveSpellingLanguage(const QString& language);

// The language to check in: `asked` when given, else the saved one, else the locale's.
QString SpellingLanguage(const QString& asked = QString());

} // namespace zentor
