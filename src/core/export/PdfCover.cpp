#include "export/PdfCover.h"

#include "export/Contacts.h"

#include "io/FileUtil.h"
#include "model/DefaultDocument.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/TabPictureLayout.h"
#include "render/TextDraw.h"

#include <QPainter>

namespace zentor {
namespace {

constexpr int IconSize = 128;
constexpr int BorderSize = 144;
constexpr int NameHeight = 48;
constexpr int LineHeight = 28;
const QString CoverFont = QStringLiteral("Arial");

} // namespace

void PaintCover(QPainter& p, const Document& doc, const ResImages& res, const ProcessContext& ctx,
                PictureCache* cache) {
    const QSize frame = FrameSize(doc);
    if (frame.isEmpty())
        return;
    const int w = frame.width(), h = frame.height();
    p.fillRect(QRect(QPoint(0, 0), frame), QColor(0xFFFFFFFFu));
    const QString back = doc.Header.BackPicture.trimNull();
    DrawPictureFile(p,
                    back.isEmpty() ? ctx.defaultBackPicture() : ResolvePath(doc.ScriptPath, back),
                    QRect(QPoint(0, 0), frame), cache);

    const QList<ContactLine> lines = ContactLines(doc);

    // The icon, the name and the lines form one block centred on the page.
    const int block = BorderSize + 16 + NameHeight + 12 + LineHeight * int(lines.size());
    const int top = std::max(0, RoundHalfEven((h - block) / 2.0));
    const int cx = RoundHalfEven(w / 2.0);
    DrawStretched(p, res.image(ResBorder), QRect(cx - BorderSize / 2, top, BorderSize, BorderSize));
    const QRect iconBox(cx - IconSize / 2, top + (BorderSize - IconSize) / 2, IconSize, IconSize);
    const QString icon = doc.Profile.UserIcon.trimNull();
    if (icon.isEmpty() || !DrawPictureFile(p, ResolvePath(doc.ScriptPath, icon), iconBox, cache))
        DrawStretched(p, res.image(ResLogo), iconBox);

    int y = top + BorderSize + 16;
    DrawFontText(p, PersonName(doc), 0, y, w, NameHeight, CoverFont, 28, 1, 1, 1, 0xFFFFFFFFu, -1,
                 4, 1);
    y += NameHeight + 12;
    for (const ContactLine& line : lines) {
        DrawLinkedText(p, line.text, 0, y, w, LineHeight, CoverFont, 14, 0, 1, 1, 0xFFFFFFFFu, -1,
                       4, 1, line.href);
        y += LineHeight;
    }
}

} // namespace zentor
