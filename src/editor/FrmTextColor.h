#pragma once

#include "edit/FontChoice.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;

namespace zentor {

struct Document;

// The font dialog of a text object: family, style, size and colour with a live preview.
// OK writes the four choices into the text; Cancel writes nothing.
class FrmTextColor : public QDialog {
    Q_OBJECT
public:
    FrmTextColor(Document& doc, int textSlot, QWidget* parent = nullptr);

    const FontChoice& choice() const { return choice_; }
    // The preview as last drawn (270 x 180).
    QImage preview() const { return preview_; }

private:
    void GetFixedFonts();
    void styleChanged();
    void fontChanged();
    void sizeChanged(const QString& text);
    void colorChanged(int row);
    void PreviewFont();
    void CmdColorClick(int index);

    Document& doc_;
    int slot_;
    FontChoice choice_;
    QImage preview_;
    QComboBox* CmbFont;
    QComboBox* CmbStyle;
    QCheckBox* ChkUnderline;
    QCheckBox* ChkStrikeout;
    QComboBox* CmbSize;
    QComboBox* CmbColor;
    QLabel* PicView;
};

} // namespace zentor
