#pragma once

#include "export/VideoAudio.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

namespace zentor {

// An MP4 being written: H.264 yuv420p pictures on a 1/fps clock (a frame that is not
// sent keeps the previous picture on screen, which is how holds cost nothing) and AAC
// stereo sound. Every call returns false with error() set once something fails.
class VideoEncoder {
public:
    VideoEncoder();
    ~VideoEncoder();

    bool open(const QString& path, QSize size, int fps, const QString& title, bool withAudio);
    // `picture` is scaled to the video's size; `frame` counts 1/fps from the start.
    bool writeFrame(const QImage& picture, int64_t frame);
    // Sound samples [from, to) of `track`, sent as the pictures reach them.
    bool writeAudio(const StereoTrack& track, size_t to);
    bool finish();

    QString error() const { return error_; }

private:
    struct State;
    bool fail(const QString& what, int code = 0);
    bool drain(bool video);
    std::unique_ptr<State> s_;
    QString error_;
};

} // namespace zentor
