#pragma once

#include "show/ShowFrame.h"

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QSize>

class QPainter;

namespace zentor {

struct Document;
struct ProcessContext;
class PictureCache;
class ResImages;

// Frames larger than this on a side are refused (a damaged header must not allocate
// gigabytes); so is anything below 1.
inline constexpr int MaxFrameSide = show::MaxFrameSide;

// The frame of the document, or an empty size when it is not a sane one.
QSize FrameSize(const Document& doc);

// A frame-sized 32-bit canvas cleared to opaque white, as every page starts; a null image
// when the frame is not a sane one.
QImage WhiteFrameCanvas(const Document& doc);

// Where the slide-show badge goes in a frame: 0.3 of its width, 0.715 as high, 30 pixels
// from the right and 10 from the bottom (240 x 172 at (530, 418) in 800 x 600).
QRect BadgeRect(QSize frame);

// The content tab page 1..8 shows: its own, but the slide show's page shows tab 1's.
int ContentTabOf(int page);

// Renders page 1..8 as the generated résumé has it: a frame-sized canvas cleared to white,
// the tab picture at its stored rectangle, the page's pictures in slot order, then its
// texts in slot order; page 8 shows page 1's content plus the "HIRED" badge. The document
// is only read, so two threads may render different pages at once (give each its own
// cache or share one: the cache locks). A null image for a page outside 1..8 or a frame
// that is not sane.
QImage RenderPageImage(const Document& doc, int page, const ResImages& res,
                       PictureCache* cache = nullptr, bool withTexts = true);

// Paints the same page on any surface whose coordinates are frame pixels (the page image,
// a PDF page): white, then the page as above. Nothing for a page outside 1..8. Without
// `withTexts` the page as it lies under its texts.
void PaintPage(QPainter& p, const Document& doc, int page, const ResImages& res,
               PictureCache* cache = nullptr, bool withTexts = true);

// The same page as JPEG bytes of quality 95 (empty on failure); the picture they were made
// from in `image` when asked.
QByteArray RenderPageJpeg(const Document& doc, int page, const ResImages& res,
                          PictureCache* cache = nullptr, QImage* image = nullptr);

// What rendering a page writes back into the document: the trimmed path of the tab
// picture of the page shown (page 8 shows tab 1). Run on one thread, after rendering.
void ApplyPageWriteBack(Document& doc, int page);

// Renders the page, writes it to the temporary picture as JPEG 95 and applies the
// write-back. Returns whether the file was written.
bool RenderPage(Document& doc, int page, const ResImages& res, const ProcessContext& ctx,
                PictureCache* cache = nullptr);

} // namespace zentor
