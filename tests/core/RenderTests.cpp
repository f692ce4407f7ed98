#include "TestSupport.h"
#include "render/HomePage.h"
#include "render/ImageSave.h"
#include "render/PictureCache.h"
#include "render/PictureLoader.h"
#include "render/ResImages.h"
#include "render/TextDraw.h"
#include "render/TextLayout.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QSet>

#include <sys/stat.h>
#include <sys/types.h>

using namespace zentor;
using test::CountPixels;
using test::Near;
using test::Solid;

namespace {

constexpr QRgb Grey = 0xFF808080u;

struct Text {
    QString text = "Hamburgefonts";
    QRectF box{20, 20, 200, 60};
    QString font = "Liberation Sans";
    int size = 20;
    int style = 0, align = 0, lineAlign = 0;
    uint32_t color = 0xFFFF0000u;
    int shadow = 0;
    int hint = 4;
    int offset = 1;
    QSize canvas{240, 120};
};

QImage Draw(const Text& t, QRgb background = Grey, int dotsPerMeter = 0) {
    QImage img(t.canvas, QImage::Format_ARGB32_Premultiplied);
    img.fill(background);
    if (dotsPerMeter) {
        img.setDotsPerMeterX(dotsPerMeter);
        img.setDotsPerMeterY(dotsPerMeter);
    }
    QPainter p(&img);
    DrawFontText(p, t.text, t.box.x(), t.box.y(), t.box.width(), t.box.height(), t.font, t.size,
                 t.style, t.align, t.lineAlign, t.color, t.shadow, t.hint, t.offset);
    return img;
}

// The smallest rectangle holding every pixel that is not the background.
QRect Ink(const QImage& img, QRgb background = Grey) {
    QRect r;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (img.pixel(x, y) != background)
                r |= QRect(x, y, 1, 1);
    return r;
}

// Every pixel within `tol` of `color`.
bool AllNear(const QImage& img, QRgb color, int tol = 6) {
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (!test::Near(img.pixel(x, y), color, tol))
                return false;
    return true;
}

// The CRC of PNG chunks, so that a doctored header is still a well-formed one.
quint32 Crc32(const QByteArray& data) {
    quint32 crc = 0xFFFFFFFFu;
    for (char ch : data) {
        crc ^= quint8(ch);
        for (int k = 0; k < 8; ++k)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

} // namespace

TEST(RenderText, ShadowLiesOnePixelRightAndDownInBlackOrWhite) {
    // White only behind exact opaque black.
    const struct {
        uint32_t text, shadow;
    } cases[] = {{0xFF000000u, 0xFFFFFFFFu}, {0xFFFF0000u, 0xFF000000u},
                 {0xFE000000u, 0xFF000000u}, {0xFF000001u, 0xFF000000u},
                 {0x00FFFFFFu, 0xFF000000u}, {0xFFFFFFFFu, 0xFF000000u}};
    for (const auto& c : cases)
        EXPECT_EQ(ShadowColorFor(c.text), c.shadow) << std::hex << c.text;
    // Without antialiasing every pixel is either text or shadow, so the shadow's colour
    // can be found exactly where the glyphs are shifted to.
    for (const uint32_t color : {0xFF000000u, 0xFFFF0000u}) {
        Text t;
        t.color = color;
        t.hint = 2;
        t.shadow = -1;
        const QImage with = Draw(t);
        t.shadow = 0;
        const QImage without = Draw(t);
        const QRgb shadow = ShadowColorFor(color);
        int shifted = 0;
        for (int y = 0; y + 1 < with.height(); ++y)
            for (int x = 0; x + 1 < with.width(); ++x) {
                // A text pixel whose lower-right neighbour is not text shows the shadow there.
                if (without.pixel(x, y) == color && without.pixel(x + 1, y + 1) != color) {
                    EXPECT_EQ(with.pixel(x + 1, y + 1), shadow) << x << "," << y;
                    ++shifted;
                }
            }
        EXPECT_GT(shifted, 20);
        EXPECT_EQ(CountPixels(without, shadow), 0);
        // The text itself is unchanged on top.
        EXPECT_EQ(CountPixels(with, color), CountPixels(without, color));
    }
}

TEST(RenderText, NothingDrawnWhenItCannotBe) {
    const auto blank = [](Text t) { return Ink(Draw(t)).isNull(); };
    Text t;
    EXPECT_FALSE(blank(t));
    t.font = "No Such Family Zq";
    EXPECT_TRUE(blank(t));
    t = Text();
    t.text = "    ";
    EXPECT_TRUE(blank(t));
    t = Text();
    t.size = 0;
    EXPECT_TRUE(blank(t));
    // "Arial" is drawn through its metric-compatible stand-in.
    t = Text();
    t.font = "Arial";
    EXPECT_FALSE(blank(t));
    EXPECT_TRUE(FontFamilyAvailable("Arial"));
    EXPECT_TRUE(FontFamilyAvailable("liberation serif"));
    EXPECT_FALSE(FontFamilyAvailable("Wingdings Zq"));
}

TEST(RenderText, AlignmentInsideTheBox) {
    Text t;
    t.text = "Mid";
    t.box = QRectF(20, 10, 200, 100);
    const struct {
        int align, lineAlign;
        int wantLeft; // -1 left third, 0 middle, 1 right third of the box
        int wantTop;
    } cases[] = {{0, 0, -1, -1}, {1, 0, 0, -1}, {2, 0, 1, -1},
                 {0, 1, -1, 0},  {1, 1, 0, 0},  {2, 2, 1, 1}};
    for (const auto& c : cases) {
        t.align = c.align;
        t.lineAlign = c.lineAlign;
        const QRect ink = Ink(Draw(t));
        ASSERT_FALSE(ink.isNull());
        const auto third = [](double v, double lo, double len) {
            return v < lo + len / 3 ? -1 : v < lo + 2 * len / 3 ? 0 : 1;
        };
        EXPECT_EQ(third(ink.center().x(), 20, 200), c.wantLeft) << c.align << c.lineAlign;
        EXPECT_EQ(third(ink.center().y(), 10, 100), c.wantTop) << c.align << c.lineAlign;
        EXPECT_TRUE(QRect(20, 10, 200, 100).contains(ink)) << c.align << c.lineAlign;
    }
    // Right alignment is flush with the last visible character: trailing blanks go.
    t.align = 2;
    t.lineAlign = 0;
    const QImage plain = Draw(t);
    t.text += "     ";
    EXPECT_EQ(Draw(t), plain);
}

TEST(RenderText, WrapsAndClipsToTheBox) {
    Text t;
    t.text = "one two three four five six seven eight nine ten eleven twelve";
    t.box = QRectF(30, 10, 100, 40);
    t.shadow = -1;
    const QRect ink = Ink(Draw(t));
    // Several lines, every one inside the box (the shadow is clipped one pixel further).
    EXPECT_GT(ink.height(), 30);
    EXPECT_TRUE(QRect(30, 10, 101, 41).contains(ink))
        << ink.x() << "," << ink.y() << " " << ink.width() << "x" << ink.height();
    // A word wider than the box is broken rather than sticking out.
    t.text = "Supercalifragilisticexpialidocious";
    t.shadow = 0;
    EXPECT_TRUE(QRect(30, 10, 100, 40).contains(Ink(Draw(t))));
    // Line breaks in the text start new lines.
    t.text = "a\r\nb\nc";
    t.box = QRectF(30, 10, 100, 100);
    EXPECT_GT(Ink(Draw(t)).height(), 3 * 20);
}

TEST(RenderText, HintsChooseAntialiasing) {
    Text t;
    t.color = 0xFF000000u;
    t.text = "Antialiasing wavy ovals";
    const auto levels = [&](int hint) {
        t.hint = hint;
        const QImage img = Draw(t, 0xFFFFFFFFu);
        QSet<QRgb> seen;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                seen.insert(img.pixel(x, y));
        return seen.size();
    };
    EXPECT_EQ(levels(1), 2); // single bit per pixel: only text and background
    EXPECT_EQ(levels(2), 2);
    EXPECT_GT(levels(3), 2);
    EXPECT_GT(levels(4), 2);
    EXPECT_GT(levels(5), 2);
    // Hinting changes the glyph shapes: the five chosen hints all look different.
    std::vector<QImage> looks;
    for (int hint = 1; hint <= 5; ++hint) {
        t.hint = hint;
        looks.push_back(Draw(t));
        for (int other = 1; other < hint; ++other)
            EXPECT_NE(looks.back(), looks[size_t(other - 1)]) << hint << " vs " << other;
    }
}

TEST(RenderText, HomeContactLinesAreCentred) {
    show::ShowProfile profile;
    profile.Phone = "0123 456 789";
    QImage img = Solid(800, 600, qRgb(0, 0, 0));
    QPainter p(&img);
    PaintHomeContacts(p, show::LayoutHome(profile, 800, 600));
    p.end();
    EXPECT_NEAR(Ink(img, qRgb(0, 0, 0)).center().x(), 400, 3);
}

TEST(RenderText, UnderlineSpansTheText) {
    Text t;
    t.text = "HHH HHH";
    t.style = 2; // italic, centred: where decorations went astray before
    t.align = 1;
    const QRect plain = Ink(Draw(t));
    t.style = 2 | 4;
    const QRect underlined = Ink(Draw(t));
    EXPECT_GT(underlined.bottom(), plain.bottom());
    EXPECT_NEAR(underlined.left(), plain.left(), 3);
    EXPECT_NEAR(underlined.right(), plain.right(), 3);
}

// Pixels per em at a size in points.
double Em(int points) {
    return points * 96.0 / 72.0;
}

TEST(RenderText, InkWidthScalesWithTheSizeInPointsAt96Dpi) {
    // Forty "n" span 39 advances of 1139/2048 em plus one n's ink of 869/2048 em in Arial's
    // metrics: the ink grows with the exact em, hinted or not, never with a rounded one.
    Text t;
    t.text = QString(40, QLatin1Char('n'));
    t.box = QRectF(4, 4, 0, 0);
    t.canvas = QSize(700, 40);
    for (const int hint : {1, 4})
        for (int size = 8; size <= 22; ++size) {
            t.size = size;
            t.hint = hint;
            const double want = (39 * 1139 + 869) / 2048.0 * Em(size);
            EXPECT_NEAR(Ink(Draw(t)).width(), want, 2.0) << size << " pt, hint " << hint;
        }
    // Sized at 96 dpi whatever the surface says: 300 dpi draws the same.
    EXPECT_EQ(Draw(t, Grey, 3780), Draw(t, Grey, 11811));
}

TEST(RenderText, LinePitchIsTheFontsLineSpacing) {
    // Eleven lines, 2355/2048 em apart; a drawn H on the first and the last line.
    Text t;
    t.font = "Arial";
    t.box = QRectF(4, 4, 200, 250);
    t.canvas = QSize(240, 260);
    for (const int size : {8, 11, 12}) {
        const double pitch = Em(size) * 2355 / 2048;
        const TextBoxLayout box =
            LayoutTextBox("a\nb\nc\nd\ne\nf\ng\nh\ni\nj\nk", 4, 4, 200, 250, t.font, size, 0, 0, 0);
        ASSERT_EQ(box.linesTotal, 11);
        EXPECT_NEAR(box.lineHeight, pitch, 1e-3) << size;
        EXPECT_NEAR(box.lines[10].rect.top() - box.lines[0].rect.top(), 10 * pitch, 1e-3) << size;
        t.size = size;
        t.text = "H";
        const int oneH = Ink(Draw(t)).height();
        t.text = QStringLiteral("H") + QString(10, QLatin1Char('\n')) + QStringLiteral("H");
        EXPECT_NEAR(Ink(Draw(t)).height() - oneH, 10 * pitch, 1.0) << size;
    }
}

TEST(RenderText, LayoutTellsWhatFitsAndWrapsAtTheFractionalSize) {
    const QString font = "Arial"; // 11 pt: lines 16.87 px apart
    const struct {
        QString text;
        double height;
        int lineAlign;
        int total, visible;
        bool tooWide;
    } cases[] = {
        {"one two three", 20, 0, 1, 1, false},
        {"one two three four five six seven", 40, 0, 3, 2, false},
        {"one two three four five six seven", 0, 0, 3, 3, false},
        // Centred and too tall: only the middle line lies wholly inside.
        {"one two three four five six seven", 20, 1, 3, 1, false},
        {"one Supercalifragilisticexpialidocious", 100, 0, 4, 4, true},
    };
    for (const auto& c : cases) {
        const TextBoxLayout box =
            LayoutTextBox(c.text, 10, 10, 100, c.height, font, 11, 0, 0, c.lineAlign);
        EXPECT_EQ(box.linesTotal, c.total) << c.text.toStdString() << " " << c.height;
        EXPECT_EQ(box.linesVisible, c.visible) << c.text.toStdString() << " " << c.height;
        EXPECT_EQ(box.wordTooWide, c.tooWide) << c.text.toStdString();
    }
    // Line ranges index the text as given: a CR LF pair is two characters of its line.
    const TextBoxLayout breaks =
        LayoutTextBox("ab\r\ncd\ref   ", 10, 10, 100, 100, font, 11, 0, 0, 0);
    ASSERT_EQ(breaks.lines.size(), 3u);
    const int ranges[3][2] = {{0, 4}, {4, 3}, {7, 2}};
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(breaks.lines[i].start, ranges[i][0]) << i;
        EXPECT_EQ(breaks.lines[i].length, ranges[i][1]) << i;
    }
    EXPECT_TRUE(LayoutTextBox("x", 0, 0, 100, 100, "No Such Zq", 11, 0, 0, 0).lines.empty());

    // At 11 pt (14.67 px) "The quick brown fox" is 18327/2048 em wide, 131.25 px, and a line
    // keeps a sixth of an em free at each end: it fits a box of 136.14 px. At a rounded 15 px
    // it would need 139.2 px. The first line's length counts the blank after its last word.
    const QString sentence = "The quick brown fox jumps over the lazy dog";
    for (const auto& [width, firstLine] : {std::pair(135.0, 16), {136.5, 20}, {139.0, 20}}) {
        const TextBoxLayout box = LayoutTextBox(sentence, 10, 10, width, 200, font, 11, 0, 0, 0);
        ASSERT_FALSE(box.lines.empty());
        EXPECT_EQ(box.lines[0].start, 0);
        EXPECT_EQ(box.lines[0].length, firstLine) << width;
    }
}

TEST(RenderPicture, SaveImageAsByEndingAndOnlyAJpegDropsTheAlpha) {
    test::Sandbox box;
    const QImage img = Solid(8, 6, qRgb(10, 200, 30));
    const QByteArray jpegMagic("\xFF\xD8\xFF", 3), pngMagic("\x89PNG", 4);
    const struct {
        QString name; // what is passed
        QString file; // what lands on disk, if anything
        QByteArray magic;
    } cases[] = {
        {"a.jpg", "a.jpg", jpegMagic},  {"b.JPG  ", "b.JPG", jpegMagic},
        {"  c.Png", "c.Png", pngMagic}, {"d.jpeg", "d.jpeg", {}},
        {"e.bmp", "e.bmp", {}},         {"f", "f", {}},
        {"g.jpg.txt", "g.jpg.txt", {}},
    };
    for (const auto& c : cases) {
        // Blanks around the name stay around the whole path.
        QString path = box.path(c.name.trimmed());
        if (c.name.startsWith(' '))
            path.prepend("  ");
        if (c.name.endsWith(' '))
            path.append("  ");
        const bool wrote = SaveImageAs(img, path, 95);
        const QByteArray bytes = test::ReadAll(box.path(c.file));
        if (c.magic.isEmpty()) {
            EXPECT_FALSE(wrote) << qPrintable(c.name);
            EXPECT_FALSE(QFile::exists(box.path(c.file))) << qPrintable(c.name);
        } else {
            EXPECT_TRUE(wrote) << qPrintable(c.name);
            EXPECT_TRUE(bytes.startsWith(c.magic)) << qPrintable(c.name);
            EXPECT_EQ(QImage::fromData(bytes).size(), QSize(8, 6)) << qPrintable(c.name);
        }
    }
    // An unsupported ending leaves an existing file alone.
    ASSERT_TRUE(test::WriteAll(box.path("keep.bmp"), "old"));
    EXPECT_FALSE(SaveImageAs(img, box.path("keep.bmp"), 95));
    EXPECT_EQ(test::ReadAll(box.path("keep.bmp")), QByteArray("old"));
    // A folder that does not exist: nothing written, no crash.
    EXPECT_FALSE(SaveImageAs(img, box.path("no/such/dir/x.png"), 95));
    // Wider than a JPEG can be: refused, and nothing is left.
    EXPECT_FALSE(SaveImageAs(Solid(70000, 1, qRgb(1, 2, 3)), box.path("wide.jpg"), 95));
    EXPECT_FALSE(QFile::exists(box.path("wide.jpg")));

    // Only a JPEG drops the alpha channel, and keeps the colour whole.
    QImage half(8, 8, QImage::Format_ARGB32_Premultiplied);
    half.fill(qRgba(128, 0, 0, 128)); // red at half opacity
    ASSERT_TRUE(SaveImageAs(half, box.path("h.png"), 95));
    ASSERT_TRUE(SaveImageAs(half, box.path("h.jpg"), 95));
    EXPECT_EQ(qAlpha(QImage(box.path("h.png")).pixel(4, 4)), 128);
    EXPECT_TRUE(Near(QImage(box.path("h.jpg")).pixel(4, 4), qRgb(255, 0, 0), 8));
    EXPECT_TRUE(Near(QImage::fromData(EncodeJpeg(half, 95)).pixel(4, 4), qRgb(255, 0, 0), 8));
}

TEST(RenderPicture, ResampledPictureStretchesAndFlattens) {
    test::Sandbox box;
    const struct {
        QSize source; // empty: no source file at all
        QSize target;
        QRgb color;
    } cases[] = {
        {{1, 1}, {1024, 768}, qRgb(220, 30, 30)},
        {{300, 100}, {128, 128}, qRgb(30, 30, 220)},
        {{}, {128, 128}, qRgb(0, 0, 0)},
        {{}, {1024, 768}, qRgb(0, 0, 0)},
    };
    int n = 0;
    for (const auto& c : cases) {
        const QString src = box.path(QStringLiteral("src%1.png").arg(n++));
        if (!c.source.isEmpty()) {
            ASSERT_TRUE(Solid(c.source.width(), c.source.height(), c.color).save(src));
        }
        const QImage out = ResampledPicture(QStringLiteral(" ") + src + QStringLiteral(" "),
                                            c.target.width(), c.target.height());
        EXPECT_EQ(out.size(), c.target) << n;
        EXPECT_FALSE(out.hasAlphaChannel()) << n;
        EXPECT_TRUE(AllNear(out, c.color)) << n;
    }
}

TEST(RenderPicture, ReadsTheUsualFormatsNoLargerThanDrawn) {
    test::Sandbox box;
    const QRgb color = qRgb(90, 160, 40);
    ASSERT_TRUE(Solid(4000, 3000, color).save(box.path("big.jpg"), "JPEG", 90));
    for (const char* format : {"PNG", "BMP", "ICO"})
        ASSERT_TRUE(Solid(64, 48, color).save(box.path(QLatin1String("pic.") + format), format));
    // A camera's JPEG whose EXIF says "turn me a quarter": drawn as stored, as everywhere.
    QByteArray turned = EncodeJpeg(Solid(64, 48, color), 90);
    turned.insert(2, QByteArray("\xFF\xE1\x00\x22"
                                "Exif\0\0MM\0\x2A\0\0\0\x08\0\x01"
                                "\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0",
                                36));
    ASSERT_TRUE(test::WriteAll(box.path("turned.jpg"), turned));
    const struct {
        QString file;
        QSize draw, want;
    } cases[] = {
        {"big.jpg", {140, 105}, {140, 105}}, {"big.jpg", {}, {4000, 3000}},
        {"big.jpg", {5000, 50}, {4000, 50}}, // never above the picture itself
        {"pic.PNG", {32, 24}, {32, 24}},     {"pic.PNG", {1280, 960}, {64, 48}},
        {"pic.BMP", {32, 24}, {32, 24}},     {"pic.ICO", {32, 24}, {32, 24}},
        {"turned.jpg", {}, {64, 48}},
    };
    for (const auto& c : cases) {
        const QImage img = LoadPicture(box.path(c.file), c.draw);
        EXPECT_EQ(img.size(), c.want) << qPrintable(c.file) << " " << c.draw.width();
        EXPECT_TRUE(Near(img.pixel(img.width() / 2, img.height() / 2), color, 8))
            << qPrintable(c.file);
    }
    EXPECT_EQ(ReadPictureSize(box.path("big.jpg")), QSize(4000, 3000));
    EXPECT_EQ(ReadPictureSize(box.path("pic.ICO")), QSize(64, 48));
}

TEST(RenderPicture, HostileFilesAreUnreadable) {
    test::Sandbox box;
    QByteArray jpeg;
    {
        QImage img = Solid(200, 200, qRgb(1, 2, 3));
        img.save(box.path("whole.jpg"));
        jpeg = test::ReadAll(box.path("whole.jpg"));
    }
    ASSERT_TRUE(test::WriteAll(box.path("cut.jpg"), jpeg.left(jpeg.size() / 3)));
    ASSERT_TRUE(test::WriteAll(box.path("header.jpg"), jpeg.left(20)));
    ASSERT_TRUE(test::WriteAll(box.path("empty.png"), QByteArray()));
    ASSERT_TRUE(test::WriteAll(box.path("noise.bmp"), QByteArray(5000, '\x42')));
    ASSERT_TRUE(QDir(box.dir.path()).mkdir("folder.png"));
    ASSERT_EQ(mkfifo(QFile::encodeName(box.path("fifo.jpg")).constData(), 0600), 0);
    // A PNG whose header claims 60000 x 60000 pixels (3.6 gigapixels), with its CRC right.
    {
        QImage img = Solid(4, 4, qRgb(9, 9, 9));
        img.save(box.path("small.png"));
        QByteArray png = test::ReadAll(box.path("small.png"));
        const uchar dims[8] = {0, 0, 0xEA, 0x60, 0, 0, 0xEA, 0x60};
        png.replace(16, 8, reinterpret_cast<const char*>(dims), 8);
        const quint32 crc = Crc32(png.mid(12, 17)); // chunk type and data of IHDR
        const char be[4] = {char(crc >> 24), char(crc >> 16), char(crc >> 8), char(crc)};
        png.replace(29, 4, be, 4);
        ASSERT_TRUE(test::WriteAll(box.path("huge.png"), png));
        // The header is well formed: only the size bound can refuse it.
        ASSERT_EQ(QImageReader(box.path("huge.png")).size(), QSize(60000, 60000));
    }
    const char* files[] = {"cut.jpg",    "header.jpg", "empty.png", "noise.bmp",
                           "folder.png", "fifo.jpg",   "huge.png",  "missing.jpg"};
    PictureCache cache;
    for (const char* f : files) {
        const QString path = box.path(QString::fromLatin1(f));
        const QImage img = LoadPicture(path, QSize(100, 100));
        const QImage full = LoadPicture(path);
        // A truncated JPEG may decode partly (grey below the cut); what matters is that it
        // never crashes, hangs or grows beyond its claimed size.
        if (QByteArray(f) != "cut.jpg") {
            EXPECT_TRUE(img.isNull()) << f;
            EXPECT_TRUE(full.isNull()) << f;
            EXPECT_EQ(ReadPictureSize(path), QSize(0, 0)) << f;
        } else {
            EXPECT_LE(full.width(), 200);
        }
        EXPECT_NO_FATAL_FAILURE(cache.picture(path, QSize(50, 50))) << f;
    }
}

TEST(RenderPicture, CacheDecodesOncePerFileVersionAndSizeWithinItsBudget) {
    test::Sandbox box;
    const QString path = box.path("pic.png");
    ASSERT_TRUE(Solid(40, 40, qRgb(200, 0, 0)).save(path));
    PictureCache cache;
    EXPECT_EQ(cache.picture(path, QSize(20, 20)).pixel(5, 5), qRgb(200, 0, 0));
    EXPECT_EQ(cache.count(), 1);
    cache.picture(path, QSize(20, 20));
    EXPECT_EQ(cache.count(), 1);
    cache.picture(path, QSize(30, 30));
    EXPECT_EQ(cache.count(), 2);
    // A rewritten file is a new picture.
    ASSERT_TRUE(Solid(41, 41, qRgb(0, 0, 200)).save(path));
    EXPECT_EQ(cache.picture(path, QSize(20, 20)).pixel(5, 5), qRgb(0, 0, 200));
    EXPECT_EQ(cache.pictureSize(path), QSize(41, 41));
    cache.clear();
    EXPECT_EQ(cache.count(), 0);
    EXPECT_EQ(cache.bytes(), 0);

    PictureCache small(3 * 100 * 100 * 4); // room for three 100 x 100 pictures
    for (int i = 0; i < 6; ++i) {
        const QString p = box.path(QStringLiteral("p%1.png").arg(i));
        ASSERT_TRUE(Solid(100, 100, qRgb(i * 40, 0, 0)).save(p));
        EXPECT_FALSE(small.picture(p, QSize(100, 100)).isNull());
    }
    EXPECT_LE(small.bytes(), 3 * 100 * 100 * 4);
    EXPECT_EQ(small.count(), 3);
}

TEST(RenderPicture, BuiltInPicturesFillSlotsOneToEleven) {
    ResImages res = ResImages::load();
    for (int slot = 0; slot < ResImageCount; ++slot) {
        const bool filled = slot >= 1 && slot <= ResHired;
        EXPECT_EQ(!res.isEmpty(slot), filled) << slot;
        EXPECT_EQ(res.size(slot), res.image(slot).size()) << slot;
        EXPECT_EQ(res.size(slot).isEmpty(), !filled) << slot;
    }
    // The two empty slots stay empty whatever is put there.
    res.setImage(0, QImage(4, 4, QImage::Format_RGB32));
    res.setImage(12, QImage(4, 4, QImage::Format_RGB32));
    EXPECT_TRUE(res.isEmpty(0));
    EXPECT_TRUE(res.isEmpty(12));
    EXPECT_TRUE(res.image(13).isNull());
}
