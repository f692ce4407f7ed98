#include "export/WebPageExport.h"

#include "export/Contacts.h"
#include "export/PackageShowFrames.h"
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

#include <algorithm>
#include <array>
#include <cstring>
#include <future>

namespace zentor {

char* Base64Into(char* out, QByteArrayView bytes) {
    static constexpr char Digits[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    // Two digits at a time: twelve bits index a pair.
    static const auto Pairs = [] {
        std::array<std::array<char, 2>, 4096> pairs{};
        for (size_t i = 0; i < pairs.size(); ++i)
            pairs[i] = {Digits[i >> 6], Digits[i & 63]};
        return pairs;
    }();
    const auto* b = reinterpret_cast<const uchar*>(bytes.data());
    const qsizetype whole = bytes.size() / 3 * 3;
    for (qsizetype i = 0; i < whole; i += 3, out += 4) {
        const uint v = uint(b[i]) << 16 | uint(b[i + 1]) << 8 | b[i + 2];
        std::memcpy(out, Pairs[v >> 12].data(), 2);
        std::memcpy(out + 2, Pairs[v & 0xFFF].data(), 2);
    }
    if (const qsizetype rest = bytes.size() - whole) {
        const uint v = uint(b[whole]) << 16 | (rest == 2 ? uint(b[whole + 1]) << 8 : 0u);
        out[0] = Digits[v >> 18];
        out[1] = Digits[(v >> 12) & 63];
        out[2] = rest == 2 ? Digits[(v >> 6) & 63] : '=';
        out[3] = '=';
        out += 4;
    }
    return out;
}

void AppendBase64(QByteArray& out, QByteArrayView bytes) {
    const qsizetype start = out.size();
    out.resize(start + (bytes.size() + 2) / 3 * 4);
    Base64Into(out.data() + start, bytes);
}

namespace {

constexpr int PageQuality = 90;

// Pictures and music go into the page as data URIs. Megabytes of them would cost more to
// pass through the JSON writer, and to copy from one buffer into the next, than to draw the
// pages: the JSON carries a stand-in for each, and the page is written once, each URI
// encoded straight into its place.
class DataUris {
public:
    QString add(const char* mime, const QByteArray& bytes) {
        uris_.push_back({mime, bytes});
        return Mark + QString::number(uris_.size() - 1);
    }

    // `page` with `json` in place of `mark`, every stand-in in it replaced by its URI.
    QByteArray write(const QByteArray& page, QByteArrayView mark, const QByteArray& json) const {
        const qsizetype at = page.indexOf(mark);
        if (at < 0)
            return page;
        qsizetype size = page.size() + json.size();
        for (const Uri& u : uris_)
            size +=
                qsizetype(sizeof("data:;base64,")) + qstrlen(u.mime) + (u.bytes.size() + 2) / 3 * 4;
        QByteArray out;
        out.reserve(size);
        out += QByteArrayView(page).first(at);
        // The text goes in first, with room left for each URI's digits; the digits are
        // written after, in pieces shared between two threads.
        struct Piece {
            qsizetype at;
            QByteArrayView bytes;
        };
        std::vector<Piece> pieces;
        qsizetype from = 0;
        for (qsizetype found; (found = json.indexOf(Written, from)) >= 0;) {
            qsizetype end = found + Written.size();
            size_t index = 0;
            while (end < json.size() && json[end] >= '0' && json[end] <= '9')
                index = index * 10 + size_t(json[end++] - '0');
            if (end >= json.size() || json[end] != '"' || index >= uris_.size()) {
                out += QByteArrayView(json).sliced(from, end - from);
                from = end;
                continue;
            }
            out += QByteArrayView(json).sliced(from, found - from);
            out += "\"data:";
            out += uris_[index].mime;
            out += ";base64,";
            const QByteArrayView bytes = uris_[index].bytes;
            for (qsizetype done = 0; done < bytes.size(); done += PieceBytes)
                pieces.push_back({out.size() + done / 3 * 4,
                                  bytes.sliced(done, std::min(PieceBytes, bytes.size() - done))});
            out.resize(out.size() + (bytes.size() + 2) / 3 * 4);
            out += '"';
            from = end + 1;
        }
        out += QByteArrayView(json).sliced(from);
        out += QByteArrayView(page).sliced(at + mark.size());
        char* base = out.data();
        const auto encode = [&](size_t first) {
            for (size_t i = first; i < pieces.size(); i += 2)
                Base64Into(base + pieces[i].at, pieces[i].bytes);
        };
        auto other = std::async(std::launch::async, encode, 1);
        encode(0);
        other.get();
        return out;
    }

private:
    struct Uri {
        const char* mime;
        QByteArray bytes;
    };
    static constexpr QByteArrayView Written = "\"\\u0001uri"; // how the JSON writer escapes Mark
    static constexpr qsizetype PieceBytes = 3 << 18;          // whole groups of three
    static inline const QString Mark = QStringLiteral("\u0001uri");

    std::vector<Uri> uris_;
};

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

// The words over each page: they need only the document, so they are laid out while the
// pages are generated.
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
QJsonObject PageLayer(const Document& doc, int page, const QJsonArray& texts,
                      const QByteArray& jpeg, DataUris& uris) {
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
                       {"picture", uris.add("image/jpeg", jpeg)},
                       {"images", images},
                       {"texts", texts}};
}

QJsonObject HomeLayer(const Document& doc, const ShowPictures& pictures, const QByteArray& jpeg,
                      DataUris& uris) {
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
                       {"picture", uris.add("image/jpeg", jpeg)},
                       {"texts", texts},
                       {"contacts", QJsonObject{{"px", EmPixels(pictures.contacts().FontPoints)},
                                                {"lines", lines}}}};
}

} // namespace

QByteArray RenderWebPage(const Document& doc, const ResImages& res, const ProcessContext& ctx,
                         const Progress& progress, PictureCache* decoded) {
    if (FrameSize(doc).isEmpty())
        return QByteArray();
    std::future<PageTexts> texts = std::async(std::launch::async, TextLayers, std::cref(doc));
    // The pages are the package's own, the home page the players' own: painted and
    // compressed from the package's beginning while its pages are still being drawn.
    const QByteArray background = DefaultHomeBackground(ctx);
    const auto paintHome = [&res, background](const PackageContents& package) {
        const ShowPictures pictures(package, res, background, {});
        return EncodeJpeg(pictures.picture(show::HomePicture), PageQuality);
    };
    std::future<QByteArray> home;
    PackageWatch watch;
    ShowPictures::EmptyPages judged;
    watch.judged = &judged;
    watch.head = [&](PackageContents head) {
        home = std::async(std::launch::async, paintHome, std::move(head));
    };
    PackageContents package;
    QStringList warnings;
    QString error;
    if (!DocumentPackage(doc, ctx, res, package, warnings, error, watch, decoded))
        return QByteArray();
    if (!home.valid())
        home = std::async(std::launch::deferred, paintHome, std::cref(package));
    const ShowPictures pictures(package, res, background, judged);

    QJsonObject show = WebShowNumbers(doc, pictures.showOrder());
    show.insert("title", PersonName(doc));
    DataUris uris;
    QJsonObject pages;
    const PageTexts pageTexts = texts.get();
    for (int page = 1; page <= SlideShowTab; ++page) {
        if (!GoOn(progress, page, SlideShowTab + 1))
            return QByteArray();
        pages.insert(QString::number(page),
                     PageLayer(doc, page, pageTexts[size_t(page)],
                               package.blobView(show::PageEntryOfTab(page)), uris));
    }
    if (!GoOn(progress, SlideShowTab + 1, SlideShowTab + 1))
        return QByteArray();
    show.insert("home", HomeLayer(doc, pictures, home.get(), uris));
    show.insert("pages", pages);
    const QByteArray music = package.blobView(show::Package::MusicEntry);
    if (!music.isEmpty())
        show.insert("music", uris.add("audio/mpeg", music));

    // "</script" or "<!--" in a text would change how the page reads its script element; a
    // '<' only stands inside JSON strings, where its escape means the same.
    QByteArray data = QJsonDocument(show).toJson(QJsonDocument::Compact);
    data.replace("<", "\\u003c");
    QByteArray page = WebPageTemplate();
    page.replace("@TITLE@", PersonName(doc).toHtmlEscaped().toUtf8());
    return uris.write(page, "@DATA@", data);
}

} // namespace zentor
