#include "export/PageShowFrames.h"

#include "model/Document.h"
#include "render/PageCompositor.h"

#include <algorithm>

namespace zentor {

namespace {
// A holding time below one frame would make a show of nothing but cuts.
constexpr int MinKeepMs = 100;
} // namespace

PageShowFrames::PageShowFrames(const Document& doc, const ResImages& res)
    : doc_(doc), res_(res), keepMs_(std::max(MinKeepMs, int(doc.Header.KeepOnTime))) {}

QSize PageShowFrames::frameSize() const {
    return FrameSize(doc_);
}

int PageShowFrames::stepAt(int ms) const {
    return std::clamp(ms / keepMs_, 0, Steps - 1) + 1;
}

QImage PageShowFrames::frameAt(int ms) {
    const int step = stepAt(ms);
    QImage& page = pages_[size_t(step - 1)];
    if (page.isNull())
        page = RenderPageImage(doc_, step == Steps ? 1 : step, res_);
    return page;
}

int PageShowFrames::stillUntil(int ms) const {
    return stepAt(ms) * keepMs_ - 1;
}

} // namespace zentor
