#include "generate/RenderedPictures.h"

#include "render/ImageSave.h"
#include "render/PageCompositor.h"

namespace zentor {

RenderedPictures::RenderedPictures(const ResImages& res, PictureCache* pictures)
    : res_(res), cache_(pictures ? *pictures : own_) {}

std::optional<QByteArray> RenderedPictures::resample(int entry, const QString& path, int width,
                                                     int height) {
    const QImage picture = ResampledPicture(path, width, height, &cache_);
    if (picture.isNull())
        return std::nullopt;
    if (resampledTaken_) {
        resampledTaken_(entry, picture);
        return QByteArray();
    }
    QByteArray jpeg = EncodeJpeg(picture, 95);
    return jpeg.isEmpty() ? std::nullopt : std::optional<QByteArray>(std::move(jpeg));
}

std::optional<QByteArray> RenderedPictures::renderPage(const Document& doc, int page) {
    QImage picture;
    QByteArray jpeg = RenderPageJpeg(doc, page, res_, &cache_, pageSeen_ ? &picture : nullptr);
    if (pageSeen_ && !picture.isNull())
        pageSeen_(page, picture);
    return jpeg.isEmpty() ? std::nullopt : std::optional<QByteArray>(std::move(jpeg));
}

void RenderedPictures::pageWritten(Document& doc, int page) {
    ApplyPageWriteBack(doc, page);
}

} // namespace zentor
