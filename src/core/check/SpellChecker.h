#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>
#include <mutex>

class Hunspell;

namespace zentor {

// Where Debian's hunspell-* packages put their dictionaries.
inline constexpr const char* DictionaryFolder = "/usr/share/hunspell";

// The dictionaries installed in `folder` ("en_GB", "en_US", ...), sorted.
QStringList AvailableDictionaries(const QString& folder = QLatin1String(DictionaryFolder));

// The language of the user's locale as a dictionary name ("en_US"); en_US when the locale
// names none (C, POSIX).
QString LocaleSpellingLanguage();

// One Hunspell dictionary plus the words the user accepts. Answers are remembered per word:
// a résumé repeats its words, and typing re-checks a whole paragraph on every key. Safe to
// share between threads: the editor checks the résumé on a worker while its boxes underline.
class SpellChecker {
public:
    // Opens `language` ("en_US", also "en-US") from `folder`; nullptr with `error` naming the
    // language when it has no dictionary there.
    static std::unique_ptr<SpellChecker>
    open(const QString& language, QString* error,
         const QString& folder = QLatin1String(DictionaryFolder));
    ~SpellChecker();

    QString language() const { return language_; }
    bool isCorrect(const QString& word) const;
    // What to write instead, in the dictionary's order.
    QStringList suggestions(const QString& word) const;
    // Accepted from now on (the personal dictionary, "Ignore").
    void accept(const QString& word);
    void accept(const QStringList& words);

private:
    SpellChecker(std::unique_ptr<Hunspell> h, QString language, bool utf8);
    std::string encode(const QString& word) const;
    QString decode(const std::string& word) const;

    std::unique_ptr<Hunspell> hunspell_;
    QString language_;
    bool utf8_;
    mutable std::mutex mutex_; // Hunspell and the answers remembered
    QSet<QString> accepted_;
    mutable QHash<QString, bool> known_;
    mutable QHash<QString, QStringList> suggested_;
};

} // namespace zentor
