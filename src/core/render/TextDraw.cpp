#include "render/TextDraw.h"

#include "model/Records.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QHash>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <mutex>

namespace zentor {
namespace {

// Point sizes beyond this are drawn at it: a damaged file must not ask for glyphs the
// size of a house.
constexpr int MaxPoints = 1000;

// Windows families and the stand-ins fontconfig maps them to on this system.
const QHash<QString, QStringList>& Aliases() {
    static const QHash<QString, QStringList> aliases = {
        {QStringLiteral("arial"), {QStringLiteral("Liberation Sans")}},
        {QStringLiteral("helvetica"), {QStringLiteral("Liberation Sans")}},
        {QStringLiteral("arial narrow"), {QStringLiteral("Liberation Sans Narrow")}},
        {QStringLiteral("times new roman"), {QStringLiteral("Liberation Serif")}},
        {QStringLiteral("times"), {QStringLiteral("Liberation Serif")}},
        {QStringLiteral("courier new"), {QStringLiteral("Liberation Mono")}},
        {QStringLiteral("courier"), {QStringLiteral("Liberation Mono")}},
    };
    return aliases;
}

bool LookUpFamily(const QString& family) {
    const QString wanted = family.trimmed();
    if (wanted.isEmpty())
        return false;
    const QStringList families = QFontDatabase::families();
    if (families.contains(wanted, Qt::CaseInsensitive))
        return true;
    const auto it = Aliases().constFind(wanted.toLower());
    if (it == Aliases().constEnd())
        return false;
    QFont font(wanted);
    const QString resolved = QFontInfo(font).family();
    return it->contains(resolved, Qt::CaseInsensitive);
}

QString RightTrimBlanks(const QString& s) {
    qsizetype end = s.size();
    while (end > 0 && s.at(end - 1) == QLatin1Char(' '))
        --end;
    return s.left(end);
}

} // namespace

uint32_t ShadowColorFor(uint32_t argb) {
    return argb == 0xFF000000u ? 0xFFFFFFFFu : 0xFF000000u;
}

bool FontFamilyAvailable(const QString& family) {
    static std::mutex mutex;
    static QHash<QString, bool> known;
    std::lock_guard lock(mutex);
    const auto it = known.constFind(family);
    if (it != known.constEnd())
        return *it;
    const bool ok = LookUpFamily(family);
    known.insert(family, ok);
    return ok;
}

QFont MakeTextFont(const QString& family, int points, int style, int hint) {
    QFont font(family.trimmed());
    font.setPixelSize(std::max(1, int(std::lround(std::min(points, MaxPoints) * 96.0 / 72.0))));
    font.setBold(style & 1);
    font.setItalic(style & 2);
    font.setUnderline(style & 4);
    font.setStrikeOut(style & 8);
    // Kerning would make the page differ from what the hint names suggest: keep it plain.
    font.setKerning(false);
    switch (TextHint(hint)) {
    case TextHint::SingleBitPerPixelGridFit:
        font.setStyleStrategy(QFont::NoAntialias);
        font.setHintingPreference(QFont::PreferFullHinting);
        break;
    case TextHint::SingleBitPerPixel:
        font.setStyleStrategy(QFont::NoAntialias);
        font.setHintingPreference(QFont::PreferNoHinting);
        break;
    case TextHint::AntiAliasGridFit:
        font.setStyleStrategy(QFont::PreferAntialias);
        font.setHintingPreference(QFont::PreferVerticalHinting);
        break;
    case TextHint::AntiAlias:
        font.setStyleStrategy(QFont::PreferAntialias);
        font.setHintingPreference(QFont::PreferNoHinting);
        break;
    case TextHint::ClearTypeGridFit:
        font.setStyleStrategy(QFont::PreferAntialias);
        font.setHintingPreference(QFont::PreferFullHinting);
        break;
    case TextHint::SystemDefault:
    default:
        break;
    }
    return font;
}

void DrawFontText(QPainter& g, const QString& text, double left, double top, double width,
                  double height, const QString& fontName, int size, int style, int align,
                  int lineAlign, uint32_t color, int shadow, int hint, int shadowOffset) {
    QString s = RightTrimBlanks(text);
    if (s.isEmpty() || size < 1 || !FontFamilyAvailable(fontName))
        return;
    s.replace(QLatin1String("\r\n"), QString(QChar::LineSeparator));
    s.replace(QLatin1Char('\r'), QChar::LineSeparator);
    s.replace(QLatin1Char('\n'), QChar::LineSeparator);

    // The box goes through single precision, as the drawing library takes it.
    const float x = float(left), y = float(top), w = float(width), h = float(height);
    const bool wrap = w > 0, clipY = h > 0;

    QTextLayout layout(s, MakeTextFont(fontName, size, style, hint));
    QTextOption option;
    option.setWrapMode(wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    double lineY = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        if (wrap)
            line.setLineWidth(w);
        const double room = wrap ? w : 0.0;
        const double used = line.naturalTextWidth();
        double dx = 0;
        if (align == 1)
            dx = (room - used) / 2;
        else if (align == 2)
            dx = room - used;
        line.setPosition(QPointF(dx, lineY));
        lineY += line.height();
        // Top-aligned lines wholly below the box would be clipped away: stop there.
        if (clipY && lineAlign == 0 && lineY > h + line.height())
            break;
    }
    layout.endLayout();

    double dy = 0;
    const double room = clipY ? h : 0.0;
    if (lineAlign == 1)
        dy = (room - lineY) / 2;
    else if (lineAlign == 2)
        dy = room - lineY;

    const bool noAA =
        hint == int(TextHint::SingleBitPerPixelGridFit) || hint == int(TextHint::SingleBitPerPixel);
    // Clipping costs time on every glyph; only needed when the text leaves its box.
    QRectF inked;
    for (int i = 0; i < layout.lineCount(); ++i)
        inked |= layout.lineAt(i).naturalTextRect();
    inked.translate(0, dy);
    const bool needClip = (wrap && (inked.left() < 0 || inked.right() > w)) ||
                          (clipY && (inked.top() < 0 || inked.bottom() > h));
    g.save();
    g.setRenderHint(QPainter::TextAntialiasing, !noAA);
    auto pass = [&](uint32_t argb, double ox, double oy) {
        g.setPen(QColor::fromRgba(argb));
        if (!needClip) {
            layout.draw(&g, QPointF(x + ox, y + oy + dy));
            return;
        }
        QRectF clip(x + ox, y + oy, wrap ? w : 2e7, clipY ? h : 2e7);
        if (!wrap)
            clip.moveLeft(-1e7);
        if (!clipY)
            clip.moveTop(-1e7);
        g.save();
        g.setClipRect(clip, Qt::IntersectClip);
        layout.draw(&g, QPointF(x + ox, y + oy + dy));
        g.restore();
    };
    if (shadow != 0) {
        const uint32_t shadowColor = ShadowColorFor(color);
        pass(shadowColor, shadowOffset, shadowOffset);
        // Once more unshifted: it thickens the glyph edges under the text.
        pass(shadowColor, 0, 0);
    }
    pass(color, 0, 0);
    g.restore();
}

void DrawTextElement(QPainter& g, const TextElement& t) {
    DrawFontText(g, t.Text.text(), t.Left, t.Top, t.Width, t.Height, t.FontName.trimNull(),
                 t.FontSize, t.FontStyle, t.Align, t.LineAlign, uint32_t(t.FontColor), t.FontShadow,
                 t.TextHint, 1);
}

} // namespace zentor
