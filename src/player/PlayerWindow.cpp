#include "PlayerWindow.h"

#include "model/CodePage.h"
#include "show/MusicOut.h"
#include "show/Ring.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QUrl>

#include <algorithm>

namespace zentor {
namespace {

constexpr int FadeTickMs = 16;

bool KeyOf(int qtKey, show::ShowKey& key) {
    using show::ShowKey;
    switch (qtKey) {
    case Qt::Key_Escape:
        key = ShowKey::Escape;
        return true;
    case Qt::Key_Left:
        key = ShowKey::Left;
        return true;
    case Qt::Key_Right:
        key = ShowKey::Right;
        return true;
    case Qt::Key_Up:
        key = ShowKey::Up;
        return true;
    case Qt::Key_Down:
        key = ShowKey::Down;
        return true;
    case Qt::Key_PageUp:
        key = ShowKey::PageUp;
        return true;
    case Qt::Key_PageDown:
        key = ShowKey::PageDown;
        return true;
    case Qt::Key_Space:
        key = ShowKey::Space;
        return true;
    case Qt::Key_F5:
        key = ShowKey::F5;
        return true;
    case Qt::Key_M:
        key = ShowKey::M;
        return true;
    default:
        return false;
    }
}

} // namespace

PlayerWindow::PlayerWindow(const ShowPictures& pictures, const show::ShowSettings& settings,
                           std::function<MusicOut*()> startMusic)
    : pictures_(pictures), model_(settings, 0, pictures.showOrder()),
      startMusic_(std::move(startMusic)),
      ring_(show::RingRects(pictures.frame().width(), pictures.frame().height())) {
    clock_.start();
    tick_.setSingleShot(true);
    QObject::connect(&tick_, &QTimer::timeout, [this] { update(); });
}

bool PlayerWindow::onHome() const {
    const show::ScreenState s = model_.at(now());
    return s.Picture == show::HomePicture && s.Alpha >= 1.0;
}

QPoint PlayerWindow::toFrame(QPointF pos) const {
    const QRect target = FrameTarget(pictures_.frame(), size());
    if (target.isEmpty())
        return QPoint(-1, -1);
    const double scale = double(pictures_.frame().width()) / target.width();
    return QPoint(int(std::floor((pos.x() - target.left()) * scale)),
                  int(std::floor((pos.y() - target.top()) * scale)));
}

void PlayerWindow::paintEvent(QPaintEvent*) {
    const int64_t t = now();
    const show::ScreenState state = model_.at(t);
    QPainter p(this);
    p.drawImage(0, 0, PaintShowFrame(pictures_, state, size(), hover_));
    p.end();
    schedule();
    if (startMusic_)
        QTimer::singleShot(0, this, [this, start = std::exchange(startMusic_, nullptr)] {
            music_ = start();
            if (music_)
                music_->setMuted(model_.muted());
        });
}

void PlayerWindow::schedule() {
    const int64_t t = now();
    const int64_t next = model_.nextChangeMs(t);
    if (next < 0) {
        tick_.stop();
        return;
    }
    tick_.start(int(std::clamp<int64_t>(next - t, FadeTickMs, 24 * 3600 * 1000)));
    if (next > t) {
        // Decode and scale the coming picture while the current one holds, so that its
        // fade starts smoothly.
        const int upcoming = model_.at(next).Picture;
        const QSize target = FrameTarget(pictures_.frame(), size()).size();
        QTimer::singleShot(0, this, [this, upcoming, target] {
            if (!target.isEmpty())
                pictures_.scaled(upcoming, 0, target);
        });
    }
}

void PlayerWindow::react(show::ShowReaction r) {
    if (r == show::ShowReaction::Quit) {
        close();
        return;
    }
    if (music_)
        music_->setMuted(model_.muted());
    update();
}

void PlayerWindow::keyPressEvent(QKeyEvent* event) {
    show::ShowKey key;
    if (!KeyOf(event->key(), key)) {
        QRasterWindow::keyPressEvent(event);
        return;
    }
    react(model_.key(key, now()));
}

void PlayerWindow::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = toFrame(event->position());
    const bool home = onHome();
    const int icon = home ? show::IconAt(ring_, at.x(), at.y()) : -1;
    const int hover = icon >= 1 ? icon : 0;
    const bool link = home && show::LinkAt(pictures_.contacts(), at.x(), at.y()) >= 0;
    setCursor(hover || link ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (hover != hover_) {
        hover_ = hover;
        update();
    }
}

void PlayerWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !onHome())
        return;
    const QPoint at = toFrame(event->position());
    const int icon = show::IconAt(ring_, at.x(), at.y());
    if (icon >= 1) {
        hover_ = 0;
        react(model_.clickIcon(icon, now()));
        return;
    }
    const int line = show::LinkAt(pictures_.contacts(), at.x(), at.y());
    if (line >= 0) {
        const std::string& link = pictures_.contacts().Lines[size_t(line)].Link;
        QDesktopServices::openUrl(QUrl::fromUserInput(
            CodePage::active().decode(QByteArrayView(link.data(), qsizetype(link.size())))));
    }
}

} // namespace zentor
