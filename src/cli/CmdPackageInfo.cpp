#include "cli/Cli.h"

namespace zentor::cli {

int InfoPackage(const QString& path, const QString&, const ProcessContext&) {
    return Fail(QStringLiteral("%1: reading packages is not available in this build").arg(path));
}

} // namespace zentor::cli
