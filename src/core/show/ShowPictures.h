#pragma once

#include "generate/PackageReader.h"
#include "render/HomePage.h"
#include "render/ResImages.h"
#include "show/HomeLayout.h"
#include "show/ShowModel.h"

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QRgb>
#include <QSize>
#include <QString>

#include <array>
#include <mutex>
#include <optional>
#include <vector>

namespace zentor {

// What a player shows of one package, decoded once and kept: the page pictures (all decoded
// on construction), the home page painted for each hovered ring icon from pictures decoded
// once, and both scaled to the sizes asked for. Safe to share between threads.
class ShowPictures {
public:
    using EmptyPages = std::array<bool, Package::EntryCount>;

    // `defaultBackground` is the encoded picture the home page shows when the package
    // carries no background of its own (or one that cannot be decoded). Every page is
    // decoded at once, judged and kept.
    ShowPictures(const PackageContents& package, const ResImages& res,
                 const QByteArray& defaultBackground);
    // For a package whose pages were judged as they were rendered (IsEmptyPage) and are
    // not shown from here: none is decoded.
    ShowPictures(const PackageContents& package, const ResImages& res,
                 const QByteArray& defaultBackground, const EmptyPages& judged);

    // The picture of one of the package's entries, given already decoded (by an export that
    // made the package and left that entry empty): the home page is painted from it. Only
    // before the home page is first painted.
    void givePicture(int entry, const QImage& picture) { given_[size_t(entry)] = picture; }

    // The package's frame (800 x 600 when its header's is not a sane one).
    QSize frame() const { return frame_; }
    // The colour around the frame when it is shown in a window of another shape.
    QRgb backColor() const { return backColor_; }
    const show::HomeLayout& contacts() const { return contacts_; }
    // The pages the show runs through: those that hold something (see IsFlatPicture).
    const std::vector<int>& showOrder() const { return order_; }

    // The picture of a ScreenState (HomePicture or a page entry) at frame size; the home
    // page with `hoverIcon`'s caption. A page that cannot be decoded is the back colour.
    QImage picture(int picture, int hoverIcon = 0) const;
    // The same scaled to `size` (smoothly), kept for the next frame.
    QImage scaled(int picture, int hoverIcon, QSize size) const;

private:
    QImage paintHome(int hoverIcon) const;
    // The background and icons the home page is painted from, decoded on first use.
    const HomePictures& homePictures() const;
    // A page entry decoded at frame size; nothing when it cannot be decoded.
    std::optional<QImage> loadPage(int entry) const;
    // What stands for a page that cannot be decoded: the back colour.
    QImage backPage() const;

    const ResImages& res_;
    QSize frame_;
    QRgb backColor_ = 0xFF000000u;
    QByteArray data_; // the package's bytes, which blobs_ look into
    std::array<QByteArray, Package::EntryCount> blobs_;
    std::array<QImage, Package::EntryCount> given_;
    QByteArray defaultBackground_;
    std::array<QString, 9> tabNames_;
    QString person_;
    show::HomeLayout contacts_;
    std::vector<int> order_;

    mutable std::once_flag homeDecoded_;
    mutable HomePictures home_;
    mutable std::mutex mutex_;
    mutable QHash<quint64, QImage> cache_; // (picture, hover, size) -> image
};

// Whether a page picture holds nothing: one flat colour, judged at a quarter of the frame as
// every player judges it (which also smooths away a JPEG's noise).
bool IsEmptyPage(const QImage& page, QSize frame);

// The window's picture of `state` at `size`: Previous, then Picture over it at Alpha, the
// frame scaled to fit `size` keeping its shape, centred on the back colour. The player's
// window, --frame, the video and the web page's comparison all draw through this.
QImage PaintShowFrame(const ShowPictures& pictures, const show::ScreenState& state, QSize size,
                      int hoverIcon = 0);

// Where the frame lies in a surface of `size`: scaled to fit, centred.
QRect FrameTarget(QSize frame, QSize size);

} // namespace zentor
