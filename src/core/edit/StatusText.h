#pragma once

#include <QString>

namespace zentor {

struct Document;

// What the status bar says once a file was written: its name and size. Success stays out of
// message boxes.
QString WrittenStatus(const QString& path);

// After a package: the same, then the pages that hold nothing, by their tab names.
QString PackageStatus(const Document& doc, const QString& path);

} // namespace zentor
