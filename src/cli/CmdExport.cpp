#include "cli/Cli.h"

#include "export/ExportCommand.h"
#include "io/ScriptFile.h"
#include "model/Document.h"
#include "render/ResImages.h"

namespace zentor::cli {
namespace {

int runExport(ExportKind kind, const QString& usage, const Args& args, const ProcessContext& ctx) {
    if (args.positional.size() != 2 || !args.flags.isEmpty())
        return Fail(QStringLiteral("usage: zentor-cli ") + usage, ExitUsage);
    LoadReport report;
    const auto doc = OpenProject(args.positional[0], ctx, report);
    if (!doc)
        return ExitError;
    if (!report.complete)
        Warn(QStringLiteral("%1 is damaged or cut short; exporting what could be read")
                 .arg(args.positional[0]));
    QString error;
    if (!WriteExport(kind, *doc, args.positional[1], ResImages::load(), ctx, &error))
        return Fail(error);
    return ExitOk;
}

Command exportCommand(const char* name, const char* usage, ExportKind kind) {
    const QString u = QString::fromLatin1(usage);
    return {
        QString::fromLatin1(name), u, {}, [kind, u](const Args& args, const ProcessContext& ctx) {
            return runExport(kind, u, args, ctx);
        }};
}

const Register pdf(exportCommand("pdf", "pdf PROJECT.qds OUT.pdf", ExportKind::Pdf));
const Register html(exportCommand("html", "html PROJECT.qds OUT.html", ExportKind::WebPage));

} // namespace
} // namespace zentor::cli
