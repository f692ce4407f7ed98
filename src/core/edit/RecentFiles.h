#pragma once

#include <QString>
#include <QStringList>

namespace zentor {

inline constexpr int MaxRecentFiles = 8;

// The recent files after `path` was opened or saved: it comes first (as an absolute path),
// an earlier mention of it goes, and no more than eight stay.
QStringList WithRecentFile(QStringList list, const QString& path);

// The message for a recent file that is not there any more.
QString MissingRecentText(const QString& path);

} // namespace zentor
