#include "render/HomePage.h"

#include "model/DefaultDocument.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/TextDraw.h"
#include "show/Ring.h"

#include <QPainter>

namespace zentor {
namespace {

QRect Centred(QSize frame, int side) {
    return QRect(show::RoundHalfEven((frame.width() - side) / 2.0),
                 show::RoundHalfEven((frame.height() - side) / 2.0), side, side);
}

} // namespace

QString HomeCaption(const std::array<QString, 9>& tabNames, const QString& personName,
                    int hoverIcon) {
    if (hoverIcon >= 1 && hoverIcon <= 8)
        return tabNames[size_t(hoverIcon)].trimmed();
    return personName;
}

QRect HomeCaptionBox(QSize frame) {
    return QRect(0, show::RoundHalfEven(frame.height() / 2.0) + 80, frame.width(), 24);
}

IconRectTable PaintHomePage(QPainter& p, QSize frame, const HomePictures& pictures,
                            const QString& caption, const ResImages& res) {
    DrawStretched(p, pictures.background, QRect(QPoint(0, 0), frame));
    const IconRectTable rects = GetCircle(p, frame, pictures.icons);
    const QRect box = HomeCaptionBox(frame);
    DrawFontText(p, caption, box.left(), box.top(), box.width(), box.height(),
                 QLatin1String(HomeCaptionFont), HomeCaptionPoints, 0, 1, 0, 0xFFFFFFFFu, -1, 4, 1);
    DrawStretched(p, res.image(ResBorder), Centred(frame, 144));
    DrawStretched(p, pictures.userIcon, Centred(frame, 128));
    return rects;
}

} // namespace zentor
