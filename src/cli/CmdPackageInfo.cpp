#include "cli/Cli.h"

#include "generate/PackageReader.h"

namespace zentor::cli {

int InfoPackage(const QString& path, const QString& format, const ProcessContext&) {
    PackageContents package;
    QString error;
    const PackageForm form =
        format == QLatin1String("exe") ? PackageForm::SelfRun : PackageForm::Qdv;
    if (!ReadPackage(path, form, package, error))
        return Fail(error);
    if (!package.Complete)
        return Fail(QStringLiteral("%1 is not a package: %2")
                        .arg(path, package.Problems.join(QStringLiteral("; "))));
    PrintJson(PackageToJson(package));
    for (const QString& problem : package.Problems)
        Warn(QStringLiteral("%1: %2").arg(path, problem));
    return package.Problems.isEmpty() ? ExitOk : ExitError;
}

} // namespace zentor::cli
