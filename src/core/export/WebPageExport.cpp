#include "export/WebPageExport.h"

#include "export/Contacts.h"
#include "export/PackageShowFrames.h"
#include "export/SpareThread.h"
#include "export/WebPageStream.h"
#include "export/WebPageTemplate.h"
#include "export/WebShow.h"
#include "generate/PackageReader.h"
#include "model/CodePage.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "render/HomePage.h"
#include "render/ImageSave.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"
#include "render/TextLayout.h"
#include "show/ShowPictures.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>

namespace zentor {

namespace {

constexpr int PageQuality = 90;

// Pictures and music lie in the page as data URIs, each in an element of its own (see
// WebPageStream); the show's JSON names the element.
constexpr char HomeUriId[] = "uri-home";

QByteArray UriId(int entry) {
    return "uri-" + QByteArray::number(entry);
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
    o.insert("px", EmPixels(size));
    o.insert("bold", bool(style & 1));
    o.insert("italic", bool(style & 2));
    o.insert("lines", lines);
    return o;
}

// The words over each page, by page.
using PageTexts = std::array<QJsonArray, SlideShowTab + 1>;

PageTexts TextLayers(const Document& doc) {
    PageTexts texts;
    for (int page = 1; page < SlideShowTab; ++page) {
        for (int i = 1; i <= MaxTexts; ++i) {
            const TextElement& t = doc.Texts[size_t(i)];
            if (t.TabNo != page)
                continue;
            const QJsonObject o =
                TextLayer(t.Text.text(), t.Left, t.Top, t.Width, t.Height, t.FontName.trimNull(),
                          t.FontSize, t.FontStyle, t.Align, t.LineAlign);
            if (!o.isEmpty())
                texts[size_t(page)].append(o);
        }
    }
    texts[SlideShowTab] = texts[size_t(ContentTabOf(SlideShowTab))];
    return texts;
}

// The page's picture objects in drawing order and its texts, for the layer over its picture.
QJsonObject PageLayer(const Document& doc, int page, const QJsonArray& texts) {
    const int tab = ContentTabOf(page);
    QJsonArray images;
    for (int i = 1; i <= MaxImages; ++i) {
        const ImageElement& img = doc.Images[size_t(i)];
        if (img.TabNo != tab)
            continue;
        QJsonObject o = Box(img.Left, img.Top, img.Width, img.Height);
        o.insert("name", img.Name.trimNull());
        images.append(o);
    }
    const QString name = page == SlideShowTab ? QStringLiteral("Slide Show")
                                              : doc.Tabs[size_t(page)].Name.trimNull();
    return QJsonObject{{"name", name},
                       {"picture", QString::fromLatin1(UriId(show::PageEntryOfTab(page)))},
                       {"images", images},
                       {"texts", texts}};
}

QJsonObject HomeLayer(const Document& doc, const ShowPictures& pictures) {
    const QSize frame = pictures.frame();
    // The contacts are painted on the home picture as the players paint them; over them
    // lie their words as text and their links, where the players take clicks.
    QJsonArray lines;
    for (const show::HomeLine& line : pictures.contacts().Lines) {
        QJsonObject o = Box(line.Rect.Left, line.Rect.Top, line.Rect.Right - line.Rect.Left,
                            line.Rect.Bottom - line.Rect.Top);
        o.insert("text", CodePage::active().decode(
                             QByteArrayView(line.Text.data(), qsizetype(line.Text.size()))));
        o.insert("href", QString::fromStdString(line.Link));
        lines.append(o);
    }

    // The caption under the centre picture, where the home picture draws it.
    const QRect box = HomeCaptionBox(frame);
    QJsonArray texts;
    const QJsonObject caption =
        TextLayer(PersonName(doc), box.left(), box.top(), box.width(), box.height(),
                  QLatin1String(HomeCaptionFont), HomeCaptionPoints, 0, 1, 0);
    if (!caption.isEmpty())
        texts.append(caption);
    return QJsonObject{{"name", PersonName(doc)},
                       {"picture", QString::fromLatin1(HomeUriId)},
                       {"texts", texts},
                       {"contacts", QJsonObject{{"px", EmPixels(pictures.contacts().FontPoints)},
                                                {"lines", lines}}}};
}

// "</script" or "<!--" in a text would change how the page reads its script element; a
// '<' only stands inside JSON strings, where its escape means the same.
QByteArray ScriptJson(const QJsonObject& o) {
    QByteArray json = QJsonDocument(o).toJson(QJsonDocument::Compact);
    json.replace("<", "\\u003c");
    return json;
}

// Every page's layer as the JSON the page reads: it needs only the document, so it is made
// while the pages are being drawn.
QByteArray PageLayers(const Document& doc) {
    const PageTexts texts = TextLayers(doc);
    QJsonObject pages;
    for (int page = 1; page <= SlideShowTab; ++page)
        pages.insert(QString::number(page), PageLayer(doc, page, texts[size_t(page)]));
    return ScriptJson(pages);
}

} // namespace

QByteArray RenderWebPage(const Document& doc, const ResImages& res, const ProcessContext& ctx,
                         const Progress& progress, PictureCache* decoded) {
    if (FrameSize(doc).isEmpty())
        return QByteArray();
    SpareResult<QByteArray> pageLayers([&doc] { return PageLayers(doc); });
    QByteArray html = WebPageTemplate();
    html.replace("@TITLE@", PersonName(doc).toHtmlEscaped().toUtf8());
    constexpr QByteArrayView UrisMark = "@URIS@";
    const qsizetype urisAt = html.indexOf(UrisMark);
    WebPageStream stream(html.first(urisAt));

    // Of the package only the head is kept: the pages and the music go into the page as
    // generation writes them, and the pictures it resamples, which only the home page
    // shows, are taken as they were made, never compressed. The home page is the players'
    // own, painted from the head by a picture worker that finds no page left to draw.
    const QByteArray background = DefaultHomeBackground(ctx);
    std::array<QImage, show::Package::EntryCount> resampled;
    const auto paintHome = [&res, &resampled, background](const PackageContents& package) {
        ShowPictures pictures(package, res, background, {});
        for (size_t entry = 0; entry < resampled.size(); ++entry)
            pictures.givePicture(int(entry), resampled[entry]);
        return EncodeJpeg(pictures.picture(show::HomePicture), PageQuality);
    };
    QByteArray home; // painted once the head is written, which a made package always has
    SpareWork spare;
    PackageWatch watch;
    ShowPictures::EmptyPages judged;
    watch.judged = &judged;
    watch.head = [&](PackageContents head) {
        spare.add([&home, paintHome, head = std::move(head)] { home = paintHome(head); });
    };
    watch.idle = [&spare] { spare.run(); };
    bool music = false;
    watch.blob = [&](int entry, const QByteArray& bytes) {
        if (entry >= show::PageEntryOfTab(1) && entry <= show::PageEntryOfTab(SlideShowTab))
            stream.add(UriId(entry), "image/jpeg", bytes);
        else if (entry == show::Package::MusicEntry && !bytes.isEmpty()) {
            stream.add(UriId(entry), "audio/mpeg", bytes);
            music = true;
        }
    };
    watch.resampled = [&resampled](int entry, const QImage& picture) {
        resampled[size_t(entry)] = picture;
    };
    watch.headOnly = true;
    watch.progress = [&progress](int page, int) { return GoOn(progress, page, SlideShowTab + 1); };
    PackageContents package;
    QStringList warnings;
    QString error;
    if (!DocumentPackage(doc, ctx, res, package, warnings, error, watch, decoded))
        return QByteArray();
    const ShowPictures pictures(package, res, background, judged);

    if (!GoOn(progress, SlideShowTab + 1, SlideShowTab + 1))
        return QByteArray();
    QJsonObject show = WebShowNumbers(doc, pictures.showOrder());
    show.insert("title", PersonName(doc));
    show.insert("home", HomeLayer(doc, pictures));
    if (music)
        show.insert("music", QString::fromLatin1(UriId(show::Package::MusicEntry)));
    spare.finish();
    stream.add(HomeUriId, "image/jpeg", home);

    const QByteArray data = "{\"pages\":" + pageLayers.get() + ',' + ScriptJson(show).sliced(1);
    QByteArray rest = html.sliced(urisAt + UrisMark.size());
    rest.replace("@DATA@", data);
    return stream.finish(rest);
}

} // namespace zentor
