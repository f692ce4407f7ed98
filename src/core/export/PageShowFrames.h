#pragma once

#include "export/ShowFrames.h"

#include <array>

namespace zentor {

struct Document;
class ResImages;

// The show as the video records it: pages 1..8 for KeepOnTime each, then the opening page
// held one more KeepOnTime. Each page is drawn once, when first shown.
class PageShowFrames : public ShowFrames {
public:
    static constexpr int Steps = 9;

    PageShowFrames(const Document& doc, const ResImages& res);

    QSize frameSize() const override;
    int durationMs() const override { return keepMs_ * Steps; }
    QImage frameAt(int ms) override;
    int stillUntil(int ms) const override;
    int stepAt(int ms) const override;
    int stepCount() const override { return Steps; }

private:
    const Document& doc_;
    const ResImages& res_;
    int keepMs_;
    std::array<QImage, Steps> pages_;
};

} // namespace zentor
