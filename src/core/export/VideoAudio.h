#pragma once

#include <QString>

#include <vector>

namespace zentor {

inline constexpr int VideoSampleRate = 48000;

// Stereo sound as planar floats at VideoSampleRate.
struct StereoTrack {
    std::vector<float> left;
    std::vector<float> right;
    size_t size() const { return left.size(); }
};

// Decodes a whole music file; on failure the track is empty and `error` says why.
StereoTrack DecodeMusic(const QString& path, QString& error);

// The music as the show plays it for `samples` samples: scaled by `volume` (0..1), looped or
// played once, and faded out over the last second so a cut does not click.
StereoTrack ShowSoundtrack(const StereoTrack& music, size_t samples, double volume, bool loop);

} // namespace zentor
