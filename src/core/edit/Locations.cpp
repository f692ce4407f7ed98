#include "edit/Locations.h"

#include "io/FileUtil.h"
#include "model/Document.h"
#include "model/ProcessContext.h"

#include <QFileInfo>

namespace zentor {

QString PlayerProgram(const ProcessContext& ctx) {
#ifdef Q_OS_WIN
    return ctx.AppPath + QStringLiteral("zentor-player.exe");
#else
    return ctx.AppPath + QStringLiteral("zentor-player");
#endif
}

QString PlayPackagePath(const ProcessContext& ctx, const Document& doc) {
    const QString name = doc.ScriptPath.isEmpty() ? QStringLiteral("resume")
                                                  : QFileInfo(doc.ScriptPath).completeBaseName();
    return ctx.WorkFolder + name + QStringLiteral(".qdv");
}

QString ManualPath(const ProcessContext& ctx) {
    for (const char* place : {"doc/manual.html", "../share/doc/zentor/manual.html"}) {
        const QString path = QFileInfo(ctx.AppPath + QLatin1String(place)).absoluteFilePath();
        if (IsRegularFile(path))
            return path;
    }
    return QString();
}

} // namespace zentor
