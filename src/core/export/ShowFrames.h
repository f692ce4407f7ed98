#pragma once

#include <QImage>
#include <QSize>

namespace zentor {

// What a video records: the picture of the show at any moment, and how long it stays still
// so that a hold is encoded once instead of once per frame.
class ShowFrames {
public:
    virtual ~ShowFrames() = default;

    virtual QSize frameSize() const = 0;
    virtual int durationMs() const = 0;

    // The picture on screen at `ms` (0 <= ms < durationMs()); null when it cannot be drawn.
    virtual QImage frameAt(int ms) = 0;

    // The last moment up to which the picture stays exactly as at `ms`.
    virtual int stillUntil(int ms) const = 0;

    // Which of the show's steps (1-based) `ms` falls in, for progress.
    virtual int stepAt(int ms) const = 0;
    virtual int stepCount() const = 0;
};

} // namespace zentor
