#include "edit/StatusText.h"

#include "model/EmptyPages.h"

#include <QFileInfo>
#include <QLocale>
#include <QStringList>

namespace zentor {

QString WrittenStatus(const QString& path) {
    const QFileInfo info(path);
    return QStringLiteral("Wrote %1 (%2)")
        .arg(info.fileName(),
             QLocale().formattedDataSize(info.size(), 1, QLocale::DataSizeTraditionalFormat));
}

QString PackageStatus(const Document& doc, const QString& path) {
    QStringList names;
    // In the strip's order, as the author sees the pages.
    for (int tab : EmptyPages(doc))
        names.prepend(doc.Tabs[size_t(tab)].Name.text());
    QString status = WrittenStatus(path);
    if (!names.isEmpty())
        status += QStringLiteral(" - pages holding nothing: ") + names.join(QStringLiteral(", "));
    return status;
}

} // namespace zentor
