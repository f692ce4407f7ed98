#pragma once

#include "generate/PackagePictures.h"
#include "render/PictureCache.h"

#include <QImage>

#include <functional>

namespace zentor {

class ResImages;

// The package's pictures from the renderer: pictures resampled by ResampledPicture, pages
// from the page compositor. Calls may overlap: pages are rendered from the document without
// changing it (what the compositor writes back is applied as each page is written).
class RenderedPictures : public PackagePictures {
public:
    // Pictures are decoded into `pictures` when given (the editor's own, so that what it
    // has shown is not decoded again), else into a cache of this object's.
    explicit RenderedPictures(const ResImages& res, PictureCache* pictures = nullptr);

    std::optional<QByteArray> resample(int entry, const QString& path, int width,
                                       int height) override;
    std::optional<QByteArray> renderPage(const Document& doc, int page) override;
    void pageWritten(Document& doc, int page) override;
    bool reentrant() const override { return true; }

    // Shown each page as it is rendered, before it is compressed; called on the rendering
    // thread, so several at once.
    using PageSeen = std::function<void(int page, const QImage& picture)>;
    void setPageSeen(PageSeen seen) { pageSeen_ = std::move(seen); }

    // Given each resampled picture (by its entry) instead of compressing it, which leaves
    // its entry empty: for an export that draws these pictures itself and carries none of
    // them. Called on the resampling thread.
    using ResampledTaken = std::function<void(int entry, const QImage& picture)>;
    void setResampledTaken(ResampledTaken take) { resampledTaken_ = std::move(take); }

private:
    const ResImages& res_;
    PictureCache own_;
    PictureCache& cache_;
    PageSeen pageSeen_;
    ResampledTaken resampledTaken_;
};

} // namespace zentor
