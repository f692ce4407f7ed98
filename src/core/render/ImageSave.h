#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace zentor {

class PictureCache;

// Saves by the ending of the path, tested exactly on its last four characters lower-cased
// after trimming blanks: ".jpg" writes a JPEG of `quality` (0..100), ".png" a PNG; any
// other ending (".jpeg", ".bmp", none) writes nothing and leaves an existing file alone.
// Returns whether the file was written.
bool SaveImageAs(const QImage& image, const QString& path, int quality);

// The ending test of SaveImageAs: "jpg", "png" or empty.
QString SaveFormatFor(const QString& path);

// The image as JPEG bytes of the given quality (empty on failure).
QByteArray EncodeJpeg(const QImage& image, int quality);

// The picture at `sourcePath` (blanks trimmed) stretched, aspect not kept, smoothly, to
// width x height, and flattened as a JPEG flattens it: a missing or unreadable source gives
// a picture of that size all black. Null when no picture of that size can be made. The
// source is decoded through `cache` when given.
QImage ResampledPicture(const QString& sourcePath, int width, int height,
                        PictureCache* cache = nullptr);

} // namespace zentor
