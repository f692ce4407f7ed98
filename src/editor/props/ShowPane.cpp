#include "editor/props/CommitEdits.h"
#include "editor/props/PaneControls.h"
#include "editor/props/PaneLayout.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace zentor {

void BuildShowPane(QWidget* pane, PaneControls& c) {
    QBoxLayout* page = pane::Page(pane);

    QFormLayout* pic = pane::Group(page, QStringLiteral("Background Picture:"));
    c.TxtBakPic = pane::Line(QStringLiteral("TxtBakPic"), true);
    c.CmdBakPic = pane::Button(QStringLiteral("CmdBakPic"), QStringLiteral("..."),
                               QStringLiteral("Choose Background picture file"));
    pic->addRow(pane::WithButton(c.TxtBakPic, c.CmdBakPic));

    QFormLayout* music = pane::Group(page, QStringLiteral("Background Music:"));
    c.TxtBakMusic = pane::Line(QStringLiteral("TxtBakMusic"), true);
    c.CmdBakMusic = pane::Button(QStringLiteral("CmdBakMusic"), QStringLiteral("..."),
                                 QStringLiteral("Choose Background Music"));
    music->addRow(pane::WithButton(c.TxtBakMusic, c.CmdBakMusic));

    QFormLayout* color = pane::Group(page, QStringLiteral("Background Color:"));
    c.PicBakColor = new QLabel;
    c.PicBakColor->setObjectName(QStringLiteral("PicBakColor"));
    c.PicBakColor->setFixedSize(24, 24);
    c.PicBakColor->setFrameShape(QFrame::Box);
    c.PicBakColor->setAutoFillBackground(true);
    c.TxtBakColor = pane::Line(QStringLiteral("TxtBakColor"), true);
    c.CmdBakColor = pane::Button(QStringLiteral("CmdBakColor"), QStringLiteral("..."),
                                 QStringLiteral("Choose the background colour"));
    auto* swatch = new QWidget;
    auto* h = new QHBoxLayout(swatch);
    h->setContentsMargins(0, 0, 0, 0);
    h->setSpacing(4);
    h->addWidget(c.PicBakColor);
    h->addWidget(c.TxtBakColor, 1);
    h->addWidget(c.CmdBakColor);
    color->addRow(QStringLiteral("BackColor"), swatch);

    QFormLayout* show = pane::Group(page, QStringLiteral("Slide Show:"));
    c.CmbMusicVol = pane::Combo(QStringLiteral("CmbMusicVol"), PropertyCombo::MusicVol);
    show->addRow(QStringLiteral("Music Volume"), c.CmbMusicVol);
    c.CmbAutoRepeat = pane::Combo(QStringLiteral("CmbAutoRepeat"), PropertyCombo::AutoRepeat);
    show->addRow(QStringLiteral("Auto Repeat"), c.CmbAutoRepeat);
    c.CmbShowSpeed = pane::Combo(QStringLiteral("CmbShowSpeed"), PropertyCombo::ShowSpeed);
    show->addRow(QStringLiteral("Show Speed"), c.CmbShowSpeed);
    c.CmbShowAsRun = pane::Combo(QStringLiteral("CmbShowAsRun"), PropertyCombo::ShowAsRun);
    show->addRow(QStringLiteral("Show as Run"), c.CmbShowAsRun);
    c.TxtKeepOnTime = pane::Line(QStringLiteral("TxtKeepOnTime"));
    c.TxtKeepOnTime->setToolTip(QStringLiteral("The frame's holding time"));
    show->addRow(QStringLiteral("Holding Time"), c.TxtKeepOnTime);
    show->addRow(pane::Note(QStringLiteral("The frame's holding time")));

    page->addStretch(1);
}

} // namespace zentor
