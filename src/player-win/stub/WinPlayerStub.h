#pragma once

#include <QByteArray>

namespace zentor {

// The Windows player's bytes that open a self-running résumé for Windows: zentor-player.exe
// padded to exactly ZENTOR_PLAYER_SIZE bytes. Empty when this build has no Windows player
// (no cross compiler).
QByteArray WindowsPlayerStub();

} // namespace zentor
