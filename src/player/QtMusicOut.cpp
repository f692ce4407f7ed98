#include "QtMusicOut.h"

#include <QUrl>

namespace zentor {

QtMusicOut::QtMusicOut() {
    player_.setAudioOutput(&audio_);
}

bool QtMusicOut::play(const QByteArray& bytes, double volume, bool loop) {
    buffer_.setData(bytes);
    if (!buffer_.open(QIODevice::ReadOnly))
        return false;
    audio_.setVolume(float(volume));
    player_.setLoops(loop ? QMediaPlayer::Infinite : 1);
    // The URL only names the stream for the decoder's guess of its type.
    player_.setSourceDevice(&buffer_, QUrl(QStringLiteral("music.mp3")));
    player_.play();
    return player_.error() == QMediaPlayer::NoError;
}

void QtMusicOut::setMuted(bool muted) {
    audio_.setMuted(muted);
}

} // namespace zentor
