#include "export/WebPageExport.h"

#include "export/Contacts.h"
#include "export/WebPageTemplate.h"
#include "export/WebShow.h"
#include "generate/PictureJobs.h"
#include "io/FileUtil.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "render/ImageSave.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/TextLayout.h"
#include "render/WorkspacePainter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

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

// A text as lines of real text standing where the page draws them (LayoutTextBox), for the
// transparent layer over the page picture; null when nothing is drawn.
QJsonObject TextLayer(const QString& text, double left, double top, double width, double height,
                      const QString& font, int size, int style, int align, int lineAlign) {
    const TextBoxLayout layout =
        LayoutTextBox(text, left, top, width, height, font, size, style, align, lineAlign);
    if (layout.lines.empty())
        return QJsonObject();
    QString shown = text;
    while (shown.endsWith(QLatin1Char(' ')))
        shown.chop(1);
    QJsonArray lines;
    for (const TextBoxLine& line : layout.lines) {
        const QString words = shown.mid(line.start, line.length).trimmed();
        if (words.isEmpty())
            continue;
        lines.append(QJsonObject{{"text", words},
                                 {"left", line.rect.left()},
                                 {"top", line.rect.top()},
                                 {"width", line.rect.width()},
                                 {"height", line.rect.height()}});
    }
    // The box clips what the page clips.
    QJsonObject o =
        width > 0 && height > 0 ? Box(int(left), int(top), int(width), int(height)) : QJsonObject();
    o.insert("font", font);
    o.insert("px", size * 96.0 / 72.0);
    o.insert("bold", bool(style & 1));
    o.insert("italic", bool(style & 2));
    o.insert("lines", lines);
    return o;
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
        if (t.TabNo != tab)
            continue;
        const QJsonObject o =
            TextLayer(t.Text.text(), t.Left, t.Top, t.Width, t.Height, t.FontName.trimNull(),
                      t.FontSize, t.FontStyle, t.Align, t.LineAlign);
        if (!o.isEmpty())
            texts.append(o);
    }
    const QString name = page == SlideShowTab ? QStringLiteral("Slide Show")
                                              : doc.Tabs[size_t(page)].Name.trimNull();
    return QJsonObject{{"name", name},
                       {"picture", DataUri("image/jpeg", jpeg)},
                       {"images", images},
                       {"texts", texts}};
}

QJsonObject HomeLayer(const Document& doc, const QByteArray& jpeg) {
    const QSize frame = FrameSize(doc);
    QJsonArray lines;
    for (const ContactLine& line : ContactLines(doc))
        lines.append(QJsonObject{{"text", line.text}, {"href", line.href}});

    // The caption under the centre picture, as the home picture draws it, and the contacts
    // below it, between the ring's lower icons.
    const int captionTop = int(std::lround(frame.height() / 2.0)) + 80;
    QJsonArray texts;
    const QJsonObject caption = TextLayer(PersonName(doc), 0, captionTop, frame.width(), 24,
                                          QStringLiteral("Arial"), 12, 0, 1, 0);
    if (!caption.isEmpty())
        texts.append(caption);
    const int contactsWidth = 300;
    return QJsonObject{
        {"name", PersonName(doc)},
        {"picture", DataUri("image/jpeg", jpeg)},
        {"texts", texts},
        {"contacts", QJsonObject{{"box", Box((frame.width() - contactsWidth) / 2, captionTop + 28,
                                             contactsWidth, 19 * int(lines.size()))},
                                 {"lines", lines}}}};
}

} // namespace

QByteArray RenderWebPage(const Document& doc, const ResImages& res, const ProcessContext& ctx,
                         const Progress& progress) {
    if (FrameSize(doc).isEmpty())
        return QByteArray();
    // The eight pages and the home page are drawn side by side, as generating draws them.
    PictureCache cache;
    std::vector<PictureJobs::Job> jobs;
    for (int page = 1; page <= SlideShowTab; ++page)
        jobs.push_back(
            [&, page] { return PictureJobs::Result(RenderPageJpeg(doc, page, res, &cache)); });
    jobs.push_back([&] {
        Document copy = doc; // the painter tidies what it draws; the export only reads
        return PictureJobs::Result(
            EncodeJpeg(PaintWorkspace(copy, ProfileTab, 0, res, ctx, &cache), PageQuality));
    });
    PictureJobs pictures(std::move(jobs), std::max(1, QThread::idealThreadCount()));

    QJsonObject show = WebShowNumbers(doc);
    show.insert("title", PersonName(doc));
    QJsonObject pages;
    for (int page = 1; page <= SlideShowTab; ++page) {
        if (!GoOn(progress, page, SlideShowTab + 1))
            return QByteArray();
        pages.insert(QString::number(page),
                     PageLayer(doc, page, pictures.take(size_t(page - 1)).value_or(QByteArray())));
    }
    if (!GoOn(progress, SlideShowTab + 1, SlideShowTab + 1))
        return QByteArray();
    show.insert("home", HomeLayer(doc, pictures.take(SlideShowTab).value_or(QByteArray())));
    show.insert("pages", pages);
    QByteArray music;
    const QString musicPath = ResolvePath(doc.ScriptPath, doc.Header.BackMusic.trimNull());
    if (!doc.Header.BackMusic.trimNull().isEmpty() && ReadFileBytes(musicPath, music) > 0)
        show.insert("music", DataUri("audio/mpeg", music));

    // "</script" or "<!--" in a text would change how the page reads its script element; a
    // '<' only stands inside JSON strings, where its escape means the same.
    QByteArray data = QJsonDocument(show).toJson(QJsonDocument::Compact);
    data.replace("<", "\\u003c");
    QByteArray page = WebPageTemplate();
    page.replace("@TITLE@", PersonName(doc).toHtmlEscaped().toUtf8());
    page.replace("@DATA@", data);
    return page;
}

} // namespace zentor
