#include "TestSupport.h"

#include "model/DefaultDocument.h"

#include <QFile>
#include <QProcess>

namespace zentor::test {

Sandbox::Sandbox() : ctx(ProcessContext::create(QStringLiteral(ZENTOR_BIN_DIR), dir.path())) {}

std::unique_ptr<Document> Sandbox::newDocument() const {
    auto doc = std::make_unique<Document>();
    NewDocument(*doc, ctx);
    return doc;
}

QByteArray ReadAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool WriteAll(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

int RunProcess(const QString& program, const QStringList& args, QByteArray* out, QByteArray* err,
               const QStringList& unset) {
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& name : unset)
        env.remove(name);
    p.setProcessEnvironment(env);
    p.start(program, args);
    if (!p.waitForFinished(120000)) {
        p.kill();
        p.waitForFinished();
        return -1;
    }
    if (out)
        *out = p.readAllStandardOutput();
    if (err)
        *err = p.readAllStandardError();
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

int RunCli(const QStringList& args, QByteArray* out, QByteArray* err) {
    return RunProcess(QStringLiteral(ZENTOR_CLI_PATH), args, out, err);
}

} // namespace zentor::test
