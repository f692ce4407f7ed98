#pragma once

#include "model/Document.h"

namespace zentor {

// The tab strip shows the tab records in the other direction: strip 1 is the profile
// page, strips 2..8 show tabs 7..1, strip 9 the slide show.

// Tab record (or ring position) 0..8 -> strip position 1..9; anything else gives 0.
int GetTabIndex(int iArrTab);
// Strip position 1..9 -> tab record; other values are returned unchanged.
int StripToTab(int strip);

// First free slot (TabNo exactly 0) of Images (iType 1) or Texts (iType 2), lowest
// first from 1; 0 when full or for another iType.
int GetArrNo(const Document& doc, int iType);

} // namespace zentor
