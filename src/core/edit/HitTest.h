#pragma once

#include "edit/Geometry.h"
#include "edit/ObjectList.h"
#include "model/Document.h"

#include <array>

namespace zentor {

// The list row a press at (x, y) selects on page `currentTab`, or -1 when a press there
// picks nothing at all (the profile and slide-show pages). Texts are examined before
// images, each from slot U-1 down to 0 (the last slot U is never examined: an object there
// is selectable only from the list); a hit needs the object's row in `map`. Edges are
// inclusive. No hit gives row 0, the page itself.
int SelectByMouse(const Document& doc, const std::array<ObjectRef, ObjectMapRows>& map,
                  int currentTab, double x, double y);

// The profile page's icon ring for a frame of frameW x frameH: rectangle 0 the 128 x 128
// centre picture, 1..8 the 80 x 80 tab icons on a circle of radius 250, icon 1 right of
// the centre, then clockwise (y grows downward).
std::array<EdgeRect, 9> IconRingRects(int frameW, int frameH);

// The ring icon 1..8 under (x, y), edges exclusive; 0 when none.
int HoverIconAt(const std::array<EdgeRect, 9>& rects, double x, double y);

} // namespace zentor
