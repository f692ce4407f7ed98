#pragma once

#include <QString>

class QPainter;

namespace zentor {

struct Document;
struct ProcessContext;
class PictureCache;
class ResImages;

// The first page of the PDF, frame-sized: the background picture over the frame, the user
// icon in its border, the person's name, then phone, e-mail (a mailto: link), web site (a
// link), and address with post code, each line only when filled.
void PaintCover(QPainter& p, const Document& doc, const ResImages& res, const ProcessContext& ctx,
                PictureCache* cache);

} // namespace zentor
