#include "edit/InsertObject.h"

#include "model/TabMap.h"

namespace zentor {

int InsertObject(Document& doc, int kind, int currentTab) {
    if (currentTab < 1 || currentTab > 7 || (kind != 1 && kind != 2))
        return -1;
    // A full table gives slot 0: the template itself becomes the object, as it always did.
    const int slot = GetArrNo(doc, kind);
    if (kind == 1) {
        doc.Images[slot] = doc.Images[0];
        doc.Images[slot].TabNo = currentTab;
        doc.Images[slot].Name = QStringLiteral("image ") + QString::number(slot);
    } else {
        doc.Texts[slot] = doc.Texts[0];
        doc.Texts[slot].TabNo = currentTab;
        doc.Texts[slot].Name = QStringLiteral("text ") + QString::number(slot);
    }
    return slot;
}

} // namespace zentor
