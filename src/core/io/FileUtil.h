#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

class QSaveFile;

namespace zentor {

// True only for an existing regular file (not a folder, FIFO or device).
bool IsRegularFile(const QString& path);

// Reads a whole regular file into `buffer` (resized to its length) and returns the length.
// On failure returns 0 and leaves `buffer` as it was. A trimmed empty path means
// `emptyMeans` (the temporary picture, for the generator).
qint64 ReadFileBytes(const QString& path, QByteArray& buffer,
                     const QString& emptyMeans = QString());

// Ends a file written beside its target: what is still buffered is written and checked
// first, then the file takes the target's place. Closing alone would not tell a disk that
// filled up on the last bytes, and a cut file would stand where the whole one stood.
bool CommitWhole(QSaveFile& file);
// Writes `bytes` to `path` that way: the old file stays until the new one is whole. On
// failure, what went wrong goes to `error` when given.
bool WriteFileAtomically(const QString& path, const QByteArray& bytes, QString* error = nullptr);

// Blanks trimmed at both ends, then cut before the first NUL.
QString TrimNull(const QString& s);

// Upper-case hexadecimal, zero-padded on the left to `digits` and cut to the last `digits`.
QString HexColor(uint32_t value, int digits);

// A path from a document: blanks trimmed, cut at NUL, and a relative path taken from the
// folder of the project file (absolute paths and documents without a file stay as they are).
QString ResolvePath(const QString& scriptPath, const QString& raw);

} // namespace zentor
