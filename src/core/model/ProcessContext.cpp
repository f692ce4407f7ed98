#include "model/ProcessContext.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

namespace zentor {
namespace {
QString withSlash(QString path) {
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    return path;
}
} // namespace

ProcessContext ProcessContext::create(const QString& appDir, const QString& tempDir) {
    ProcessContext ctx;
    ctx.AppPath = withSlash(QDir(appDir).absolutePath());
    const QString temp = tempDir.isEmpty() ? QDir::tempPath() : tempDir;
    ctx.WorkFolder = withSlash(temp) + QStringLiteral("Zentor/");
    ctx.TempImagePath = ctx.WorkFolder + QStringLiteral("tempgen.jpg");
    ctx.ensureWorkFolder();
    return ctx;
}

bool ProcessContext::ensureWorkFolder() const {
    return QDir().mkpath(WorkFolder);
}

void ProcessContext::removeWorkFolder() const {
    if (!WorkFolder.isEmpty())
        QDir(WorkFolder).removeRecursively();
}

void PrepareRuntimeDir() {
    if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        return;
    const QString dir =
        QDir::tempPath() + QStringLiteral("/zentor-runtime-") + QString::number(uint(getuid()));
    QDir().mkpath(dir);
    QFile::setPermissions(dir,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(dir));
}

QString CommandLineFromArguments(const QStringList& argsWithoutProgram) {
    QString line = argsWithoutProgram.join(QLatin1Char(' '));
    if (line.endsWith(QLatin1Char('"')))
        line.chop(1);
    if (line.startsWith(QLatin1Char('"')))
        line.remove(0, 1);
    return line;
}

} // namespace zentor
