#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "edit/FontChoice.h"
#include "edit/PropertyEdit.h"
#include "edit/SettingsForm.h"

#include <gtest/gtest.h>

using namespace zentor;
using namespace zentor::test;

namespace {
struct PropsEdit : ::testing::Test {
    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
};
} // namespace

TEST_F(PropsEdit, TextCommitsCutAndPadToTheirField) {
    doc->Images[3].TabNo = 2;
    doc->Texts[5].TabNo = 2;
    const PropertyTarget t{2, 3};
    const PropertyTarget tt{2, 5};
    const QByteArray longText(300, 'x');
    struct Row {
        PropertyText box;
        PropertyTarget target;
        std::function<QByteArray(const Document&)> field;
        int width;
        bool renames;
    };
    const std::vector<Row> rows = {
        {PropertyText::FirstName, t, [](auto& d) { return Bytes(d.Profile.FirstName); }, 32, false},
        {PropertyText::LastName, t, [](auto& d) { return Bytes(d.Profile.LastName); }, 32, false},
        {PropertyText::Phone, t, [](auto& d) { return Bytes(d.Profile.Phone); }, 16, false},
        {PropertyText::Email, t, [](auto& d) { return Bytes(d.Profile.Email); }, 64, false},
        {PropertyText::Website, t, [](auto& d) { return Bytes(d.Profile.Website); }, 128, false},
        {PropertyText::Address, t, [](auto& d) { return Bytes(d.Profile.Address); }, 256, false},
        {PropertyText::PostCode, t, [](auto& d) { return Bytes(d.Profile.PostCode); }, 16, false},
        {PropertyText::TabName, t, [](auto& d) { return Bytes(d.Tabs[2].Name); }, 32, true},
        {PropertyText::ImgName, t, [](auto& d) { return Bytes(d.Images[3].Name); }, 32, false},
        {PropertyText::TextName, tt, [](auto& d) { return Bytes(d.Texts[5].Name); }, 32, false},
        {PropertyText::Word, tt, [](auto& d) { return Bytes(d.Texts[5].Text); }, 4096, false},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(int(r.box));
        for (const QByteArray& text : {QByteArray("Ann"), longText, QByteArray()}) {
            doc->Dirty = false;
            const TextCommit c =
                CommitPropertyText(*doc, r.target, r.box, QString::fromLatin1(text));
            EXPECT_TRUE(c.stored);
            EXPECT_TRUE(c.refresh);
            EXPECT_EQ(c.renameStrip, r.renames);
            EXPECT_EQ(r.field(*doc), Padded(text, r.width));
            EXPECT_TRUE(doc->Dirty);
        }
        // Committing what is already stored changes nothing, so it leaves the flag alone.
        doc->Dirty = false;
        CommitPropertyText(*doc, r.target, r.box, QString());
        EXPECT_FALSE(doc->Dirty);
    }
    // The other objects were not touched.
    EXPECT_TRUE(doc->Images[4].Name.isNul());
    EXPECT_TRUE(doc->Texts[4].Text.isNul());
}

TEST_F(PropsEdit, TargetsOutsideTheTablesAreRefused) {
    const struct {
        PropertyText box;
        PropertyTarget target;
        bool stored;
    } rows[] = {
        {PropertyText::ImgName, {1, 0}, true},
        {PropertyText::ImgName, {1, MaxImages}, true},
        {PropertyText::ImgName, {1, MaxImages + 1}, false},
        {PropertyText::ImgName, {1, -1}, false},
        {PropertyText::Word, {1, MaxTexts}, true},
        {PropertyText::TextName, {1, MaxTexts + 1}, false},
        {PropertyText::TextName, {1, -1}, false},
        {PropertyText::TabName, {0, 0}, true},
        {PropertyText::TabName, {MaxTab, 0}, true},
        {PropertyText::TabName, {MaxTab + 1, 0}, false},
        {PropertyText::TabName, {-1, 0}, false},
    };
    for (const auto& r : rows) {
        EXPECT_EQ(CommitPropertyText(*doc, r.target, r.box, "x").stored, r.stored)
            << int(r.box) << " " << r.target.tab << "/" << r.target.slot;
        EXPECT_EQ(PropertyBoxText(*doc, r.target, r.box), r.stored ? "x" : "");
    }
}

TEST_F(PropsEdit, KeepOnTimeKeepsTheOldValueOnANonNumber) {
    const struct {
        const char* text;
        int32_t expected;
        bool stored;
    } rows[] = {
        {"5000", 5000, true},
        {" 42 ", 42, true},
        {"abc", 42, false},
        {"", 42, false},
        {"12.5", 12, true},
        {"13.5", 14, true},
        {"-3", -3, true},
        {"1e3", -3, false},
        {"99999999999", -3, false},
        {"2147483647", 2147483647, true},
        {"7 000", 2147483647, false},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.text);
        const TextCommit c =
            CommitPropertyText(*doc, {}, PropertyText::KeepOnTime, QString::fromLatin1(r.text));
        EXPECT_EQ(c.stored, r.stored);
        EXPECT_FALSE(c.refresh);
        EXPECT_EQ(doc->Header.KeepOnTime, r.expected);
    }
}

TEST_F(PropsEdit, CombosListTheirRowsAndStoreEachRowsValue) {
    const PropertyTarget t{4, 7};
    const struct {
        PropertyCombo combo;
        std::vector<int32_t> values; // stored value of each row, in order
        std::function<int32_t(const Document&)> field;
    } table[] = {
        {PropertyCombo::MusicVol,
         {0, 100, 200, 300, 400, 500, 600, 700, 800, 900, 1000},
         [](auto& d) { return d.Header.MusicVolume; }},
        {PropertyCombo::ShowSpeed, {0, 10, 20, 30, 40}, [](auto& d) { return d.Header.ShowSpeed; }},
        {PropertyCombo::AutoRepeat, {0, 1}, [](auto& d) { return d.Header.AutoRepeat; }},
        {PropertyCombo::ShowAsRun, {0, 1}, [](auto& d) { return d.Header.ShowAsRun; }},
        {PropertyCombo::FontShadow,
         {0, -1},
         [](auto& d) { return int32_t(d.Texts[7].FontShadow); }},
        {PropertyCombo::TabPicAlign,
         {0, 1, 2, 3},
         [](auto& d) { return d.Tabs[4].Picture.PicAlign; }},
        {PropertyCombo::AlignH, {0, 1, 2}, [](auto& d) { return d.Texts[7].Align; }},
        {PropertyCombo::AlignV, {0, 1, 2}, [](auto& d) { return d.Texts[7].LineAlign; }},
        {PropertyCombo::TextHint, {0, 1, 2, 3, 4, 5}, [](auto& d) { return d.Texts[7].TextHint; }},
    };
    for (const auto& r : table) {
        SCOPED_TRACE(int(r.combo));
        const int rows = int(r.values.size());
        ASSERT_EQ(ComboRows(r.combo).size(), rows);
        for (int row = 0; row < rows; ++row) {
            const int32_t value = r.values[size_t(row)];
            EXPECT_EQ(ComboValue(r.combo, row), value);
            EXPECT_EQ(ComboRow(r.combo, value), row);
            const bool changes = r.field(*doc) != value; // the same value leaves the flag
            doc->Dirty = false;
            EXPECT_TRUE(CommitCombo(*doc, t, r.combo, row));
            EXPECT_EQ(r.field(*doc), value);
            EXPECT_EQ(doc->Dirty, changes);
            EXPECT_EQ(ComboRowFromDocument(*doc, t, r.combo), row);
        }
        // No row selected stores nothing.
        EXPECT_FALSE(CommitCombo(*doc, t, r.combo, -1));
        EXPECT_EQ(r.field(*doc), r.values.back());
    }
    EXPECT_FALSE(CommitCombo(*doc, {4, 200}, PropertyCombo::AlignH, 1));
    EXPECT_FALSE(CommitCombo(*doc, {MaxTab + 1, 7}, PropertyCombo::TabPicAlign, 1));
    // Values between rows and outside the lists.
    EXPECT_EQ(ComboRow(PropertyCombo::MusicVol, 550), 6); // halves go to the even row
    EXPECT_EQ(ComboRow(PropertyCombo::MusicVol, 450), 4);
    EXPECT_EQ(ComboRow(PropertyCombo::MusicVol, 1100), -1);
    EXPECT_EQ(ComboRow(PropertyCombo::ShowSpeed, 24), 2);
    EXPECT_EQ(ComboRow(PropertyCombo::ShowSpeed, -10), -1);
    EXPECT_EQ(ComboRow(PropertyCombo::FontShadow, 1), 1);
    EXPECT_EQ(ComboRow(PropertyCombo::AutoRepeat, -1), -1);
    EXPECT_EQ(ComboRow(PropertyCombo::TextHint, 6), -1);
}

TEST_F(PropsEdit, FileChoicesUseTheirTitlesAndStoreThePathAsChosen) {
    const PropertyTarget t{3, 2};
    const QString pics = "*.jpg;*.bmp;*.png|*.jpg;*.bmp;*.png|*.*|*.*";
    const QString icoPics = "*.jpg;*.bmp;*.ico;*.png|*.jpg;*.bmp;*.ico;*.png|*.*|*.*";
    const struct {
        FileChoice choice;
        const char* title;
        QString filter;
        bool refresh;
        std::function<QByteArray(const Document&)> field;
    } rows[] = {
        {FileChoice::UserIcon, "Choose user icon file", pics, true,
         [](auto& d) { return Bytes(d.Profile.UserIcon); }},
        {FileChoice::TabIcon, "Choose tab icon file", "*.ico;*.png|*.ico;*.png|*.*|*.*", false,
         [](auto& d) { return Bytes(d.Tabs[3].Icon); }},
        {FileChoice::TabPicture, "Choose picture file", icoPics, true,
         [](auto& d) { return Bytes(d.Tabs[3].Picture.FileName); }},
        {FileChoice::ImageFile, "Choose image file", pics, true,
         [](auto& d) { return Bytes(d.Images[2].FileName); }},
        {FileChoice::BackPicture, "Choose Background picture file", icoPics, true,
         [](auto& d) { return Bytes(d.Header.BackPicture); }},
        {FileChoice::BackMusic, "Choose Background Music", "*.mp3|*.mp3", false,
         [](auto& d) { return Bytes(d.Header.BackMusic); }},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.title);
        const FileChoiceDialog dialog = FileChoiceFor(r.choice);
        EXPECT_EQ(dialog.refresh, r.refresh);
        const QByteArray before = r.field(*doc);
        ScriptedPrompter p;
        p.expectFile(false, r.title, r.filter, QString())
            .expectFile(false, r.title, r.filter, "/no/such/file.png");
        doc->Dirty = false;
        EXPECT_EQ(ChooseAndStoreFile(p, *doc, t, r.choice), QString());
        EXPECT_EQ(r.field(*doc), before); // cancel changes nothing
        EXPECT_FALSE(doc->Dirty);
        EXPECT_EQ(ChooseAndStoreFile(p, *doc, t, r.choice), "/no/such/file.png");
        EXPECT_EQ(r.field(*doc), Padded("/no/such/file.png", 256));
        EXPECT_EQ(StoredFile(*doc, t, r.choice), "/no/such/file.png");
        EXPECT_TRUE(doc->Dirty);
        EXPECT_PROMPTS_DONE(p);
    }
}

TEST_F(PropsEdit, BackColourStoresTheDialogAnswerEvenOnCancel) {
    ScriptedPrompter p;
    p.expectColor(0x000000FF).expectColor(0);
    EXPECT_EQ(ChooseAndStoreBackColor(p, *doc), 0x000000FF);
    EXPECT_EQ(doc->Header.BackColor, 0x000000FF);
    EXPECT_EQ(BackColorText(doc->Header.BackColor), "     &H000000FF");
    doc->Dirty = false;
    EXPECT_EQ(ChooseAndStoreBackColor(p, *doc), 0); // cancelled: black
    EXPECT_EQ(doc->Header.BackColor, 0);
    EXPECT_TRUE(doc->Dirty);
    EXPECT_EQ(BackColorText(0x00ABCDEF), "     &H00ABCDEF");
    EXPECT_EQ(FontColorText(-1), "&HFFFFFFFF");
    EXPECT_EQ(FontColorText(0xFF), "&HFF");
    EXPECT_PROMPTS_DONE(p);
}

TEST_F(PropsEdit, BoxTextsFontNameAndPositionBoxesAsRead) {
    doc->Tabs[2].Name = "  Skills  ";
    doc->Texts[1].Text = "  two\r\nlines   ";
    doc->Texts[1].FontName = "  Arial ";
    doc->Header.KeepOnTime = 1234;
    const PropertyTarget t{2, 1};
    EXPECT_EQ(PropertyBoxText(*doc, t, PropertyText::TabName), "Skills");
    EXPECT_EQ(PropertyBoxText(*doc, t, PropertyText::Word), "  two\nlines");
    EXPECT_EQ(PropertyBoxText(*doc, t, PropertyText::KeepOnTime), "1234");
    EXPECT_EQ(PropertyBoxText(*doc, t, PropertyText::Phone), ""); // never assigned: NULs
    EXPECT_EQ(TrimStoredFontName(*doc, t), "Arial");
    EXPECT_EQ(Bytes(doc->Texts[1].FontName), Padded("Arial", 31));

    // The position boxes fall back to the record one box at a time.
    const IntRect record{10, 20, 30, 40};
    const struct {
        std::array<QString, 4> boxes;
        IntRect expected;
    } rows[] = {
        {{"1", "2", "3", "4"}, {1, 2, 3, 4}},
        {{"x", "2", "", "4.5"}, {10, 2, 30, 4}},
        {{" 7 ", "-5", "3.5", "abc"}, {7, -5, 4, 40}},
    };
    for (const auto& r : rows)
        EXPECT_EQ(LocationFromBoxes(r.boxes, record), r.expected);
}

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

// A row of the list is read literally (its text, not a table); Custom reads the boxes.
TEST(PropsSettings, OkReadsTheChosenRowOrTheCustomBoxes) {
    const QStringList rows = FrameSizeRows();
    ASSERT_EQ(rows.size(), 9);
    EXPECT_EQ(rows.last(), "Custom");
    const struct {
        int row;
        bool custom;
        const char *w, *h;
        int32_t width, height;
    } cases[] = {
        {0, false, "1000", "", 600, 400}, // the boxes are ignored without the custom box
        {1, false, "1000", "", 600, 450},
        {2, false, "1000", "", 640, 480},
        {3, false, "1000", "", 720, 480},
        {4, false, "1000", "", 720, 540},
        {5, false, "1000", "", 800, 600},
        {6, false, "1000", "", 900, 600},
        {7, false, "1000", "", 1024, 768},
        {8, false, "1000", "", 0, 0},
        {5, true, "1000", "700", 1000, 700},
        {5, true, "abc", "", 0, 0},
        {5, true, "640px", "48 0", 640, 480},
        {5, true, "12.5", "13.5", 12, 14},
        {5, true, "1e20", "-1e20", 2147483647, -2147483647 - 1},
    };
    for (const auto& c : cases) {
        ScriptHeader h;
        SettingsForm f;
        f.frameRow = c.row;
        f.custom = c.custom;
        f.widthText = c.w;
        f.heightText = c.h;
        ApplySettings(h, f);
        EXPECT_EQ(QSize(h.FrameWidth, h.FrameHeight), QSize(c.width, c.height))
            << c.row << " " << c.w << " x " << c.h;
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

TEST(PropsFontChoice, StyleBitsSizesAndExactSearch) {
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

    // Sizes, and the search for a row that matches exactly.
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
    // The preview lies on white only behind exact opaque black.
    for (const uint32_t c : {0x00FFFFFFu, 0xFE000000u, 0xFFFFFFFFu})
        EXPECT_EQ(PreviewBackground(c), 0xFF000000u) << std::hex << c;
    EXPECT_EQ(PreviewBackground(0xFF000000u), 0xFFFFFFFFu);

    ok.fontName = QString(40, 'F');
    EXPECT_TRUE(ApplyFontChoice(t, ok));
    EXPECT_EQ(QByteArray(t.FontName.data(), 31), QByteArray(31, 'F'));
    EXPECT_EQ(t.FontSize, 20);
    EXPECT_EQ(t.FontStyle, 1);
    EXPECT_EQ(t.FontColor, int32_t(0xFF000000u));
    EXPECT_FALSE(ApplyFontChoice(t, ok));
}
