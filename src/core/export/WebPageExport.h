#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include "model/Progress.h"

namespace zentor {

struct Document;
struct ProcessContext;
class ResImages;

// The résumé as one self-contained web page that plays like the player: the home page with
// the ring of tabs and the contacts, every page, the slide show and the music, all inside
// the file as data. Each page is its picture as the package has it, with the words of every
// text box laid over it as real (transparent) text in the same box, and every picture
// object named for screen readers. Empty when the frame cannot be drawn or `progress`
// cancelled (page n of 9, the home page last).
QByteArray RenderWebPage(const Document& doc, const ResImages& res, const ProcessContext& ctx,
                         const Progress& progress = {});

// Appends `bytes` in base64 to `out`: into the room already reserved there, when it was,
// with no buffer of its own to copy from.
void AppendBase64(QByteArray& out, QByteArrayView bytes);

} // namespace zentor
