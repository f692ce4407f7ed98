#include "edit/RecentFiles.h"

#include <QFileInfo>

namespace zentor {

QStringList WithRecentFile(QStringList list, const QString& path) {
    const QString abs = QFileInfo(path).absoluteFilePath();
    list.removeAll(abs);
    list.prepend(abs);
    while (list.size() > MaxRecentFiles)
        list.removeLast();
    return list;
}

QString MissingRecentText(const QString& path) {
    return QStringLiteral("The file %1 is not there any more. It was taken off the recent files.")
        .arg(path);
}

} // namespace zentor
