#pragma once

#include "model/Document.h"

namespace zentor {

// Brings the selected image (kind 1) or text (kind 2) in `slot` to the front of page
// `currentTab` (isFore) or sends it to the back: the records of that page between it and
// the front (back) each move one slot down (up), and it takes the last (first) of them.
// Other pages' records keep their slots. Returns the object's new slot (`slot` unchanged
// when it already was frontmost/backmost or the kind is another).
int ZOrderArr(Document& doc, int kind, int slot, int currentTab, bool isFore);

} // namespace zentor
