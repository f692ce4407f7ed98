#include "render/ImageSave.h"

#include "io/FileUtil.h"
#include "render/PictureCache.h"
#include "render/PictureLoader.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>

namespace zentor {
namespace {

bool Encode(const QImage& image, QIODevice* device, const QByteArray& format, int quality) {
    QImageWriter writer(device, format);
    if (format == "jpeg") {
        writer.setQuality(quality);
        writer.setOptimizedWrite(true);
    }
    // JPEG has no alpha: flatten what is transparent to black, as an unpainted canvas is.
    const QImage flat = image.hasAlphaChannel() && format == "jpeg"
                            ? image.convertToFormat(QImage::Format_RGB32)
                            : image;
    return writer.write(flat);
}

} // namespace

QString SaveFormatFor(const QString& path) {
    const QString ending = path.trimmed().right(4).toLower();
    if (ending == QLatin1String(".jpg"))
        return QStringLiteral("jpg");
    if (ending == QLatin1String(".png"))
        return QStringLiteral("png");
    return QString();
}

bool SaveImageAs(const QImage& image, const QString& path, int quality) {
    const QString format = SaveFormatFor(path);
    if (format.isEmpty() || image.isNull())
        return false;
    // Written beside the target and moved over it only when complete.
    QSaveFile file(path.trimmed());
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (!Encode(image, &file, format == QLatin1String("jpg") ? "jpeg" : "png", quality)) {
        file.cancelWriting();
        return false;
    }
    return CommitWhole(file);
}

QByteArray EncodeJpeg(const QImage& image, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (image.isNull() || !Encode(image, &buffer, "jpeg", quality))
        return QByteArray();
    return bytes;
}

QImage ResampledPicture(const QString& sourcePath, int width, int height, PictureCache* cache) {
    if (width <= 0 || height <= 0 || qint64(width) * height > MaxPicturePixels)
        return QImage();
    QImage canvas(width, height, QImage::Format_ARGB32_Premultiplied);
    if (canvas.isNull())
        return QImage();
    canvas.fill(Qt::transparent);
    {
        QPainter p(&canvas);
        DrawPictureFile(p, sourcePath.trimmed(), canvas.rect(), cache);
    }
    canvas.convertTo(QImage::Format_RGB32); // in place: the canvas is not needed again
    return canvas;
}

} // namespace zentor
