#include "edit/FontChoice.h"
#include "edit/SettingsForm.h"

#include <gtest/gtest.h>

using namespace zentor;

TEST(PropsSettings, LeadingNumberReadsTheFrontOfTheText) {
    const struct {
        const char* text;
        double value;
    } rows[] = {
        {"800 ", 800}, {"1024", 1024}, {"768", 768}, {"Cust", 0},     {"tom", 0},
        {"", 0},       {"  12ab", 12}, {"1 2", 12},  {"-7.5x", -7.5}, {"+3", 3},
        {"2e3", 2000}, {"2e", 2},      {".5", 0.5},  {"1d2", 100},    {"x1", 0},
    };
    for (const auto& r : rows)
        EXPECT_DOUBLE_EQ(LeadingNumber(QString::fromLatin1(r.text)), r.value) << r.text;
}

TEST(PropsSettings, OkReadsEveryRowLiterally) {
    const QStringList rows = FrameSizeRows();
    ASSERT_EQ(rows.size(), 9);
    const int expected[9][2] = {{600, 400}, {600, 450}, {640, 480},  {720, 480}, {720, 540},
                                {800, 600}, {900, 600}, {1024, 768}, {0, 0}};
    for (int row = 0; row < 9; ++row) {
        ScriptHeader h;
        SettingsForm f;
        f.frameRow = row;
        f.widthText = "1000"; // ignored without the custom box
        ApplySettings(h, f);
        EXPECT_EQ(h.FrameWidth, expected[row][0]) << rows[row].toStdString();
        EXPECT_EQ(h.FrameHeight, expected[row][1]) << rows[row].toStdString();
    }
    EXPECT_EQ(rows.last(), "Custom");
}

TEST(PropsSettings, OkReadsCustomBoxes) {
    const struct {
        const char* w;
        const char* h;
        int32_t width, height;
    } rows[] = {
        {"1000", "700", 1000, 700},
        {"abc", "", 0, 0},
        {"640px", "48 0", 640, 480},
        {"12.5", "13.5", 12, 14},
        {"1e20", "-1e20", 2147483647, -2147483647 - 1},
    };
    for (const auto& r : rows) {
        ScriptHeader h;
        SettingsForm f;
        f.custom = true;
        f.frameRow = 5;
        f.widthText = r.w;
        f.heightText = r.h;
        ApplySettings(h, f);
        EXPECT_EQ(h.FrameWidth, r.width) << r.w;
        EXPECT_EQ(h.FrameHeight, r.height) << r.h;
    }
}

TEST(PropsSettings, OpeningFillsTheControls) {
    const struct {
        int32_t w, h, volume, speed, repeat, asRun;
        int row;
        bool custom;
        int volSlider, speedSlider;
    } rows[] = {
        {800, 600, 500, 20, 1, 1, 5, false, 5, 2},
        {1000, 700, 550, 25, 0, 0, -1, true, 6, 2},
        {1024, 768, 450, 0, 1, 0, 7, false, 4, 0},
        {600, 400, 2000, 99, 0, 1, 0, false, 10, 4}, // sliders keep to their range
        {0, 0, -100, -10, 0, 0, -1, true, 0, 0},
    };
    for (const auto& r : rows) {
        ScriptHeader h;
        h.FrameWidth = r.w;
        h.FrameHeight = r.h;
        h.MusicVolume = r.volume;
        h.ShowSpeed = r.speed;
        h.AutoRepeat = r.repeat;
        h.ShowAsRun = r.asRun;
        h.BackMusic = "  /music/song.mp3 ";
        const SettingsForm f = IniCBFrame(h);
        SCOPED_TRACE(r.w);
        EXPECT_EQ(f.frameRow, r.row);
        EXPECT_EQ(f.custom, r.custom);
        EXPECT_EQ(f.widthText, QString::number(r.w));
        EXPECT_EQ(f.heightText, QString::number(r.h));
        EXPECT_EQ(f.musicVolume, r.volSlider);
        EXPECT_EQ(f.speed, r.speedSlider);
        EXPECT_EQ(f.autoRepeat, r.repeat != 0);
        EXPECT_EQ(f.showSlide, r.asRun != 0);
        EXPECT_EQ(f.music, "/music/song.mp3");
    }
}

TEST(PropsSettings, OkWithoutChangesKeepsTheScales) {
    ScriptHeader h;
    h.FrameWidth = 800;
    h.FrameHeight = 600;
    h.MusicVolume = 500;
    h.ShowSpeed = 30;
    h.AutoRepeat = 1;
    h.ShowAsRun = 0;
    h.BackMusic = "song.mp3";
    const ScriptHeader before = h;
    ApplySettings(h, IniCBFrame(h));
    EXPECT_EQ(h, before);
}

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
