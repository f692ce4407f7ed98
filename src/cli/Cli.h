#pragma once

#include "model/ProcessContext.h"

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace zentor::cli {

// Exit statuses of zentor-cli.
inline constexpr int ExitOk = 0;
inline constexpr int ExitError = 1;
inline constexpr int ExitUsage = 2;

// The arguments of one command, options split from positional words.
struct Args {
    QStringList positional;
    QStringList flags;               // "--selfrun", "--view", ...
    QHash<QString, QString> options; // "--as" -> "qds"
    bool has(const QString& flag) const { return flags.contains(flag); }
};

struct Command {
    QString name;
    QString usage;            // the synopsis printed by "zentor-cli help"
    QStringList valueOptions; // options that take a value, e.g. "--as"
    std::function<int(const Args&, const ProcessContext&)> run;
};

// Every command registers itself here; main() dispatches by name.
QList<Command>& Commands();
struct Register {
    explicit Register(Command c) { Commands().append(std::move(c)); }
};

// Messages for the user: errors to stderr with the program's name in front.
int Fail(const QString& message, int status = ExitError);
void Warn(const QString& message);
void PrintJson(const QJsonObject& obj);

} // namespace zentor::cli

namespace zentor {
struct Document;
struct LoadReport;
} // namespace zentor

namespace zentor::cli {
// Loads a project over the default document. When the file cannot be read, says so on
// stderr and returns nullptr; `report` tells how far a damaged file went.
std::unique_ptr<Document> OpenProject(const QString& path, const ProcessContext& ctx,
                                      LoadReport& report);

// Says on stderr (and returns false) when the document's frame size cannot be drawn.
bool CheckFrameDrawable(const QString& project, const Document& doc);

// `info` of a package (.qdv or self-running); format is "qdv" or "exe".
int InfoPackage(const QString& path, const QString& format, const ProcessContext& ctx);
} // namespace zentor::cli
