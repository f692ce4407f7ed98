#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace zentor {

// Pictures larger than this many pixels are treated as unreadable, so a hostile file
// cannot make us allocate gigabytes.
inline constexpr qint64 MaxPicturePixels = 64LL * 1024 * 1024;

// The size a picture file says it has, without decoding it. Empty (0, 0) for anything that
// is not a readable picture in a regular file, or that is larger than MaxPicturePixels.
QSize ReadPictureSize(const QString& path);

// Decodes a picture file (JPEG, BMP, ICO, PNG and whatever else Qt reads). Only regular
// files are read. With a valid `drawSize` the picture is decoded no larger than it will be
// drawn in each direction where the format can (JPEG decodes scaled), and never smaller,
// so stretching it to drawSize loses nothing. Returns a null image when unreadable.
QImage LoadPicture(const QString& path, QSize drawSize = QSize());

// The same for a picture held in memory (a package's blob).
QImage LoadPictureData(const QByteArray& bytes, QSize drawSize = QSize());

// A picture already decoded, reduced as the loaders reduce what they decode for drawSize.
QImage ReduceToDraw(const QImage& picture, QSize drawSize);

} // namespace zentor
