// The disk form of every record, checked against bytes laid out here by hand from the
// published record tables, not by the code under test.
#include "TestSupport.h"

#include "io/RecordCodec.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include <initializer_list>

using namespace zentor;
using test::Padded;

namespace {

// Little-endian 32-bit values one after another.
QByteArray le32(std::initializer_list<int64_t> values) {
    QByteArray out;
    for (const int64_t v : values)
        for (int shift = 0; shift < 32; shift += 8)
            out += char((v >> shift) & 0xFF);
    return out;
}
QByteArray le16(uint16_t v) {
    const char b[2] = {char(v & 0xFF), char(v >> 8)};
    return QByteArray(b, 2);
}
QByteArray zeros(int n) {
    return QByteArray(n, '\0');
}

ImageElement sampleImage() {
    ImageElement e;
    e.TabNo = 3;
    e.Reserved = -1;
    e.Name = "image 7";
    e.FileName = "pics/a.jpg";
    e.PicAlign = 4;
    e.Flag = 0x1234;
    e.Left = -5;
    e.Top = 70000;
    e.Width = 120;
    e.Height = 0x01020304;
    e.Extra = -2;
    return e;
}

// Offsets 0, 4, 6, 38, a 2-byte gap, 296, 300, a 2-byte gap, 304 ... 320.
const QByteArray ImageBytes = le32({3}) + le16(0xFFFF) + Padded("image 7", 32) +
                              Padded("pics/a.jpg", 256) + zeros(2) + le32({4}) + le16(0x1234) +
                              zeros(2) + le32({-5, 70000, 120, 0x01020304, -2});

} // namespace

TEST(RecordLayout, HeaderBytes) {
    ScriptHeader h;
    h.VersionMajor = 1;
    h.VersionMinor = 2;
    h.VersionRevision = 3;
    h.TextCount = 4;
    h.ImageCount = 5;
    h.BackMusic = "m.mp3";
    h.BackPicture = "b.jpg";
    h.MusicVolume = 500;
    h.AutoRepeat = 1;
    h.BackColor = 0x00FF8040;
    h.ShowSpeed = 20;
    h.ShowAsRun = 1;
    h.KeepOnTime = 7000;
    h.FrameWidth = 1024;
    h.FrameHeight = 768;
    // Offsets 0 ... 16, 20, 276, 532 ... 560.
    const QByteArray expected = le32({1, 2, 3, 4, 5}) + Padded("m.mp3", 256) +
                                Padded("b.jpg", 256) +
                                le32({500, 1, 0x00FF8040, 20, 1, 7000, 1024, 768});
    ASSERT_EQ(expected.size(), 564);
    EXPECT_EQ(EncodeHeader(h), expected);
    ScriptHeader back;
    DecodeHeader(expected, back);
    EXPECT_EQ(back, h);
}

TEST(RecordLayout, ProfileBytes) {
    ProfileRecord p;
    p.UserIcon = "me.png";
    p.FirstName = "Ada";
    p.LastName = "Byron";
    p.Phone = "555";
    p.Email = "a@b.example";
    p.Website = "w.example";
    p.Address = "1 Road";
    p.PostCode = "N1";
    // Offsets 0, 256, 288, 320, 336, 400, 528, 784.
    const QByteArray expected = Padded("me.png", 256) + Padded("Ada", 32) + Padded("Byron", 32) +
                                Padded("555", 16) + Padded("a@b.example", 64) +
                                Padded("w.example", 128) + Padded("1 Road", 256) + Padded("N1", 16);
    ASSERT_EQ(expected.size(), 800);
    EXPECT_EQ(EncodeProfile(p), expected);
    ProfileRecord back;
    DecodeProfile(expected, back);
    EXPECT_EQ(back, p);
}

TEST(RecordLayout, ImageAndTabBytesKeepGapsZero) {
    const ImageElement e = sampleImage();
    ASSERT_EQ(ImageBytes.size(), 324);
    EXPECT_EQ(EncodeImage(e), ImageBytes);

    TabRecord t;
    t.Picture = e;
    t.Icon = "i.ico";
    t.Name = "Awards";
    t.Extra = 9;
    // The picture, then offsets 324, 580, 612.
    const QByteArray expectedTab =
        ImageBytes + Padded("i.ico", 256) + Padded("Awards", 32) + le32({9});
    ASSERT_EQ(expectedTab.size(), 616);
    EXPECT_EQ(EncodeTab(t), expectedTab);

    // Gap bytes are ignored on reading: garbage there changes nothing.
    QByteArray dirty = expectedTab;
    dirty[294] = 'x';
    dirty[295] = 'y';
    dirty[302] = 'z';
    TabRecord back;
    DecodeTab(dirty, back);
    EXPECT_EQ(back, t);
}

TEST(RecordLayout, TextBytes) {
    TextElement t;
    t.TabNo = 7;
    t.Name = "text 1";
    t.Text = "Hello";
    t.Extra = 11;
    t.Left = 10;
    t.Top = 20;
    t.Width = 300;
    t.Height = 40;
    t.FontName = "Arial";
    t.FontSize = 12;
    t.FontStyle = 5;
    t.Align = 2;
    t.FontColor = int32_t(0xFF000000);
    t.FontShadow = -1;
    t.TextHint = 4;
    t.LineAlign = 1;
    t.Extra2 = -7;
    // Offsets 0, 4, 36, 4132 ... 4148, 4152 (31 bytes and a gap), 4184 ... 4196, 4200 (2 bytes
    // and a gap), 4204 ... 4212.
    const QByteArray expected = le32({7}) + Padded("text 1", 32) + Padded("Hello", 4096) +
                                le32({11, 10, 20, 300, 40}) + Padded("Arial", 31) + zeros(1) +
                                le32({12, 5, 2, 0xFF000000}) + le16(0xFFFF) + zeros(2) +
                                le32({4, 1, -7});
    ASSERT_EQ(expected.size(), 4216);
    EXPECT_EQ(EncodeText(t), expected);
    TextElement back;
    DecodeText(expected, back);
    EXPECT_EQ(back, t);
}

TEST(RecordLayout, NeverAssignedStringsAreZeroBytes) {
    TextElement t; // nothing assigned
    const QByteArray bytes = EncodeText(t);
    EXPECT_EQ(bytes, QByteArray(4216, '\0'));
    t.Name = QString(); // assigned empty: all blanks
    EXPECT_EQ(EncodeText(t).mid(4, 32), QByteArray(32, ' '));
}
