#pragma once

#include "export/ShowFrames.h"
#include "generate/RenderedPictures.h"
#include "model/Progress.h"
#include "show/ShowModel.h"
#include "show/ShowPictures.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace zentor {

struct Document;
struct PackageContents;
struct ProcessContext;
class PictureCache;
class ResImages;

// The show a player runs of a package with the slide show on from the start: each page
// that holds something for its holding time, fading in as the player fades it, then the
// home page held once more. Every frame is the player's own (PaintShowFrame).
class PackageShowFrames : public ShowFrames {
public:
    PackageShowFrames(const PackageContents& package, const ResImages& res,
                      const QByteArray& defaultBackground);

    QSize frameSize() const override { return pictures_.frame(); }
    int durationMs() const override;
    QImage frameAt(int ms) override;
    int stillUntil(int ms) const override;
    int stepAt(int ms) const override;
    int stepCount() const override;

private:
    ShowPictures pictures_;
    show::ShowModel model_;
};

// What an export may watch while a document's package is made.
struct PackageWatch {
    // Each page judged empty or not as it is rendered.
    ShowPictures::EmptyPages* judged = nullptr;
    // The package up to its pages (all the home page is drawn from), while pages are drawn.
    std::function<void(PackageContents head)> head;
    // Each blob as it is written, in the package's order (see ResumeGenerator).
    std::function<void(int entry, const QByteArray& bytes)> blob;
    // Told before each page is written (page n of 8); false cancels.
    Progress progress;
    // Given the pictures generating resamples (user icon, background) instead of their
    // compressed bytes, which the package then lacks: for an export that draws them itself.
    RenderedPictures::ResampledTaken resampled;
    // Only the package's head is kept (see ResumeGenerator::setHeadOnly): what
    // DocumentPackage gives is that head, as `head` is shown it.
    bool headOnly = false;
    // Work for picture workers that find nothing left to make (ResumeGenerator::setIdleWork).
    std::function<void()> idle;
};

// The package a document generates, made in memory: what the recipient's player will show.
// False with `error` when none could be made; what generating warned about is added to
// `warnings`.
bool DocumentPackage(const Document& doc, const ProcessContext& ctx, const ResImages& res,
                     PackageContents& package, QStringList& warnings, QString& error,
                     const PackageWatch& watch = {}, PictureCache* pictures = nullptr);

// The built-in background a package without its own shows on its home page.
QByteArray DefaultHomeBackground(const ProcessContext& ctx);

// The show of a document as its recipient will see it: its package, shown as above.
std::unique_ptr<ShowFrames> DocumentShowFrames(const Document& doc, const ProcessContext& ctx,
                                               const ResImages& res, QStringList& warnings,
                                               QString& error, PictureCache* pictures = nullptr);

} // namespace zentor
