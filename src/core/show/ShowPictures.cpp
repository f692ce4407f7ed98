#include "show/ShowPictures.h"

#include "model/DefaultDocument.h"
#include "render/HomePage.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/PictureLoader.h"
#include "show/ShowFrame.h"

#include <QPainter>

#include <algorithm>
#include <future>

namespace zentor {
namespace {

QRect ToRect(const show::IconRect& r) {
    return QRect(r.Left, r.Top, r.Right - r.Left, r.Bottom - r.Top);
}

quint64 CacheKey(int picture, int hover, QSize size) {
    return (quint64(picture + 1) << 40) | (quint64(hover) << 36) | (quint64(size.width()) << 18) |
           quint64(size.height());
}

// The frame a damaged header cannot make enormous.
QSize SaneFrame(const show::ShowHeader& h) {
    const show::FrameSize f = show::FrameOf(h);
    return QSize(f.Width, f.Height);
}

QSize Quarter(QSize frame) {
    return (frame / 4).expandedTo(QSize(1, 1));
}

} // namespace

ShowPictures::ShowPictures(const PackageContents& package, const ResImages& res,
                           const QByteArray& defaultBackground, const EmptyPages& judged)
    : res_(res), frame_(SaneFrame(package.Info.Header)), data_(package.Data),
      defaultBackground_(defaultBackground) {
    const uint32_t c = uint32_t(package.Header.BackColor); // 0x00BBGGRR
    backColor_ = qRgb(int(c & 0xFF), int((c >> 8) & 0xFF), int((c >> 16) & 0xFF));
    // Views into the package's bytes, which data_ shares and so keeps alive.
    for (int entry = 0; entry < Package::EntryCount; ++entry)
        blobs_[size_t(entry)] = package.blobView(entry);
    for (int tab = 1; tab <= Package::TabNameCount; ++tab)
        tabNames_[size_t(tab)] = package.TabNames[size_t(tab - 1)].text();
    tabNames_[8] = QString::fromLatin1(show::SlideShowTabName);
    person_ = package.Profile.FirstName.text().trimmed() + QLatin1Char(' ') +
              package.Profile.LastName.text().trimmed();
    contacts_ = show::LayoutHome(package.Info.Profile, frame_.width(), frame_.height());
    order_ = show::ShowOrder(judged);
}

ShowPictures::ShowPictures(const PackageContents& package, const ResImages& res,
                           const QByteArray& defaultBackground)
    : ShowPictures(package, res, defaultBackground, EmptyPages{}) {
    // Every page is decoded once, side by side, and kept for showing; a page that cannot be
    // decoded is not called empty: the show keeps its place.
    std::vector<std::future<std::optional<QImage>>> decoding;
    for (int entry : show::PageOrder)
        decoding.push_back(
            std::async(std::launch::async, [this, entry] { return loadPage(entry); }));
    EmptyPages empty{};
    for (size_t i = 0; i < decoding.size(); ++i) {
        const int entry = show::PageOrder[i];
        const std::optional<QImage> page = decoding[i].get();
        empty[size_t(entry)] = page && IsEmptyPage(*page, frame_);
        cache_.insert(CacheKey(entry, 0, frame_), page ? *page : backPage());
    }
    order_ = show::ShowOrder(empty);
}

const HomePictures& ShowPictures::homePictures() const {
    std::call_once(homeDecoded_, [this] {
        // A carried picture that cannot be decoded gives way to the built-in one.
        const auto carried = [this](int entry, QSize size) {
            const QImage& given = given_[size_t(entry)];
            return given.isNull() ? LoadPictureData(blobs_[size_t(entry)], size)
                                  : ReduceToDraw(given, size);
        };
        const auto orBuiltIn = [](const QImage& img, const QImage& builtIn) {
            return img.isNull() ? builtIn : img;
        };
        home_.background = carried(Package::BackPictureEntry, frame_);
        if (home_.background.isNull())
            home_.background = LoadPictureData(defaultBackground_, frame_);
        home_.icons[1] = res_.image(1);
        for (int tab = Package::FirstTabIconEntry; tab <= Package::LastTabIconEntry; ++tab)
            home_.icons[size_t(tab)] = orBuiltIn(carried(tab, QSize(80, 80)), res_.image(tab));
        home_.userIcon =
            orBuiltIn(carried(Package::UserIconEntry, QSize(128, 128)), res_.image(ResLogo));
    });
    return home_;
}

QImage ShowPictures::paintHome(int hoverIcon) const {
    QImage canvas(frame_, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(0xFFFFFFFFu);
    QPainter p(&canvas);
    PaintHomePage(p, frame_, homePictures(), HomeCaption(tabNames_, person_, hoverIcon), res_);
    PaintHomeContacts(p, contacts_);
    p.end();
    return canvas.convertToFormat(QImage::Format_RGB32);
}

std::optional<QImage> ShowPictures::loadPage(int entry) const {
    QImage img = LoadPictureData(blobs_[size_t(entry)], frame_);
    if (img.isNull())
        return std::nullopt;
    if (img.size() != frame_)
        img = img.scaled(frame_, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return img.convertToFormat(QImage::Format_RGB32);
}

QImage ShowPictures::backPage() const {
    QImage img(frame_, QImage::Format_RGB32);
    img.fill(backColor_);
    return img;
}

QImage ShowPictures::picture(int picture, int hoverIcon) const {
    return scaled(picture, hoverIcon, frame_);
}

QImage ShowPictures::scaled(int picture, int hoverIcon, QSize size) const {
    // Every home page picture is one, told apart only by the caption of the hovered icon.
    const bool home = picture < Package::FirstPageEntry || picture >= Package::EntryCount;
    const int hover = home && hoverIcon >= 1 && hoverIcon <= 8 ? hoverIcon : 0;
    if (home)
        picture = show::HomePicture;
    const quint64 key = CacheKey(picture, hover, size);
    {
        std::lock_guard lock(mutex_);
        const auto it = cache_.constFind(key);
        if (it != cache_.constEnd())
            return *it;
    }
    const QImage img = size == frame_
                           ? (home ? paintHome(hover) : loadPage(picture).value_or(backPage()))
                           : scaled(picture, hover, frame_)
                                 .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    std::lock_guard lock(mutex_);
    // Besides the frame-sized pictures, scaled ones are kept for one size at a time: the
    // window's, or the video's.
    const quint64 sizeBits = (quint64(1) << 36) - 1;
    const quint64 frameSize = CacheKey(0, 0, frame_) & sizeBits;
    for (auto it = cache_.begin(); it != cache_.end();) {
        const quint64 itSize = it.key() & sizeBits;
        if (itSize != (key & sizeBits) && itSize != frameSize)
            it = cache_.erase(it);
        else
            ++it;
    }
    cache_.insert(key, img);
    return img;
}

namespace {

// Whether some 4 x 4 block of a frame-sized page averages clearly apart from the first one.
// The quarter the judging looks at is those averages (the smooth scaler averages areas,
// give or take one in rounding), so such a page is not flat; most pages that hold something
// tell so within their first row of blocks, long before a quarter could be made.
bool ClearlyNotFlat(const QImage& page, QSize frame) {
    const bool format = page.format() == QImage::Format_RGB32 ||
                        page.format() == QImage::Format_ARGB32_Premultiplied;
    if (page.size() != frame || frame.width() % 4 || frame.height() % 4 || !format)
        return false;
    const int limit = 16 * (show::FlatTolerance + 2);
    std::array<int, 3> first{};
    for (int y = 0; y < frame.height(); y += 4) {
        for (int x = 0; x < frame.width(); x += 4) {
            std::array<int, 3> sum{};
            for (int dy = 0; dy < 4; ++dy) {
                const auto* row = reinterpret_cast<const QRgb*>(page.constScanLine(y + dy)) + x;
                for (int dx = 0; dx < 4; ++dx) {
                    if (qAlpha(row[dx]) != 255)
                        return false; // judged as the quarter makes it opaque
                    sum[0] += qRed(row[dx]);
                    sum[1] += qGreen(row[dx]);
                    sum[2] += qBlue(row[dx]);
                }
            }
            if (x == 0 && y == 0)
                first = sum;
            for (size_t c = 0; c < 3; ++c)
                if (std::abs(sum[c] - first[c]) > limit)
                    return true;
        }
    }
    return false;
}

} // namespace

bool IsEmptyPage(const QImage& page, QSize frame) {
    if (ClearlyNotFlat(page, frame))
        return false;
    const QImage small =
        (page.size() == Quarter(frame)
             ? page
             : page.scaled(Quarter(frame), Qt::IgnoreAspectRatio, Qt::SmoothTransformation))
            .convertToFormat(QImage::Format_RGB32);
    return show::IsFlatPicture(reinterpret_cast<const uint32_t*>(small.constBits()), small.width(),
                               small.height(), int(small.bytesPerLine() / 4));
}

QRect FrameTarget(QSize frame, QSize size) {
    return ToRect(show::FitFrame({frame.width(), frame.height()}, size.width(), size.height()));
}

QImage PaintShowFrame(const ShowPictures& pictures, const show::ScreenState& state, QSize size,
                      int hoverIcon) {
    if (size.isEmpty())
        return QImage();
    const QRect target = FrameTarget(pictures.frame(), size);
    const double alpha = std::clamp(state.Alpha, 0.0, 1.0);
    const QImage top = pictures.scaled(state.Picture, hoverIcon, target.size());
    if (alpha >= 1.0 && target.size() == size)
        return top; // a still frame is the cached picture itself
    QImage out(size, QImage::Format_RGB32);
    QPainter p(&out);
    if (target.size() != size)
        p.fillRect(out.rect(), pictures.backColor());
    if (alpha < 1.0)
        p.drawImage(target.topLeft(), pictures.scaled(state.Previous, hoverIcon, target.size()));
    p.setOpacity(alpha);
    p.drawImage(target.topLeft(), top);
    p.end();
    return out;
}

} // namespace zentor
