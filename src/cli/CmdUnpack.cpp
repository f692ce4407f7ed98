#include "cli/Cli.h"

#include "generate/PackageReader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace zentor::cli {
namespace {

int runUnpack(const Args& args, const ProcessContext&) {
    if (args.positional.size() != 2)
        return Fail(QStringLiteral("usage: zentor-cli unpack PACKAGE DIR [--as qdv|exe]"),
                    ExitUsage);
    const QString path = args.positional[0];
    const QString format =
        args.options.value(QStringLiteral("--as"), QFileInfo(path).suffix().toLower());
    if (format != QLatin1String("qdv") && format != QLatin1String("exe"))
        return Fail(QStringLiteral("%1: unknown kind of package \"%2\"; name it .qdv or .exe or "
                                   "give --as qdv|exe")
                        .arg(path, format),
                    ExitUsage);
    PackageContents package;
    QString error;
    if (!ReadPackage(path, format == QLatin1String("exe") ? PackageForm::SelfRun : PackageForm::Qdv,
                     package, error))
        return Fail(error);
    if (!package.Complete)
        return Fail(QStringLiteral("%1 is not a package: %2")
                        .arg(path, package.Problems.join(QStringLiteral("; "))));

    const QDir dir(args.positional[1]);
    if (!QDir().mkpath(dir.path()))
        return Fail(QStringLiteral("cannot create %1").arg(dir.path()));
    for (const QString& problem : package.Problems)
        Warn(QStringLiteral("%1: %2").arg(path, problem));
    for (int entry = 0; entry < Package::EntryCount; ++entry) {
        if (!package.usable(entry))
            continue;
        const QByteArray bytes = package.blob(entry);
        QFile out(dir.filePath(BlobFileName(entry, bytes)));
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            out.write(bytes) != bytes.size())
            return Fail(QStringLiteral("cannot write %1").arg(out.fileName()));
    }
    return package.Problems.isEmpty() ? ExitOk : ExitError;
}

const Register reg({QStringLiteral("unpack"),
                    QStringLiteral("unpack PACKAGE DIR [--as qdv|exe]"),
                    {QStringLiteral("--as")},
                    runUnpack});

} // namespace
} // namespace zentor::cli
