#pragma once

#include "show/MusicOut.h"

#include <QAudioOutput>
#include <QBuffer>
#include <QMediaPlayer>

namespace zentor {

// The music through Qt Multimedia, fed from memory. An error (a format no decoder takes)
// stops only the sound.
class QtMusicOut : public MusicOut {
public:
    QtMusicOut();
    bool play(const QByteArray& bytes, double volume, bool loop) override;
    void setMuted(bool muted) override;

private:
    QMediaPlayer player_;
    QAudioOutput audio_;
    QBuffer buffer_;
};

} // namespace zentor
