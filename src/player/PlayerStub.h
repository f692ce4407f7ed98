#pragma once

#include <QByteArray>

namespace zentor {

// The player's bytes that open every self-running résumé: zentor-player padded to exactly
// ZENTOR_PLAYER_SIZE bytes. Empty if the resource is missing.
QByteArray PlayerStub();

} // namespace zentor
