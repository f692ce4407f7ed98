#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace zentor {

struct Document;

// What Check Résumé reports, in the order a reader meets it on a page.
enum class FindingKind { Spelling, Overflow, Contrast, Resolution, Missing, Empty };

// One thing to fix before the résumé is sent.
struct Finding {
    FindingKind kind = FindingKind::Spelling;
    int tab = -1;       // 0..8; -1 for the whole document (no dictionary, the music)
    int objectKind = 0; // what selecting it selects: 0 page, 1 image, 2 text, 3 profile, 4 show
    int slot = 0;       // the image or text slot for kinds 1 and 2
    QString object;     // the object's name as the object list shows it
    QString message;    // what is wrong, for people
    // Spelling only: the word, where it starts in the decoded text, and what to write instead
    // in the dictionary's order.
    QString word;
    int place = -1;
    QStringList suggestions;
};

// "spelling", "overflow", ... as the JSON and the panel name the kinds.
QString KindName(FindingKind kind);

// The page name people know: "Get Started" for the profile page, else the tab's name.
QString PageName(const Document& doc, int tab);

// An object as findings name it: its name, or "text 3" / "image 2" when it has none.
QString ObjectLabel(const QString& name, int objectKind, int slot);

// What is wrong and, for a misspelt word, the first few things to write instead.
QString FindingProblem(const Finding& f);

// One line for people: page, object, what, and what to write instead.
QString FindingLine(const Document& doc, const Finding& f);

// "1 finding" / "3 findings".
QString FindingCount(size_t n);

// What a check that found nothing says.
QString NothingToFix();

// The status once a package or an export is written: what the command said (the file
// written), then how many findings remain and where they are listed; `said` as it is when
// nothing remains.
QString StatusAfterOutput(const QString& said, size_t remaining);

// {"kind", "tab", "object", "message", "word", "suggestions"}; tab and word are null where
// they do not apply.
QJsonObject FindingJson(const Finding& f);

// {"findings": [...]} with each finding's keys in the order above, for people reading it.
QByteArray FindingsJson(const std::vector<Finding>& findings);

} // namespace zentor
