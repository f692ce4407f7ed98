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

QImage WhiteFrameCanvas(const Document& doc) {
    const QSize frame = FrameSize(doc);
    if (frame.isEmpty())
        return QImage();
    QImage canvas(frame, QImage::Format_ARGB32_Premultiplied);
    if (!canvas.isNull())
        canvas.fill(0xFFFFFFFFu);
    return canvas;
}

int ContentTabOf(int page) {
    return page == SlideShowTab ? 1 : page;
}

void PaintPage(QPainter& p, const Document& doc, int page, const ResImages& res,
               PictureCache* cache, bool withTexts) {
    const QSize frame = FrameSize(doc);
    if (page < 1 || page > SlideShowTab || frame.isEmpty())
        return;
    p.fillRect(QRect(QPoint(0, 0), frame), QColor(0xFFFFFFFFu));
    const int tab = ContentTabOf(page);
    const ImageElement& pic = doc.Tabs[size_t(tab)].Picture;
    DrawPictureFile(p, ResolvePath(doc.ScriptPath, pic.FileName.trimmed()),
                    BoxRect(pic.Left, pic.Top, pic.Width, pic.Height), cache);
    DrawPageObjects(p, doc, tab, cache, withTexts);
    if (page == SlideShowTab)
        DrawStretched(p, res.image(ResHired), BadgeRect(frame));
}

QImage RenderPageImage(const Document& doc, int page, const ResImages& res, PictureCache* cache,
                       bool withTexts) {
    if (page < 1 || page > SlideShowTab)
        return QImage();
    QImage canvas = WhiteFrameCanvas(doc);
    if (canvas.isNull())
        return QImage();
    QPainter p(&canvas);
    PaintPage(p, doc, page, res, cache, withTexts);
    p.end();
    return canvas;
}

QByteArray RenderPageJpeg(const Document& doc, int page, const ResImages& res, PictureCache* cache,
                          QImage* image) {
    const QImage img = RenderPageImage(doc, page, res, cache);
    if (image)
        *image = img;
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
