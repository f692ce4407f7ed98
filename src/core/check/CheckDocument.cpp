#include "check/CheckDocument.h"

#include "model/Document.h"
#include "model/TabMap.h"

#include <algorithm>
#include <future>
#include <iterator>

namespace zentor {

namespace {

// Where a page comes when reading the résumé: what concerns the whole of it first, then the
// pages in the strip's order.
int ReadingOrder(int tab) {
    return tab < 0 ? -1 : GetTabIndex(tab);
}

// Without a dictionary of the caller's, one is opened; a language without one is a finding.
std::vector<Finding> SpellingFindings(const Document& doc, const CheckOptions& options) {
    std::vector<Finding> out;
    if (options.speller) {
        CheckSpelling(doc, *options.speller, out);
        return out;
    }
    const QString language =
        options.language.isEmpty() ? LocaleSpellingLanguage() : options.language;
    QString error;
    const auto opened = SpellChecker::open(language, &error, options.dictionaryFolder);
    if (!opened) {
        out.push_back(Finding{FindingKind::Spelling, -1, 0, 0, QString(), error, {}, -1, {}});
        return out;
    }
    opened->accept(options.personalWords);
    CheckSpelling(doc, *opened, out);
    return out;
}

} // namespace

std::vector<Finding> CheckDocument(const Document& doc, const CheckOptions& options) {
    // Spelling (opening a dictionary first) beside the rest, which waits for pages to be
    // drawn much of the time.
    auto spelling =
        std::async(std::launch::async, [&doc, &options] { return SpellingFindings(doc, options); });
    std::vector<Finding> rest;
    CheckTexts(doc, options.cache, rest);
    CheckPictures(doc, options.cache, rest);
    CheckEmptyPages(doc, rest);
    std::vector<Finding> out = spelling.get();
    out.insert(out.end(), std::make_move_iterator(rest.begin()),
               std::make_move_iterator(rest.end()));
    std::stable_sort(out.begin(), out.end(), [](const Finding& a, const Finding& b) {
        return ReadingOrder(a.tab) < ReadingOrder(b.tab);
    });
    return out;
}

} // namespace zentor
