#include "editor/props/CommitEdits.h"
#include "editor/props/PaneControls.h"
#include "editor/props/PaneLayout.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zentor {

void BuildProfilePane(QWidget* pane, PaneControls& c) {
    QBoxLayout* page = pane::Page(pane);

    QFormLayout* profile = pane::Group(page, QStringLiteral("Profile:"));
    const struct {
        CommitLineEdit** box;
        const char* name;
        const char* label;
    } rows[] = {
        {&c.TxtFirstName, "TxtFirstName", "First Name:"},
        {&c.TxtLastName, "TxtLastName", "Last Name:"},
        {&c.TxtPhone, "TxtPhone", "Phone:"},
        {&c.TxtEmail, "TxtEmail", "Email:"},
        {&c.TxtWebsite, "TxtWebsite", "Website:"},
        {&c.TxtAddress, "TxtAddress", "Address:"},
        {&c.TxtPostCode, "TxtPostCode", "Post Code:"},
    };
    for (const auto& r : rows) {
        *r.box = pane::Line(QLatin1String(r.name));
        profile->addRow(QLatin1String(r.label), *r.box);
    }

    QFormLayout* icon = pane::Group(page, QStringLiteral("User Icon"));
    c.PicUserIcon = pane::Preview(QStringLiteral("PicUserIcon"));
    c.CmdUserIcon = pane::Button(QStringLiteral("CmdUserIcon"), QStringLiteral("Choose..."),
                                 QStringLiteral("Choose user icon file"));
    auto* iconRow = new QWidget;
    auto* h = new QHBoxLayout(iconRow);
    h->setContentsMargins(0, 0, 0, 0);
    h->addWidget(c.PicUserIcon);
    auto* side = new QVBoxLayout;
    side->addWidget(c.CmdUserIcon);
    side->addWidget(pane::Note(QStringLiteral("Minimum Size 128 * 128 (Pixels)")));
    side->addStretch(1);
    h->addLayout(side, 1);
    icon->addRow(iconRow);

    QFormLayout* back = pane::Group(page, QStringLiteral("Background Picture:"));
    c.ProfileBakPic = pane::Line(QStringLiteral("TxtBakPic"), true);
    c.ProfileCmdBakPic = pane::Button(QStringLiteral("CmdBakPic"), QStringLiteral("..."),
                                      QStringLiteral("Choose Background picture file"));
    back->addRow(pane::WithButton(c.ProfileBakPic, c.ProfileCmdBakPic));

    page->addStretch(1);
}

} // namespace zentor
