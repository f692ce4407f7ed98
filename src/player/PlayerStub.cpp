#include "PlayerStub.h"

#include <QFile>

// Resources in a static library are only linked in when something refers to them.
static void initPlayerResource() {
    Q_INIT_RESOURCE(zentor_player);
}

namespace zentor {

QByteArray PlayerStub() {
    initPlayerResource();
    QFile res(QStringLiteral(":/player/RES"));
    return res.open(QIODevice::ReadOnly) ? res.readAll() : QByteArray();
}

} // namespace zentor
