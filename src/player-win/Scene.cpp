#include "Scene.h"

#include "show/ShowFrame.h"

#include <algorithm>

namespace show = zentor::show;

namespace winplayer {
namespace {

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

// A page that holds nothing is one flat colour; it is judged at a quarter of the frame,
// where the JPEG's noise has been smoothed away.
bool isFlat(Gdiplus::Bitmap* page, int frameWidth, int frameHeight) {
    if (!page)
        return false;
    const int w = std::max(1, frameWidth / 4), h = std::max(1, frameHeight / 4);
    Gdiplus::Bitmap small(w, h, PixelFormat32bppARGB);
    {
        Gdiplus::Graphics g(&small);
        drawStretched(g, page, Gdiplus::Rect(0, 0, w, h));
    }
    Gdiplus::BitmapData data;
    const Gdiplus::Rect all(0, 0, w, h);
    if (small.LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppARGB, &data) !=
        Gdiplus::Ok)
        return false;
    const bool flat =
        show::IsFlatPicture(static_cast<const uint32_t*>(data.Scan0), w, h, data.Stride / 4);
    small.UnlockBits(&data);
    return flat;
}

} // namespace

Scene::Scene(const show::PackageFile& package)
    : pages_(decodePages(package)), width_(show::FrameOf(package.Info.Header).Width),
      height_(show::FrameOf(package.Info.Header).Height), home_(package, width_, height_) {
    const uint32_t c = uint32_t(package.Info.Header.BackColor); // 0x00BBGGRR
    backColor_ = Gdiplus::Color(255, BYTE(c), BYTE(c >> 8), BYTE(c >> 16));
    std::array<bool, show::Package::EntryCount> empty{};
    for (int i = 0; i < show::Package::PageCount; ++i)
        empty[size_t(show::Package::FirstPageEntry + i)] =
            isFlat(pages_[size_t(i)].get(), width_, height_);
    order_ = show::ShowOrder(empty);
}

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
    // A page that cannot be decoded shows as the back colour.
    Gdiplus::SolidBrush back(backColor_);
    g.FillRectangle(&back, all);
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
