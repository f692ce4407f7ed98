#include "render/ColorTable.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace zentor;

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
    EXPECT_EQ(GDIColorNames().indexOf(QStringLiteral("White")), 138);
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
