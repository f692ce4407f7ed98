#include "editor/props/CommitEdits.h"
#include "editor/props/PaneControls.h"
#include "editor/props/PaneLayout.h"

#include <QFormLayout>
#include <QPushButton>

namespace zentor {

void BuildImagePane(QWidget* pane, PaneControls& c) {
    QBoxLayout* page = pane::Page(pane);

    QFormLayout* image = pane::Group(page, QStringLiteral("Image:"));
    c.TxtImgName = pane::Line(QStringLiteral("TxtImgName"));
    image->addRow(QStringLiteral("Name:"), c.TxtImgName);
    c.TxtImgFile = pane::Line(QStringLiteral("TxtImgFile"), true);
    c.CmdImgFile = pane::Button(QStringLiteral("CmdImgFile"), QStringLiteral("..."),
                                QStringLiteral("Choose image file"));
    image->addRow(QStringLiteral("File:"), pane::WithButton(c.TxtImgFile, c.CmdImgFile));

    QFormLayout* size = pane::Group(page, QStringLiteral("Picture Size"));
    pane::LocationRows(size, QStringLiteral("TxtImg"), c.ImgLoc);

    page->addStretch(1);
}

} // namespace zentor
