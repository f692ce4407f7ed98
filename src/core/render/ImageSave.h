#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace zentor {

class PictureCache;
struct ProcessContext;

// Saves by the ending of the path, tested exactly on its last four characters lower-cased
// after trimming blanks: ".jpg" writes a JPEG of `quality` (0..100), ".png" a PNG; any
// other ending (".jpeg", ".bmp", none) writes nothing and leaves an existing file alone.
// Returns whether the file was written.
bool SaveImageAs(const QImage& image, const QString& path, int quality);

// The ending test of SaveImageAs: "jpg", "png" or empty.
QString SaveFormatFor(const QString& path);

// The image as JPEG bytes of the given quality (empty on failure).
QByteArray EncodeJpeg(const QImage& image, int quality);

// Stretches the picture at `sourcePath` (aspect not kept, smooth) to width x height and
// writes it as a JPEG of quality 95 to the temporary picture. A missing or unreadable
// source still writes a picture of that size, all black. Returns whether it was written.
// The source is decoded through `cache` when given.
bool ResizeToTemp(const QString& sourcePath, int width, int height, const ProcessContext& ctx,
                  PictureCache* cache = nullptr);

} // namespace zentor
