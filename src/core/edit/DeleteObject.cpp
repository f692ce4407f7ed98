#include "edit/DeleteObject.h"

#include "edit/ObjectClipboard.h"
#include "edit/ObjectList.h"

namespace zentor {

bool DelObject(Document& doc, int kind, int slot, int currentTab, Prompter& prompter,
               const ProcessContext& ctx) {
    const QString sure = QStringLiteral("Are you sure to delete ");
    switch (kind) {
    case 0: {
        if (currentTab < 0 || currentTab > MaxTab)
            return false;
        TabRecord& tab = doc.Tabs[currentTab];
        tab.Name = tab.Name.trimmed();
        if (!prompter.askYesNo(QStringLiteral("Reset Tab"),
                               QStringLiteral("Are you sure to reset tab - ") +
                                   tab.Name.trimNull() + QStringLiteral("?")))
            return false;
        tab.Picture = doc.Images[0];
        tab.Icon = QString();
        return true;
    }
    case 1:
        if (slot < 0 || slot > MaxImages)
            return false;
        if (!prompter.askYesNo(QStringLiteral("Delete Image"),
                               sure + doc.Images[slot].Name.trimNull() + QStringLiteral("?")))
            return false;
        RemoveObject(doc, KindImage, slot);
        return true;
    case 2:
        if (slot < 0 || slot > MaxTexts)
            return false;
        if (!prompter.askYesNo(QStringLiteral("Delete Text"),
                               sure + doc.Texts[slot].Name.trimNull() + QStringLiteral("?")))
            return false;
        RemoveObject(doc, KindText, slot);
        return true;
    case 3:
        if (!prompter.askYesNo(QStringLiteral("Delete User Icon"),
                               QStringLiteral("Are you sure to delete user icon?")))
            return false;
        doc.Profile.UserIcon = QString();
        return true;
    case 4:
        if (!prompter.askYesNo(QStringLiteral("Delete Background Picture"),
                               QStringLiteral("Are you sure to delete Background picture?")))
            return false;
        doc.Header.BackPicture = ctx.defaultBackPicture();
        return true;
    default:
        return false;
    }
}

} // namespace zentor
