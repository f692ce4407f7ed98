#include "cli/Cli.h"

#include "edit/Prompter.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "io/FileUtil.h"
#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"
#include "render/PictureLoader.h"
#include "render/ResImages.h"

#include "PlayerStub.h"

#include <QFile>

#include <memory>
#include <vector>

namespace zentor::cli {
namespace {

// Without a window, the generator's messages go to stderr. Nothing is asked: the path
// is used as given and replaced.
class StderrPrompter : public Prompter {
public:
    Answer ask(const QString& title, const QString& text, Buttons, Icon, Answer) override {
        if (title == QLatin1String("Generate QDV Error")) {
            Fail(text);
        } else {
            Warn(text);
            ++warnings;
        }
        return Answer::Ok;
    }
    QString chooseFile(bool, const QString&, const QString&, const QString&, const QString&,
                       const QString&) override {
        return QString();
    }
    uint32_t chooseColor() override { return 0; }
    int warnings = 0;
};

int runGenerate(const Args& args, const ProcessContext& ctx) {
    if (args.positional.size() != 2)
        return Fail(
            QStringLiteral("usage: zentor-cli generate PROJECT.qds OUT [--selfrun] [--strict]"),
            ExitUsage);
    const QString project = args.positional[0];
    const QString out = args.positional[1];
    const bool selfRun = args.has(QStringLiteral("--selfrun")) ||
                         out.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive);
    const bool strict = args.has(QStringLiteral("--strict"));

    LoadReport report;
    const auto doc = OpenProject(project, ctx, report);
    if (!doc)
        return ExitError;
    if (!report.complete)
        Warn(QStringLiteral("%1 is damaged or cut short; generating what could be read")
                 .arg(project));

    StderrPrompter prompter;
    // Resampled pictures never fail to read back (an unreadable source turns black), so
    // say here which of them could not be read.
    struct Picture {
        QString field;
        QString what;
        const char* outcome = "the package gets a black picture";
    };
    std::vector<Picture> pictures{
        {doc->Profile.UserIcon.trimNull(), QStringLiteral("user icon")},
        {doc->Header.BackPicture.trimNull(), QStringLiteral("background picture")}};
    const char* const leftOut = "the page is drawn without it";
    for (int tab = 1; tab <= MaxTab; ++tab)
        pictures.push_back({doc->Tabs[size_t(tab)].Picture.FileName.trimNull(),
                            QStringLiteral("picture of page %1").arg(tab), leftOut});
    for (const ImageElement& image : doc->Images)
        if (inUse(image))
            pictures.push_back({image.FileName.trimNull(),
                                QStringLiteral("picture \"%1\" on page %2")
                                    .arg(image.Name.trimNull())
                                    .arg(image.TabNo),
                                leftOut});
    for (const auto& p : pictures) {
        if (p.field.isEmpty())
            continue;
        const QString path = ResolvePath(doc->ScriptPath, p.field);
        if (ReadPictureSize(path).isEmpty()) {
            Warn(QStringLiteral("cannot read the %1 %2; %3")
                     .arg(p.what, path, QLatin1String(p.outcome)));
            ++prompter.warnings;
        }
    }

    const ResImages res = ResImages::load();
    RenderedPictures rendered(ctx, res);
    ResumeGenerator gen(ctx, prompter, rendered);
    gen.setParallel(true);
    if (selfRun)
        gen.setPlayer(PlayerStub());
    if (gen.writePackage(*doc, out, selfRun) != ResumeGenerator::Outcome::Written)
        return ExitError;
    if (strict && prompter.warnings > 0) {
        QFile::remove(out);
        return Fail(QStringLiteral("%1 source(s) could not be read; nothing written (--strict)")
                        .arg(prompter.warnings));
    }
    return ExitOk;
}

const Register reg({QStringLiteral("generate"),
                    QStringLiteral("generate PROJECT.qds OUT [--selfrun] [--strict]"),
                    {},
                    runGenerate});

} // namespace
} // namespace zentor::cli
