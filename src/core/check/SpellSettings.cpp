#include "check/SpellSettings.h"

#include "check/SpellChecker.h"

#include <QSettings>

namespace zentor {

namespace {

QSettings Store() {
    return QSettings(QStringLiteral("Vitara"), QStringLiteral("Zentor"));
}

const QString WordsKey = QStringLiteral("spelling/personalWords");
const QString LanguageKey = QStringLiteral("spelling/language");

} // namespace

QStringList PersonalWords() {
    return Store().value(WordsKey).toStringList();
}

void AddPersonalWord(const QString& word) {
    QSettings s = Store();
    QStringList words = s.value(WordsKey).toStringList();
    if (word.isEmpty() || words.contains(word))
        return;
    words.append(word);
    s.setValue(WordsKey, words);
}

QString SavedSpellingLanguage() {
    return Store().value(LanguageKey).toString();
}

void SaveSpellingLanguage(const QString& language) {
    Store().setValue(LanguageKey, language);
}

QString SpellingLanguage(const QString& asked) {
    if (!asked.isEmpty())
        return asked;
    const QString saved = SavedSpellingLanguage();
    return saved.isEmpty() ? LocaleSpellingLanguage() : saved;
}

} // namespace zentor
