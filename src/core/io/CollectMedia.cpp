#include "io/CollectMedia.h"

#include "io/FileUtil.h"
#include "io/MediaFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStringList>

namespace zentor {

namespace {

bool SameBytes(const QString& a, const QString& b) {
    QByteArray x, y;
    return QFileInfo(a).size() == QFileInfo(b).size() &&
           ReadFileBytes(a, x) == ReadFileBytes(b, y) && x == y;
}

// Where `source` goes in `dir`: its own name, or "name (2).ext" and on when a different
// file already holds it. Empty when it cannot be copied.
QString CopyInto(const QString& source, const QDir& dir) {
    const QFileInfo info(source);
    if (info.absoluteDir() == dir)
        return info.absoluteFilePath();
    const QString base = info.completeBaseName(), suffix = info.suffix();
    for (int n = 1;; ++n) {
        const QString name = n == 1
                                 ? info.fileName()
                                 : QStringLiteral("%1 (%2)").arg(base).arg(n) +
                                       (suffix.isEmpty() ? QString() : QLatin1Char('.') + suffix);
        const QString target = dir.filePath(name);
        if (!QFileInfo::exists(target))
            return QFile::copy(source, target) ? target : QString();
        if (SameBytes(source, target))
            return target;
    }
}

} // namespace

QString MediaFolderFor(const QString& scriptPath) {
    const QFileInfo project(scriptPath);
    return project.absoluteDir().filePath(project.completeBaseName() + QStringLiteral(" media"));
}

CollectResult CollectMedia(Document& doc, const QString& folder) {
    CollectResult result;
    QDir dir(folder);
    if (!dir.mkpath(QStringLiteral(".")))
        return {0, MediaFiles(doc)};
    const QDir projectDir =
        doc.ScriptPath.isEmpty() ? dir : QFileInfo(doc.ScriptPath).absoluteDir();
    QHash<QString, QString> copies; // used file -> its copy, empty when it failed
    for (const QString& path : MediaFiles(doc)) {
        const QString copy = IsRegularFile(path) ? CopyInto(path, dir) : QString();
        copies.insert(path, copy);
        if (copy.isEmpty())
            result.missing.append(path);
    }
    QStringList distinct = copies.values();
    distinct.removeAll(QString());
    distinct.removeDuplicates();
    result.collected = int(distinct.size());
    ForEachMediaField(doc, [&](const QString& stored, const auto& store) {
        const QString copy = copies.value(ResolvePath(doc.ScriptPath, stored));
        if (copy.isEmpty())
            return;
        const QString relative = projectDir.relativeFilePath(copy);
        if (relative != stored && store(relative))
            doc.Dirty = true;
    });
    return result;
}

} // namespace zentor
