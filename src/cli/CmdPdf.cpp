#include "cli/Cli.h"

#include "export/PdfExport.h"
#include "io/ScriptFile.h"
#include "model/Document.h"
#include "render/ResImages.h"

namespace zentor::cli {
namespace {

const char* const Usage = "pdf PROJECT.qds OUT.pdf";

int runPdf(const Args& args, const ProcessContext& ctx) {
    if (args.positional.size() != 2 || !args.flags.isEmpty())
        return Fail(QStringLiteral("usage: zentor-cli ") + QLatin1String(Usage), ExitUsage);
    LoadReport report;
    const auto doc = OpenProject(args.positional[0], ctx, report);
    if (!doc)
        return ExitError;
    if (!report.complete)
        Warn(QStringLiteral("%1 is damaged or cut short; exporting what could be read")
                 .arg(args.positional[0]));
    QString error;
    if (!ExportPdf(*doc, args.positional[1], ResImages::load(), ctx, &error))
        return Fail(error);
    return ExitOk;
}

const Register reg({QStringLiteral("pdf"), QString::fromLatin1(Usage), {}, runPdf});

} // namespace
} // namespace zentor::cli
