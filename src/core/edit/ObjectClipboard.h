#pragma once

#include "edit/Geometry.h"
#include "model/Document.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace zentor {

// Our own clipboard format, so that two open editors copy objects between each other.
inline constexpr char ObjectMimeType[] = "application/x-vitara-zentor-object";

// A picture (kind 1) or text (kind 2) in use, as clipboard bytes: a tag, the kind and the
// record as the project file holds it. Empty for anything else.
QByteArray CopyObject(const Document& doc, int kind, int slot);

struct PasteResult {
    enum class Outcome { Pasted, NotHere, NotAnObject, TableFull } outcome = Outcome::NotHere;
    int kind = 0;
    int slot = 0;
};

// Puts the object of `clip` on content page `currentTab` in the lowest free slot, named after
// that slot like an inserted one, 10 pixels right of and below where it was copied from
// (further while a copy of the same kind already sits there), kept on the page by a drag's
// clamps. A full table changes nothing: unlike Insert, a paste never overwrites the template.
PasteResult PasteObject(Document& doc, QByteArrayView clip, int currentTab);

// Frees the slot of a picture or text (it becomes a copy of the template).
void RemoveObject(Document& doc, int kind, int slot);

// The message a full table gives, under `title`.
QString TableFullText(int kind);

} // namespace zentor
