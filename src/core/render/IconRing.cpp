#include "render/IconRing.h"

#include "io/FileUtil.h"
#include "model/Document.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/TabPictureLayout.h"

#include <QPainter>

#include <cmath>

namespace zentor {
namespace {

constexpr double Pi = 3.1415926; // the ring's positions are fixed with this value
constexpr int Radius = 250;
constexpr int IconSize = 80;
constexpr int CentreSize = 128;

} // namespace

IconRectTable IconRects(QSize frame) {
    IconRectTable rects{};
    const int cx = RoundHalfEven(frame.width() / 2.0);
    const int cy = RoundHalfEven(frame.height() / 2.0);
    for (int i = 1; i <= 8; ++i) {
        const double a = (i - 1) * (360.0 / 8) * Pi / 180.0;
        const double x = Radius * std::cos(a) + cx;
        const double y = Radius * std::sin(a) + cy;
        const double half = IconSize / 2.0;
        rects[size_t(i)] = {RoundHalfEven(x - half), RoundHalfEven(y - half),
                            RoundHalfEven(x - half + IconSize), RoundHalfEven(y - half + IconSize)};
    }
    const int left = RoundHalfEven((frame.width() - CentreSize) / 2.0);
    const int top = RoundHalfEven((frame.height() - CentreSize) / 2.0);
    rects[0] = {left, top, left + CentreSize, top + CentreSize};
    return rects;
}

IconRectTable GetCircle(QPainter& p, Document& doc, const ResImages& res, PictureCache* cache) {
    const IconRectTable rects = IconRects(FrameSize(doc));
    for (int i = 1; i <= 8; ++i) {
        const IconRect& r = rects[size_t(i)];
        const QRect box(r.Left, r.Top, r.Right - r.Left, r.Bottom - r.Top);
        auto& icon = doc.Tabs[size_t(i)].Icon;
        const QString path = icon.text();
        icon = path;
        if (path.isEmpty())
            DrawStretched(p, res.image(i), box);
        else
            DrawPictureFile(p, ResolvePath(doc.ScriptPath, path), box, cache);
    }
    return rects;
}

} // namespace zentor
