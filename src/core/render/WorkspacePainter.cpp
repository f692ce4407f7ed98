#include "render/WorkspacePainter.h"

#include "io/FileUtil.h"
#include "model/DefaultDocument.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "render/DrawPicture.h"
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

void PaintProfile(QPainter& p, const PictureSurfaces& s, Document& doc, int hoverIcon,
                  const ResImages& res, PictureCache* cache, IconRectTable* iconRects) {
    const QSize frame = s.workspaceSize;
    const IconRectTable rects = GetCircle(p, doc, res, cache);
    if (iconRects)
        *iconRects = rects;

    QString caption;
    if (hoverIcon >= 1 && hoverIcon <= MaxTab) {
        auto& name = doc.Tabs[size_t(hoverIcon)].Name;
        name = name.trimmed();
        caption = name.trimmed();
    } else {
        ProfileRecord& pr = doc.Profile;
        pr.FirstName = pr.FirstName.trimmed();
        pr.LastName = pr.LastName.trimmed();
        caption = pr.FirstName.trimmed() + QLatin1Char(' ') + pr.LastName.trimmed();
    }
    DrawFontText(p, caption, 0, RoundHalfEven(frame.height() / 2.0) + 80, frame.width(), 24,
                 QStringLiteral("Arial"), 12, 0, 1, 0, 0xFFFFFFFFu, -1, 4, 1);

    DrawStretched(p, res.image(ResBorder),
                  QRect(RoundHalfEven((frame.width() - 144) / 2.0),
                        RoundHalfEven((frame.height() - 144) / 2.0), 144, 144));

    const QRect iconBox(RoundHalfEven((frame.width() - 128) / 2.0),
                        RoundHalfEven((frame.height() - 128) / 2.0), 128, 128);
    const QString icon = doc.Profile.UserIcon.text();
    doc.Profile.UserIcon = icon;
    if (icon.isEmpty())
        DrawStretched(p, res.image(ResLogo), iconBox);
    else
        DrawPicture(s, doc, icon, PictureInRect, 0, 0, iconBox, cache);
}

QImage WhiteSquare() {
    QImage img(PreviewSize, PreviewSize, QImage::Format_ARGB32_Premultiplied);
    img.fill(0xFFFFFFFFu);
    return img;
}

} // namespace

QImage PaintWorkspace(Document& doc, int tab, int hoverIcon, const ResImages& res,
                      const ProcessContext& ctx, PictureCache* cache, IconRectTable* iconRects) {
    const QSize frame = FrameSize(doc);
    if (frame.isEmpty() || tab < 0 || tab > MaxTab)
        return QImage();
    QImage canvas(frame, QImage::Format_ARGB32_Premultiplied);
    if (canvas.isNull())
        return QImage();
    canvas.fill(0xFFFFFFFFu);
    QPainter p(&canvas);
    PictureSurfaces s;
    s.workspace = &p;
    s.workspaceSize = frame;

    if (tab == SlideShowTab) {
        PaintBackground(s, doc, ctx, cache);
    } else if (tab == ProfileTab) {
        PaintBackground(s, doc, ctx, cache);
        PaintProfile(p, s, doc, hoverIcon, res, cache, iconRects);
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
