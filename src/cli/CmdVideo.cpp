#include "cli/Cli.h"

#include "export/PackageShowFrames.h"
#include "export/VideoExport.h"
#include "io/ScriptFile.h"
#include "model/Document.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"

namespace zentor::cli {
namespace {

const char* const Usage = "video PROJECT.qds OUT.mp4 [--height N] [--fps F]";

bool numberOption(const Args& args, const QString& name, int low, int high, int& value) {
    if (!args.options.contains(name))
        return true;
    bool ok = false;
    value = args.options.value(name).toInt(&ok);
    return ok && value >= low && value <= high;
}

int runVideo(const Args& args, const ProcessContext& ctx) {
    const QString usage = QStringLiteral("usage: zentor-cli ") + QLatin1String(Usage);
    if (args.positional.size() != 2)
        return Fail(usage, ExitUsage);
    if (!args.flags.isEmpty())
        return Fail(QStringLiteral("unknown option %1\n").arg(args.flags.first()) + usage,
                    ExitUsage);
    const QString project = args.positional[0];
    const QString out = args.positional[1];
    if (!out.endsWith(QLatin1String(".mp4"), Qt::CaseInsensitive))
        return Fail(QStringLiteral("%1: OUT must end in .mp4").arg(out), ExitUsage);
    VideoOptions options;
    if (!numberOption(args, QStringLiteral("--height"), 2, MaxFrameSide, options.height))
        return Fail(QStringLiteral("--height must be a number from 2 to %1").arg(MaxFrameSide),
                    ExitUsage);
    if (!numberOption(args, QStringLiteral("--fps"), 1, 120, options.fps))
        return Fail(QStringLiteral("--fps must be a number from 1 to 120"), ExitUsage);

    LoadReport report;
    const auto doc = OpenProject(project, ctx, report);
    if (!doc)
        return ExitError;
    if (!report.complete)
        return Fail(QStringLiteral("%1 is damaged or cut short").arg(project));
    if (!CheckFrameDrawable(project, *doc))
        return ExitError;

    const ResImages res = ResImages::load();
    QStringList warnings;
    QString error;
    const auto show = DocumentShowFrames(*doc, ctx, res, warnings, error);
    if (!show)
        return Fail(QStringLiteral("%1: %2").arg(project, error));
    VideoResult result = ExportVideo(*doc, *show, out, options);
    result.warnings = warnings + result.warnings;
    for (const QString& w : result.warnings)
        Warn(w);
    if (result.outcome != VideoResult::Outcome::Written)
        return Fail(QStringLiteral("%1: %2").arg(out, result.error));
    return ExitOk;
}

const Register reg({QStringLiteral("video"),
                    QString::fromLatin1(Usage),
                    {QStringLiteral("--height"), QStringLiteral("--fps")},
                    runVideo});

} // namespace
} // namespace zentor::cli
