#include "cli/Cli.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cstdio>

namespace zentor::cli {

QList<Command>& Commands() {
    static QList<Command> commands;
    return commands;
}

int Fail(const QString& message, int status) {
    std::fprintf(stderr, "zentor-cli: %s\n", qPrintable(message));
    return status;
}

void Warn(const QString& message) {
    std::fprintf(stderr, "zentor-cli: warning: %s\n", qPrintable(message));
}

void PrintJson(const QJsonObject& obj) {
    const QByteArray text = QJsonDocument(obj).toJson(QJsonDocument::Indented);
    std::fwrite(text.constData(), 1, size_t(text.size()), stdout);
}

namespace {

// Asked for (--help): on stdout, success. Otherwise a usage error on stderr.
int usage(bool asked) {
    QString text = QStringLiteral("usage: zentor-cli COMMAND ...\n");
    for (const Command& c : Commands())
        text += QStringLiteral("  zentor-cli %1\n").arg(c.usage);
    std::fputs(qPrintable(text), asked ? stdout : stderr);
    return asked ? 0 : ExitUsage;
}

bool parse(const Command& cmd, const QStringList& words, Args& args, QString& error) {
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& w = words[i];
        if (w.startsWith(QLatin1String("--"))) {
            if (cmd.valueOptions.contains(w)) {
                if (i + 1 >= words.size()) {
                    error = w + QStringLiteral(" needs a value");
                    return false;
                }
                args.options.insert(w, words[++i]);
            } else {
                args.flags.append(w);
            }
        } else {
            args.positional.append(w);
        }
    }
    return true;
}

} // namespace
} // namespace zentor::cli

int main(int argc, char** argv) {
    using namespace zentor::cli;
    // Rendering needs fonts and a paint device, never a display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    zentor::PrepareRuntimeDir();
    zentor::KeepFreedMemory();
    QGuiApplication app(argc, argv);
    QStringList words = app.arguments().mid(1);
    if (words.isEmpty())
        return usage(false);
    if (words.first() == QLatin1String("help") || words.first() == QLatin1String("--help") ||
        words.first() == QLatin1String("-h"))
        return usage(true);
    const QString name = words.takeFirst();
    for (const Command& cmd : Commands()) {
        if (cmd.name != name)
            continue;
        Args args;
        QString error;
        if (!parse(cmd, words, args, error))
            return Fail(error + QStringLiteral("\nusage: zentor-cli ") + cmd.usage, ExitUsage);
        // A private work folder, so that several runs at once never share a temporary picture;
        // those of earlier runs that were killed midway are removed first.
        const QString program = QStringLiteral("zentor-cli");
        zentor::RemoveStaleWorkFolders(QDir::tempPath(), program);
        QTemporaryDir temp(zentor::PrivateWorkTemplate(QDir::tempPath(), program));
        const auto ctx =
            zentor::ProcessContext::create(QCoreApplication::applicationDirPath(), temp.path());
        return cmd.run(args, ctx);
    }
    Fail(QStringLiteral("unknown command \"%1\"").arg(name), ExitUsage);
    return usage(false);
}
