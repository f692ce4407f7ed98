#pragma once

#include "edit/Geometry.h"
#include "edit/ObjectList.h"
#include "model/Document.h"
#include "render/IconRing.h"

#include <array>

namespace zentor {

// The list row a press at (x, y) selects on page `currentTab`, or -1 when a press there
// picks nothing at all (the profile and slide-show pages). Texts are examined before
// images, each from slot U-1 down to 0 (the last slot U is never examined: an object there
// is selectable only from the list); a hit needs the object's row in `map`. Edges are
// inclusive. No hit gives row 0, the page itself.
int SelectByMouse(const Document& doc, const std::array<ObjectRef, ObjectMapRows>& map,
                  int currentTab, double x, double y);

// The ring icon 1..8 under (x, y) of the profile page's ring (as `IconRects` lays it out),
// edges exclusive; 0 when none.
int HoverIconAt(const IconRectTable& rects, double x, double y);

} // namespace zentor
