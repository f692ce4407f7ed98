#include "edit/FontChoice.h"

#include <gtest/gtest.h>

using namespace zentor;

TEST(PropsFontChoice, StyleBitsToControlsAndBack) {
    const struct {
        int32_t style;
        int row;
        bool underline, strikeout;
    } rows[] = {
        {0, 0, false, false}, {1, 1, false, false}, {2, 2, false, false},
        {3, 3, false, false}, {7, 3, true, false},  {8, 0, false, true},
        {13, 1, true, true},  {14, 2, true, true},  {15, 3, true, true},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.style);
        EXPECT_EQ(StyleRow(r.style), r.row);
        EXPECT_EQ(StyleUnderline(r.style), r.underline);
        EXPECT_EQ(StyleStrikeout(r.style), r.strikeout);
        EXPECT_EQ(StyleFromControls(r.row, r.underline, r.strikeout), r.style);
    }
}

TEST(PropsFontChoice, SizesAndExactSearch) {
    const QStringList sizes = FontSizeRows();
    EXPECT_EQ(FindExactRow(sizes, "13"), -1);
    EXPECT_EQ(FindExactRow(sizes, "14"), 5);
    EXPECT_EQ(FindExactRow({"Arial", "arial black", "ARIAL"}, "arial"), 0);
    EXPECT_EQ(FindExactRow({"Arial Black"}, "Arial"), -1);
    const struct {
        const char* text;
        std::optional<int32_t> size;
    } parsed[] = {{"12", 12},         {" 13 ", 13},         {"12.5", 12}, {"abc", std::nullopt},
                  {"", std::nullopt}, {"1x", std::nullopt}, {"0", 0}};
    for (const auto& p : parsed)
        EXPECT_EQ(ParseFontSize(p.text), p.size) << p.text;
}

TEST(PropsFontChoice, PreviewBackgroundIsWhiteOnlyBehindExactBlack) {
    EXPECT_EQ(PreviewBackground(0xFF000000u), 0xFFFFFFFFu);
    EXPECT_EQ(PreviewBackground(0x00FFFFFFu), 0xFF000000u);
    EXPECT_EQ(PreviewBackground(0xFE000000u), 0xFF000000u);
    EXPECT_EQ(PreviewBackground(0xFFFFFFFFu), 0xFF000000u);
}

TEST(PropsFontChoice, OpenFallBackAndOk) {
    TextElement t;
    t.FontName = "  No Such Family  ";
    t.FontSize = 13;
    t.FontStyle = 7;
    t.FontColor = int32_t(0xFF00FFFFu);
    FontChoice c = BeginFontChoice(t);
    EXPECT_EQ(QByteArray(t.FontName.data(), 31),
              QByteArray("No Such Family") + QByteArray(17, ' '));
    EXPECT_EQ(c.fontName, "No Such Family");
    EXPECT_EQ(c.size, 13);
    EXPECT_EQ(c.style, 7);
    EXPECT_EQ(c.color, 0xFF00FFFFu);

    auto known = [](const QString& f) { return f == "Arial" || f == "Serif"; };
    EXPECT_EQ(PreviewFamily(c, known), "Arial");
    EXPECT_EQ(c.fontName, "Arial");
    FontChoice ok{"Serif", 20, 1, 0xFF000000u};
    EXPECT_EQ(PreviewFamily(ok, known), "Serif");

    ok.fontName = QString(40, 'F');
    EXPECT_TRUE(ApplyFontChoice(t, ok));
    EXPECT_EQ(QByteArray(t.FontName.data(), 31), QByteArray(31, 'F'));
    EXPECT_EQ(t.FontSize, 20);
    EXPECT_EQ(t.FontStyle, 1);
    EXPECT_EQ(t.FontColor, int32_t(0xFF000000u));
    EXPECT_FALSE(ApplyFontChoice(t, ok));
}
