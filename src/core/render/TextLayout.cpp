#include "render/TextLayout.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QHash>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>
#include <mutex>
#include <optional>

namespace zentor {
namespace {

// Point sizes beyond this are drawn at it: a damaged file must not ask for glyphs the
// size of a house.
constexpr int MaxPoints = 1000;

// The font engine snaps fonts to whole pixels; laid out at this size with design metrics,
// advances and line spacing come out proportional to the size asked for (exactly, for
// fonts of 2048 units to the em). Larger sizes would be exact for more fonts, but the
// engine stops caching glyph metrics beyond it and every layout then reloads its glyphs.
constexpr int LayoutPixels = 64;

// A line width no text reaches, in layout pixels (within the engine's fixed-point range).
constexpr double Unbounded = 1.6e7;

// Lines that end this close to the box's edge still count as inside it.
constexpr double Slack = 1e-3;

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

// Line breaks become line separators, one character for one, so that line ranges index
// the caller's text: the CR of a CR LF pair turns into an invisible zero-width space.
void MarkLineBreaks(QString& s) {
    for (qsizetype i = 0; i < s.size(); ++i) {
        if (s.at(i) == QLatin1Char('\r') && i + 1 < s.size() && s.at(i + 1) == QLatin1Char('\n'))
            s[i] = QChar(0x200B);
        else if (s.at(i) == QLatin1Char('\r') || s.at(i) == QLatin1Char('\n'))
            s[i] = QChar::LineSeparator;
    }
}

// Whether a wrapped line ends inside a word: not after a blank, a line break or any other
// place where a line may break.
bool EndsInsideWord(const QString& s, int end, std::optional<QTextBoundaryFinder>& finder) {
    if (end <= 0 || end >= s.size())
        return false;
    const QChar last = s.at(end - 1);
    if (last.isSpace() || last == QChar::LineSeparator)
        return false;
    if (!finder)
        finder.emplace(QTextBoundaryFinder::Line, s);
    finder->setPosition(end);
    return !finder->isAtBoundary();
}

// A line's height with its leading, unrounded: QTextLine::height() rounds up to whole
// layout pixels, which would add up over the lines.
double Pitch(const QTextLine& line) {
    return line.ascent() + line.descent() + std::max(0.0, line.leading());
}

} // namespace

double LayoutScale(int points) {
    return EmPixels(points) / LayoutPixels;
}

double EmPixels(int points) {
    return std::min(points, MaxPoints) * 96.0 / 72.0;
}

QFont LayoutFont(const QString& family, int style) {
    QFont font(family.trimmed());
    font.setPixelSize(LayoutPixels);
    font.setBold(style & 1);
    font.setItalic(style & 2);
    font.setUnderline(style & 4);
    font.setStrikeOut(style & 8);
    // Kerning would make the page differ from what the hint names suggest: keep it plain.
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
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

ShapedTextBox ShapeTextBox(const QString& text, double left, double top, double width,
                           double height, const QString& fontName, int size, int style, int align,
                           int lineAlign) {
    ShapedTextBox out;
    QString s = RightTrimBlanks(text);
    if (s.isEmpty() || size < 1 || !FontFamilyAvailable(fontName))
        return out;
    MarkLineBreaks(s);

    // The box goes through single precision, as the drawing library takes it.
    const float x = float(left), y = float(top), w = float(width), h = float(height);
    const bool wrap = w > 0, clipY = h > 0;
    const double scale = LayoutScale(size);

    const QFont font = LayoutFont(fontName, style);
    auto layout = std::make_shared<QTextLayout>(s, font);
    QTextOption option;
    option.setWrapMode(wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    option.setUseDesignMetrics(true);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);

    // In layout pixels from here on. A sixth of an em of room at each end of a line, as
    // pages laid out on Windows have: the same text then breaks at the same words.
    const double pad = LayoutPixels / 6.0;
    const double room = wrap ? w / scale : 0.0;
    double lineY = 0;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLeadingIncluded(true);
        // Every line gets a width, or its height would be unknown until the next one is made.
        line.setLineWidth(wrap ? std::max(1.0 / scale, room - 2 * pad) : Unbounded);
        const double used = line.naturalTextWidth();
        double dx = pad;
        if (align == 1)
            dx = (room - used) / 2;
        else if (align == 2)
            dx = room - pad - used;
        line.setPosition(QPointF(dx, lineY));
        lineY += Pitch(line);
    }
    layout->endLayout();

    const double textHeight = lineY * scale;
    double dy = 0;
    const double roomY = clipY ? h : 0.0;
    if (lineAlign == 1)
        dy = (roomY - textHeight) / 2;
    else if (lineAlign == 2)
        dy = roomY - textHeight;
    out.origin = QPointF(x, y + dy);
    out.scale = scale;

    TextBoxLayout& box = out.box;
    box.lineHeight = Pitch(layout->lineAt(0)) * scale;
    box.linesTotal = layout->lineCount();
    std::optional<QTextBoundaryFinder> finder;
    for (int i = 0; i < layout->lineCount(); ++i) {
        const QTextLine line = layout->lineAt(i);
        const QPointF at = out.origin + line.position() * scale;
        const QRectF rect(at, QSizeF(line.naturalTextWidth() * scale, Pitch(line) * scale));
        box.lines.push_back({line.textStart(), line.textLength(), rect});
        if (!clipY || (rect.top() >= y - Slack && rect.bottom() <= y + h + Slack))
            ++box.linesVisible;
        if (wrap && EndsInsideWord(s, line.textStart() + line.textLength(), finder))
            box.wordTooWide = true;
    }
    out.layout = std::move(layout);
    return out;
}

TextBoxLayout LayoutTextBox(const QString& text, double left, double top, double width,
                            double height, const QString& fontName, int size, int style, int align,
                            int lineAlign) {
    return ShapeTextBox(text, left, top, width, height, fontName, size, style, align, lineAlign)
        .box;
}

} // namespace zentor
