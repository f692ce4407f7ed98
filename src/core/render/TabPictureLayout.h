#pragma once

#include <QRect>
#include <QSize>
#include <QString>

#include <optional>

namespace zentor {

struct Document;
class PictureCache;

// How a tab picture is fitted into the frame (the tab's PicAlign).
enum TabPicAlign {
    PicAlignFitness = 0,       // stretched over the whole frame
    PicAlignFitnessCenter = 1, // scaled to fit with its aspect kept, centred
    PicAlignCenter = 2,        // own size centred when it fits, else as 1
    PicAlignOriginal = 3,      // own size at the top-left corner
};

// Rounds to the nearest integer, halves to even (2.5 -> 2, 3.5 -> 4).
int RoundHalfEven(double v);

// The rectangle of a picture of `picture` size laid out by `mode` in a frame of `frame`
// size; no value for modes outside 0..3. A picture whose size is unknown (0 x 0) gets an
// empty rectangle at the frame's centre in modes 1 and 2.
std::optional<QRect> TabPictureRect(int mode, QSize picture, QSize frame);

// Chooses a tab's picture: reads the picture's size (path resolved against the project's
// folder), stores the path (trimmed), the mode and the laid-out rectangle into the tab's
// picture record and sets its Reserved to -1. A mode outside 0..3 keeps the old rectangle.
// A cache, when given, saves reading the picture's header again on every repaint.
void LayoutTabPicture(Document& doc, int mode, int tab, const QString& path,
                      PictureCache* cache = nullptr);

} // namespace zentor
