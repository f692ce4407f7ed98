#include "TestSupport.h"

#include "render/ImageSave.h"
#include "render/PictureCache.h"
#include "render/PictureLoader.h"
#include "render/ResImages.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/types.h>

using namespace zentor;
using test::Near;
using test::Solid;

namespace {

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

TEST(RenderPicture, SaveImageAsByEnding) {
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
}

TEST(RenderPicture, OnlyAJpegDropsTheAlphaChannel) {
    test::Sandbox box;
    QImage half(8, 8, QImage::Format_ARGB32_Premultiplied);
    half.fill(qRgba(128, 0, 0, 128)); // red at half opacity
    ASSERT_TRUE(SaveImageAs(half, box.path("a.png"), 95));
    ASSERT_TRUE(SaveImageAs(half, box.path("a.jpg"), 95));
    EXPECT_EQ(qAlpha(QImage(box.path("a.png")).pixel(4, 4)), 128);
    // The colour stays whole; only its opacity goes.
    EXPECT_TRUE(Near(QImage(box.path("a.jpg")).pixel(4, 4), qRgb(255, 0, 0), 8));
    EXPECT_TRUE(Near(QImage::fromData(EncodeJpeg(half, 95)).pixel(4, 4), qRgb(255, 0, 0), 8));
}

TEST(RenderPicture, ResizeToTempStretches) {
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
        QFile::remove(box.ctx.TempImagePath);
        EXPECT_TRUE(ResizeToTemp(QStringLiteral(" ") + src + QStringLiteral(" "), c.target.width(),
                                 c.target.height(), box.ctx));
        const QByteArray bytes = test::ReadAll(box.ctx.TempImagePath);
        ASSERT_TRUE(bytes.startsWith("\xFF\xD8")) << n;
        const QImage out = QImage::fromData(bytes);
        EXPECT_EQ(out.size(), c.target) << n;
        EXPECT_TRUE(AllNear(out, c.color)) << n;
    }
}

TEST(RenderPicture, DecodesNoLargerThanDrawn) {
    test::Sandbox box;
    ASSERT_TRUE(Solid(4000, 3000, qRgb(90, 160, 40)).save(box.path("big.jpg"), "JPEG", 90));
    ASSERT_TRUE(Solid(640, 480, qRgb(90, 160, 40)).save(box.path("mid.png")));
    const struct {
        QString file;
        QSize draw, want;
    } cases[] = {
        {"big.jpg", {140, 105}, {140, 105}}, {"big.jpg", {}, {4000, 3000}},
        {"big.jpg", {5000, 50}, {4000, 50}}, // never above the picture itself
        {"mid.png", {64, 48}, {64, 48}},     {"mid.png", {1280, 960}, {640, 480}},
    };
    for (const auto& c : cases) {
        const QImage img = LoadPicture(box.path(c.file), c.draw);
        EXPECT_EQ(img.size(), c.want) << qPrintable(c.file) << " " << c.draw.width();
        EXPECT_TRUE(Near(img.pixel(img.width() / 2, img.height() / 2), qRgb(90, 160, 40), 8));
    }
    EXPECT_EQ(ReadPictureSize(box.path("big.jpg")), QSize(4000, 3000));
}

TEST(RenderPicture, ReadsTheUsualFormats) {
    test::Sandbox box;
    const QRgb color = qRgb(40, 120, 200);
    for (const char* format : {"JPEG", "PNG", "BMP", "ICO"}) {
        const QString path = box.path(QStringLiteral("pic.%1").arg(QLatin1String(format)));
        ASSERT_TRUE(Solid(48, 32, color).save(path, format)) << format;
        EXPECT_EQ(ReadPictureSize(path), QSize(48, 32)) << format;
        const QImage img = LoadPicture(path, QSize(24, 16));
        EXPECT_EQ(img.size(), QSize(24, 16)) << format;
        EXPECT_TRUE(Near(img.pixel(12, 8), color)) << format;
    }
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

TEST(RenderPicture, CacheDecodesOncePerFileVersionAndSize) {
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
}

TEST(RenderPicture, CacheStaysWithinItsBudget) {
    test::Sandbox box;
    PictureCache cache(3 * 100 * 100 * 4); // room for three 100 x 100 pictures
    for (int i = 0; i < 6; ++i) {
        const QString path = box.path(QStringLiteral("p%1.png").arg(i));
        ASSERT_TRUE(Solid(100, 100, qRgb(i * 40, 0, 0)).save(path));
        EXPECT_FALSE(cache.picture(path, QSize(100, 100)).isNull());
    }
    EXPECT_LE(cache.bytes(), 3 * 100 * 100 * 4);
    EXPECT_EQ(cache.count(), 3);
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
