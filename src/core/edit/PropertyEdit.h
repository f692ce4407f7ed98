#pragma once

#include "edit/EditorState.h"
#include "edit/Geometry.h"
#include "model/Document.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

namespace zentor {

class Prompter;

// Where a pane's controls write: the page (tab 1..7) and the object slot the pane was
// filled for. A pane keeps the target it was filled for, so a late commit never lands on an
// object selected since.
struct PropertyTarget {
    int tab = 0;
    int slot = 0;
    friend bool operator==(const PropertyTarget&, const PropertyTarget&) = default;
};
// The target of the current selection.
PropertyTarget CurrentTarget(const EditorState& st);

// The text boxes of the property panel that write a document field when they commit.
enum class PropertyText {
    FirstName,
    LastName,
    Phone,
    Email,
    Website,
    Address,
    PostCode,
    TabName,
    ImgName,
    TextName,
    Word,
    KeepOnTime,
};

// Every keystroke in these boxes marks the document changed (the profile boxes and the
// text object's words), so that leaving asks to save even before the box commits.
bool MarksDirtyOnChange(PropertyText box);
// Enter commits every box but the text object's words, where Enter is a line break.
bool CommitsOnEnter(PropertyText box);

// What a box shows when its pane is filled: names and paths trimmed and cut at the first
// NUL, the words with their trailing blanks removed (a Windows line break shows as one
// break), the holding time as a number.
QString PropertyBoxText(const Document& doc, const PropertyTarget& t, PropertyText box);

struct TextCommit {
    bool stored = false;      // a field was written (an invalid number or slot writes none)
    bool refresh = false;     // the page is redrawn afterwards
    bool renameStrip = false; // the tab strip's caption of the current tab follows the text
};

// A box commits: its whole text goes into its field, cut to the field's width and padded
// with blanks. The holding time takes the text as a whole number and keeps its old value
// when the text is not one. Dirty is set when the document's bytes changed.
TextCommit CommitPropertyText(Document& doc, const PropertyTarget& t, PropertyText box,
                              const QString& text);

// A whole number as the panel reads one: blanks around it allowed, an optional sign, digits
// and an optional fraction rounded half to even. Anything else, or a value outside 32 bits,
// is not a number.
std::optional<int32_t> ParseWholeNumber(const QString& text);

// The four position boxes (left, top, width, height) of the selected image or text: each
// box that holds a number gives its value, the others keep the record's, so a box that
// was not a number is restored once the frame's geometry is written back.
IntRect LocationFromBoxes(const std::array<QString, 4>& boxes, const IntRect& record);
// The record's geometry of image (kind 1) or text (kind 2) slot `slot`; nothing for other
// kinds or slots.
std::optional<IntRect> ObjectRect(const Document& doc, int kind, int slot);

// The fixed drop-down lists of the panel.
enum class PropertyCombo {
    TabPicAlign,
    AlignH, // CombAlign(0)
    AlignV, // CombAlign(1)
    FontShadow,
    TextHint,
    MusicVol,
    AutoRepeat,
    ShowSpeed,
    ShowAsRun,
};

QStringList ComboRows(PropertyCombo combo);
// The value stored for a row (the music volume on 0..1000, the show speed as ten times the
// row: both are what the player reads).
int32_t ComboValue(PropertyCombo combo, int row);
// The row that shows a stored value; -1 (no row) for a value no row stands for.
int ComboRow(PropertyCombo combo, int32_t value);
// Whether choosing a row redraws the page (the text object's and tab picture's lists do;
// the slide-show lists only store).
bool ComboRefreshes(PropertyCombo combo);
// The row a pane shows for its target.
int ComboRowFromDocument(const Document& doc, const PropertyTarget& t, PropertyCombo combo);
// Stores a chosen row; false when there is nothing to write (no row, no such slot).
bool CommitCombo(Document& doc, const PropertyTarget& t, PropertyCombo combo, int row);

// The picture and music choices of the panel.
enum class FileChoice { UserIcon, TabIcon, TabPicture, ImageFile, BackPicture, BackMusic };

struct FileChoiceDialog {
    QString title;
    QString filter;
    bool refresh; // the page is redrawn after a choice; the others only store and show
};
FileChoiceDialog FileChoiceFor(FileChoice choice);

// Opens the file dialog for `choice` and stores a chosen path as it is. Returns the path,
// or an empty string when the dialog was cancelled (then nothing changes).
QString ChooseAndStoreFile(Prompter& prompter, Document& doc, const PropertyTarget& t,
                           FileChoice choice);
// The field a choice writes, as it now stands (trimmed, cut at NUL).
QString StoredFile(const Document& doc, const PropertyTarget& t, FileChoice choice);

// The page background colour as the panel shows it: five blanks, "&H" and eight upper-case
// hexadecimal digits of the 0x00BBGGRR value.
QString BackColorText(int32_t backColor);
// The same colour as opaque 0xAARRGGBB, for showing it.
uint32_t BackColorArgb(int32_t backColor);
// The colour button: the dialog's answer is stored as it is, and a cancelled dialog answers
// 0, so cancelling turns the background black. Returns the stored value.
int32_t ChooseAndStoreBackColor(Prompter& prompter, Document& doc);

// A text object's font colour as its pane shows it: "&H" and the hexadecimal digits.
QString FontColorText(int32_t argb);

// After the font dialog: the target text's font name with its blanks trimmed, stored back
// and returned for the font name box.
QString TrimStoredFontName(Document& doc, const PropertyTarget& t);

} // namespace zentor
