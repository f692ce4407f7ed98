#include "editor/FrmAbout.h"

#include "model/DefaultDocument.h"

#include <zentor/Version.h>

#include <QDesktopServices>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace zentor {

namespace {

// A label that opens its address when clicked and is underlined while the pointer is on it.
class LinkLabel : public QLabel {
public:
    LinkLabel(const QString& text, QUrl url, QWidget* parent)
        : QLabel(text, parent), url_(std::move(url)) {
        setCursor(Qt::PointingHandCursor);
        setStyleSheet(QStringLiteral("color: #1a56c4;"));
    }

protected:
    void enterEvent(QEnterEvent*) override { setUnderline(true); }
    void leaveEvent(QEvent*) override { setUnderline(false); }
    void mouseReleaseEvent(QMouseEvent*) override { QDesktopServices::openUrl(url_); }

private:
    void setUnderline(bool on) {
        QFont f = font();
        f.setUnderline(on);
        setFont(f);
    }
    QUrl url_;
};

} // namespace

FrmAbout::FrmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("FrmAbout"));
    setWindowTitle(QStringLiteral("About Vitara Zentor"));
    setModal(true);

    auto* icon = new QLabel(this);
    icon->setPixmap(QPixmap(QStringLiteral(":/pictures/LOGO.png"))
                        .scaled(96, 96, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    auto* name = new QLabel(QStringLiteral("Vitara Zentor"), this);
    QFont big = name->font();
    big.setPointSize(big.pointSize() + 6);
    big.setBold(true);
    name->setFont(big);
    auto* version = new QLabel(QStringLiteral("Version: %1.%2.%3")
                                   .arg(VersionMajor)
                                   .arg(VersionMinor)
                                   .arg(VersionRevision),
                               this);
    version->setObjectName(QStringLiteral("LabVersion"));
    auto* legal = new QLabel(QStringLiteral("Copyright © 2026 the Vitara Zentor developers. "
                                            "All rights reserved."),
                             this);
    legal->setWordWrap(true);
    auto* web =
        new LinkLabel(QString::fromLatin1(HomePage), QUrl(QString::fromLatin1(HomePage)), this);
    web->setObjectName(QStringLiteral("LabWeb"));
    auto* mail =
        new LinkLabel(QString::fromLatin1(SupportEmail),
                      QUrl(QStringLiteral("mailto:") + QString::fromLatin1(SupportEmail)), this);
    mail->setObjectName(QStringLiteral("LabMail"));
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* text = new QVBoxLayout;
    text->addWidget(name);
    text->addWidget(version);
    text->addSpacing(8);
    text->addWidget(legal);
    text->addSpacing(8);
    text->addWidget(web);
    text->addWidget(mail);
    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addSpacing(12);
    top->addLayout(text, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    auto* root = new QVBoxLayout(this);
    root->addLayout(top);
    root->addLayout(buttons);
    setFixedWidth(420);
}

} // namespace zentor
