#pragma once

#include "show/ShowModel.h"
#include "show/ShowPictures.h"

#include <QElapsedTimer>
#include <QRasterWindow>
#include <QTimer>

namespace zentor {

class MusicOut;

// Carries out the show model full screen: paints what it says on a steady clock, redraws
// when the picture next changes (about 60 times a second only while a fade runs), and
// passes keys, clicks on the ring and on contact links to it.
class PlayerWindow : public QRasterWindow {
public:
    PlayerWindow(const ShowPictures& pictures, const show::ShowSettings& settings, MusicOut* music);

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int64_t now() const { return clock_.elapsed(); }
    bool onHome() const;
    QPoint toFrame(QPointF pos) const;
    void react(show::ShowReaction r);
    void schedule();

    const ShowPictures& pictures_;
    show::ShowModel model_;
    MusicOut* music_;
    QElapsedTimer clock_;
    QTimer tick_;
    show::IconRectTable ring_;
    int hover_ = 0;
};

} // namespace zentor
