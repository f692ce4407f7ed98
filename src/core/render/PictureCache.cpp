#include "render/PictureCache.h"

#include "render/PictureLoader.h"

#include <QFileInfo>
#include <QPainter>

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
    QImage img = LoadPicture(path, drawSize);
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

void DrawStretched(QPainter& p, const QImage& image, const QRect& rect) {
    if (image.isNull() || rect.width() <= 0 || rect.height() <= 0)
        return;
    if (image.size() == rect.size()) {
        p.drawImage(rect.topLeft(), image);
        return;
    }
    p.save();
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.drawImage(rect, image);
    p.restore();
}

bool DrawPictureFile(QPainter& p, const QString& path, const QRect& rect, PictureCache* cache) {
    if (path.isEmpty() || rect.width() <= 0 || rect.height() <= 0)
        return false;
    const QImage img = cache ? cache->picture(path, rect.size()) : LoadPicture(path, rect.size());
    if (img.isNull())
        return false;
    DrawStretched(p, img, rect);
    return true;
}

} // namespace zentor
