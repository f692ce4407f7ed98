#pragma once

#include "model/Document.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace zentor {

// Calls `f` with every path field of the document that names a file it uses (background
// picture and music, the user icon, tab icons and pictures, the pictures of objects in use)
// and whose text is not empty; `f` gets the stored text (trimmed, up to the first NUL) and
// may store a new one (true when it fitted the field).
using MediaVisitor =
    std::function<void(const QString& stored, const std::function<bool(const QString&)>& store)>;
void ForEachMediaField(Document& doc, const MediaVisitor& f);

// Which field a path comes from.
enum class MediaFieldKind { BackPicture, BackMusic, UserIcon, TabIcon, TabPicture, ObjectPicture };
struct MediaField {
    MediaFieldKind kind;
    int index = 0; // the tab of a tab icon or picture, the slot of an object's picture
};

// The same fields in the same order, only read, each with which field it is.
using MediaFieldReader = std::function<void(const QString& stored, const MediaField& field)>;
void VisitMediaFields(const Document& doc, const MediaFieldReader& f);

// The files the document uses, resolved against the project's folder, each once, in
// document order.
QStringList MediaFiles(const Document& doc);

// Those of MediaFiles that are not regular files.
QStringList MissingMedia(const Document& doc);

// The file name of a stored path, whichever separator it was written with.
QString StoredFileName(const QString& stored);

// Looks in `folder` and its subfolders for the missing files by file name (the shallowest
// match wins) and points every field that named one at the file found. Returns how many of
// the missing files were found; the document is dirty when any was.
int FindMissingMedia(Document& doc, const QString& folder);

} // namespace zentor
