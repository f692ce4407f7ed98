#include "render/TextDraw.h"

#include "model/Records.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGlyphRun>
#include <QHash>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <cstring>
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
        font.setHintingPreference(QFont::PreferFullHinting);
        break;
    case TextHint::AntiAlias:
        font.setStyleStrategy(QFont::PreferAntialias);
        font.setHintingPreference(QFont::PreferNoHinting);
        break;
    case TextHint::ClearTypeGridFit:
        // ClearType fits the grid vertically and keeps fractional positions across.
        font.setStyleStrategy(QFont::PreferAntialias);
        font.setHintingPreference(QFont::PreferVerticalHinting);
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
    DrawLinkedText(g, text, left, top, width, height, fontName, size, style, align, lineAlign,
                   color, shadow, hint, shadowOffset, QString());
}

void DrawLinkedText(QPainter& g, const QString& text, double left, double top, double width,
                    double height, const QString& fontName, int size, int style, int align,
                    int lineAlign, uint32_t color, int shadow, int hint, int shadowOffset,
                    const QString& href) {
    QString s = RightTrimBlanks(text);
    if (s.isEmpty() || size < 1 || !FontFamilyAvailable(fontName))
        return;
    s.replace(QLatin1String("\r\n"), QString(QChar::LineSeparator));
    s.replace(QLatin1Char('\r'), QChar::LineSeparator);
    s.replace(QLatin1Char('\n'), QChar::LineSeparator);

    // The box goes through single precision, as the drawing library takes it.
    const float x = float(left), y = float(top), w = float(width), h = float(height);
    const bool wrap = w > 0, clipY = h > 0;

    const QFont font = MakeTextFont(fontName, size, style, hint);
    // A sixth of an em of room at each end of a line, as pages laid out on Windows have:
    // the same text then breaks at the same words.
    const double pad = font.pixelSize() / 6.0;
    QTextLayout layout(s, font);
    QTextOption option;
    option.setWrapMode(wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    if (!href.isEmpty()) {
        // A PDF turns text drawn with an anchor format into a link over it.
        QTextLayout::FormatRange link;
        link.start = 0;
        link.length = int(s.size());
        link.format.setAnchor(true);
        link.format.setAnchorHref(href);
        layout.setFormats({link});
    }
    layout.beginLayout();
    double lineY = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        if (wrap)
            line.setLineWidth(std::max(1.0, w - 2 * pad));
        const double room = wrap ? w : 0.0;
        const double used = line.naturalTextWidth();
        double dx = pad;
        if (align == 1)
            dx = (room - used) / 2;
        else if (align == 2)
            dx = room - pad - used;
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
    // Plain text: the glyphs are taken from the layout once and drawn by every pass. Glyph
    // runs misplace underline and strikeout, so decorated text is drawn by the layout.
    const bool decorated = (style & 12) || !href.isEmpty();
    // In a PDF, text drawn as text is read back by every reader: the shadow passes are drawn
    // as glyph outlines there, so that each word is found once.
    const bool vectorText = g.paintEngine() && g.paintEngine()->type() == QPaintEngine::Pdf;
    const QList<QGlyphRun> runs =
        decorated && !(vectorText && shadow != 0) ? QList<QGlyphRun>() : layout.glyphRuns();
    g.save();
    g.setRenderHint(QPainter::TextAntialiasing, !noAA);
    auto draw = [&](QPointF at) {
        if (decorated) {
            layout.draw(&g, at);
            return;
        }
        for (const QGlyphRun& run : runs)
            g.drawGlyphRun(at, run);
    };
    auto outline = [&](QPointF at) {
        QPainterPath path;
        for (const QGlyphRun& run : runs) {
            const QRawFont raw = run.rawFont();
            const QList<quint32> glyphs = run.glyphIndexes();
            const QList<QPointF> at0 = run.positions();
            for (qsizetype i = 0; i < glyphs.size() && i < at0.size(); ++i)
                path.addPath(raw.pathForGlyph(glyphs[i]).translated(at + at0[i]));
        }
        g.fillPath(path, g.pen().color());
    };
    auto pass = [&](uint32_t argb, double ox, double oy, bool asOutline = false) {
        g.setPen(QColor::fromRgba(argb));
        const auto paint = [&](QPointF at) { asOutline ? outline(at) : draw(at); };
        if (!needClip) {
            paint(QPointF(x + ox, y + oy + dy));
            return;
        }
        QRectF clip(x + ox, y + oy, wrap ? w : 2e7, clipY ? h : 2e7);
        if (!wrap)
            clip.moveLeft(-1e7);
        if (!clipY)
            clip.moveTop(-1e7);
        g.save();
        g.setClipRect(clip, Qt::IntersectClip);
        paint(QPointF(x + ox, y + oy + dy));
        g.restore();
    };
    if (shadow != 0) {
        const uint32_t shadowColor = ShadowColorFor(color);
        pass(shadowColor, shadowOffset, shadowOffset, vectorText);
        // Once more unshifted: it thickens the glyph edges under the text.
        pass(shadowColor, 0, 0, vectorText);
    }
    pass(color, 0, 0);
    g.restore();
}

// The text of a field without decoding its padding: a 4096-byte field usually holds a few
// hundred bytes of text, and pages are repainted while the user drags.
static QString ShownText(const FixedString<4096>& field) {
    const char* begin = field.data();
    const char* nul = static_cast<const char*>(std::memchr(begin, '\0', 4096));
    qsizetype len = nul ? nul - begin : 4096;
    // A blank byte is never part of a multi-byte character in the code pages we read.
    while (len > 0 && begin[len - 1] == ' ')
        --len;
    return CodePage::active().decode(QByteArrayView(begin, len));
}

void DrawTextElement(QPainter& g, const TextElement& t) {
    DrawFontText(g, ShownText(t.Text), t.Left, t.Top, t.Width, t.Height, t.FontName.trimNull(),
                 t.FontSize, t.FontStyle, t.Align, t.LineAlign, uint32_t(t.FontColor), t.FontShadow,
                 t.TextHint, 1);
}

} // namespace zentor
