#include "export/WebPageExport.h"

#include "export/Contacts.h"
#include "export/WebPageTemplate.h"
#include "export/WebShow.h"
#include "io/FileUtil.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "render/ImageSave.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/TextDraw.h"
#include "render/WorkspacePainter.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace zentor {
namespace {

constexpr int PageQuality = 90;

QString DataUri(const char* mime, const QByteArray& bytes) {
    return QStringLiteral("data:%1;base64,").arg(QLatin1String(mime)) +
           QString::fromLatin1(bytes.toBase64());
}

QJsonObject Box(int left, int top, int width, int height) {
    return QJsonObject{{"left", left}, {"top", top}, {"width", width}, {"height", height}};
}

// The page's texts and picture objects in drawing order, for the layer over its picture.
QJsonObject PageLayer(const Document& doc, int page, const QByteArray& jpeg) {
    const int tab = page == SlideShowTab ? 1 : page;
    QJsonArray images, texts;
    for (int i = 1; i <= MaxImages; ++i) {
        const ImageElement& img = doc.Images[size_t(i)];
        if (img.TabNo != tab)
            continue;
        QJsonObject o = Box(img.Left, img.Top, img.Width, img.Height);
        o.insert("name", img.Name.trimNull());
        images.append(o);
    }
    for (int i = 1; i <= MaxTexts; ++i) {
        const TextElement& t = doc.Texts[size_t(i)];
        const QString text = t.Text.text();
        if (t.TabNo != tab || text.isEmpty() || t.FontSize < 1)
            continue;
        // The same pixel size and line room as the page's own text drawing.
        const QFont font = MakeTextFont(t.FontName.trimNull(), t.FontSize, t.FontStyle, t.TextHint);
        QJsonObject o = Box(t.Left, t.Top, t.Width, t.Height);
        o.insert("text", text);
        o.insert("font", t.FontName.trimNull());
        o.insert("px", font.pixelSize());
        o.insert("pad", font.pixelSize() / 6.0);
        o.insert("bold", bool(t.FontStyle & 1));
        o.insert("italic", bool(t.FontStyle & 2));
        o.insert("align", t.Align);
        o.insert("valign", t.LineAlign);
        texts.append(o);
    }
    const QString name = page == SlideShowTab ? QStringLiteral("Slide Show")
                                              : doc.Tabs[size_t(page)].Name.trimNull();
    return QJsonObject{{"name", name},
                       {"picture", DataUri("image/jpeg", jpeg)},
                       {"images", images},
                       {"texts", texts}};
}

QJsonObject HomeLayer(const Document& doc, const ResImages& res, const ProcessContext& ctx,
                      PictureCache& cache) {
    Document copy = doc; // the painter tidies what it draws; the export only reads
    const QImage home = PaintWorkspace(copy, ProfileTab, 0, res, ctx, &cache);
    const QSize frame = home.size();
    QJsonArray lines;
    for (const ContactLine& line : ContactLines(doc))
        lines.append(QJsonObject{{"text", line.text}, {"href", line.href}});

    // The caption under the centre picture, as the home picture draws it, and the contacts
    // below it, between the ring's lower icons.
    const int captionTop = int(std::lround(frame.height() / 2.0)) + 80;
    QJsonArray texts{QJsonObject{{"text", PersonName(doc)},
                                 {"left", 0},
                                 {"top", captionTop},
                                 {"width", frame.width()},
                                 {"height", 24},
                                 {"font", "Arial"},
                                 {"px", 16},
                                 {"pad", 16 / 6.0},
                                 {"bold", false},
                                 {"italic", false},
                                 {"align", 1},
                                 {"valign", 0}}};
    const int contactsWidth = 300;
    return QJsonObject{
        {"name", PersonName(doc)},
        {"picture", DataUri("image/jpeg", EncodeJpeg(home, PageQuality))},
        {"texts", texts},
        {"contacts", QJsonObject{{"box", Box((frame.width() - contactsWidth) / 2, captionTop + 28,
                                             contactsWidth, 19 * int(lines.size()))},
                                 {"lines", lines}}}};
}

} // namespace

QByteArray RenderWebPage(const Document& doc, const ResImages& res, const ProcessContext& ctx) {
    if (FrameSize(doc).isEmpty())
        return QByteArray();
    PictureCache cache;
    QJsonObject show = WebShowNumbers(doc);
    show.insert("title", PersonName(doc));
    show.insert("home", HomeLayer(doc, res, ctx, cache));
    QJsonObject pages;
    for (int page = 1; page <= SlideShowTab; ++page)
        pages.insert(QString::number(page),
                     PageLayer(doc, page, RenderPageJpeg(doc, page, res, &cache)));
    show.insert("pages", pages);
    QByteArray music;
    const QString musicPath = ResolvePath(doc.ScriptPath, doc.Header.BackMusic.trimNull());
    if (!doc.Header.BackMusic.trimNull().isEmpty() && ReadFileBytes(musicPath, music) > 0)
        show.insert("music", DataUri("audio/mpeg", music));

    // "</" inside the data would end its script element.
    QByteArray data = QJsonDocument(show).toJson(QJsonDocument::Compact);
    data.replace("</", "<\\/");
    QByteArray page = WebPageTemplate();
    page.replace("@TITLE@", PersonName(doc).toHtmlEscaped().toUtf8());
    page.replace("@DATA@", data);
    return page;
}

} // namespace zentor
