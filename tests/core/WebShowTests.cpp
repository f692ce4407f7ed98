#include "TestSupport.h"

#include "export/WebShow.h"
#include "show/ShowPictures.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace zentor;

// What the web page's script plays by: the pages in show order and the ring's names.
TEST(WebShow, OrderAndTheRingsNames) {
    test::Sandbox box;
    auto doc = box.newDocument();
    doc->Tabs[8].Name = QString(); // a blank slide show keeps a name of its own
    const QJsonObject show = WebShowNumbers(*doc, {11, 13, 18});
    EXPECT_EQ(show.value("order").toArray(), (QJsonArray{1, 3, 8}));
    const QJsonArray ring = show.value("ring").toArray();
    ASSERT_EQ(ring.size(), 9);
    const char* names[] = {"",          "Overview",   "Awards",
                           "Education", "Experience", "Skills & Interests",
                           "Objective", "Personal",   "Slide Show"};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(ring[i].toObject().value("name").toString(), names[i]) << i;
    EXPECT_EQ(ring[1].toObject().value("width").toInt(), 80);
}

// A page is empty when its quarter is flat; the quick look at 4 x 4 blocks that settles most
// pages must never call a page that holds something empty, nor the other way round.
TEST(WebShow, PagesAreJudgedEmptyByTheirQuarter) {
    const QSize frame(800, 600);
    const auto exact = [&](const QImage& page) {
        const QImage small = page.scaled(frame / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 .convertToFormat(QImage::Format_RGB32);
        return show::IsFlatPicture(reinterpret_cast<const uint32_t*>(small.constBits()),
                                   small.width(), small.height(), int(small.bytesPerLine() / 4));
    };
    const struct {
        QPoint at;
        int darker; // a square this much darker than the white page; 0 none
        int side = 1;
    } cases[] = {{{0, 0}, 0},     {{0, 0}, 255},     {{799, 599}, 255}, {{799, 0}, 170},
                 {{0, 599}, 150}, {{402, 301}, 140}, {{402, 301}, 120}, {{5, 5}, 100},
                 {{7, 4}, 60, 2}, {{4, 7}, 60, 2}}; // split across two blocks: faint in each
    for (const auto& c : cases) {
        for (const QImage::Format format :
             {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied}) {
            QImage page(frame, format);
            page.fill(0xFFFFFFFFu);
            const int v = 255 - c.darker;
            for (int dy = 0; dy < c.side; ++dy)
                for (int dx = 0; dx < c.side; ++dx)
                    page.setPixel(c.at + QPoint(dx, dy), qRgb(v, v, v));
            SCOPED_TRACE(testing::Message() << c.at.x() << "," << c.at.y() << " darker by "
                                            << c.darker << " format " << format);
            EXPECT_EQ(IsEmptyPage(page, frame), exact(page));
        }
    }
    // Any flat colour, at the frame's size or already at the quarter.
    EXPECT_TRUE(IsEmptyPage(test::Solid(800, 600, qRgb(0, 120, 40)), frame));
    EXPECT_TRUE(IsEmptyPage(test::Solid(200, 150, qRgb(0, 120, 40)), frame));
}
