#pragma once

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>

#include <list>
#include <mutex>

class QPainter;

namespace zentor {

// Decoded pictures keyed by (path, file size, modification time, draw size), so that
// repainting a page while the user drags does not decode its pictures again. A changed
// file gets a new key. Bounded by the bytes it holds; the least recently used go first.
// Safe to share between threads.
class PictureCache {
public:
    explicit PictureCache(qint64 maxBytes = 256LL * 1024 * 1024) : maxBytes_(maxBytes) {}

    // The picture decoded for drawing at drawSize (see LoadPicture) and reduced to it where
    // larger (FitForDrawing); null when unreadable.
    QImage picture(const QString& path, QSize drawSize);
    // The picture's own size (see ReadPictureSize), remembered like the pictures.
    QSize pictureSize(const QString& path);

    void clear();
    qint64 bytes() const;
    int count() const;

private:
    struct Key {
        QString path;
        qint64 fileSize = 0;
        qint64 mtime = 0;
        QSize drawSize;
        friend bool operator==(const Key&, const Key&) = default;
    };
    friend size_t qHash(const Key& k, size_t seed) {
        return qHashMulti(seed, k.path, k.fileSize, k.mtime, k.drawSize.width(),
                          k.drawSize.height());
    }
    struct Entry {
        QImage image;
        std::list<Key>::iterator lru;
    };

    void trim();

    mutable std::mutex mutex_;
    QHash<Key, Entry> entries_;
    QHash<Key, QSize> sizes_;
    std::list<Key> lru_; // front = most recently used
    qint64 bytes_ = 0;
    qint64 maxBytes_;
};

// The picture at `path` decoded for drawing at drawSize, through the cache when one is
// given; null for an empty path or an unreadable file.
QImage PictureFor(const QString& path, QSize drawSize, PictureCache* cache);

// Loads `path` (through the cache when one is given) and draws it stretched over `rect`,
// smoothly. Draws nothing for an unreadable file or an empty rectangle. Returns whether
// something was drawn.
bool DrawPictureFile(QPainter& p, const QString& path, const QRect& rect, PictureCache* cache);

// A record's box as a rectangle. Damaged files may hold any 32-bit values, so the edges
// are held to a range where no sum overflows; the visible result is the same.
QRect BoxRect(int left, int top, int width, int height);

// The image reduced by averaging where it is larger than it will be drawn; as it is where
// it is not (the painter enlarges it).
QImage FitForDrawing(const QImage& image, QSize drawSize);

// Draws an image stretched over `rect`, smoothly; nothing for a null image or empty rect.
void DrawStretched(QPainter& p, const QImage& image, const QRect& rect);

} // namespace zentor
