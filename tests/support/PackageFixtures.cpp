#include "PackageFixtures.h"

#include "io/FileUtil.h"

#include <QBuffer>
#include <QImageWriter>

#include <algorithm>

namespace zentor::test {

QByteArray EncodeJpeg(const QImage& image, int quality) {
    QByteArray out;
    QBuffer buffer(&out);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(quality);
    writer.write(image);
    return out;
}

QByteArray PictureBytes(int width, int height, QRgb colour, const char* format) {
    QByteArray out;
    QBuffer buffer(&out);
    Solid(width, height, colour).save(&buffer, format);
    return out;
}

std::optional<QByteArray> FakePictures::resample(int, const QString& path, int width, int height) {
    ++calls;
    QByteArray bytes;
    if (ReadFileBytes(path, bytes) == 0)
        return std::nullopt;
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(QRgb(qHash(bytes) | 0xff000000u));
    return EncodeJpeg(image);
}

std::optional<QByteArray> FakePictures::renderPage(const Document& doc, int page) {
    ++calls;
    QImage image(doc.Header.FrameWidth, doc.Header.FrameHeight, QImage::Format_RGB32);
    image.fill(qRgb(page * 30, 255 - page * 30, 128));
    return EncodeJpeg(image);
}

int JpegQuality(const QByteArray& jpeg) {
    // The standard luminance table in zig-zag order, as a JPEG file stores it.
    static const int base[64] = {16,  11, 12, 14,  12,  10,  16,  14,  13, 14,  18,  17,  16,
                                 19,  24, 40, 26,  24,  22,  22,  24,  49, 35,  37,  29,  40,
                                 58,  51, 61, 60,  57,  51,  56,  55,  64, 72,  92,  78,  64,
                                 68,  87, 69, 55,  56,  80,  109, 81,  87, 95,  98,  103, 104,
                                 103, 62, 77, 113, 121, 112, 100, 120, 92, 101, 103, 99};
    const qsizetype dqt = jpeg.indexOf(QByteArrayView("\xff\xdb", 2));
    if (dqt < 0 || dqt + 5 + 64 > jpeg.size() || (uchar(jpeg[dqt + 4]) >> 4) != 0)
        return -1;
    const auto* table = reinterpret_cast<const uchar*>(jpeg.constData() + dqt + 5);
    for (int q = 1; q <= 100; ++q) {
        const int scale = q < 50 ? 5000 / q : 200 - 2 * q;
        bool match = true;
        for (int i = 0; i < 64 && match; ++i)
            match = table[i] == std::clamp((base[i] * scale + 50) / 100, 1, 255);
        if (match)
            return q;
    }
    return -1;
}

QByteArray FakePlayer() {
    QByteArray player(524288, '\0');
    for (qsizetype i = 0; i < player.size(); ++i)
        player[i] = char((i * 7 + 3) & 0xff);
    return player;
}

} // namespace zentor::test
