#pragma once

#include "model/Document.h"

#include <QString>

namespace zentor {

// What a load managed to read. Loading never reports an error to the user; the CLI uses
// this to say how far a damaged file went.
struct LoadReport {
    bool opened = false;
    qint64 fileSize = 0;
    int tabsRead = 0;      // tab records read, the last one possibly cut short
    int textsRead = 0;     // text records read, likewise
    int imagesRead = 0;    // image records read, likewise
    bool complete = false; // every record the file's counts promise was there in full
};

// Writes the document: header (with the counts recomputed and stored), profile, tabs 1..8,
// then the texts and images in use in slot order. The target is replaced only when the
// whole file was written; on failure the old file, ScriptPath and Dirty stay as they were.
bool SaveScript(Document& doc, const QString& path);

// The bytes SaveScript would write (the counts are recomputed into doc.Header).
QByteArray SerializeScript(Document& doc);

// Reads a project over the current document without resetting it first: slots past the
// file's counts keep what they held. Tabs(8).Name is forced to "Slide Show". Short files
// read as far as they go (a partly present record gets zeros for its missing bytes);
// counts past the tables are cut to the tables. Sets ScriptPath; leaves Dirty alone.
LoadReport LoadScript(Document& doc, const QString& path);

// The same from bytes already in memory (ScriptPath is not touched).
LoadReport LoadScriptBytes(Document& doc, QByteArrayView bytes);

} // namespace zentor
