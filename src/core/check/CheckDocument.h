#pragma once

#include "check/Finding.h"
#include "check/SpellChecker.h"
#include "io/MediaFiles.h"

#include <QStringList>

#include <vector>

namespace zentor {

struct Document;
class PictureCache;

struct CheckOptions {
    // The dictionary to open, e.g. "en_GB"; empty: the user's locale.
    QString language;
    QString dictionaryFolder = QLatin1String(DictionaryFolder);
    // Words the user added to the personal dictionary.
    QStringList personalWords;
    // A dictionary already open (the editor keeps one, with what the user accepted); when
    // given, language, folder and personal words are its business.
    const SpellChecker* speller = nullptr;
    // Pictures already decoded for the workspace, so checking does not decode them again.
    PictureCache* cache = nullptr;
};

// Everything to fix before the résumé goes out, page by page in the strip's order (the
// profile first), each page's findings in kind order. A dictionary that cannot be opened is
// itself a finding (tab -1, first), and the other kinds are still checked.
std::vector<Finding> CheckDocument(const Document& doc, const CheckOptions& options = {});

// The parts, for callers that want one kind.
void CheckSpelling(const Document& doc, const SpellChecker& speller, std::vector<Finding>& out);
// Overflow and contrast: both need the text's layout.
void CheckTexts(const Document& doc, PictureCache* cache, std::vector<Finding>& out);
void CheckPictures(const Document& doc, PictureCache* cache, std::vector<Finding>& out);
void CheckEmptyPages(const Document& doc, std::vector<Finding>& out);

// A file the résumé draws or plays that cannot be read, as the missing kind finds it.
struct UnreadableMedium {
    MediaField field;
    QString path; // resolved against the project's folder
};
// Those files in the order the document lists its media fields.
std::vector<UnreadableMedium> UnreadableMedia(const Document& doc, PictureCache* cache = nullptr);

} // namespace zentor
