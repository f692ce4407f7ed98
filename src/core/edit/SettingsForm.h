#pragma once

#include "model/Records.h"

#include <QString>
#include <QStringList>

namespace zentor {

class Prompter;

// What the settings dialog's controls hold, so that filling them from the header and
// reading them back on OK can be decided (and tested) without the dialog.
struct SettingsForm {
    QString music;           // TxtMusic
    int musicVolume = 0;     // SldBakMusicVol, 0..10
    bool autoRepeat = false; // ChkRepeat
    bool showSlide = false;  // ChkSlide
    int speed = 0;           // SdSpeed, 0..4
    QString widthText;       // TxtWidth
    QString heightText;      // TxtHeight
    bool custom = false;     // ChkCustom
    int frameRow = -1;       // CBFrameSize's selected row, -1 none
    friend bool operator==(const SettingsForm&, const SettingsForm&) = default;
};

inline constexpr int MusicVolumeSliderMax = 10;
inline constexpr int SpeedSliderMax = 4;

// The frame sizes offered, "Custom" last.
QStringList FrameSizeRows();

// The controls as the dialog opens on `header`: a frame size that is one of the rows selects
// it; any other size ticks the custom box and shows the numbers there.
SettingsForm IniCBFrame(const ScriptHeader& header);

// OK: reads the controls back into the header. Without the custom box the selected row's
// text is read literally, its first four characters as the width and its last three as the
// height, so the row "Custom" gives 0 x 0. Sliders go back on their stored scales.
void ApplySettings(ScriptHeader& header, const SettingsForm& form);

// The music browse button: a chosen file goes into the form only; the header waits for OK.
void ChooseSettingsMusic(Prompter& prompter, SettingsForm& form);

// A number read from the front of a text: blanks, tabs and line feeds anywhere are skipped,
// then an optional sign, digits, one decimal point and an exponent are read up to the first
// character that cannot continue the number. Text without a number gives 0.
double LeadingNumber(QStringView text);

} // namespace zentor
