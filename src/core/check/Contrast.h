#pragma once

#include <QRgb>

namespace zentor {

// WCAG 2 relative luminance of an sRGB colour (alpha ignored), 0 black .. 1 white.
double RelativeLuminance(QRgb colour);

// (lighter + 0.05) / (darker + 0.05): 1 for equal colours, 21 for black on white.
double ContrastRatio(double luminanceA, double luminanceB);

// `text` (alpha kept) laid over the opaque `under`: the colour the reader sees.
QRgb Over(QRgb text, QRgb under);

// The ratio text needs: 3 for large text (24 px, or 18.67 px bold, at 96 dpi), else 4.5.
double RequiredContrast(int points, int style);

} // namespace zentor
