#include "TestSupport.h"
#include "io/RecordCodec.h"
#include "io/ScriptFile.h"
#include "model/CodePage.h"
#include "model/DefaultDocument.h"
#include "model/TabMap.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <initializer_list>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zentor;
using namespace zentor::test;

namespace {

void addText(Document& doc, int slot, int tab, const QString& text) {
    PlaceText(doc, slot, tab, {}, text).Name = QStringLiteral("text %1").arg(slot);
}

void addImage(Document& doc, int slot, int tab, const QString& file) {
    PlaceImage(doc, slot, tab, {}, file).Name = QStringLiteral("image %1").arg(slot);
}

} // namespace

TEST(ScriptFile, DefaultDocumentIs6292BytesWithItsPaddingKeptExactly) {
    Sandbox box;
    auto longer = box.newDocument();
    for (int i = 1; i <= 5; ++i)
        addText(*longer, i, 1, "t");
    ASSERT_TRUE(SaveScript(*longer, box.path("new.qds")));
    // Saved over a longer file: no stale tail is left.
    auto doc = box.newDocument();
    doc->Dirty = true;
    ASSERT_TRUE(SaveScript(*doc, box.path("new.qds")));
    const QByteArray bytes = ReadAll(box.path("new.qds"));
    ASSERT_EQ(bytes.size(), 6292);
    EXPECT_EQ(GetInt32(bytes.constData() + 12), 0);
    EXPECT_EQ(GetInt32(bytes.constData() + 16), 0);
    EXPECT_EQ(doc->ScriptPath, box.path("new.qds"));
    EXPECT_FALSE(doc->Dirty);
    EXPECT_EQ(bytes.mid(20, 256), QByteArray(256, ' '));       // BackMusic assigned empty
    EXPECT_EQ(bytes.mid(564 + 320, 16), QByteArray(16, '\0')); // Phone never assigned
    EXPECT_EQ(bytes.mid(564 + 256, 32), QByteArray("Quorvix").append(QByteArray(25, ' ')));
    auto back = box.newDocument();
    LoadScript(*back, box.path("new.qds"));
    ASSERT_TRUE(SaveScript(*back, box.path("q.qds")));
    EXPECT_EQ(ReadAll(box.path("q.qds")), bytes);
}

TEST(ScriptFile, RoundTripKeepsLongTextsFontNamesAndWindows1252Letters) {
    Sandbox box;
    auto doc = box.newDocument();
    const QString longText = QString(4096, QLatin1Char('x'));
    const QString font31 = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcde";
    const QString font40 = font31 + QStringLiteral("fghijklmn");
    addText(*doc, 1, 1, longText);
    addText(*doc, 2, 2, "Café über 5 €");
    addText(*doc, 3, 3, "short");
    doc->Texts[1].FontName = font31;
    doc->Texts[2].FontName = font40;
    doc->Profile.FirstName = "Zoë";
    addImage(*doc, 1, 4, "photo.jpg");

    ASSERT_TRUE(SaveScript(*doc, box.path("a.qds")));
    EXPECT_EQ(ReadAll(box.path("a.qds")).size(), 6292 + 3 * 4216 + 324);

    auto back = box.newDocument();
    LoadScript(*back, box.path("a.qds"));
    EXPECT_EQ(back->Texts[1].Text.text(), longText);
    EXPECT_EQ(back->Texts[1].FontName.text(), font31);
    EXPECT_EQ(back->Texts[2].FontName.text(), font31); // cut to the field
    // é, ü and € are one byte each in Windows-1252.
    const QByteArray bytes = ReadAll(box.path("a.qds"));
    const qsizetype text2 = 6292 + 4216 + 36;
    EXPECT_EQ(bytes.mid(text2, 13), QByteArray("Caf\xE9 \xFC"
                                               "ber 5 \x80"));
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(back->Texts[i], doc->Texts[i]) << "text slot " << i;
    EXPECT_EQ(back->Images[1], doc->Images[1]);
    EXPECT_EQ(back->Header, doc->Header);
    EXPECT_EQ(back->Profile, doc->Profile);
}

TEST(ScriptFile, SavingCompactsAndLoadingRefillsSlotsInOrder) {
    Sandbox box;
    auto doc = box.newDocument();
    addText(*doc, 2, 1, "second");
    addText(*doc, 5, 1, "fifth");
    addText(*doc, 9, 2, "ninth");
    doc->Texts[7].TabNo = -1; // neither free nor saved
    addImage(*doc, 30, 3, "late.png");
    ASSERT_TRUE(SaveScript(*doc, box.path("c.qds")));
    EXPECT_EQ(doc->Header.TextCount, 3);
    EXPECT_EQ(doc->Header.ImageCount, 1);

    auto back = box.newDocument();
    LoadScript(*back, box.path("c.qds"));
    EXPECT_EQ(back->Texts[1].Text.text(), "second");
    EXPECT_EQ(back->Texts[2].Text.text(), "fifth");
    EXPECT_EQ(back->Texts[3].Text.text(), "ninth");
    EXPECT_EQ(back->Texts[3].Name.text(), "text 9"); // names keep old slots
    EXPECT_EQ(back->Texts[4].TabNo, 0);
    EXPECT_EQ(back->Images[1].FileName.text(), "late.png");
}

TEST(ScriptFile, LoadingOverALargerDocumentKeepsItsSurplusObjects) {
    Sandbox box;
    auto small = box.newDocument();
    addText(*small, 1, 1, "only");
    small->Tabs[8].Name = "Party";
    ASSERT_TRUE(SaveScript(*small, box.path("small.qds")));
    // The last tab is saved as it stands, yet always loads as the slide show.
    EXPECT_EQ(ReadAll(box.path("small.qds")).mid(564 + 800 + 7 * 616 + 580, 5),
              QByteArray("Party"));

    auto doc = box.newDocument();
    for (int i = 1; i <= 4; ++i)
        addText(*doc, i, 2, QStringLiteral("old %1").arg(i));
    addImage(*doc, 1, 2, "old.png");
    doc->Tabs[8].Name = "Renamed";
    LoadScript(*doc, box.path("small.qds"));
    EXPECT_EQ(doc->Texts[1].Text.text(), "only");
    EXPECT_EQ(doc->Texts[2].Text.text(), "old 2");
    EXPECT_EQ(doc->Texts[4].TabNo, 2);
    EXPECT_EQ(doc->Images[1].FileName.text(), "old.png");
    EXPECT_EQ(doc->Tabs[8].Name.text(), "Slide Show");
}

// Damaged files: each loads as far as it goes, never reads past the tables, never hangs.
TEST(ScriptFile, DamagedFilesLoadAsFarAsTheyGo) {
    Sandbox box;
    auto full = box.newDocument();
    addText(*full, 1, 1, "one");
    addText(*full, 2, 1, "two");
    addImage(*full, 1, 1, "i.png");
    ASSERT_TRUE(SaveScript(*full, box.path("full.qds")));
    const QByteArray good = ReadAll(box.path("full.qds"));

    auto withCounts = [&](int32_t texts, int32_t images) {
        QByteArray b = good;
        PutInt32(b.data() + 12, texts);
        PutInt32(b.data() + 16, images);
        return b;
    };
    struct Case {
        const char* name;
        QByteArray bytes;
        int texts, images;
        bool complete;
    };
    const Case cases[] = {
        {"empty", QByteArray(), 0, 0, false},
        {"half a header", good.left(300), 0, 0, false},
        {"cut inside the tabs", good.left(564 + 800 + 616 * 3 + 10), 0, 0, false},
        {"cut inside the second text", good.left(6292 + 4216 + 100), 2, 0, false},
        {"complete", good, 2, 1, true},
        {"huge counts", withCounts(0x7FFFFFFF, 0x7FFFFFFF), 3, 0, false},
        {"negative counts", withCounts(-5, int32_t(0x80000000)), 0, 0, false},
        {"trailing garbage", good + QByteArray(10000, 'z'), 2, 1, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_TRUE(WriteAll(box.path("d.qds"), c.bytes));
        auto doc = box.newDocument();
        const LoadReport r = LoadScript(*doc, box.path("d.qds"));
        EXPECT_TRUE(r.opened);
        EXPECT_EQ(r.textsRead, c.texts);
        EXPECT_EQ(r.imagesRead, c.images);
        EXPECT_EQ(r.complete, c.complete);
        EXPECT_EQ(doc->Tabs[8].Name.text(), "Slide Show");
        if (c.bytes.size() == 300) { // the header's read part only; the rest zero-filled
            EXPECT_EQ(doc->Header.VersionMajor, full->Header.VersionMajor);
            EXPECT_EQ(doc->Header.FrameWidth, 0);
            EXPECT_EQ(doc->Profile.FirstName.text(), "Quorvix"); // never reached
        }
    }
}

TEST(ScriptFile, MissingFilesFoldersAndFifosLoadNothing) {
    Sandbox box;
    ASSERT_EQ(::mkfifo(QFile::encodeName(box.path("fifo.qds")).constData(), 0600), 0);
    QDir(box.dir.path()).mkdir("folder.qds");
    for (const char* name : {"missing.qds", "folder.qds", "fifo.qds"}) {
        SCOPED_TRACE(name);
        auto doc = box.newDocument();
        const LoadReport r = LoadScript(*doc, box.path(QString::fromLatin1(name)));
        EXPECT_FALSE(r.opened);
        EXPECT_TRUE(doc->ScriptPath.isEmpty());
        EXPECT_EQ(doc->Profile.FirstName.text(), "Quorvix");
    }
    EXPECT_FALSE(QFile::exists(box.path("missing.qds")));
}

// A save that cannot be written keeps the old file, the path and the dirty flag.
TEST(ScriptFile, FailedSaveKeepsTheOldFile) {
    Sandbox box;
    const QString folder = box.path("locked");
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString target = folder + QStringLiteral("/cv.qds");
    const QByteArray old("old contents");
    ASSERT_TRUE(WriteAll(target, old));
    ::chmod(QFile::encodeName(box.dir.path()).constData(), 0755);
    ::chmod(QFile::encodeName(folder).constData(), 0555);

    auto doc = box.newDocument();
    doc->Dirty = true;
    doc->ScriptPath = "/somewhere/else.qds";
    bool saved = true;
    if (::geteuid() == 0) {
        // Root writes anywhere; the save runs in a child that gives up root first.
        const pid_t pid = ::fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            if (::setgid(65534) != 0 || ::setuid(65534) != 0)
                ::_exit(3);
            ::_exit(SaveScript(*doc, target) ? 1 : 0);
        }
        int status = 0;
        ::waitpid(pid, &status, 0);
        ASSERT_TRUE(WIFEXITED(status));
        ASSERT_NE(WEXITSTATUS(status), 3) << "could not drop privileges";
        saved = WEXITSTATUS(status) == 1;
    } else {
        saved = SaveScript(*doc, target);
        EXPECT_TRUE(doc->Dirty);
        EXPECT_EQ(doc->ScriptPath, "/somewhere/else.qds");
    }
    ::chmod(QFile::encodeName(folder).constData(), 0755);
    EXPECT_FALSE(saved);
    EXPECT_EQ(ReadAll(target), old);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList{"cv.qds"});
}

namespace {

// The disk form of every record is checked against bytes laid out here by hand from the
// published record tables, not by the code under test.

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
