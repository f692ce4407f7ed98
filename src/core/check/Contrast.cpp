#include "check/Contrast.h"

#include <algorithm>
#include <cmath>

namespace zentor {

namespace {

double Linear(int channel) {
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
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
    const double pixels = points * 96.0 / 72.0;
    const bool bold = style & 1;
    // 14 pt bold is 18.67 px: compared with a hair of room for the rounding of 18.67.
    const bool large = pixels >= 24.0 || (bold && pixels >= 18.66);
    return large ? 3.0 : 4.5;
}

} // namespace zentor
