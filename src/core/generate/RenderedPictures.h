#pragma once

#include "generate/PackagePictures.h"
#include "model/ProcessContext.h"
#include "render/PictureCache.h"

#include <QImage>

#include <atomic>
#include <functional>

namespace zentor {

class ResImages;

// The package's pictures from the renderer: pictures resampled with ResizeToTemp, pages
// from the page compositor. Calls may overlap: each resample gets its own temporary
// picture in the work folder, and pages are rendered from the document without changing it
// (what the compositor writes back is applied as each page is written).
class RenderedPictures : public PackagePictures {
public:
    // Pictures are decoded into `pictures` when given (the editor's own, so that what it
    // has shown is not decoded again), else into a cache of this object's.
    RenderedPictures(const ProcessContext& ctx, const ResImages& res,
                     PictureCache* pictures = nullptr);

    std::optional<QByteArray> resample(const QString& path, int width, int height) override;
    std::optional<QByteArray> renderPage(const Document& doc, int page) override;
    void pageWritten(Document& doc, int page) override;
    bool reentrant() const override { return true; }

    // Shown each page as it is rendered, before it is compressed; called on the rendering
    // thread, so several at once.
    using PageSeen = std::function<void(int page, const QImage& picture)>;
    void setPageSeen(PageSeen seen) { pageSeen_ = std::move(seen); }

private:
    const ProcessContext& ctx_;
    const ResImages& res_;
    PictureCache own_;
    PictureCache& cache_;
    std::atomic<int> serial_{0};
    PageSeen pageSeen_;
};

} // namespace zentor
