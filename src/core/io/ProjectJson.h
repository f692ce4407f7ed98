#pragma once

#include "model/Document.h"

#include <QJsonObject>
#include <QString>

namespace zentor {

// The JSON form of a project: {"Header","Profile","Tabs"[8],"Texts"[...],"Images"[...]}
// with the record field names as keys. A text field is its text up to the first NUL with
// trailing blanks removed, or null when it holds only NULs.
QJsonObject HeaderToJson(const ScriptHeader& h);
QJsonObject ProfileToJson(const ProfileRecord& p);
QJsonObject ProjectToJson(const Document& doc, int textCount, int imageCount);

// Sets what the JSON gives over `doc` (normally the default document); a missing or null
// field keeps the value `doc` has. Texts and images go to slots 1..n. Returns an error
// message, empty on success.
QString ApplyProjectJson(const QJsonObject& json, Document& doc);

} // namespace zentor
