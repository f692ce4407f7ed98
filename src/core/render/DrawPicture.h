#pragma once

#include <QRect>
#include <QSize>
#include <QString>

class QPainter;

namespace zentor {

struct Document;
class PictureCache;

// The surfaces DrawPicture may paint on; any may be missing, and then that mode draws
// nothing (its record changes still happen).
struct PictureSurfaces {
    QPainter* workspace = nullptr;
    QSize workspaceSize;          // the frame, for the background mode
    QPainter* tabIcon = nullptr;  // the 128 x 128 tab icon preview
    QPainter* userIcon = nullptr; // the 128 x 128 user icon preview
};

// DrawPicture modes.
enum PictureMode {
    PictureTabAlignLast = 3, // 0..3: the tab picture, laid out by its alignment mode
    PictureImageObject = 4,  // an image object at its own box
    PictureTabIcon = 5,      // the tab icon preview, (0, 0, 128, 128)
    PictureBackground = 6,   // the whole workspace
    PictureInRect = 7,       // the given rectangle of the workspace
    PictureUserIcon = 8,     // the user icon preview, (0, 0, 128, 128)
};

// Loads the picture at `path` (blanks trimmed, resolved against the project's folder) and
// draws it stretched by `mode`. Modes 0..3 lay out tab `tab`'s picture first (path, mode,
// rectangle, Reserved -1); mode 4 sets image `slot`'s Reserved 0, FileName the trimmed
// path, TabNo `tab` and PicAlign 4. Modes 9 and above draw nothing. A missing or unreadable
// file draws nothing; the record changes happen all the same.
void DrawPicture(const PictureSurfaces& s, Document& doc, const QString& path, int mode, int tab,
                 int slot, const QRect& rect, PictureCache* cache);

} // namespace zentor
