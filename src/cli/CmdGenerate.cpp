#include "cli/Cli.h"

#include "check/CheckDocument.h"
#include "edit/Prompter.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"
#include "render/ResImages.h"

#include "PlayerStub.h"
#include "WinPlayerStub.h"

#include <QFile>

#include <memory>

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

// Says which pictures cannot be read, as Check Résumé finds them, and how many. Resampled
// ones never fail to read back (an unreadable source turns black) and a missing page picture
// leaves its place empty, silently in the package; the generator itself says which icons and
// music it could not read.
int WarnUnreadablePictures(const Document& doc) {
    int warnings = 0;
    for (const UnreadableMedium& m : UnreadableMedia(doc)) {
        const int i = m.field.index;
        QString what;
        int tab = 0;
        switch (m.field.kind) {
        case MediaFieldKind::UserIcon:
        case MediaFieldKind::BackPicture:
            Warn(QStringLiteral("cannot read the %1 %2; the package gets a black picture")
                     .arg(m.field.kind == MediaFieldKind::UserIcon
                              ? QStringLiteral("user icon")
                              : QStringLiteral("background picture"),
                          m.path));
            ++warnings;
            continue;
        case MediaFieldKind::TabPicture:
            tab = i;
            what = QStringLiteral("tab picture");
            break;
        case MediaFieldKind::ObjectPicture:
            tab = doc.Images[size_t(i)].TabNo;
            what = QStringLiteral("picture of ") + doc.Images[size_t(i)].Name.text().trimmed();
            break;
        default:
            continue;
        }
        Warn(QStringLiteral("cannot read the %1 on page %2: %3; the page is drawn without it")
                 .arg(what, doc.Tabs[size_t(tab)].Name.text().trimmed(), m.path));
        ++warnings;
    }
    return warnings;
}

int runGenerate(const Args& args, const ProcessContext& ctx) {
    if (args.positional.size() != 2)
        return Fail(QStringLiteral("usage: zentor-cli generate PROJECT.qds OUT [--selfrun] "
                                   "[--player linux|windows] [--strict]"),
                    ExitUsage);
    const QString project = args.positional[0];
    const QString out = args.positional[1];
    // Naming a player asks for a self-running file; a self-running file is for Windows
    // unless the Linux player is asked for.
    const QString player = args.options.value(QStringLiteral("--player"));
    if (!player.isEmpty() && player != QLatin1String("linux") && player != QLatin1String("windows"))
        return Fail(QStringLiteral("unknown player \"%1\"; use linux or windows").arg(player),
                    ExitUsage);
    const bool selfRun = !player.isEmpty() || args.has(QStringLiteral("--selfrun")) ||
                         out.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive);
    const QByteArray playerBytes = !selfRun                           ? QByteArray()
                                   : player == QLatin1String("linux") ? PlayerStub()
                                                                      : WindowsPlayerStub();
    if (selfRun && playerBytes.isEmpty())
        return Fail(QStringLiteral("this build has no Windows player; use --player linux"),
                    ExitUsage);
    const bool strict = args.has(QStringLiteral("--strict"));

    LoadReport report;
    const auto doc = OpenProject(project, ctx, report);
    if (!doc)
        return ExitError;
    if (!report.complete)
        Warn(QStringLiteral("%1 is damaged or cut short; generating what could be read")
                 .arg(project));

    StderrPrompter prompter;
    prompter.warnings += WarnUnreadablePictures(*doc);

    const ResImages res = ResImages::load();
    RenderedPictures rendered(res);
    ResumeGenerator gen(ctx, prompter, rendered);
    gen.setParallel(true);
    if (selfRun)
        gen.setPlayer(playerBytes);
    // Strict runs write beside the target first, so a refusal leaves an older file untouched.
    const QString target = strict ? out + QStringLiteral(".part") : out;
    if (gen.writePackage(*doc, target, selfRun) != ResumeGenerator::Outcome::Written) {
        if (strict)
            QFile::remove(target);
        return ExitError;
    }
    if (strict && prompter.warnings > 0) {
        QFile::remove(target);
        return Fail(QStringLiteral("%1 source(s) could not be read; nothing written (--strict)")
                        .arg(prompter.warnings));
    }
    if (strict) {
        QFile::remove(out);
        if (!QFile::rename(target, out)) {
            QFile::remove(target);
            return Fail(QStringLiteral("cannot write %1").arg(out));
        }
    }
    return ExitOk;
}

const Register reg({QStringLiteral("generate"),
                    QStringLiteral("generate PROJECT.qds OUT [--selfrun] [--player linux|windows] "
                                   "[--strict]"),
                    {QStringLiteral("--player")},
                    runGenerate});

} // namespace
} // namespace zentor::cli
