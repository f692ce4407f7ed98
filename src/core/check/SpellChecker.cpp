#include "check/SpellChecker.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStringDecoder>

#include <hunspell.hxx>

namespace zentor {

QStringList AvailableDictionaries(const QString& folder) {
    QStringList names;
    const QDir dir(folder);
    for (const QFileInfo& aff : dir.entryInfoList({QStringLiteral("*.aff")}, QDir::Files)) {
        if (dir.exists(aff.completeBaseName() + QStringLiteral(".dic")))
            names.append(aff.completeBaseName());
    }
    names.sort();
    return names;
}

QString LocaleSpellingLanguage() {
    const QString name = QLocale::system().name();
    return name.contains(QLatin1Char('_')) ? name : QStringLiteral("en_US");
}

SpellChecker::SpellChecker(std::unique_ptr<Hunspell> h, QString language, bool utf8)
    : hunspell_(std::move(h)), language_(std::move(language)), utf8_(utf8) {}

SpellChecker::~SpellChecker() = default;

std::unique_ptr<SpellChecker> SpellChecker::open(const QString& language, QString* error,
                                                 const QString& folder) {
    QString name = language.trimmed();
    name.replace(QLatin1Char('-'), QLatin1Char('_'));
    const QString base = QDir(folder).filePath(name);
    const QString aff = base + QStringLiteral(".aff"), dic = base + QStringLiteral(".dic");
    if (name.isEmpty() || !QFileInfo(aff).isFile() || !QFileInfo(dic).isFile()) {
        if (error)
            *error = QStringLiteral("No spelling dictionary for \"%1\" (looked in %2); spelling "
                                    "was not checked")
                         .arg(language, folder);
        return nullptr;
    }
    auto h = std::make_unique<Hunspell>(QFile::encodeName(aff).constData(),
                                        QFile::encodeName(dic).constData());
    const bool utf8 = QString::fromStdString(h->get_dict_encoding())
                          .compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) == 0;
    return std::unique_ptr<SpellChecker>(new SpellChecker(std::move(h), name, utf8));
}

// Dictionaries that are not UTF-8 are Latin-1 in the languages we offer.
std::string SpellChecker::encode(const QString& word) const {
    return utf8_ ? word.toStdString() : word.toLatin1().toStdString();
}

QString SpellChecker::decode(const std::string& word) const {
    return utf8_ ? QString::fromStdString(word) : QString::fromLatin1(word);
}

bool SpellChecker::isCorrect(const QString& word) const {
    std::lock_guard lock(mutex_);
    auto it = known_.constFind(word);
    if (it != known_.constEnd())
        return *it;
    const bool ok = accepted_.contains(word.toLower()) || hunspell_->spell(encode(word));
    known_.insert(word, ok);
    return ok;
}

QStringList SpellChecker::suggestions(const QString& word) const {
    std::lock_guard lock(mutex_);
    auto it = suggested_.constFind(word);
    if (it != suggested_.constEnd())
        return *it;
    QStringList list;
    for (const std::string& s : hunspell_->suggest(encode(word)))
        list.append(decode(s));
    suggested_.insert(word, list);
    return list;
}

void SpellChecker::accept(const QString& word) {
    if (word.isEmpty())
        return;
    std::lock_guard lock(mutex_);
    accepted_.insert(word.toLower());
    // The answers for its other spellings ("Zentor", "ZENTOR") are asked again.
    known_.removeIf([&](auto it) { return it.key().compare(word, Qt::CaseInsensitive) == 0; });
}

void SpellChecker::accept(const QStringList& words) {
    for (const QString& w : words)
        accept(w);
}

} // namespace zentor
