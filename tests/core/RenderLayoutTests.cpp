#include "TestSupport.h"
#include "render/ColorTable.h"
#include "render/HomePage.h"
#include "render/IconRing.h"
#include "render/PageCompositor.h"
#include "render/TabPictureLayout.h"
#include "show/ShowFrame.h"

#include <QImage>
#include <QSet>

#include <gtest/gtest.h>

using namespace zentor;

TEST(RenderLayout, RoundsHalvesToEven) {
    const struct {
        double in;
        int out;
    } cases[] = {{0.5, 0},   {1.5, 2},    {2.5, 2},    {3.5, 4},     {-0.5, 0}, {-1.5, -2},
                 {-2.5, -2}, {2.4999, 2}, {2.5001, 3}, {171.6, 172}, {-3.7, -4}};
    for (const auto& c : cases)
        EXPECT_EQ(RoundHalfEven(c.in), c.out) << c.in;
}

TEST(RenderLayout, TabPictureRectangles) {
    const struct {
        int mode;
        QSize pic, frame;
        QRect want;
    } cases[] = {
        // A picture smaller than the frame.
        {0, {400, 300}, {800, 600}, {0, 0, 800, 600}},
        {1, {400, 300}, {800, 600}, {0, 0, 800, 600}},
        {2, {400, 300}, {800, 600}, {200, 150, 400, 300}},
        {3, {400, 300}, {800, 600}, {0, 0, 400, 300}},
        // Wider than the frame: fitted to the width, centred vertically.
        {1, {1000, 500}, {800, 600}, {0, 100, 800, 400}},
        {2, {1000, 500}, {800, 600}, {0, 100, 800, 400}},
        {3, {1000, 500}, {800, 600}, {0, 0, 1000, 500}},
        // Taller: fitted to the height, centred horizontally.
        {1, {300, 600}, {800, 600}, {250, 0, 300, 600}},
        {2, {300, 600}, {800, 600}, {250, 0, 300, 600}},
        // Fits exactly in one direction only: mode 2 keeps its own size.
        {2, {800, 100}, {800, 600}, {0, 250, 800, 100}},
        // Taller than the frame but narrow: mode 2 scales it down.
        {2, {100, 1200}, {800, 600}, {375, 0, 50, 600}},
        // Rounding: height 800 / (1000 / 499) = 399.2, top (600 - 399) / 2 = 100.5 -> 100.
        {1, {1000, 499}, {800, 600}, {0, 100, 800, 399}},
        // Width 600 / (1 / (601 / 900)) = 400.67 -> 401, left 199.5 -> 200.
        {1, {601, 900}, {800, 600}, {200, 0, 401, 600}},
        // Odd room left: (801 - 400) / 2 = 200.5 rounds to 200, (301 - 300) / 2 to 0.
        {2, {400, 300}, {801, 301}, {200, 0, 400, 300}},
        // (803 - 400) / 2 = 201.5 rounds to 202.
        {2, {400, 300}, {803, 600}, {202, 150, 400, 300}},
        // Other frame sizes.
        {0, {10, 10}, {1024, 768}, {0, 0, 1024, 768}},
        {1, {1920, 1080}, {1024, 768}, {0, 96, 1024, 576}},
        // A picture whose size could not be read.
        {1, {0, 0}, {800, 600}, {400, 300, 0, 0}},
        {2, {0, 0}, {800, 600}, {400, 300, 0, 0}},
        {3, {0, 0}, {800, 600}, {0, 0, 0, 0}},
        {0, {0, 0}, {800, 600}, {0, 0, 800, 600}},
    };
    for (const auto& c : cases) {
        const auto r = TabPictureRect(c.mode, c.pic, c.frame);
        ASSERT_TRUE(r.has_value()) << c.mode;
        EXPECT_EQ(*r, c.want) << "mode " << c.mode << " picture " << c.pic.width() << "x"
                              << c.pic.height() << " frame " << c.frame.width() << "x"
                              << c.frame.height();
    }
    EXPECT_FALSE(TabPictureRect(4, {400, 300}, {800, 600}).has_value());
    EXPECT_FALSE(TabPictureRect(-1, {400, 300}, {800, 600}).has_value());
}

TEST(RenderLayout, LayingOutStoresTheRecord) {
    test::Sandbox box;
    auto doc = box.newDocument();
    ASSERT_TRUE(test::Solid(1000, 500, qRgb(255, 0, 0)).save(box.path("wide.png")));
    doc->ScriptPath = box.path("project.qds");

    // Relative to the project's folder, blanks trimmed.
    LayoutTabPicture(*doc, 1, 3, "  wide.png  ");
    const ImageElement& p = doc->Tabs[3].Picture;
    EXPECT_EQ(p.FileName.text(), "wide.png");
    EXPECT_EQ(p.PicAlign, 1);
    EXPECT_EQ(QRect(p.Left, p.Top, p.Width, p.Height), QRect(0, 100, 800, 400));
    EXPECT_EQ(p.Reserved, -1);
    EXPECT_EQ(doc->Tabs[2].Picture, box.newDocument()->Tabs[2].Picture);

    // An unknown mode keeps the rectangle but still takes path and mode.
    LayoutTabPicture(*doc, 7, 3, "wide.png");
    EXPECT_EQ(QRect(p.Left, p.Top, p.Width, p.Height), QRect(0, 100, 800, 400));
    EXPECT_EQ(p.PicAlign, 7);

    // A missing picture lays out as 0 x 0.
    LayoutTabPicture(*doc, 3, 3, "missing.png");
    EXPECT_EQ(QRect(p.Left, p.Top, p.Width, p.Height), QRect(0, 0, 0, 0));
}

TEST(RenderLayout, IconRingAndBadge) {
    const IconRectTable r = IconRects(QSize(800, 600));
    // Centre (400, 300), radius 250, 80 x 80 icons; 250 * cos(45 degrees) = 176.78.
    const IconRect want[9] = {{336, 236, 464, 364}, {610, 260, 690, 340}, {537, 437, 617, 517},
                              {360, 510, 440, 590}, {183, 437, 263, 517}, {110, 260, 190, 340},
                              {183, 83, 263, 163},  {360, 10, 440, 90},   {537, 83, 617, 163}};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(r[i], want[i]) << i;
    // An odd frame: the centre 512.5 rounds to 512, (1025 - 128) / 2 = 448.5 to 448.
    const IconRectTable odd = IconRects(QSize(1025, 768));
    EXPECT_EQ(odd[1].Left, 512 + 250 - 40);
    EXPECT_EQ(odd[0].Left, 448);

    EXPECT_EQ(BadgeRect(QSize(800, 600)), QRect(530, 418, 240, 172));
    // 1024 * 0.3 = 307.2 -> 307; 307 * 0.715 = 219.505 -> 220.
    EXPECT_EQ(BadgeRect(QSize(1024, 768)), QRect(1024 - 307 - 30, 768 - 220 - 10, 307, 220));
}

// Under the centre picture: the hovered ring icon's tab name, from the first icon to the
// slide show's, else the person.
TEST(RenderLayout, HomeCaptionNamesTheHoveredIcon) {
    std::array<QString, 9> names;
    for (int i = 0; i < 9; ++i)
        names[size_t(i)] = QStringLiteral(" Tab%1 ").arg(i);
    const struct {
        int hover;
        const char* caption;
    } cases[] = {{0, "Ann Lee"}, {1, "Tab1"}, {8, "Tab8"}, {9, "Ann Lee"}, {-1, "Ann Lee"}};
    for (const auto& c : cases)
        EXPECT_EQ(HomeCaption(names, "Ann Lee", c.hover), c.caption) << c.hover;
}

TEST(RenderColor, SpotValuesInListOrder) {
    GDIColorTable table{};
    IniGDIColor(table);
    EXPECT_EQ(table, GDIColor());
    const struct {
        int index;
        const char* name;
        uint32_t argb;
    } cases[] = {
        {0, "AliceBlue", 0xFFF0F8FFu},     {2, "Aqua", 0xFF00FFFFu},
        {7, "Black", 0xFF000000u},         {20, "Cyan", 0xFF00FFFFu},
        {22, "DarkBrown", 0xFF804040u},    {24, "DarkGoldenrod", 0xFFB8860Bu},
        {43, "Firebrick", 0xFFB22222u},    {46, "Fuchsia", 0xFFFF00FFu},
        {50, "Goldenrod", 0xFFDAA520u},    {80, "Magenta", 0xFFFF00FFu},
        {114, "Red", 0xFFFF0000u},         {134, "Transparent", 0x00FFFFFFu},
        {138, "White", 0xFFFFFFFFu},       {140, "XPBlue", 0xFF003CC7u},
        {141, "XPGradient", 0xFFC6C5D7u},  {142, "XPGoldDark", 0xFFB08218u},
        {143, "XPGoldLight", 0xFFFCF9C3u}, {145, "YellowGreen", 0xFF9ACD32u},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(GDIColorName(c.index), QLatin1String(c.name)) << c.index;
        EXPECT_EQ(table[size_t(c.index)], c.argb) << c.index;
    }
    EXPECT_EQ(GDIColorNames().size(), GDIColorCount);
    EXPECT_EQ(GDIColorNames().indexOf("White"), 138);
    EXPECT_TRUE(GDIColorName(-1).isEmpty());
    EXPECT_TRUE(GDIColorName(146).isEmpty());
    // Every entry but Transparent is opaque; names are unique.
    for (int i = 0; i < GDIColorCount; ++i)
        EXPECT_EQ(table[size_t(i)] >> 24, i == 134 ? 0u : 0xFFu) << i;
    const QStringList names = GDIColorNames();
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), GDIColorCount);
}

TEST(RenderColor, LookupFindsTheFirstMatch) {
    const struct {
        uint32_t argb;
        int index;
    } cases[] = {{0xFF00FFFFu, 2},   {0xFFFF00FFu, 46},  {0xFFF0F8FFu, 0},
                 {0xFF9ACD32u, 145}, {0x00FFFFFFu, 134}, {0xFFFFFFFFu, 138},
                 {0x80FF0000u, -1},  {0xFF123456u, -1},  {0x00000000u, -1}};
    for (const auto& c : cases)
        EXPECT_EQ(GDIColorIndex(c.argb), c.index) << std::hex << c.argb;
}

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
        show::ShowHeader h;
        h.FrameWidth = c.width;
        h.FrameHeight = c.height;
        const auto f = show::FrameOf(h);
        EXPECT_EQ(f.Width, c.expectWidth) << c.width << " x " << c.height;
        EXPECT_EQ(f.Height, c.expectHeight) << c.width << " x " << c.height;
    }
}

} // namespace
