#pragma once
#include "Picture.h"

#include "show/HomeLayout.h"
#include "show/PackageData.h"

#include <array>
#include <memory>
#include <string>

namespace winplayer {

// The profile page as the editor shows it, made from the package's own pictures and texts
// (the built-in ones where the package carries none): background, ring of tab icons, the
// person's name (or the name of the tab under the pointer), border, user icon and the
// contact details.
class HomePage {
public:
    HomePage(const zentor::show::PackageFile& package, int width, int height);

    // Paints the page at the frame's size; `hoverIcon` 1..8 names that tab in the caption.
    void paint(Gdiplus::Graphics& g, int hoverIcon) const;

    // The ring and the contact lines, where the page takes the pointer.
    const zentor::show::HomeLayout& layout() const { return layout_; }

private:
    std::wstring captionFor(int hoverIcon) const;

    int width_, height_;
    zentor::show::HomeLayout layout_;
    std::unique_ptr<Gdiplus::Bitmap> background_, border_, userIcon_;
    std::array<std::unique_ptr<Gdiplus::Bitmap>, 9> icons_; // tabs 1..8
    std::wstring name_;
    std::array<std::wstring, 9> tabNames_; // tabs 1..8
};

} // namespace winplayer
