#include "generate/RenderedPictures.h"

#include "io/FileUtil.h"
#include "render/ImageSave.h"
#include "render/PageCompositor.h"

#include <QFile>

namespace zentor {

RenderedPictures::RenderedPictures(const ProcessContext& ctx, const ResImages& res,
                                   PictureCache* pictures)
    : ctx_(ctx), res_(res), cache_(pictures ? *pictures : own_) {}

std::optional<QByteArray> RenderedPictures::resample(const QString& path, int width, int height) {
    ProcessContext own = ctx_;
    own.TempImagePath = ctx_.WorkFolder + QStringLiteral("resample-%1.jpg").arg(serial_++);
    if (!ResizeToTemp(path, width, height, own, &cache_))
        return std::nullopt;
    QByteArray bytes;
    const bool read = ReadFileBytes(own.TempImagePath, bytes) > 0;
    QFile::remove(own.TempImagePath);
    return read ? std::optional<QByteArray>(bytes) : std::nullopt;
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
