#include "cli/Cli.h"

#include "check/CheckDocument.h"
#include "check/SpellSettings.h"
#include "io/ScriptFile.h"
#include "model/Document.h"

#include <cstdio>

namespace zentor::cli {
namespace {

const char* const Usage = "check PROJECT.qds [--json] [--lang LL_CC]";

int runCheck(const Args& args, const ProcessContext& ctx) {
    const bool json = args.has(QStringLiteral("--json"));
    if (args.positional.size() != 1 || args.flags.size() != (json ? 1 : 0))
        return Fail(QStringLiteral("usage: zentor-cli ") + QLatin1String(Usage), ExitUsage);
    LoadReport report;
    const auto doc = OpenProject(args.positional[0], ctx, report);
    if (!doc)
        return ExitError;
    if (!report.complete)
        Warn(QStringLiteral("%1 is damaged or cut short; checking what could be read")
                 .arg(args.positional[0]));

    CheckOptions options;
    options.language = SpellingLanguage(args.options.value(QStringLiteral("--lang")));
    options.personalWords = PersonalWords();
    const std::vector<Finding> findings = CheckDocument(*doc, options);

    if (json) {
        const QByteArray text = FindingsJson(findings);
        std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
    } else {
        QString text;
        for (const Finding& f : findings)
            text += FindingLine(*doc, f) + QLatin1Char('\n');
        if (findings.empty())
            text = NothingToFix() + QLatin1Char('\n');
        const QByteArray bytes = text.toUtf8();
        std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    }
    return findings.empty() ? ExitOk : ExitError;
}

const Register
    check({QStringLiteral("check"), QLatin1String(Usage), {QStringLiteral("--lang")}, runCheck});

} // namespace
} // namespace zentor::cli
