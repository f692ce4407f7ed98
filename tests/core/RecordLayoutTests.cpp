// The disk form of every record, checked against bytes laid out here by hand from the
// published record tables, not by the code under test.
#include "TestSupport.h"

#include "io/RecordCodec.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include <cstring>
#include <vector>

using namespace zentor;
using test::Padded;

namespace {

struct Expect {
    int offset;
    QByteArray bytes;
};

QByteArray le32(uint32_t v) {
    const char b[4] = {char(v & 0xFF), char((v >> 8) & 0xFF), char((v >> 16) & 0xFF),
                       char((v >> 24) & 0xFF)};
    return QByteArray(b, 4);
}
QByteArray le16(uint16_t v) {
    const char b[2] = {char(v & 0xFF), char(v >> 8)};
    return QByteArray(b, 2);
}

// Builds the expected record: zero everywhere, then each field at its offset.
QByteArray layout(int size, const std::vector<Expect>& fields) {
    QByteArray out(size, '\0');
    for (const Expect& f : fields)
        out.replace(f.offset, f.bytes.size(), f.bytes);
    return out;
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

std::vector<Expect> imageFieldsAt(int base) {
    return {{base + 0, le32(3)},
            {base + 4, le16(0xFFFF)},
            {base + 6, Padded("image 7", 32)},
            {base + 38, Padded("pics/a.jpg", 256)},
            {base + 296, le32(4)},
            {base + 300, le16(0x1234)},
            {base + 304, le32(uint32_t(-5))},
            {base + 308, le32(70000)},
            {base + 312, le32(120)},
            {base + 316, le32(0x01020304)},
            {base + 320, le32(uint32_t(-2))}};
}

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
    const QByteArray expected = layout(564, {{0, le32(1)},
                                             {4, le32(2)},
                                             {8, le32(3)},
                                             {12, le32(4)},
                                             {16, le32(5)},
                                             {20, Padded("m.mp3", 256)},
                                             {276, Padded("b.jpg", 256)},
                                             {532, le32(500)},
                                             {536, le32(1)},
                                             {540, le32(0x00FF8040)},
                                             {544, le32(20)},
                                             {548, le32(1)},
                                             {552, le32(7000)},
                                             {556, le32(1024)},
                                             {560, le32(768)}});
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
    const QByteArray expected = layout(800, {{0, Padded("me.png", 256)},
                                             {256, Padded("Ada", 32)},
                                             {288, Padded("Byron", 32)},
                                             {320, Padded("555", 16)},
                                             {336, Padded("a@b.example", 64)},
                                             {400, Padded("w.example", 128)},
                                             {528, Padded("1 Road", 256)},
                                             {784, Padded("N1", 16)}});
    EXPECT_EQ(EncodeProfile(p), expected);
    ProfileRecord back;
    DecodeProfile(expected, back);
    EXPECT_EQ(back, p);
}

TEST(RecordLayout, ImageAndTabBytesKeepGapsZero) {
    const ImageElement e = sampleImage();
    const QByteArray expectedImage = layout(324, imageFieldsAt(0));
    EXPECT_EQ(EncodeImage(e), expectedImage);

    TabRecord t;
    t.Picture = e;
    t.Icon = "i.ico";
    t.Name = "Awards";
    t.Extra = 9;
    std::vector<Expect> tabFields = imageFieldsAt(0);
    tabFields.push_back({324, Padded("i.ico", 256)});
    tabFields.push_back({580, Padded("Awards", 32)});
    tabFields.push_back({612, le32(9)});
    const QByteArray expectedTab = layout(616, tabFields);
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
    const QByteArray expected = layout(4216, {{0, le32(7)},
                                              {4, Padded("text 1", 32)},
                                              {36, Padded("Hello", 4096)},
                                              {4132, le32(11)},
                                              {4136, le32(10)},
                                              {4140, le32(20)},
                                              {4144, le32(300)},
                                              {4148, le32(40)},
                                              {4152, Padded("Arial", 31)},
                                              {4184, le32(12)},
                                              {4188, le32(5)},
                                              {4192, le32(2)},
                                              {4196, le32(0xFF000000)},
                                              {4200, le16(0xFFFF)},
                                              {4204, le32(4)},
                                              {4208, le32(1)},
                                              {4212, le32(uint32_t(-7))}});
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
