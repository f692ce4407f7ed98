#include "editor/props/CommitEdits.h"
#include "editor/props/PaneControls.h"
#include "editor/props/PaneLayout.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace zentor {

void BuildTextPane(QWidget* pane, PaneControls& c) {
    QBoxLayout* page = pane::Page(pane);

    QFormLayout* text = pane::Group(page, QStringLiteral("Text:"));
    c.TxtTextName = pane::Line(QStringLiteral("TxtTextName"));
    text->addRow(QStringLiteral("Name:"), c.TxtTextName);
    c.TxtWord = new CommitTextEdit(QStringLiteral("TxtWord"));
    c.TxtWord->setMinimumHeight(80);
    c.TxtWord->setTabChangesFocus(true);
    text->addRow(c.TxtWord);

    QFormLayout* font = pane::Group(page, QStringLiteral("Font:"));
    c.TxtFontName = pane::Line(QStringLiteral("TxtFontName"), true);
    c.CmdFont = pane::Button(QStringLiteral("CmdFont"), QStringLiteral("..."),
                             QStringLiteral("Choose Font"));
    font->addRow(QStringLiteral("Font:"), pane::WithButton(c.TxtFontName, c.CmdFont));
    c.LabFontColor = new QLabel;
    c.LabFontColor->setObjectName(QStringLiteral("LabFontColor"));
    c.LabFontColor->setTextInteractionFlags(Qt::TextSelectableByMouse);
    font->addRow(QStringLiteral("Color:"), c.LabFontColor);
    c.CombAlign[0] = pane::Combo(QStringLiteral("CombAlign0"), PropertyCombo::AlignH);
    font->addRow(QStringLiteral("Horizontal Alignment"), c.CombAlign[0]);
    c.CombAlign[1] = pane::Combo(QStringLiteral("CombAlign1"), PropertyCombo::AlignV);
    font->addRow(QStringLiteral("Vertical Alignment"), c.CombAlign[1]);
    c.CombFontShadow = pane::Combo(QStringLiteral("CombFontShadow"), PropertyCombo::FontShadow);
    font->addRow(QStringLiteral("Font Shadow"), c.CombFontShadow);
    c.CombTextHint = pane::Combo(QStringLiteral("CombTextHint"), PropertyCombo::TextHint);
    font->addRow(QStringLiteral("TextRenderHint"), c.CombTextHint);

    QFormLayout* size = pane::Group(page, QStringLiteral("Text Size"));
    pane::LocationRows(size, QStringLiteral("TxtFont"), c.FontLoc);
    // The words box takes what height the pane has to spare.
    page->setStretchFactor(text->parentWidget(), 1);
}

} // namespace zentor
