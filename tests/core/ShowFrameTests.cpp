#include "show/ShowFrame.h"

#include <gtest/gtest.h>

using namespace zentor::show;

namespace {

// Both players show a package at this size, so a damaged header must give the same answer.
TEST(ShowFrameTest, HeaderFrameOrTheDefault) {
    const struct {
        int width, height;
        int expectWidth, expectHeight;
    } cases[] = {
        {800, 600, 800, 600},         {1024, 768, 1024, 768}, {1, 1, 1, 1},
        {16384, 16384, 16384, 16384}, {0, 600, 800, 600},     {800, 0, 800, 600},
        {-800, 600, 800, 600},        {16385, 600, 800, 600}, {800, 16385, 800, 600},
    };
    for (const auto& c : cases) {
        ShowHeader h;
        h.FrameWidth = c.width;
        h.FrameHeight = c.height;
        const FrameSize f = FrameOf(h);
        EXPECT_EQ(f.Width, c.expectWidth) << c.width << " x " << c.height;
        EXPECT_EQ(f.Height, c.expectHeight) << c.width << " x " << c.height;
    }
}

} // namespace
