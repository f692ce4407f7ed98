#pragma once

#include "render/IconRing.h"

#include <QImage>

namespace zentor {

struct Document;
struct ProcessContext;
class PictureCache;
class ResImages;

// The workspace picture of tab 0..8 as the editor shows it, frame-sized, on white:
// - tabs 1..7: the tab picture laid out by its alignment mode, the page's pictures, then
//   its texts (no badge);
// - tab 8: the background picture over the whole frame (the default one when empty);
// - tab 0: the background, the ring of tab icons, the caption (the hovered tab's name,
//   else first and last name), the border and the user icon or the logo.
// Drawing writes back what the editor always did: trimmed paths and names, and each drawn
// image object's PicAlign 4 and Reserved 0; the tab picture's rectangle is laid out anew.
// `hoverIcon` is the ring icon under the pointer (1..8, 0 none). The ring's rectangles go
// to `iconRects` when given (tab 0 only). A null image when the frame is not sane.
QImage PaintWorkspace(Document& doc, int tab, int hoverIcon, const ResImages& res,
                      const ProcessContext& ctx, PictureCache* cache = nullptr,
                      IconRectTable* iconRects = nullptr);

// The 128 x 128 previews of the property panel on white: a tab's icon (its built-in
// picture when it has none) and the user icon (the logo when there is none).
QImage TabIconPreview(const Document& doc, int tab, const ResImages& res,
                      PictureCache* cache = nullptr);
QImage UserIconPreview(const Document& doc, const ResImages& res, PictureCache* cache = nullptr);

} // namespace zentor
