#include "render/WorkspacePainter.h"

#include "io/FileUtil.h"
#include "model/DefaultDocument.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "render/DrawPicture.h"
#include "render/HomePage.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/TabPictureLayout.h"
#include "render/TextDraw.h"

#include <QPainter>

namespace zentor {
namespace {

constexpr int PreviewSize = 128;

void PaintContentTab(QPainter& p, const PictureSurfaces& s, Document& doc, int tab,
                     PictureCache* cache) {
    ImageElement& pic = doc.Tabs[size_t(tab)].Picture;
    // Only the four alignment modes place a tab picture; any other value draws nothing.
    if (pic.PicAlign >= 0 && pic.PicAlign <= PictureTabAlignLast)
        DrawPicture(s, doc, pic.FileName.trimmed(), pic.PicAlign, tab, 0, QRect(), cache);
    else
        pic.FileName = pic.FileName.trimmed();

    for (int i = 1; i <= MaxImages; ++i) {
        ImageElement& img = doc.Images[size_t(i)];
        if (img.TabNo == tab)
            DrawPicture(s, doc, img.FileName.trimmed(), PictureImageObject, tab, i, QRect(), cache);
    }
    for (int i = 1; i <= MaxTexts; ++i) {
        TextElement& t = doc.Texts[size_t(i)];
        if (t.TabNo != tab)
            continue;
        t.FontName = t.FontName.trimmed();
        DrawTextElement(p, t);
    }
}

void PaintBackground(const PictureSurfaces& s, Document& doc, const ProcessContext& ctx,
                     PictureCache* cache) {
    const QString back = doc.Header.BackPicture.text();
    doc.Header.BackPicture = back;
    DrawPicture(s, doc, back.isEmpty() ? ctx.defaultBackPicture() : back, PictureBackground, 0, 0,
                QRect(), cache);
}

// The profile page's pictures from the project's files, with what drawing them always
// wrote back: the background path, the tab icons and the user icon cut at the first NUL.
HomePictures ProfilePictures(Document& doc, QSize frame, const ResImages& res,
                             const ProcessContext& ctx, PictureCache* cache) {
    HomePictures pics;
    const QString back = doc.Header.BackPicture.text();
    doc.Header.BackPicture = back;
    pics.background = PictureFor(
        ResolvePath(doc.ScriptPath, (back.isEmpty() ? ctx.defaultBackPicture() : back).trimmed()),
        frame, cache);
    const IconRectTable rects = IconRects(frame);
    for (int i = 1; i <= 8; ++i) {
        const IconRect& r = rects[size_t(i)];
        auto& icon = doc.Tabs[size_t(i)].Icon;
        const QString path = icon.text();
        icon = path;
        pics.icons[size_t(i)] = path.isEmpty()
                                    ? res.image(i)
                                    : PictureFor(ResolvePath(doc.ScriptPath, path),
                                                 QSize(r.Right - r.Left, r.Bottom - r.Top), cache);
    }
    const QString user = doc.Profile.UserIcon.text();
    doc.Profile.UserIcon = user;
    pics.userIcon = user.isEmpty() ? res.image(ResLogo)
                                   : PictureFor(ResolvePath(doc.ScriptPath, user.trimmed()),
                                                QSize(128, 128), cache);
    return pics;
}

void PaintProfile(QPainter& p, Document& doc, QSize frame, int hoverIcon, const ResImages& res,
                  const ProcessContext& ctx, PictureCache* cache, IconRectTable* iconRects) {
    const HomePictures pics = ProfilePictures(doc, frame, res, ctx, cache);
    // Only the caption shown is trimmed and stored back.
    std::array<QString, 9> names;
    QString person;
    if (hoverIcon >= 1 && hoverIcon <= MaxTab) {
        auto& name = doc.Tabs[size_t(hoverIcon)].Name;
        name = name.trimmed();
        names[size_t(hoverIcon)] = name.text(); // shown up to a NUL a damaged file may hold
    } else {
        ProfileRecord& pr = doc.Profile;
        pr.FirstName = pr.FirstName.trimmed();
        pr.LastName = pr.LastName.trimmed();
        person = pr.FirstName.text().trimmed() + QLatin1Char(' ') + pr.LastName.text().trimmed();
    }
    const IconRectTable rects =
        PaintHomePage(p, frame, pics, HomeCaption(names, person, hoverIcon), res);
    if (iconRects)
        *iconRects = rects;
}

QImage WhiteSquare() {
    QImage img(PreviewSize, PreviewSize, QImage::Format_ARGB32_Premultiplied);
    img.fill(0xFFFFFFFFu);
    return img;
}

} // namespace

QImage PaintWorkspace(Document& doc, int tab, int hoverIcon, const ResImages& res,
                      const ProcessContext& ctx, PictureCache* cache, IconRectTable* iconRects) {
    if (tab < 0 || tab > MaxTab)
        return QImage();
    QImage canvas = WhiteFrameCanvas(doc);
    if (canvas.isNull())
        return QImage();
    const QSize frame = canvas.size();
    QPainter p(&canvas);
    PictureSurfaces s;
    s.workspace = &p;
    s.workspaceSize = frame;

    if (tab == SlideShowTab) {
        PaintBackground(s, doc, ctx, cache);
    } else if (tab == ProfileTab) {
        PaintProfile(p, doc, frame, hoverIcon, res, ctx, cache, iconRects);
    } else {
        PaintContentTab(p, s, doc, tab, cache);
    }
    p.end();
    return canvas;
}

QImage TabIconPreview(const Document& doc, int tab, const ResImages& res, PictureCache* cache) {
    QImage img = WhiteSquare();
    if (tab < 0 || tab > MaxTab)
        return img;
    QPainter p(&img);
    const QString icon = doc.Tabs[size_t(tab)].Icon.text();
    if (icon.isEmpty())
        DrawStretched(p, res.image(tab), img.rect());
    else
        DrawPictureFile(p, ResolvePath(doc.ScriptPath, icon), img.rect(), cache);
    return img;
}

QImage UserIconPreview(const Document& doc, const ResImages& res, PictureCache* cache) {
    QImage img = WhiteSquare();
    QPainter p(&img);
    const QString icon = doc.Profile.UserIcon.text();
    if (icon.isEmpty())
        DrawStretched(p, res.image(ResLogo), img.rect());
    else
        DrawPictureFile(p, ResolvePath(doc.ScriptPath, icon), img.rect(), cache);
    return img;
}

} // namespace zentor
