#pragma once

#include "edit/Geometry.h"
#include "model/Document.h"

#include <QList>
#include <QSize>
#include <QStringList>

namespace zentor {

// What a drop of files on the window does: the first project among them opens (nothing
// else happens then); otherwise the readable pictures, in the order given, come onto the page.
struct DropPlan {
    QString project;
    QStringList pictures;
};
DropPlan PlanDrop(const QStringList& paths);

// Where a picture of `size` dropped at `at` lands: no more than half the page either way,
// aspect kept, never enlarged, centred on the point and kept on the page by a drag's clamps.
IntRect DroppedPictureRect(QSize size, IntPoint at, int frameW, int frameH);

struct DropResult {
    QList<int> added;  // the new picture objects
    bool full = false; // some pictures found no free slot
};
// Puts pictures on content page `tab` as picture objects, the first at `at` and each next
// one 10 pixels further down and right. Nothing on other pages.
DropResult DropPictures(Document& doc, const QStringList& pictures, IntPoint at, int tab);

} // namespace zentor
