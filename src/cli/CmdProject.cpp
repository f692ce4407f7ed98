#include "cli/Cli.h"

#include "io/FileUtil.h"
#include "io/MediaFiles.h"
#include "io/ProjectJson.h"
#include "io/ScriptFile.h"
#include "model/CodePage.h"
#include "model/CodePageCheck.h"
#include "model/DefaultDocument.h"
#include "render/PageCompositor.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>

#include <memory>

namespace zentor::cli {
namespace {

int runNew(const Args& args, const ProcessContext& ctx) {
    if (args.positional.size() != 1)
        return Fail(QStringLiteral("usage: zentor-cli new OUT.qds"), ExitUsage);
    auto doc = std::make_unique<Document>();
    NewDocument(*doc, ctx);
    if (!SaveScript(*doc, args.positional[0]))
        return Fail(QStringLiteral("cannot write %1").arg(args.positional[0]));
    return ExitOk;
}

int infoProject(const QString& path, const ProcessContext& ctx) {
    LoadReport report;
    const auto doc = OpenProject(path, ctx, report);
    if (!doc)
        return ExitError;
    if (!report.complete)
        Warn(QStringLiteral("%1 is damaged or cut short (%2 bytes): read %3 of 8 tabs, %4 texts, "
                            "%5 images")
                 .arg(path)
                 .arg(report.fileSize)
                 .arg(report.tabsRead)
                 .arg(report.textsRead)
                 .arg(report.imagesRead));
    PrintJson(ProjectToJson(*doc, report.textsRead, report.imagesRead));
    // Told, not failed: the project itself was read.
    for (const QString& file : MissingMedia(*doc))
        Warn(QStringLiteral("%1: missing file %2").arg(path, file));
    return ExitOk;
}

int runInfo(const Args& args, const ProcessContext& ctx) {
    if (args.positional.size() != 1)
        return Fail(QStringLiteral("usage: zentor-cli info FILE [--as qds|qdv|exe]"), ExitUsage);
    const QString path = args.positional[0];
    QString format = args.options.value(QStringLiteral("--as"), QFileInfo(path).suffix().toLower());
    if (format == QLatin1String("qds"))
        return infoProject(path, ctx);
    if (format == QLatin1String("qdv") || format == QLatin1String("exe"))
        return InfoPackage(path, format, ctx);
    return Fail(QStringLiteral("%1: unknown kind of file \"%2\"; name it .qds, .qdv or .exe or "
                               "give --as qds|qdv|exe")
                    .arg(path, format),
                ExitUsage);
}

// Every string of the input ends up in a stored field; warns once per field naming the
// characters the code page would turn into '?'. Returns how many fields lose characters.
int warnUnstorable(const QJsonValue& value, const QString& field) {
    if (value.isString()) {
        const QString note = UnstorableNote(CodePage::active(), value.toString());
        if (!note.isEmpty())
            Warn(field + QStringLiteral(": ") + note);
        return note.isEmpty() ? 0 : 1;
    }
    int fields = 0;
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (qsizetype i = 0; i < array.size(); ++i)
            fields += warnUnstorable(array[i], QStringLiteral("%1[%2]").arg(field).arg(i));
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            fields +=
                warnUnstorable(it.value(), field.isEmpty() ? it.key() : field + u'.' + it.key());
    }
    return fields;
}

int runPack(const Args& args, const ProcessContext& ctx) {
    if (args.positional.size() != 2)
        return Fail(QStringLiteral("usage: zentor-cli pack IN.json OUT.qds [--strict]"), ExitUsage);
    QFile in(args.positional[0]);
    if (!IsRegularFile(args.positional[0]) || !in.open(QIODevice::ReadOnly))
        return Fail(QStringLiteral("cannot open %1").arg(args.positional[0]));
    QJsonParseError parseError;
    const QJsonDocument json = QJsonDocument::fromJson(in.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return Fail(QStringLiteral("%1: %2 at offset %3")
                        .arg(args.positional[0], parseError.errorString())
                        .arg(parseError.offset));
    if (!json.isObject())
        return Fail(QStringLiteral("%1: the top level must be an object").arg(args.positional[0]));
    auto doc = std::make_unique<Document>();
    NewDocument(*doc, ctx);
    const QString error = ApplyProjectJson(json.object(), *doc);
    if (!error.isEmpty())
        return Fail(QStringLiteral("%1: %2").arg(args.positional[0], error));
    const int lossy = warnUnstorable(json.object(), QString());
    if (lossy > 0 && args.has(QStringLiteral("--strict")))
        return Fail(
            QStringLiteral("%1 field(s) cannot be stored; nothing written (--strict)").arg(lossy));
    if (!SaveScript(*doc, args.positional[1]))
        return Fail(QStringLiteral("cannot write %1").arg(args.positional[1]));
    return ExitOk;
}

const Register regNew({QStringLiteral("new"), QStringLiteral("new OUT.qds"), {}, runNew});
const Register regInfo({QStringLiteral("info"),
                        QStringLiteral("info FILE [--as qds|qdv|exe]"),
                        {QStringLiteral("--as")},
                        runInfo});
const Register regPack(
    {QStringLiteral("pack"), QStringLiteral("pack IN.json OUT.qds [--strict]"), {}, runPack});

} // namespace

std::unique_ptr<Document> OpenProject(const QString& path, const ProcessContext& ctx,
                                      LoadReport& report) {
    // What the file does not hold stays as the default document has it.
    auto doc = std::make_unique<Document>();
    NewDocument(*doc, ctx);
    report = LoadScript(*doc, path);
    if (!report.opened) {
        Fail(QStringLiteral("cannot open %1: not a readable file").arg(path));
        return nullptr;
    }
    return doc;
}

bool CheckFrameDrawable(const QString& project, const Document& doc) {
    if (!FrameSize(doc).isEmpty())
        return true;
    Fail(QStringLiteral("%1: the frame size %2 x %3 cannot be drawn")
             .arg(project)
             .arg(doc.Header.FrameWidth)
             .arg(doc.Header.FrameHeight));
    return false;
}

} // namespace zentor::cli
