#include "render/PictureLoader.h"

#include "io/FileUtil.h"

#include <QBuffer>
#include <QImageReader>

namespace zentor {
namespace {

// Enough for MaxPicturePixels at 4 bytes a pixel, with room for the decoder's own work.
constexpr int AllocationLimitMB = 320;

bool SaneSize(QSize s) {
    return s.width() > 0 && s.height() > 0 &&
           qint64(s.width()) * qint64(s.height()) <= MaxPicturePixels;
}

void Prepare(QImageReader& reader) {
    reader.setAllocationLimit(AllocationLimitMB);
    reader.setAutoTransform(false); // drawn as stored, the same on every surface
    reader.setQuality(100);         // smooth scaling inside the decoder
}

// Icon files hold several pictures: take the largest, which scales down best.
void PickLargestIcon(QImageReader& reader) {
    const int count = reader.imageCount();
    if (count <= 1)
        return;
    int best = 0;
    qint64 bestArea = -1;
    for (int i = 0; i < count; ++i) {
        if (!reader.jumpToImage(i))
            break;
        const QSize s = reader.size();
        const qint64 area = qint64(s.width()) * s.height();
        if (SaneSize(s) && area > bestArea) {
            bestArea = area;
            best = i;
        }
    }
    reader.jumpToImage(best);
}

// The size a JPEG is decoded at on the way to `wanted`: its own, halved while that divides
// evenly and stays no smaller. libjpeg-turbo halves with fast vector code, but other fractions
// with plain code slower than decoding whole; the rest is left to the smooth scaler.
QSize JpegDecodeSize(QSize natural, QSize wanted) {
    QSize size = natural;
    for (int i = 0; i < 3; ++i) {
        const QSize half = size / 2;
        if (size.width() % 2 || size.height() % 2 || half.width() < wanted.width() ||
            half.height() < wanted.height())
            break;
        size = half;
    }
    return size;
}

// Decodes what the reader holds as LoadPicture describes.
QImage Decode(QImageReader& reader, QSize drawSize) {
    Prepare(reader);
    if (!reader.canRead())
        return QImage();
    if (reader.format() == "ico")
        PickLargestIcon(reader);
    const QSize natural = reader.size();
    if (natural.isValid() && !SaneSize(natural))
        return QImage();
    QSize decode;
    if (natural.isValid() && drawSize.width() > 0 && drawSize.height() > 0) {
        decode = drawSize.boundedTo(natural); // as ReduceToDraw will reduce it
        if (decode != natural)
            reader.setScaledSize(reader.format() == "jpeg" ? JpegDecodeSize(natural, decode)
                                                           : decode);
    }
    const QImage img = reader.read();
    if (img.isNull() || !SaneSize(img.size()))
        return QImage();
    return ReduceToDraw(img, decode);
}

} // namespace

QSize ReadPictureSize(const QString& path) {
    if (!IsRegularFile(path))
        return QSize(0, 0);
    QImageReader reader(path);
    Prepare(reader);
    if (reader.format() == "ico")
        PickLargestIcon(reader);
    QSize s = reader.size();
    if (!s.isValid()) {
        // Some formats only know their size after decoding.
        const QImage img = reader.read();
        s = img.size();
    }
    return SaneSize(s) ? s : QSize(0, 0);
}

QImage LoadPicture(const QString& path, QSize drawSize) {
    if (!IsRegularFile(path))
        return QImage();
    QImageReader reader(path);
    return Decode(reader, drawSize);
}

QImage ReduceToDraw(const QImage& picture, QSize drawSize) {
    QImage img = picture;
    // Never below the drawn size in either direction, never above the picture itself;
    // what the decoder could not reduce is reduced here, averaging, not sampling.
    if (drawSize.width() > 0 && drawSize.height() > 0) {
        const QSize reduced = drawSize.boundedTo(img.size());
        if (img.size() != reduced)
            img = img.scaled(reduced, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    if (img.format() != QImage::Format_ARGB32_Premultiplied && img.hasAlphaChannel())
        img.convertTo(QImage::Format_ARGB32_Premultiplied);
    else if (!img.hasAlphaChannel() && img.format() != QImage::Format_RGB32)
        img.convertTo(QImage::Format_RGB32);
    return img;
}

QImage LoadPictureData(const QByteArray& bytes, QSize drawSize) {
    if (bytes.isEmpty())
        return QImage();
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return Decode(reader, drawSize);
}

} // namespace zentor
