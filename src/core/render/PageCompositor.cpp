#include "render/PageCompositor.h"

#include "io/FileUtil.h"
#include "model/DefaultDocument.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "render/ImageSave.h"
#include "render/PageContent.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/TabPictureLayout.h"

#include <QPainter>

namespace zentor {

QSize FrameSize(const Document& doc) {
    const int w = doc.Header.FrameWidth, h = doc.Header.FrameHeight;
    if (w < 1 || h < 1 || w > MaxFrameSide || h > MaxFrameSide)
        return QSize();
    return QSize(w, h);
}

QRect BadgeRect(QSize frame) {
    const int bw = RoundHalfEven(frame.width() * 0.3);
    const int bh = RoundHalfEven(bw * 0.715);
    return QRect(frame.width() - bw - 30, frame.height() - bh - 10, bw, bh);
}

static int ContentTabOf(int page) {
    return page == SlideShowTab ? 1 : page;
}

QImage RenderPageImage(const Document& doc, int page, const ResImages& res, PictureCache* cache) {
    const QSize frame = FrameSize(doc);
    if (page < 1 || page > SlideShowTab || frame.isEmpty())
        return QImage();
    QImage canvas(frame, QImage::Format_ARGB32_Premultiplied);
    if (canvas.isNull())
        return QImage();
    canvas.fill(0xFFFFFFFFu);
    QPainter p(&canvas);
    const int tab = ContentTabOf(page);

    const ImageElement& pic = doc.Tabs[size_t(tab)].Picture;
    DrawPictureFile(p, ResolvePath(doc.ScriptPath, pic.FileName.trimmed()),
                    QRect(pic.Left, pic.Top, pic.Width, pic.Height), cache);
    DrawPageObjects(p, doc, tab, cache);

    if (page == SlideShowTab)
        DrawStretched(p, res.image(ResHired), BadgeRect(frame));
    p.end();
    return canvas;
}

QByteArray RenderPageJpeg(const Document& doc, int page, const ResImages& res,
                          PictureCache* cache) {
    const QImage img = RenderPageImage(doc, page, res, cache);
    return img.isNull() ? QByteArray() : EncodeJpeg(img, 95);
}

void ApplyPageWriteBack(Document& doc, int page) {
    if (page < 1 || page > SlideShowTab)
        return;
    auto& name = doc.Tabs[size_t(ContentTabOf(page))].Picture.FileName;
    name = name.trimmed();
}

bool RenderPage(Document& doc, int page, const ResImages& res, const ProcessContext& ctx,
                PictureCache* cache) {
    const QImage img = RenderPageImage(doc, page, res, cache);
    ApplyPageWriteBack(doc, page);
    if (img.isNull())
        return false;
    ctx.ensureWorkFolder();
    return SaveImageAs(img, ctx.TempImagePath, 95);
}

} // namespace zentor
