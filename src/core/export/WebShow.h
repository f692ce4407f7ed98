#pragma once

#include <QJsonObject>

namespace zentor {

struct Document;

// The numbers the web page plays, decided here so that the page's script only carries them
// out: the frame, the slide show's page order (the strip's: Personal ... Overview, then the
// slide-show page), how long each page is held and how long a fade takes, whether the show
// runs by itself, the music's volume (0..1) and repeat, and the ring's rectangles (0 the
// centre picture, 1..8 the icons of tabs 1..8) with the names the icons stand for.
QJsonObject WebShowNumbers(const Document& doc);

} // namespace zentor
