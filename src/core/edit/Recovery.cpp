#include "edit/Recovery.h"

#include "io/FileUtil.h"
#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

#include <unistd.h>

namespace zentor {

namespace {

const QString Prefix = QStringLiteral("recovery-");

QString PathFileOf(const QString& recovery) {
    return recovery.chopped(4) + QStringLiteral(".path");
}

void RemoveFiles(const QString& recovery) {
    QFile::remove(recovery);
    QFile::remove(PathFileOf(recovery));
}

QStringList RecoveryIn(const QStringList& folders) {
    QFileInfoList files;
    for (const QString& folder : folders)
        files += QDir(folder).entryInfoList({Prefix + QStringLiteral("*.qds")}, QDir::Files);
    std::sort(files.begin(), files.end(), [](const QFileInfo& a, const QFileInfo& b) {
        return a.lastModified() > b.lastModified();
    });
    QStringList found;
    for (const QFileInfo& f : files)
        found << f.filePath();
    return found;
}

QStringList LeftBehindFolders(const ProcessContext& ctx) {
    return ctx.Program.isEmpty() ? QStringList() : StaleWorkFolders(ctx.RunsFolder, ctx.Program);
}

} // namespace

QString RecoveryFile(const ProcessContext& ctx, qint64 pid) {
    return ctx.WorkFolder + Prefix + QString::number(pid) + QStringLiteral(".qds");
}

bool Autosave(const Document& doc, const ProcessContext& ctx) {
    const QString file = RecoveryFile(ctx, getpid());
    if (!doc.Dirty) {
        RemoveFiles(file);
        return false;
    }
    Document copy = doc; // serializing recomputes the counts into the header
    // The path first: a recovery file never stands without it.
    return ctx.ensureWorkFolder() &&
           WriteFileAtomically(PathFileOf(file), doc.ScriptPath.toUtf8()) &&
           WriteFileAtomically(file, SerializeScript(copy));
}

void RemoveRecovery(const ProcessContext& ctx) {
    RemoveFiles(RecoveryFile(ctx, getpid()));
}

QStringList LeftBehindRecovery(const ProcessContext& ctx) {
    return RecoveryIn(LeftBehindFolders(ctx));
}

bool OfferRecovery(Document& doc, const ProcessContext& ctx, Prompter& prompter) {
    // Listed once: a run that dies while the question is open keeps its folder for the next start.
    const QStringList left = LeftBehindFolders(ctx);
    const QStringList found = RecoveryIn(left);
    const auto removeLeft = [&left] {
        for (const QString& folder : left)
            QDir(folder).removeRecursively();
    };
    if (found.isEmpty()) {
        removeLeft();
        return false;
    }
    const bool restore =
        prompter.ask(QStringLiteral("Recover Work"),
                     QStringLiteral("Vitara Zentor did not end normally last time. Do you want "
                                    "to restore the work it had not saved?"),
                     Prompter::Buttons::YesNo, Prompter::Icon::Question,
                     Prompter::Answer::Yes) == Prompter::Answer::Yes;
    bool restored = false;
    if (restore) {
        QFile f(found.first());
        if (f.open(QIODevice::ReadOnly)) {
            const QByteArray bytes = f.readAll();
            QFile pathFile(PathFileOf(found.first()));
            const QString path = pathFile.open(QIODevice::ReadOnly)
                                     ? QString::fromUtf8(pathFile.readAll())
                                     : QString();
            NewDocument(doc, ctx);
            LoadScriptBytes(doc, bytes);
            doc.ScriptPath = path;
            doc.Dirty = true;
            restored = true;
        }
    }
    // Older ones are earlier states of lost runs: offering them one by one helps nobody.
    removeLeft();
    return restored;
}

} // namespace zentor
