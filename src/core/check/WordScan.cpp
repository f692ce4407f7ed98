#include "check/WordScan.h"

#include "check/SpellChecker.h"
#include "model/Document.h"

#include <QRegularExpression>

namespace zentor {

namespace {

bool IsApostrophe(QChar c) {
    return c == QLatin1Char('\'') || c == QChar(0x2019);
}

bool IsWordLetter(QChar c) {
    return c.isLetter() || c.isMark();
}

// A chunk between blanks that is an address rather than words: an e-mail, a link, or a
// host name such as "example.org/cv".
bool IsAddress(QStringView chunk) {
    // Brackets, quotes and a sentence's closing marks are not part of the address.
    while (!chunk.isEmpty() && QStringView(u"([{\"'<").contains(chunk.front()))
        chunk = chunk.mid(1);
    while (!chunk.isEmpty() && QStringView(u".,;:!?)]}\"'>").contains(chunk.back()))
        chunk.chop(1);
    if (chunk.contains(QLatin1Char('@')) || chunk.contains(QLatin1String("://")) ||
        chunk.startsWith(QLatin1String("www."), Qt::CaseInsensitive))
        return true;
    if (!chunk.contains(QLatin1Char('.')))
        return false;
    static const QRegularExpression host(
        QStringLiteral("^[\\p{L}\\d-]+(\\.[\\p{L}\\d-]+)+(/\\S*)?$"));
    return host.match(chunk).hasMatch();
}

} // namespace

std::vector<WordSpan> SpellableWords(QStringView text, const QSet<QString>& exempt) {
    std::vector<WordSpan> words;
    const int n = int(text.size());
    int i = 0;
    while (i < n) {
        while (i < n && text[i].isSpace())
            ++i;
        int end = i;
        while (end < n && !text[end].isSpace())
            ++end;
        const QStringView chunk = text.mid(i, end - i);
        if (!chunk.isEmpty() && !IsAddress(chunk)) {
            for (int k = i; k < end;) {
                if (!IsWordLetter(text[k])) {
                    ++k;
                    continue;
                }
                const int start = k;
                while (k < end &&
                       (IsWordLetter(text[k]) || (IsApostrophe(text[k]) && k + 1 < end &&
                                                  IsWordLetter(text[k + 1]) && k > start)))
                    ++k;
                const bool nearDigit =
                    (start > 0 && text[start - 1].isDigit()) || (k < n && text[k].isDigit());
                const QString word = text.mid(start, k - start).toString();
                if (!nearDigit && !exempt.contains(word.toLower()))
                    words.push_back({start, k - start});
            }
        }
        i = end;
    }
    return words;
}

QSet<QString> ProfileWords(const Document& doc) {
    const ProfileRecord& p = doc.Profile;
    QSet<QString> words;
    static const QRegularExpression letters(QStringLiteral("[\\p{L}\\p{M}'’]+"));
    for (const QString& field : {p.FirstName.text(), p.LastName.text(), p.Email.text(),
                                 p.Website.text(), p.Address.text(), p.PostCode.text()}) {
        for (const auto& m : letters.globalMatch(field))
            words.insert(m.captured().toLower());
    }
    return words;
}

std::vector<WordSpan> MisspeltWords(QStringView text, const SpellChecker& speller,
                                    const QSet<QString>& exempt) {
    std::vector<WordSpan> wrong;
    for (const WordSpan& w : SpellableWords(text, exempt)) {
        if (!speller.isCorrect(text.mid(w.start, w.length).toString()))
            wrong.push_back(w);
    }
    return wrong;
}

} // namespace zentor
