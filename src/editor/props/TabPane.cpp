#include "editor/props/CommitEdits.h"
#include "editor/props/PaneControls.h"
#include "editor/props/PaneLayout.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zentor {

void BuildTabPane(QWidget* pane, PaneControls& c) {
    QBoxLayout* page = pane::Page(pane);

    QFormLayout* tab = pane::Group(page, QStringLiteral("Tab:"));
    c.TxtTabName = pane::Line(QStringLiteral("TxtTabName"));
    tab->addRow(QStringLiteral("Tab Name"), c.TxtTabName);

    QFormLayout* icon = pane::Group(page, QStringLiteral("Tab Icon"));
    c.PicTabIcon = pane::Preview(QStringLiteral("PicTabIcon"));
    c.CmdTabIcon = pane::Button(QStringLiteral("CmdTabIcon"), QStringLiteral("Choose..."),
                                QStringLiteral("Choose tab icon file"));
    auto* iconRow = new QWidget;
    auto* h = new QHBoxLayout(iconRow);
    h->setContentsMargins(0, 0, 0, 0);
    h->addWidget(c.PicTabIcon);
    auto* side = new QVBoxLayout;
    side->addWidget(c.CmdTabIcon);
    side->addWidget(pane::Note(QStringLiteral("Minimum Size 128 * 128 (Pixels)")));
    side->addStretch(1);
    h->addLayout(side, 1);
    icon->addRow(iconRow);

    QFormLayout* picture = pane::Group(page, QStringLiteral("Picture:"));
    c.TxtTabPicture = pane::Line(QStringLiteral("TxtTabPicture"), true);
    c.CmdTabPicture = pane::Button(QStringLiteral("CmdTabPicture"), QStringLiteral("..."),
                                   QStringLiteral("Choose picture file"));
    picture->addRow(QStringLiteral("File:"), pane::WithButton(c.TxtTabPicture, c.CmdTabPicture));
    c.CombTabPicAlign = pane::Combo(QStringLiteral("CombTabPicAlign"), PropertyCombo::TabPicAlign);
    picture->addRow(QStringLiteral("Align:"), c.CombTabPicAlign);

    page->addStretch(1);
}

} // namespace zentor
