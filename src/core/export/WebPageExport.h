#pragma once

#include <QByteArray>
#include <QString>

#include "model/Progress.h"

namespace zentor {

struct Document;
struct ProcessContext;
class PictureCache;
class ResImages;

// The résumé as one self-contained web page that plays like the player: the home page with
// the ring of tabs and the contacts, every page, the slide show and the music, all inside
// the file as data. Each page is its picture as the package has it, with the words of every
// text box laid over it as real (transparent) text in the same box, and every picture
// object named for screen readers. Empty when the frame cannot be drawn or `progress`
// cancelled (page n of 9, the home page last). Pictures are decoded into `decoded` when
// given.
QByteArray RenderWebPage(const Document& doc, const ResImages& res, const ProcessContext& ctx,
                         const Progress& progress = {}, PictureCache* decoded = nullptr);

} // namespace zentor
