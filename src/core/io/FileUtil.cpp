#include "io/FileUtil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <sys/stat.h>

namespace zentor {

bool IsRegularFile(const QString& path) {
    if (path.isEmpty())
        return false;
    // stat() follows links; only S_ISREG counts, so FIFOs and devices never block a read.
    struct stat st {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 && S_ISREG(st.st_mode);
}

qint64 ReadFileBytes(const QString& path, QByteArray& buffer, const QString& emptyMeans) {
    QString p = path.trimmed();
    if (p.isEmpty())
        p = emptyMeans;
    if (!IsRegularFile(p))
        return 0;
    QFile file(p);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return 0;
    buffer = std::move(data);
    return buffer.size();
}

QString TrimNull(const QString& s) {
    QString t = s.trimmed();
    const qsizetype nul = t.indexOf(QChar(u'\0'));
    if (nul >= 0)
        t.truncate(nul);
    return t;
}

QString HexColor(uint32_t value, int digits) {
    if (digits <= 0)
        return QString();
    const QString hex = QString::number(value, 16).toUpper();
    const QString padded = QString(digits, QLatin1Char('0')) + hex;
    return padded.right(digits);
}

QString ResolvePath(const QString& scriptPath, const QString& raw) {
    const QString p = TrimNull(raw);
    if (p.isEmpty() || scriptPath.isEmpty() || QDir::isAbsolutePath(p))
        return p;
    return QDir::cleanPath(QFileInfo(scriptPath).absoluteDir().filePath(p));
}

bool CommitWhole(QSaveFile& file) {
    if (!file.flush()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

bool WriteFileAtomically(const QString& path, const QByteArray& bytes, QString* error) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && CommitWhole(file))
        return true;
    if (error)
        *error = file.errorString();
    return false;
}

} // namespace zentor
