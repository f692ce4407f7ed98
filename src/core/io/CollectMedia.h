#pragma once

#include "model/Document.h"

#include <QString>
#include <QStringList>

namespace zentor {

// The folder Collect Media fills: "<project name> media" beside the project file.
QString MediaFolderFor(const QString& scriptPath);

struct CollectResult {
    int collected = 0;   // files now in the folder that the document points at
    QStringList missing; // used files that could not be read or copied, left as they were
};

// Copies every file the document uses into `folder` (a file already there stays as it is;
// two different files of one name are told apart by a number) and points the document at
// the copies, relative to the project's folder so that the project can be moved whole.
// The document is dirty when a path changed.
CollectResult CollectMedia(Document& doc, const QString& folder);

} // namespace zentor
