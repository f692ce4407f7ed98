#include "PlayerWindow.h"

#include "model/CodePage.h"
#include "show/MusicOut.h"
#include "show/ShowFrame.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace zentor {
namespace {

constexpr int FadeTickMs = 16;

bool KeyOf(int qtKey, show::ShowKey& key) {
    using show::ShowKey;
    static constexpr std::pair<int, ShowKey> Keys[] = {
        {Qt::Key_Escape, ShowKey::Escape},
        {Qt::Key_Left, ShowKey::Left},
        {Qt::Key_Right, ShowKey::Right},
        {Qt::Key_Up, ShowKey::Up},
        {Qt::Key_Down, ShowKey::Down},
        {Qt::Key_PageUp, ShowKey::PageUp},
        {Qt::Key_PageDown, ShowKey::PageDown},
        {Qt::Key_Space, ShowKey::Space},
        {Qt::Key_F5, ShowKey::F5},
        {Qt::Key_M, ShowKey::M},
    };
    for (const auto& [qt, mapped] : Keys)
        if (qt == qtKey)
            return key = mapped, true;
    return false;
}

} // namespace

PlayerWindow::PlayerWindow(const ShowPictures& pictures, const show::ShowSettings& settings,
                           std::function<MusicOut*()> startMusic)
    : pictures_(pictures), model_(settings, 0, pictures.showOrder()),
      startMusic_(std::move(startMusic)) {
    clock_.start();
    tick_.setSingleShot(true);
    QObject::connect(&tick_, &QTimer::timeout, [this] { update(); });
}

show::PointerTarget PlayerWindow::pointerAt(QPointF pos) const {
    const show::FrameSize frame{pictures_.frame().width(), pictures_.frame().height()};
    const show::FramePoint at =
        show::ToFramePoint(frame, show::FitFrame(frame, width(), height()), pos.x(), pos.y());
    return model_.pointerAt(pictures_.contacts(), at.X, at.Y, now());
}

void PlayerWindow::paintEvent(QPaintEvent*) {
    const int64_t t = now();
    const show::ScreenState state = model_.at(t);
    QPainter p(this);
    p.drawImage(0, 0, PaintShowFrame(pictures_, state, size(), model_.hoverIcon()));
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
    if (r == show::ShowReaction::Redraw)
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
    const show::PointerTarget target = pointerAt(event->position());
    setCursor(target.hand() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    react(model_.hover(target));
}

void PlayerWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const show::PointerTarget target = pointerAt(event->position());
    const show::ShowReaction r = model_.click(target, now());
    if (r == show::ShowReaction::OpenLink)
        QDesktopServices::openUrl(QUrl::fromUserInput(CodePage::active().decode(
            QByteArrayView(target.Link.data(), qsizetype(target.Link.size())))));
    else
        react(r);
}

} // namespace zentor
