#include "edit/DropFiles.h"

#include "edit/DragGeometry.h"
#include "edit/InsertObject.h"
#include "edit/ObjectList.h"
#include "model/TabMap.h"
#include "render/PictureLoader.h"

#include <algorithm>
#include <cmath>

namespace zentor {

DropPlan PlanDrop(const QStringList& paths) {
    DropPlan plan;
    for (const QString& p : paths) {
        if (p.endsWith(QLatin1String(".qds"), Qt::CaseInsensitive)) {
            plan.project = p;
            plan.pictures.clear();
            return plan;
        }
        if (!ReadPictureSize(p).isEmpty())
            plan.pictures << p;
    }
    return plan;
}

IntRect DroppedPictureRect(QSize size, IntPoint at, int frameW, int frameH) {
    const double scale = std::min(
        {1.0, frameW / 2.0 / std::max(1, size.width()), frameH / 2.0 / std::max(1, size.height())});
    const int w = std::max(1, int(std::lround(size.width() * scale)));
    const int h = std::max(1, int(std::lround(size.height() * scale)));
    IntRect r{at.x - w / 2, at.y - h / 2, w, h};
    MoveAdd(r, frameW, frameH);
    return r;
}

DropResult DropPictures(Document& doc, const QStringList& pictures, IntPoint at, int tab) {
    DropResult result;
    if (tab < 1 || tab > 7)
        return result;
    for (const QString& path : pictures) {
        // Insert would take the template slot when the table is full; a drop never does.
        if (GetArrNo(doc, KindImage) == 0) {
            result.full = true;
            break;
        }
        const int slot = InsertObject(doc, KindImage, tab);
        ImageElement& e = doc.Images[slot];
        e.FileName = path;
        const IntRect r = DroppedPictureRect(ReadPictureSize(path), at, doc.Header.FrameWidth,
                                             doc.Header.FrameHeight);
        e.Left = r.Left, e.Top = r.Top, e.Width = r.Width, e.Height = r.Height;
        result.added << slot;
        at = {at.x + 10, at.y + 10};
    }
    return result;
}

} // namespace zentor
