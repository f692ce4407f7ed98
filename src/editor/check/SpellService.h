#pragma once

#include "check/SpellChecker.h"
#include "model/Records.h"

#include <QObject>
#include <QSet>

#include <memory>
#include <optional>
#include <vector>

namespace zentor {

struct Document;
struct WordSpan;

// The window's dictionary: opened once in the chosen language, with the personal
// dictionary and what the user ignored this session. Every underlined box asks it.
class SpellService : public QObject {
    Q_OBJECT
public:
    SpellService(const Document& doc, QObject* parent = nullptr);
    ~SpellService() override;

    // Null when the language has no dictionary (error() says so).
    const SpellChecker* speller() const { return speller_.get(); }
    // The same, kept open for a check running on a worker while the language changes.
    std::shared_ptr<const SpellChecker> sharedSpeller() const { return speller_; }
    QString error() const { return error_; }
    QString language() const { return language_; }
    void setLanguage(const QString& language);

    // The misspelt words of `text` (the person's names and addresses never are).
    std::vector<WordSpan> misspelt(const QString& text) const;
    QStringList suggestions(const QString& word) const;

    void addToDictionary(const QString& word); // kept in the user's settings
    void ignore(const QString& word);          // for this session

signals:
    // The answers changed (a word accepted, another language): underline again.
    void changed();

private:
    void open();
    const QSet<QString>& profileWords() const;

    const Document& doc_;
    QString language_;
    QString error_;
    std::shared_ptr<SpellChecker> speller_;
    QStringList ignored_;
    // The person's own words and the profile they were taken from.
    mutable QSet<QString> profileWords_;
    mutable std::optional<ProfileRecord> profileWordsOf_;
};

} // namespace zentor
