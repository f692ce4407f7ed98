#pragma once

#include <QByteArray>

namespace zentor {

struct PackageContents;

// Where a player's music goes: Qt Multimedia in the player, a recorder in tests.
class MusicOut {
public:
    virtual ~MusicOut() = default;
    // Starts the encoded music at `volume` (0..1), from its start again at its end when
    // `loop`. False when it cannot be played; the show then goes on without sound.
    virtual bool play(const QByteArray& bytes, double volume, bool loop) = 0;
    virtual void setMuted(bool muted) = 0;
};

// Starts the package's music as its header asks (MusicVolume / 1000, looping with
// AutoRepeat 1). False, with nothing started, when the package carries none.
bool StartMusic(MusicOut& out, const PackageContents& package);

} // namespace zentor
