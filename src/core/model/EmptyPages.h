#pragma once

#include "model/Document.h"

#include <QList>

namespace zentor {

// A content page (tab 1..7) with no tab picture and no object on it: the show skips it
// and the author is told. Any other tab number is never empty.
bool PageHoldsNothing(const Document& doc, int tab);

// The content tabs that hold nothing, in tab order.
QList<int> EmptyPages(const Document& doc);

} // namespace zentor
