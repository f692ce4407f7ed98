#pragma once

#include <QJsonObject>

#include <vector>

namespace zentor {

struct Document;

// The numbers the web page plays, decided here so that the page's script only carries them
// out: the frame, the slide show's page order (`order`: the package entries the show runs
// through, as ShowPictures decides them), how long each page is held and how long a fade takes,
// whether the show runs by itself, the music's volume (0..1) and repeat, and the ring's rectangles
// (0 the centre picture, 1..8 the icons of tabs 1..8) with the names the icons stand for.
QJsonObject WebShowNumbers(const Document& doc, const std::vector<int>& order);

} // namespace zentor
