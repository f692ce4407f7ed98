#pragma once

#include "model/Document.h"
#include "model/ProcessContext.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace zentor::test {

// A private temporary folder with a process context whose work folder lies inside it.
struct Sandbox {
    QTemporaryDir dir;
    ProcessContext ctx;
    Sandbox();
    QString path(const QString& name) const { return dir.filePath(name); }
    std::unique_ptr<Document> newDocument() const;
};

QByteArray ReadAll(const QString& path);
bool WriteAll(const QString& path, const QByteArray& bytes);

// Runs a program with the arguments and the environment less `unset`; returns the exit
// status (-1 for a crash or a hang), fills stdout and stderr.
int RunProcess(const QString& program, const QStringList& args, QByteArray* out = nullptr,
               QByteArray* err = nullptr, const QStringList& unset = {});

// Runs zentor-cli with the arguments; returns the exit status, fills stdout and stderr.
int RunCli(const QStringList& args, QByteArray* out = nullptr, QByteArray* err = nullptr);

} // namespace zentor::test
