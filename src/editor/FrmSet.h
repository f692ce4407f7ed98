#pragma once

#include "edit/SettingsForm.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSlider;

namespace zentor {

struct Document;
class Prompter;

// The settings dialog: frame size, slide show and background music of the document. It
// starts from the header each time and writes back only on OK.
class FrmSet : public QDialog {
    Q_OBJECT
public:
    FrmSet(Document& doc, Prompter& prompter, QWidget* parent = nullptr);

    // The controls as a form, and the other way round.
    SettingsForm form() const;
    void setForm(const SettingsForm& form);

private:
    void IniCBFrame();
    void ChkCustomClick();
    void CmdMusicClick();
    void CmdSetClick(int index);

    Document& doc_;
    Prompter& prompter_;
    QCheckBox* ChkSlide;
    QSlider* SdSpeed;
    QCheckBox* ChkRepeat;
    QSlider* SldBakMusicVol;
    QLineEdit* TxtMusic;
    QComboBox* CBFrameSize;
    QCheckBox* ChkCustom;
    QLineEdit* TxtWidth;
    QLineEdit* TxtHeight;
};

} // namespace zentor
