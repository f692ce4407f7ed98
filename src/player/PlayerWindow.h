#pragma once

#include "show/ShowModel.h"
#include "show/ShowPictures.h"

#include <QElapsedTimer>
#include <QRasterWindow>
#include <QTimer>

#include <functional>

namespace zentor {

class MusicOut;

// Carries out the show model full screen: paints what it says on a steady clock, redraws
// when the picture next changes (about 60 times a second only while a fade runs), and
// passes keys, clicks on the ring and on contact links to it.
class PlayerWindow : public QRasterWindow {
public:
    // `startMusic` runs once the first frame is on screen, so that setting up the sound
    // never delays the picture; it returns where the music goes (or nullptr).
    PlayerWindow(const ShowPictures& pictures, const show::ShowSettings& settings,
                 std::function<MusicOut*()> startMusic);

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int64_t now() const { return clock_.elapsed(); }
    show::PointerTarget pointerAt(QPointF pos) const;
    void react(show::ShowReaction r);
    void schedule();

    const ShowPictures& pictures_;
    show::ShowModel model_;
    std::function<MusicOut*()> startMusic_;
    MusicOut* music_ = nullptr;
    QElapsedTimer clock_;
    QTimer tick_;
};

} // namespace zentor
