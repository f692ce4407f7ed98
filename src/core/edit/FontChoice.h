#pragma once

#include "model/Records.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <optional>

namespace zentor {

// The font dialog's choices for one text object, decided here so that the dialog only
// shows them.
struct FontChoice {
    QString fontName;
    int32_t size = 0;
    int32_t style = 0;  // bold 1, italic 2, underline 4, strikeout 8
    uint32_t color = 0; // 0xAARRGGBB
};

// The style list: its row is the style's two low bits.
QStringList FontStyleRows(); // "Regular", "Bold", "Italic", "BoldItalic"
int StyleRow(int32_t style);
bool StyleUnderline(int32_t style);
bool StyleStrikeout(int32_t style);
// The style the style list and the two boxes make together.
int32_t StyleFromControls(int row, bool underline, bool strikeout);

// The size list; any whole number may be typed as well.
QStringList FontSizeRows();
// A typed size as a whole number (a fraction rounds half to even); nothing when the text is
// not a number, and then the size in force stays.
std::optional<int32_t> ParseFontSize(const QString& text);

// The first row equal to `text` ignoring case, as the lists are searched; -1 when none.
int FindExactRow(const QStringList& rows, const QString& text);

// The preview's background: white behind exactly opaque black, black behind anything else
// (transparent included).
uint32_t PreviewBackground(uint32_t color);

// Opening the dialog on a text: its font name trimmed and written back into the field (even
// if the dialog is then cancelled); its size, style and colour.
FontChoice BeginFontChoice(TextElement& text);

// The family the preview draws with. A family the system cannot provide falls back to
// "Arial", and that becomes the choice (what OK stores).
QString PreviewFamily(FontChoice& choice, const std::function<bool(const QString&)>& available);

// OK: the name (cut to its 31-character field), size, style and colour go into the text.
// Returns whether any byte changed.
bool ApplyFontChoice(TextElement& text, const FontChoice& choice);

} // namespace zentor
