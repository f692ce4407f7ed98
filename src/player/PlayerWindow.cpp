#include "PlayerWindow.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zentor {

PlayerWindow::PlayerWindow(const PackageContents& package) {
    owner_ = QStringLiteral("%1 %2")
                 .arg(package.Profile.FirstName.text(), package.Profile.LastName.text())
                 .trimmed();
    for (int n = 1; n <= Package::PageCount; ++n) {
        const QImage image = QImage::fromData(package.blob(Package::FirstPageEntry + n - 1));
        if (image.isNull())
            continue;
        const QString name = n <= Package::TabNameCount ? package.TabNames[size_t(n - 1)].text()
                                                        : QStringLiteral("Slide Show");
        pages_.push_back({image, name});
    }
    show(0);
}

void PlayerWindow::show(int page) {
    if (pages_.empty())
        return;
    current_ = std::clamp(page, 0, pageCount() - 1);
    const QString page_name = pages_[size_t(current_)].name;
    setTitle(owner_.isEmpty() ? page_name : owner_ + QStringLiteral(" - ") + page_name);
    update();
}

void PlayerWindow::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(QRect(QPoint(0, 0), size()), Qt::black);
    if (pages_.empty())
        return;
    const QImage& image = pages_[size_t(current_)].image;
    QSize fitted = image.size().scaled(size(), Qt::KeepAspectRatio);
    const QRect target(QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2),
                       fitted);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(target, image);
}

void PlayerWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Space:
    case Qt::Key_PageDown:
        show(current_ + 1);
        break;
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        show(current_ - 1);
        break;
    case Qt::Key_Home:
        show(0);
        break;
    case Qt::Key_End:
        show(pageCount() - 1);
        break;
    default:
        QRasterWindow::keyPressEvent(event);
    }
}

void PlayerWindow::mouseReleaseEvent(QMouseEvent* event) {
    show(event->button() == Qt::RightButton ? current_ - 1 : current_ + 1);
}

} // namespace zentor
