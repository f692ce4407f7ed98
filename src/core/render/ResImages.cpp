#include "render/ResImages.h"

#include <QImageReader>

namespace zentor {

ResImages ResImages::load() {
    ResImages res;
    for (int slot = 1; slot <= ResHired; ++slot) {
        QImageReader reader(QStringLiteral(":/pictures/%1.png").arg(ResImageName(slot)));
        QImage img = reader.read();
        if (!img.isNull())
            res.images_[size_t(slot)] = img.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return res;
}

QImage ResImages::image(int slot) const {
    if (slot < 0 || slot >= ResImageCount)
        return QImage();
    return images_[size_t(slot)];
}

QSize ResImages::size(int slot) const {
    const QImage img = image(slot);
    return img.isNull() ? QSize(0, 0) : img.size();
}

void ResImages::setImage(int slot, const QImage& image) {
    if (slot < 1 || slot > ResHired) // 0 and 12 stay empty
        return;
    images_[size_t(slot)] =
        image.isNull() ? QImage() : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace zentor
