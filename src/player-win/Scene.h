#pragma once
#include "HomePage.h"

#include "show/ShowModel.h"

#include <array>
#include <memory>
#include <vector>

namespace winplayer {

// Everything the player can show, decoded once, and how one moment of the show looks.
class Scene {
public:
    explicit Scene(const zentor::show::PackageFile& package);

    // The package's frame size: what --frame writes and the window scales to fit.
    int width() const { return width_; }
    int height() const { return height_; }
    const HomePage& home() const { return home_; }
    // The pages the show runs through: those that hold something.
    const std::vector<int>& order() const { return order_; }
    // Around the frame when the window has another shape.
    Gdiplus::Color backColor() const { return backColor_; }

    // Paints `state` at the frame's size: the new picture faded in over the previous one.
    void paint(Gdiplus::Graphics& g, const zentor::show::ScreenState& state, int hoverIcon);
    std::unique_ptr<Gdiplus::Bitmap> frame(const zentor::show::ScreenState& state, int hoverIcon);

private:
    Gdiplus::Bitmap* picture(int picture, int hoverIcon);

    std::array<std::unique_ptr<Gdiplus::Bitmap>, zentor::show::Package::PageCount> pages_;
    int width_, height_;
    HomePage home_;
    Gdiplus::Color backColor_;
    std::vector<int> order_;
    // The home page painted once per caption, since it is drawn again on every fade step.
    std::unique_ptr<Gdiplus::Bitmap> homeCache_;
    int homeCacheHover_ = -2;
};

} // namespace winplayer
