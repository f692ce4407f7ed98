#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

#include <memory>
#include <vector>

class QTextLayout;

namespace zentor {

// One line of a laid-out text box.
struct TextBoxLine {
    int start = 0;  // first character, in the text with its trailing blanks removed
    int length = 0; // characters on the line, its trailing blanks and line break included
    QRectF rect;    // where the line's text stands, page pixels
};

// Where the lines of a text box fall. Sizes are points at 96 dpi, never rounded to whole
// pixels: advances and line pitch scale exactly with the size, whatever the surface or the
// rendering hint, so every page, the preview and exports break lines at the same words.
struct TextBoxLayout {
    std::vector<TextBoxLine> lines;
    double lineHeight = 0;    // the font's line spacing, leading included, page pixels
    int linesTotal = 0;       // lines the text needs
    int linesVisible = 0;     // lines that lie entirely within the box's height
    bool wordTooWide = false; // a word wider than the box had to be broken
};

// Lays `text` (trailing blanks removed) out in the box, wrapped at word boundaries, aligned
// horizontally (0 left, 1 centre, 2 right) and vertically (0 top, 1 centre, 2 bottom); line
// breaks in the text ("\r\n", "\r", "\n") start new lines. Style bits: bold 1, italic 2,
// underline 4, strikeout 8. A box side of 0 or less is unbounded: no wrapping or clipping
// that way, aligned about the box's edge. An unknown family, an empty text or a size below
// 1 gives no lines.
TextBoxLayout LayoutTextBox(const QString& text, double left, double top, double width,
                            double height, const QString& fontName, int size, int style, int align,
                            int lineAlign);

// The same layout with its shaped glyphs, for painting: positions in `layout` are layout
// pixels; a page position is origin + position * scale.
struct ShapedTextBox {
    TextBoxLayout box;
    std::shared_ptr<QTextLayout> layout; // null when nothing is drawn
    QPointF origin;
    double scale = 1;
};
ShapedTextBox ShapeTextBox(const QString& text, double left, double top, double width,
                           double height, const QString& fontName, int size, int style, int align,
                           int lineAlign);

// A font's size in pixels at 96 dots to the inch, as texts are laid out and drawn (sizes past
// the largest drawn are drawn at it).
double EmPixels(int points);

// The font text is laid out in: one whole pixel size with its design metrics, which lays
// out in proportion to any size it is then scaled to.
QFont LayoutFont(const QString& family, int style);

// Page pixels per layout pixel for a size in points.
double LayoutScale(int points);

// Whether a family name can be drawn: an installed family (any case), or a well-known
// family that fontconfig maps to its metric-compatible stand-in ("Arial" to "Liberation
// Sans", "Times New Roman" to "Liberation Serif", ...). Anything else would be silently
// substituted by fontconfig, so it is refused instead.
bool FontFamilyAvailable(const QString& family);

} // namespace zentor
