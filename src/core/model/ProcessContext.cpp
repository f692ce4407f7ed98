#include "model/ProcessContext.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <unistd.h>

namespace zentor {
namespace {
QString withSlash(QString path) {
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    return path;
}

ProcessContext WithWorkFolder(const QString& appDir, const QString& workFolder) {
    ProcessContext ctx;
    ctx.AppPath = withSlash(QDir(appDir).absolutePath());
    ctx.WorkFolder = withSlash(workFolder);
    ctx.TempImagePath = ctx.WorkFolder + QStringLiteral("tempgen.jpg");
    ctx.ensureWorkFolder();
    return ctx;
}

QString TempOr(const QString& tempDir) {
    return tempDir.isEmpty() ? QDir::tempPath() : tempDir;
}

} // namespace

ProcessContext ProcessContext::create(const QString& appDir, const QString& tempDir) {
    return WithWorkFolder(appDir, withSlash(TempOr(tempDir)) + QStringLiteral("Zentor/"));
}

ProcessContext ProcessContext::createPrivate(const QString& appDir, const QString& program,
                                             const QString& tempDir) {
    const QString temp = TempOr(tempDir);
    QTemporaryDir dir(PrivateWorkTemplate(temp, program));
    dir.setAutoRemove(false); // it goes with removeWorkFolder, or stays when the run is killed
    // Should the temp folder refuse a unique name, the template still names this run's pid.
    ProcessContext ctx =
        WithWorkFolder(appDir, dir.isValid() ? dir.path() : PrivateWorkTemplate(temp, program));
    ctx.Program = program;
    ctx.RunsFolder = withSlash(QDir(temp).absolutePath());
    return ctx;
}

bool ProcessContext::ensureWorkFolder() const {
    return QDir().mkpath(WorkFolder);
}

void ProcessContext::removeWorkFolder() const {
    if (!WorkFolder.isEmpty())
        QDir(WorkFolder).removeRecursively();
}

QString PrivateWorkTemplate(const QString& tempDir, const QString& program) {
    return withSlash(tempDir) + program + QLatin1Char('-') + QString::number(qint64(getpid())) +
           QStringLiteral("-XXXXXX");
}

QStringList StaleWorkFolders(const QString& tempDir, const QString& program) {
    const QString prefix = program + QLatin1Char('-');
    QStringList stale;
    const QStringList names =
        QDir(tempDir).entryList({prefix + QLatin1Char('*')}, QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        // The owner's pid stands between the prefix and the next '-'; anything else is not ours.
        const QString rest = name.mid(prefix.size());
        bool ok = false;
        const qint64 pid = rest.section(QLatin1Char('-'), 0, 0).toLongLong(&ok);
        if (!ok || pid <= 0 || !rest.contains(QLatin1Char('-')))
            continue;
        if (ProcessGone(pid))
            stale << withSlash(tempDir) + name;
    }
    return stale;
}

int RemoveStaleWorkFolders(const QString& tempDir, const QString& program) {
    int removed = 0;
    for (const QString& folder : StaleWorkFolders(tempDir, program))
        if (QDir(folder).removeRecursively())
            ++removed;
    return removed;
}

bool ProcessGone(qint64 pid) {
    return ::kill(pid_t(pid), 0) != 0 && errno == ESRCH;
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

void KeepFreedMemory() {
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 32 << 20); // the largest the heap takes
    mallopt(M_TRIM_THRESHOLD, 256 << 20);
#endif
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
