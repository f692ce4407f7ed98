#include "render/DrawPicture.h"

#include "io/FileUtil.h"
#include "model/Document.h"
#include "render/PictureCache.h"
#include "render/TabPictureLayout.h"

namespace zentor {

void DrawPicture(const PictureSurfaces& s, Document& doc, const QString& path, int mode, int tab,
                 int slot, const QRect& rect, PictureCache* cache) {
    const QString trimmed = path.trimmed();
    const QString file = ResolvePath(doc.ScriptPath, trimmed);
    QPainter* target = nullptr;
    QRect box;
    switch (mode) {
    case 0:
    case 1:
    case 2:
    case PictureTabAlignLast: {
        if (tab < 0 || tab > MaxTab)
            return;
        LayoutTabPicture(doc, mode, tab, trimmed, cache);
        const ImageElement& pic = doc.Tabs[size_t(tab)].Picture;
        target = s.workspace;
        box = QRect(pic.Left, pic.Top, pic.Width, pic.Height);
        break;
    }
    case PictureImageObject: {
        if (slot < 0 || slot > MaxImages)
            return;
        ImageElement& img = doc.Images[size_t(slot)];
        img.Reserved = 0;
        img.FileName = trimmed;
        img.TabNo = tab;
        img.PicAlign = PictureImageObject;
        target = s.workspace;
        box = QRect(img.Left, img.Top, img.Width, img.Height);
        break;
    }
    case PictureTabIcon:
        target = s.tabIcon;
        box = QRect(0, 0, 128, 128);
        break;
    case PictureBackground:
        target = s.workspace;
        box = QRect(QPoint(0, 0), s.workspaceSize);
        break;
    case PictureInRect:
        target = s.workspace;
        box = rect;
        break;
    case PictureUserIcon:
        target = s.userIcon;
        box = QRect(0, 0, 128, 128);
        break;
    default:
        return;
    }
    if (target)
        DrawPictureFile(*target, file, box, cache);
}

} // namespace zentor
