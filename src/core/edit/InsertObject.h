#pragma once

#include "model/Document.h"

namespace zentor {

// Puts a new image (kind 1) or text (kind 2) on content page `currentTab`: a copy of the
// template in the lowest free slot, named "image N" / "text N" after its slot. With the
// table full that slot is 0 and the template itself becomes the object. Returns the slot,
// or -1 when nothing was inserted (not a content page, or another kind).
int InsertObject(Document& doc, int kind, int currentTab);

} // namespace zentor
