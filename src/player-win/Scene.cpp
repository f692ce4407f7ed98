#include "Scene.h"

namespace show = zentor::show;

namespace winplayer {
namespace {

constexpr int MaxFrameSide = 16384;

// The header's frame; a damaged one gives way to the first page's size.
Gdiplus::Size frameSizeOf(const show::PackageFile& package,
                          const std::unique_ptr<Gdiplus::Bitmap>& firstPage) {
    const show::ShowHeader& h = package.Info.Header;
    if (h.FrameWidth >= 1 && h.FrameHeight >= 1 && h.FrameWidth <= MaxFrameSide &&
        h.FrameHeight <= MaxFrameSide)
        return Gdiplus::Size(h.FrameWidth, h.FrameHeight);
    if (firstPage)
        return Gdiplus::Size(INT(firstPage->GetWidth()), INT(firstPage->GetHeight()));
    return Gdiplus::Size(800, 600);
}

std::unique_ptr<Gdiplus::Bitmap> decodeEntry(const show::PackageFile& package, int entry) {
    const show::BlobRange r = package.Info.range(entry);
    return r.Length > 0 ? decodePicture(package.Bytes.data() + r.Offset, size_t(r.Length))
                        : nullptr;
}

std::array<std::unique_ptr<Gdiplus::Bitmap>, show::Package::PageCount>
decodePages(const show::PackageFile& package) {
    std::array<std::unique_ptr<Gdiplus::Bitmap>, show::Package::PageCount> pages;
    for (int i = 0; i < show::Package::PageCount; ++i)
        pages[size_t(i)] = decodeEntry(package, show::Package::FirstPageEntry + i);
    return pages;
}

} // namespace

Scene::Scene(const show::PackageFile& package)
    : pages_(decodePages(package)), width_(frameSizeOf(package, pages_[0]).Width),
      height_(frameSizeOf(package, pages_[0]).Height), home_(package, width_, height_) {}

Gdiplus::Bitmap* Scene::picture(int picture, int hoverIcon) {
    if (picture != show::HomePicture) {
        const int page = picture - show::Package::FirstPageEntry;
        return page >= 0 && page < show::Package::PageCount ? pages_[size_t(page)].get() : nullptr;
    }
    if (!homeCache_ || homeCacheHover_ != hoverIcon) {
        homeCache_ = std::make_unique<Gdiplus::Bitmap>(width_, height_, PixelFormat32bppPARGB);
        Gdiplus::Graphics g(homeCache_.get());
        home_.paint(g, hoverIcon);
        homeCacheHover_ = hoverIcon;
    }
    return homeCache_.get();
}

void Scene::paint(Gdiplus::Graphics& g, const show::ScreenState& state, int hoverIcon) {
    const Gdiplus::Rect all(0, 0, width_, height_);
    Gdiplus::SolidBrush black(Gdiplus::Color(255, 0, 0, 0));
    g.FillRectangle(&black, all);
    if (state.Alpha < 1.0)
        drawStretched(g, picture(state.Previous, hoverIcon), all);
    drawStretched(g, picture(state.Picture, hoverIcon), all, float(state.Alpha));
}

std::unique_ptr<Gdiplus::Bitmap> Scene::frame(const show::ScreenState& state, int hoverIcon) {
    auto bitmap = std::make_unique<Gdiplus::Bitmap>(width_, height_, PixelFormat32bppARGB);
    Gdiplus::Graphics g(bitmap.get());
    paint(g, state, hoverIcon);
    return bitmap;
}

} // namespace winplayer
