#pragma once

#include "render/TextLayout.h"

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

// How a rendering hint rasterises glyphs: SingleBitPerPixel* without antialiasing, *GridFit
// with full hinting, AntiAlias unhinted, ClearTypeGridFit hinted vertically only,
// SystemDefault as the platform's font settings say (which may coincide with one of the
// others; on Windows it is usually ClearType). Hints never move a line break.
QFont::HintingPreference HintingFor(int hint);
bool AntialiasedFor(int hint);

// The one text routine. Draws `text` as LayoutTextBox lays it out, clipped to the box. A
// non-zero `shadow` draws the text in the shadow colour shifted by `shadowOffset` pixels
// right and down, then once more unshifted, then the text itself.
void DrawFontText(QPainter& g, const QString& text, double left, double top, double width,
                  double height, const QString& fontName, int size, int style, int align,
                  int lineAlign, uint32_t color, int shadow, int hint, int shadowOffset);

// Which passes of a text are drawn. A PDF page lays its texts' shadows and letters apart, so
// that its shadows can be glyphs hidden from readers instead of outlines (see PdfPages).
enum class TextPasses { All, ShadowOnly, LettersOnly };

// DrawFontText whose text, when `href` is not empty, is a link to it where the surface
// keeps links (a PDF). In a PDF a shadow drawn with its letters is glyph outlines, so that
// readers find each word once; drawn alone it is glyphs.
void DrawLinkedText(QPainter& g, const QString& text, double left, double top, double width,
                    double height, const QString& fontName, int size, int style, int align,
                    int lineAlign, uint32_t color, int shadow, int hint, int shadowOffset,
                    const QString& href, TextPasses passes = TextPasses::All);

// A text object drawn as every page shows it (shadow offset 1).
void DrawTextElement(QPainter& g, const TextElement& t, TextPasses passes = TextPasses::All);

} // namespace zentor
