#include "render/PictureCache.h"

#include "render/PictureLoader.h"

#include <QFileInfo>
#include <QPainter>

#include <algorithm>

namespace zentor {

QImage PictureCache::picture(const QString& path, QSize drawSize) {
    const QFileInfo info(path);
    if (!info.isFile())
        return QImage();
    Key key{info.absoluteFilePath(), info.size(), info.lastModified().toMSecsSinceEpoch(),
            drawSize};
    {
        std::lock_guard lock(mutex_);
        auto it = entries_.find(key);
        if (it != entries_.end()) {
            lru_.splice(lru_.begin(), lru_, it->lru);
            return it->image;
        }
    }
    // Decode outside the lock so that two threads decode different pictures at once.
    // Kept as drawn, so that a picture drawn twice at one size is one image (a PDF then
    // holds it once).
    QImage img = FitForDrawing(LoadPicture(path, drawSize), drawSize);
    std::lock_guard lock(mutex_);
    if (entries_.contains(key))
        return img;
    lru_.push_front(key);
    entries_.insert(key, Entry{img, lru_.begin()});
    bytes_ += img.sizeInBytes();
    trim();
    return img;
}

QSize PictureCache::pictureSize(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile())
        return QSize(0, 0);
    Key key{info.absoluteFilePath(), info.size(), info.lastModified().toMSecsSinceEpoch(), QSize()};
    {
        std::lock_guard lock(mutex_);
        auto it = sizes_.constFind(key);
        if (it != sizes_.constEnd())
            return *it;
    }
    const QSize size = ReadPictureSize(path);
    std::lock_guard lock(mutex_);
    // Sizes are tiny; a stale one only costs a few bytes until the cache is cleared.
    if (sizes_.size() > 4096)
        sizes_.clear();
    sizes_.insert(key, size);
    return size;
}

void PictureCache::trim() {
    // Keep at least the newest entry, however large: it is the one being drawn.
    while (bytes_ > maxBytes_ && lru_.size() > 1) {
        auto it = entries_.find(lru_.back());
        bytes_ -= it->image.sizeInBytes();
        entries_.erase(it);
        lru_.pop_back();
    }
}

void PictureCache::clear() {
    std::lock_guard lock(mutex_);
    entries_.clear();
    sizes_.clear();
    lru_.clear();
    bytes_ = 0;
}

qint64 PictureCache::bytes() const {
    std::lock_guard lock(mutex_);
    return bytes_;
}

int PictureCache::count() const {
    std::lock_guard lock(mutex_);
    return int(entries_.size());
}

QRect BoxRect(int left, int top, int width, int height) {
    static constexpr qint64 Far = 1 << 26; // far beyond any frame, far below overflow
    const auto clamp = [](qint64 v) { return int(std::clamp(v, -Far, Far)); };
    return QRect(clamp(left), clamp(top), clamp(width), clamp(height));
}

QImage FitForDrawing(const QImage& image, QSize drawSize) {
    if (image.isNull() || !drawSize.isValid() || drawSize.isEmpty())
        return image;
    // Reducing is done by averaging (the painter only samples), enlarging by the painter.
    return drawSize.width() < image.width() || drawSize.height() < image.height()
               ? image.scaled(drawSize.boundedTo(image.size()), Qt::IgnoreAspectRatio,
                              Qt::SmoothTransformation)
               : image;
}

void DrawStretched(QPainter& p, const QImage& image, const QRect& rect) {
    if (image.isNull() || rect.width() <= 0 || rect.height() <= 0)
        return;
    const QImage fitted = FitForDrawing(image, rect.size());
    if (fitted.size() == rect.size()) {
        p.drawImage(rect.topLeft(), fitted);
        return;
    }
    p.save();
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.drawImage(rect, fitted);
    p.restore();
}

QImage PictureFor(const QString& path, QSize drawSize, PictureCache* cache) {
    if (path.isEmpty())
        return QImage();
    return cache ? cache->picture(path, drawSize) : LoadPicture(path, drawSize);
}

bool DrawPictureFile(QPainter& p, const QString& path, const QRect& rect, PictureCache* cache) {
    if (path.isEmpty() || rect.width() <= 0 || rect.height() <= 0)
        return false;
    const QImage img = PictureFor(path, rect.size(), cache);
    if (img.isNull())
        return false;
    DrawStretched(p, img, rect);
    return true;
}

} // namespace zentor
