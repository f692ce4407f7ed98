#include "WinPlayerStub.h"

#include <QFile>

#ifdef ZENTOR_HAVE_WINPLAYER
// Resources in a static library are only linked in when something refers to them.
static void initWinPlayerResource() {
    Q_INIT_RESOURCE(zentor_winplayer);
}
#endif

namespace zentor {

QByteArray WindowsPlayerStub() {
#ifdef ZENTOR_HAVE_WINPLAYER
    initWinPlayerResource();
    QFile res(QStringLiteral(":/player/RES-win"));
    return res.open(QIODevice::ReadOnly) ? res.readAll() : QByteArray();
#else
    return QByteArray();
#endif
}

} // namespace zentor
