#pragma once

#include <QFont>
#include <QString>

#include <cstdint>

class QPainter;

namespace zentor {

struct TextElement;

// Text rendering hints as stored in TextElement::TextHint (the list order of the panel).
enum class TextHint {
    SystemDefault = 0,
    SingleBitPerPixelGridFit = 1,
    SingleBitPerPixel = 2,
    AntiAliasGridFit = 3,
    AntiAlias = 4,
    ClearTypeGridFit = 5,
};

// Exact opaque black gets a white shadow; every other colour a black one.
uint32_t ShadowColorFor(uint32_t argb);

// Whether a family name can be drawn: an installed family (any case), or a well-known
// family that fontconfig maps to its metric-compatible stand-in ("Arial" to "Liberation
// Sans", "Times New Roman" to "Liberation Serif", ...). Anything else would be silently
// substituted by fontconfig, so it is refused instead.
bool FontFamilyAvailable(const QString& family);

// The font for a text: `points` at 96 dpi whatever the surface (pixel size = points *
// 96 / 72), style bits bold 1, italic 2, underline 4, strikeout 8, and the hint's
// antialiasing and hinting: SingleBitPerPixel* without antialiasing, *GridFit with full
// hinting, AntiAlias unhinted, ClearTypeGridFit hinted vertically only, SystemDefault as
// the platform's font settings say (which may coincide with one of the others; on
// Windows it is usually ClearType).
QFont MakeTextFont(const QString& family, int points, int style, int hint);

// The one text routine. Draws `text` (trailing blanks removed) into the box, wrapped at
// word boundaries (a word wider than the box is broken), clipped to the box, aligned
// horizontally (0 left, 1 centre, 2 right) and vertically (0 top, 1 centre, 2 bottom). A
// non-zero `shadow` draws the text in the shadow colour shifted by `shadowOffset` pixels
// right and down, then once more unshifted, then the text itself. An unknown family, an
// empty text or a size below 1 draws nothing. A box side of 0 or less is unbounded: no
// wrapping or clipping that way, aligned about the box's edge.
void DrawFontText(QPainter& g, const QString& text, double left, double top, double width,
                  double height, const QString& fontName, int size, int style, int align,
                  int lineAlign, uint32_t color, int shadow, int hint, int shadowOffset);

// DrawFontText whose text, when `href` is not empty, is a link to it where the surface
// keeps links (a PDF).
void DrawLinkedText(QPainter& g, const QString& text, double left, double top, double width,
                    double height, const QString& fontName, int size, int style, int align,
                    int lineAlign, uint32_t color, int shadow, int hint, int shadowOffset,
                    const QString& href);

// A text object drawn as every page shows it (shadow offset 1).
void DrawTextElement(QPainter& g, const TextElement& t);

} // namespace zentor
