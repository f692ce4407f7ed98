#include "editor/check/SpellService.h"

#include "check/SpellSettings.h"
#include "check/WordScan.h"
#include "model/Document.h"

namespace zentor {

SpellService::SpellService(const Document& doc, QObject* parent)
    : QObject(parent), doc_(doc), language_(SpellingLanguage()) {
    open();
}

SpellService::~SpellService() = default;

void SpellService::open() {
    error_.clear();
    speller_ = SpellChecker::open(language_, &error_);
    if (speller_) {
        speller_->accept(PersonalWords());
        speller_->accept(ignored_);
    }
}

void SpellService::setLanguage(const QString& language) {
    if (language == language_)
        return;
    language_ = language;
    SaveSpellingLanguage(language);
    open();
    emit changed();
}

std::vector<WordSpan> SpellService::misspelt(const QString& text) const {
    if (!speller_)
        return {};
    return MisspeltWords(text, *speller_, profileWords());
}

// Taken again only when the profile changed: every key typed in a box asks for them.
const QSet<QString>& SpellService::profileWords() const {
    if (profileWordsOf_ != doc_.Profile) {
        profileWords_ = ProfileWords(doc_);
        profileWordsOf_ = doc_.Profile;
    }
    return profileWords_;
}

QStringList SpellService::suggestions(const QString& word) const {
    return speller_ ? speller_->suggestions(word) : QStringList();
}

void SpellService::addToDictionary(const QString& word) {
    AddPersonalWord(word);
    if (speller_)
        speller_->accept(word);
    emit changed();
}

void SpellService::ignore(const QString& word) {
    ignored_.append(word);
    if (speller_)
        speller_->accept(word);
    emit changed();
}

} // namespace zentor
