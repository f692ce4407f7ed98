#include "render/HomePage.h"

#include "model/CodePage.h"
#include "model/DefaultDocument.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/TextDraw.h"
#include "render/TextLayout.h"
#include "show/Ring.h"

#include <QPainter>

namespace zentor {
namespace {

QRect Centred(QSize frame, int side) {
    return QRect(show::RoundHalfEven((frame.width() - side) / 2.0),
                 show::RoundHalfEven((frame.height() - side) / 2.0), side, side);
}

constexpr int UnderlineStyle = 4;

// The text, or as much of it as fits one line of `width` followed by an ellipsis, as the
// layout breaks lines.
QString OneLine(const QString& text, double width, const QString& font, int points, int style) {
    const auto fits = [&](const QString& s) {
        return LayoutTextBox(s, 0, 0, width, 0, font, points, style, 1, 0).linesTotal <= 1;
    };
    if (fits(text))
        return text;
    const QString ellipsis(QChar(0x2026));
    qsizetype kept = 0; // fits with the ellipsis
    qsizetype over = text.size();
    while (over - kept > 1) {
        const qsizetype mid = (kept + over) / 2;
        (fits(text.left(mid) + ellipsis) ? kept : over) = mid;
    }
    QString cut = text.left(kept);
    while (cut.endsWith(QLatin1Char(' ')))
        cut.chop(1);
    return cut + ellipsis;
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

void PaintHomeContacts(QPainter& p, const show::HomeLayout& layout) {
    const QString font = QLatin1String(HomeCaptionFont);
    for (const show::HomeLine& line : layout.Lines) {
        const int style = line.Link.empty() ? 0 : UnderlineStyle; // links look like links
        const show::IconRect& r = line.Rect;
        const QString text = OneLine(CodePage::active().decode(QByteArrayView(
                                         line.Text.data(), qsizetype(line.Text.size()))),
                                     r.Right - r.Left, font, layout.FontPoints, style);
        DrawFontText(p, text, r.Left, r.Top, r.Right - r.Left, r.Bottom - r.Top, font,
                     layout.FontPoints, style, 1, 1, 0xFFFFFFFFu, 1, int(TextHint::AntiAlias), 1);
    }
}

} // namespace zentor
