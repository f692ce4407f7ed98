#pragma once

#include "TestSupport.h"
#include "generate/PackagePictures.h"

#include <QByteArray>
#include <QImage>
#include <QString>

#include <atomic>
#include <optional>

namespace zentor::test {

// Stands in for the renderer: a resampled picture is a flat JPEG of the requested size
// whose colour comes from the source's bytes; a page is a flat JPEG of the frame size whose
// colour comes from the page number. Unreadable sources yield nothing.
class FakePictures : public PackagePictures {
public:
    std::optional<QByteArray> resample(int entry, const QString& path, int width,
                                       int height) override;
    std::optional<QByteArray> renderPage(const Document& doc, int page) override;
    bool reentrant() const override { return true; }
    std::atomic<int> calls{0};
};

QByteArray EncodeJpeg(const QImage& image, int quality = 95);
// A picture file of the given size and colour drawn by the test.
QByteArray PictureBytes(int width, int height, QRgb colour, const char* format = "PNG");

// The JPEG quality whose scaled standard luminance table equals the file's first
// quantisation table; -1 when none does or the file has none.
int JpegQuality(const QByteArray& jpeg);

// A player stand-in of exactly the stub size, with a recognisable pattern.
QByteArray FakePlayer();

} // namespace zentor::test
