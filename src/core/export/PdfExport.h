#pragma once

#include <QByteArray>
#include <QString>

#include "model/Progress.h"

namespace zentor {

struct Document;
struct ProcessContext;
class PictureCache;
class ResImages;

// The résumé as a PDF a recruiter can open and a tracking system can read: page 1 a cover
// made from the profile, pages 2..8 the seven content pages in the strip's order (Personal
// first, Overview last), every page at the frame's size (96 pixels to the inch) and painted
// by the page painter, so texts are real text in embedded fonts and pictures are held
// once each at the size they are drawn. Title and author name the person; the creator is
// Vitara Zentor. Empty when the frame cannot be drawn or `progress` cancelled (page n of 8).
// Pictures are decoded into `pictures` when given.
QByteArray RenderPdf(const Document& doc, const ResImages& res, const ProcessContext& ctx,
                     const Progress& progress = {}, PictureCache* pictures = nullptr);

} // namespace zentor
