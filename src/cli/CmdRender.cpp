#include "cli/Cli.h"

#include "io/FileUtil.h"
#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"
#include "render/ImageSave.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/WorkspacePainter.h"

#include <memory>

namespace zentor::cli {
namespace {

const char* const Usage = "render PROJECT.qds PAGE OUT [--view]";

int runRender(const Args& args, const ProcessContext& ctx) {
    const QString usage = QStringLiteral("usage: zentor-cli ") + QLatin1String(Usage);
    if (args.positional.size() != 3)
        return Fail(usage, ExitUsage);
    for (const QString& flag : args.flags)
        if (flag != QLatin1String("--view"))
            return Fail(QStringLiteral("unknown option %1\n").arg(flag) + usage, ExitUsage);
    const QString project = args.positional[0];
    const QString out = args.positional[2];
    const bool view = args.has(QStringLiteral("--view"));

    bool ok = false;
    const int page = args.positional[1].toInt(&ok);
    const int first = view ? 0 : 1;
    if (!ok || page < first || page > SlideShowTab)
        return Fail(QStringLiteral("PAGE must be a number from %1 to 8, not \"%2\"")
                        .arg(first)
                        .arg(args.positional[1]),
                    ExitUsage);
    if (SaveFormatFor(out).isEmpty())
        return Fail(QStringLiteral("%1: OUT must end in .jpg or .png").arg(out), ExitUsage);

    LoadReport report;
    const auto doc = OpenProject(project, ctx, report);
    if (!doc)
        return ExitError;
    if (!report.complete)
        Warn(QStringLiteral("%1 is damaged or cut short; what it lacks is drawn as the default "
                            "document has it")
                 .arg(project));
    if (!CheckFrameDrawable(project, *doc))
        return ExitError;

    const ResImages res = ResImages::load();
    PictureCache cache;
    const QImage img = view ? PaintWorkspace(*doc, page, 0, res, ctx, &cache)
                            : RenderPageImage(*doc, page, res, &cache);
    if (img.isNull())
        return Fail(QStringLiteral("%1: page %2 could not be drawn").arg(project).arg(page));
    if (!SaveImageAs(img, out, 95))
        return Fail(QStringLiteral("cannot write %1").arg(out));
    return ExitOk;
}

const Register reg({QStringLiteral("render"), QString::fromLatin1(Usage), {}, runRender});

} // namespace
} // namespace zentor::cli
