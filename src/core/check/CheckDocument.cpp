#include "check/CheckDocument.h"

#include "model/Document.h"
#include "model/TabMap.h"

#include <algorithm>

namespace zentor {

namespace {

// Where a page comes when reading the résumé: what concerns the whole of it first, then the
// pages in the strip's order.
int ReadingOrder(int tab) {
    return tab < 0 ? -1 : GetTabIndex(tab);
}

} // namespace

std::vector<Finding> CheckDocument(const Document& doc, const CheckOptions& options) {
    std::vector<Finding> out;
    std::unique_ptr<SpellChecker> opened;
    const SpellChecker* speller = options.speller;
    if (!speller) {
        const QString language =
            options.language.isEmpty() ? LocaleSpellingLanguage() : options.language;
        QString error;
        opened = SpellChecker::open(language, &error, options.dictionaryFolder);
        if (opened)
            opened->accept(options.personalWords);
        else
            out.push_back(Finding{FindingKind::Spelling, -1, 0, 0, QString(), error, {}, -1, {}});
        speller = opened.get();
    }
    if (speller)
        CheckSpelling(doc, *speller, out);
    CheckTexts(doc, options.cache, out);
    CheckPictures(doc, options.cache, out);
    CheckEmptyPages(doc, out);
    std::stable_sort(out.begin(), out.end(), [](const Finding& a, const Finding& b) {
        return ReadingOrder(a.tab) < ReadingOrder(b.tab);
    });
    return out;
}

} // namespace zentor
