#include "check/Contrast.h"

#include "render/TextLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zentor {

namespace {

// sRGB channel to linear light, looked up: contrast samples thousands of pixels per text.
double Linear(int channel) {
    static const std::array<double, 256> table = [] {
        std::array<double, 256> t{};
        for (int i = 0; i < 256; ++i) {
            const double c = i / 255.0;
            t[size_t(i)] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        }
        return t;
    }();
    return table[size_t(channel & 0xFF)];
}

} // namespace

double RelativeLuminance(QRgb colour) {
    return 0.2126 * Linear(qRed(colour)) + 0.7152 * Linear(qGreen(colour)) +
           0.0722 * Linear(qBlue(colour));
}

double ContrastRatio(double a, double b) {
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QRgb Over(QRgb text, QRgb under) {
    const int a = qAlpha(text);
    auto mix = [a](int t, int u) { return (t * a + u * (255 - a) + 127) / 255; };
    return qRgb(mix(qRed(text), qRed(under)), mix(qGreen(text), qGreen(under)),
                mix(qBlue(text), qBlue(under)));
}

double RequiredContrast(int points, int style) {
    const double pixels = EmPixels(points);
    const bool bold = style & 1;
    // 14 pt bold is 18.67 px: compared with a hair of room for the rounding of 18.67.
    const bool large = pixels >= 24.0 || (bold && pixels >= 18.66);
    return large ? 3.0 : 4.5;
}

} // namespace zentor
