#include "check/CheckDocument.h"
#include "check/WordScan.h"
#include "model/Document.h"

namespace zentor {

namespace {

void CheckText(const QString& text, const SpellChecker& speller, const QSet<QString>& exempt,
               const Finding& where, std::vector<Finding>& out) {
    for (const WordSpan& w : MisspeltWords(text, speller, exempt)) {
        Finding f = where;
        f.word = text.mid(w.start, w.length);
        f.place = w.start;
        f.suggestions = speller.suggestions(f.word);
        f.message =
            QStringLiteral("\"%1\" is not in the %2 dictionary").arg(f.word, speller.language());
        out.push_back(std::move(f));
    }
}

} // namespace

// The words the résumé shows: the content pages' names and every text box. The profile's
// fields are names, numbers and addresses, which spelling leaves alone.
void CheckSpelling(const Document& doc, const SpellChecker& speller, std::vector<Finding>& out) {
    const QSet<QString> exempt = ProfileWords(doc);
    for (int tab = 1; tab < SlideShowTab; ++tab) {
        Finding where{FindingKind::Spelling, tab, 0, 0, QStringLiteral("page name")};
        CheckText(doc.Tabs[size_t(tab)].Name.text(), speller, exempt, where, out);
    }
    for (int slot = 1; slot <= MaxTexts; ++slot) {
        const TextElement& t = doc.Texts[size_t(slot)];
        if (t.TabNo < 1 || t.TabNo >= SlideShowTab)
            continue;
        Finding where{FindingKind::Spelling, t.TabNo, 2, slot, ObjectLabel(t.Name.text(), 2, slot)};
        CheckText(t.Text.text(), speller, exempt, where, out);
    }
}

} // namespace zentor
