#include "render/TextDraw.h"

#include "model/Records.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>
#include <QThread>

#include <cmath>
#include <cstring>
#include <memory>

namespace zentor {
namespace {

// Glyph shapes at the exact size, hinted and antialiased as the hint says; where they stand
// comes from the layout alone. The font engine snaps fonts to whole pixels, a raw font does
// not. Kept per thread (engines belong to one), since one made anew for every text would
// rasterise every glyph anew too; dropped before the application's fonts are.
struct GlyphFont {
    QRawFont laidOut; // the layout's font, to tell its runs from fallback fonts' runs
    QRawFont drawn;
    // Outlines of `drawn`'s glyphs as a PDF's shadows ask for them: a page repeats a few
    // dozen glyphs thousands of times, and each outline costs a pass of the font's hinter.
    mutable QHash<quint32, QPainterPath> outlines;

    QPainterPath outline(const QRawFont& font, quint32 glyph) const {
        if (font != drawn)
            return font.pathForGlyph(glyph);
        auto it = outlines.constFind(glyph);
        if (it == outlines.constEnd())
            it = outlines.insert(glyph, drawn.pathForGlyph(glyph));
        return *it;
    }
};
thread_local QHash<QString, GlyphFont> glyphFonts;

const GlyphFont& GlyphFontFor(const QString& family, int style, int size, int hint) {
    QString key = family;
    key += QChar(0);
    key += QString::number(qint64(size) << 16 | (style & 0xFF) << 8 | (hint & 0xFF));
    const auto it = glyphFonts.constFind(key);
    if (it != glyphFonts.constEnd())
        return *it;
    // A page rarely mixes more than a handful; a damaged file must not grow this forever.
    if (glyphFonts.size() >= 64)
        glyphFonts.clear();
    // Other threads drop theirs when they end; the main thread's goes with the application.
    const QCoreApplication* app = QCoreApplication::instance();
    static bool dropAtExit = false; // read and set on the main thread only
    if (!dropAtExit && app && QThread::currentThread() == app->thread()) {
        dropAtExit = true;
        qAddPostRoutine([] { glyphFonts.clear(); });
    }
    const QFont layoutFont = LayoutFont(family, style);
    QFont shapes = layoutFont;
    const double exact = LayoutScale(size) * shapes.pixelSize();
    const int whole = std::max(1, int(std::lround(exact)));
    shapes.setPixelSize(whole);
    shapes.setHintingPreference(HintingFor(hint));
    if (hint != int(TextHint::SystemDefault))
        shapes.setStyleStrategy(AntialiasedFor(hint) ? QFont::PreferAntialias : QFont::NoAntialias);
    QRawFont raw = QRawFont::fromFont(shapes);
    if (exact != whole)
        raw.setPixelSize(exact);
    return *glyphFonts.insert(key, {QRawFont::fromFont(layoutFont), raw, {}});
}

} // namespace

uint32_t ShadowColorFor(uint32_t argb) {
    return argb == 0xFF000000u ? 0xFFFFFFFFu : 0xFF000000u;
}

QFont::HintingPreference HintingFor(int hint) {
    switch (TextHint(hint)) {
    case TextHint::SingleBitPerPixelGridFit:
    case TextHint::AntiAliasGridFit:
        return QFont::PreferFullHinting;
    case TextHint::SingleBitPerPixel:
    case TextHint::AntiAlias:
        return QFont::PreferNoHinting;
    case TextHint::ClearTypeGridFit:
        // ClearType fits the grid vertically and keeps fractional positions across.
        return QFont::PreferVerticalHinting;
    case TextHint::SystemDefault:
    default:
        return QFont::PreferDefaultHinting;
    }
}

bool AntialiasedFor(int hint) {
    return hint != int(TextHint::SingleBitPerPixelGridFit) &&
           hint != int(TextHint::SingleBitPerPixel);
}

void DrawFontText(QPainter& g, const QString& text, double left, double top, double width,
                  double height, const QString& fontName, int size, int style, int align,
                  int lineAlign, uint32_t color, int shadow, int hint, int shadowOffset) {
    DrawLinkedText(g, text, left, top, width, height, fontName, size, style, align, lineAlign,
                   color, shadow, hint, shadowOffset, QString());
}

namespace {

// The shaped lines once more, as one text carrying a link: a PDF makes a link of text drawn
// with an anchor format. Same font, same line breaks and positions as `shaped`.
std::unique_ptr<QTextLayout> LinkedLayout(const ShapedTextBox& shaped, const QString& fontName,
                                          int style, const QString& href) {
    auto linked = std::make_unique<QTextLayout>(shaped.layout->text(), LayoutFont(fontName, style));
    QTextLayout::FormatRange range;
    range.start = 0;
    range.length = int(shaped.layout->text().size());
    range.format.setAnchor(true);
    range.format.setAnchorHref(href);
    linked->setFormats({range});
    linked->setTextOption(shaped.layout->textOption());
    linked->beginLayout();
    for (int i = 0; i < shaped.layout->lineCount(); ++i) {
        const QTextLine from = shaped.layout->lineAt(i);
        QTextLine line = linked->createLine();
        if (!line.isValid())
            break;
        line.setNumColumns(from.textLength());
        line.setLeadingIncluded(true);
        line.setPosition(from.position());
    }
    linked->endLayout();
    return linked;
}

} // namespace

void DrawLinkedText(QPainter& g, const QString& text, double left, double top, double width,
                    double height, const QString& fontName, int size, int style, int align,
                    int lineAlign, uint32_t color, int shadow, int hint, int shadowOffset,
                    const QString& href, TextPasses passes) {
    const ShapedTextBox shaped =
        ShapeTextBox(text, left, top, width, height, fontName, size, style, align, lineAlign);
    if (!shaped.layout)
        return;
    const float x = float(left), y = float(top), w = float(width), h = float(height);
    const bool wrap = w > 0, clipY = h > 0;

    // Clipping costs time on every glyph; only needed when the text leaves its box.
    QRectF inked;
    for (const TextBoxLine& line : shaped.box.lines)
        inked |= line.rect;
    const bool needClip = (wrap && (inked.left() < x || inked.right() > x + w)) ||
                          (clipY && (inked.top() < y || inked.bottom() > y + h));
    const double scale = shaped.scale;
    const GlyphFont& fonts = GlyphFontFor(fontName, style, size, hint);

    // Underline and strikeout are drawn as bars of their own: glyph runs misplace them.
    std::vector<double> bars; // offsets below the baseline, layout pixels
    double barHeight = 0;
    if (style & 12) {
        const QFontMetricsF metrics(LayoutFont(fontName, style));
        if (style & 4)
            bars.push_back(metrics.underlinePos());
        if (style & 8)
            bars.push_back(-metrics.strikeOutPos());
        barHeight = std::max(metrics.lineWidth() * scale, 1.0);
    }
    QList<QRectF> barRects;

    QList<QGlyphRun> runs;
    const double reach = std::abs(shadowOffset) + 1.0;
    for (int i = 0; i < shaped.layout->lineCount(); ++i) {
        const QRectF& r = shaped.box.lines[size_t(i)].rect;
        if (clipY && (r.bottom() <= y - reach || r.top() >= y + h + reach))
            continue;
        for (QGlyphRun run : shaped.layout->lineAt(i).glyphRuns()) {
            QList<QPointF> at = run.positions();
            for (QPointF& p : at)
                p = shaped.origin + p * scale;
            run.setPositions(at);
            if (run.rawFont() == fonts.laidOut) {
                run.setRawFont(fonts.drawn);
            } else {
                // A character the font lacks comes from a fallback font: same glyphs, scaled.
                QRawFont fallback = run.rawFont();
                fallback.setPixelSize(fallback.pixelSize() * scale);
                run.setRawFont(fallback);
            }
            run.setUnderline(false);
            run.setStrikeOut(false);
            // One run for all lines in one font: every run drawn costs a pass of its own.
            if (!runs.isEmpty() && runs.last().rawFont() == run.rawFont()) {
                QGlyphRun& joined = runs.last();
                joined.setGlyphIndexes(joined.glyphIndexes() + run.glyphIndexes());
                joined.setPositions(joined.positions() + run.positions());
            } else {
                runs += run;
            }
        }
        const QTextLine line = shaped.layout->lineAt(i);
        for (const double below : bars)
            barRects +=
                QRectF(r.left(), r.top() + (line.ascent() + below) * scale, r.width(), barHeight);
    }

    // In a PDF, text drawn as text is read back by every reader: there the shadow passes are
    // glyph outlines, so that each word is found once, and a link is drawn as a linked text.
    const bool pdf = g.paintEngine() && g.paintEngine()->type() == QPaintEngine::Pdf;
    const auto linked = pdf && !href.isEmpty() ? LinkedLayout(shaped, fontName, style, href)
                                               : std::unique_ptr<QTextLayout>();

    g.save();
    g.setRenderHint(QPainter::TextAntialiasing, AntialiasedFor(hint));
    QPainterPath outlinePath; // the shadow's glyphs, made once for both passes
    auto pass = [&](uint32_t argb, double ox, double oy, bool outlines, bool letters) {
        g.setPen(QColor::fromRgba(argb));
        if (needClip) {
            QRectF clip(x + ox, y + oy, wrap ? w : 2e7, clipY ? h : 2e7);
            if (!wrap)
                clip.moveLeft(-1e7);
            if (!clipY)
                clip.moveTop(-1e7);
            g.save();
            g.setClipRect(clip, Qt::IntersectClip);
        }
        if (linked && letters) {
            const QTransform base = g.transform();
            QTransform t = base;
            t.translate(shaped.origin.x() + ox, shaped.origin.y() + oy);
            t.scale(scale, scale);
            g.setTransform(t);
            linked->draw(&g, QPointF());
            g.setTransform(base);
        } else if (outlines) {
            if (outlinePath.isEmpty()) {
                for (const QGlyphRun& run : runs) {
                    const QRawFont font = run.rawFont();
                    const QList<quint32> glyphs = run.glyphIndexes();
                    const QList<QPointF> at = run.positions();
                    for (qsizetype i = 0; i < glyphs.size() && i < at.size(); ++i)
                        outlinePath.addPath(fonts.outline(font, glyphs[i]).translated(at[i]));
                }
            }
            g.fillPath(outlinePath.translated(ox, oy), g.pen().color());
        } else {
            for (const QGlyphRun& run : runs)
                g.drawGlyphRun(QPointF(ox, oy), run);
        }
        for (const QRectF& bar : barRects)
            g.fillRect(bar.translated(ox, oy), g.pen().color());
        if (needClip)
            g.restore();
    };
    if (shadow != 0 && passes != TextPasses::LettersOnly) {
        const uint32_t shadowColor = ShadowColorFor(color);
        pass(shadowColor, shadowOffset, shadowOffset, pdf && passes == TextPasses::All, false);
        // Once more unshifted: it thickens the glyph edges under the text. Vector glyphs have
        // no soft edges to thicken, so a PDF is spared a second copy of every outline.
        if (!pdf)
            pass(shadowColor, 0, 0, false, false);
    }
    if (passes != TextPasses::ShadowOnly)
        pass(color, 0, 0, false, true);
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

void DrawTextElement(QPainter& g, const TextElement& t, TextPasses passes) {
    DrawLinkedText(g, ShownText(t.Text), t.Left, t.Top, t.Width, t.Height, t.FontName.trimNull(),
                   t.FontSize, t.FontStyle, t.Align, t.LineAlign, uint32_t(t.FontColor),
                   t.FontShadow, t.TextHint, 1, QString(), passes);
}

} // namespace zentor
