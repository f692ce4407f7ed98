#include "HomePage.h"

#include "BuiltIn.h"
#include "Text.h"

#include "show/ShowFrame.h"

namespace show = zentor::show;

namespace winplayer {
namespace {

int half(double v) {
    return show::RoundHalfEven(v / 2.0);
}

// A picture the package carries, else the built-in one.
std::unique_ptr<Gdiplus::Bitmap> packageOr(const show::PackageFile& package, int entry,
                                           int builtIn) {
    const show::BlobRange r = package.Info.range(entry);
    if (r.Length > 0)
        if (auto picture = decodePicture(package.Bytes.data() + r.Offset, size_t(r.Length)))
            return picture;
    return builtInPicture(builtIn);
}

Gdiplus::Rect rectOf(const show::IconRect& r) {
    return Gdiplus::Rect(r.Left, r.Top, r.Right - r.Left, r.Bottom - r.Top);
}

} // namespace

HomePage::HomePage(const show::PackageFile& package, int width, int height)
    : width_(width), height_(height),
      layout_(show::LayoutHome(package.Info.Profile, width, height)) {
    background_ = packageOr(package, show::Package::BackPictureEntry, BuiltInBackground);
    border_ = builtInPicture(BuiltInBorder);
    userIcon_ = packageOr(package, show::Package::UserIconEntry, BuiltInLogo);
    // Tab 1's icon is never carried; entry n holds tab n's.
    icons_[1] = builtInPicture(BuiltInTab + 1);
    for (int tab = show::Package::FirstTabIconEntry; tab <= show::Package::LastTabIconEntry; ++tab)
        icons_[size_t(tab)] = packageOr(package, tab, BuiltInTab + tab);

    const show::ShowProfile& p = package.Info.Profile;
    name_ = fromAnsi(p.FirstName) + L" " + fromAnsi(p.LastName);
    for (int tab = 1; tab <= show::Package::TabNameCount; ++tab)
        tabNames_[size_t(tab)] = fromAnsi(package.Info.TabNames[size_t(tab - 1)]);
    // The slide show's name is not carried; it keeps the name every new document gives it.
    tabNames_[8] = fromAnsi(show::SlideShowTabName);
}

std::wstring HomePage::captionFor(int hoverIcon) const {
    if (hoverIcon >= 1 && hoverIcon <= 8)
        return tabNames_[size_t(hoverIcon)];
    return name_;
}

void HomePage::paint(Gdiplus::Graphics& g, int hoverIcon) const {
    drawStretched(g, background_.get(), Gdiplus::Rect(0, 0, width_, height_));
    for (int tab = 1; tab <= 8; ++tab)
        drawStretched(g, icons_[size_t(tab)].get(), rectOf(layout_.Ring[size_t(tab)]));

    TextStyle caption; // "Arial" 12 pt at 96 dpi
    drawShadowedText(g, captionFor(hoverIcon),
                     Gdiplus::RectF(0.0f, float(half(height_) + 80), float(width_), 24.0f),
                     caption);

    drawStretched(g, border_.get(),
                  Gdiplus::Rect(half(width_ - 144), half(height_ - 144), 144, 144));
    drawStretched(g, userIcon_.get(), rectOf(layout_.Ring[0]));

    TextStyle line; // the caption's look, smaller
    line.PixelSize = layout_.FontPoints * 96.0f / 72.0f;
    line.Middle = true;
    line.Ellipsis = true;
    for (const show::HomeLine& contact : layout_.Lines) {
        line.Underline = !contact.Link.empty(); // links look like links
        const Gdiplus::Rect r = rectOf(contact.Rect);
        drawShadowedText(g, fromAnsi(contact.Text),
                         Gdiplus::RectF(float(r.X), float(r.Y), float(r.Width), float(r.Height)),
                         line);
    }
}

} // namespace winplayer
