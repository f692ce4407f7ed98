#include "edit/FontChoice.h"

#include "edit/PropertyEdit.h"

namespace zentor {

QStringList FontStyleRows() {
    return {"Regular", "Bold", "Italic", "BoldItalic"};
}

int StyleRow(int32_t style) {
    if ((style & 3) == 3)
        return 3;
    if (style & 2)
        return 2;
    if (style & 1)
        return 1;
    return 0;
}

bool StyleUnderline(int32_t style) {
    return style & 4;
}

bool StyleStrikeout(int32_t style) {
    return style & 8;
}

int32_t StyleFromControls(int row, bool underline, bool strikeout) {
    int32_t style = row;
    if (underline)
        style |= 4;
    if (strikeout)
        style |= 8;
    return style;
}

QStringList FontSizeRows() {
    return {"8",  "9",  "10", "11", "12", "14", "16", "18", "20",
            "22", "24", "26", "28", "30", "32", "36", "48", "72"};
}

std::optional<int32_t> ParseFontSize(const QString& text) {
    return ParseWholeNumber(text);
}

int FindExactRow(const QStringList& rows, const QString& text) {
    for (int i = 0; i < rows.size(); ++i) {
        if (rows[i].compare(text, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

uint32_t PreviewBackground(uint32_t color) {
    return color == 0xFF000000u ? 0xFFFFFFFFu : 0xFF000000u;
}

FontChoice BeginFontChoice(TextElement& text) {
    const QString name = text.FontName.trimmed();
    text.FontName = name;
    return {text.FontName.text(), text.FontSize, text.FontStyle, uint32_t(text.FontColor)};
}

QString PreviewFamily(FontChoice& choice, const std::function<bool(const QString&)>& available) {
    if (!available(choice.fontName))
        choice.fontName = QStringLiteral("Arial");
    return choice.fontName;
}

bool ApplyFontChoice(TextElement& text, const FontChoice& choice) {
    const TextElement before = text;
    text.FontName = choice.fontName;
    text.FontSize = choice.size;
    text.FontStyle = choice.style;
    text.FontColor = int32_t(choice.color);
    return !(before == text);
}

} // namespace zentor
