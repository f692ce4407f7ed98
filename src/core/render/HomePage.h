#pragma once

#include "render/IconRing.h"
#include "show/HomeLayout.h"

#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>

#include <array>

class QPainter;

namespace zentor {

class ResImages;

// The pictures of a home page, each already chosen by the caller (from the project's files
// in the editor, from the package's blobs in the player). A null picture leaves its place
// undrawn, as a missing file does.
struct HomePictures {
    QImage background;           // stretched over the whole frame
    std::array<QImage, 9> icons; // 1..8: the ring's icons; 0 unused
    QImage userIcon;             // the 128 x 128 centre picture
};

// The caption under the centre: the hovered tab's name (1..8, trimmed), else the person's
// name.
QString HomeCaption(const std::array<QString, 9>& tabNames, const QString& personName,
                    int hoverIcon);

// Where the caption stands and how it is written: the home page paints it there, and the
// web page lays the same words over it.
QRect HomeCaptionBox(QSize frame);
inline constexpr char HomeCaptionFont[] = "Arial";
inline constexpr int HomeCaptionPoints = 12;

// Paints the profile page on a frame-sized surface: background, the ring of tab icons,
// the caption (white with a shadow), the border and the user icon. Returns the ring's
// rectangles. The editor's profile page and the player's home page are this one function.
IconRectTable PaintHomePage(QPainter& p, QSize frame, const HomePictures& pictures,
                            const QString& caption, const ResImages& res);

// Paints the contact lines where `layout` puts them: each centred on its line like the
// caption, links underlined, cut with an ellipsis where it does not fit.
void PaintHomeContacts(QPainter& p, const show::HomeLayout& layout);

} // namespace zentor
