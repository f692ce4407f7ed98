#include "TestSupport.h"

#include "io/RecordCodec.h"
#include "io/ScriptFile.h"
#include "model/CodePage.h"
#include "model/DefaultDocument.h"
#include "model/TabMap.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

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
    EXPECT_EQ(back->Texts[2].Text.text(), "Café über 5 €");
    EXPECT_EQ(back->Profile.FirstName.text(), "Zoë");
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
    EXPECT_EQ(doc->ScriptPath, box.path("small.qds"));
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
    }
}

TEST(ScriptFile, ShortHeaderKeepsTheRestOfTheRecordZeroFilled) {
    Sandbox box;
    auto full = box.newDocument();
    ASSERT_TRUE(SaveScript(*full, box.path("f.qds")));
    ASSERT_TRUE(WriteAll(box.path("s.qds"), ReadAll(box.path("f.qds")).left(8)));
    auto doc = box.newDocument();
    LoadScript(*doc, box.path("s.qds"));
    EXPECT_EQ(doc->Header.VersionMajor, full->Header.VersionMajor);
    EXPECT_EQ(doc->Header.FrameWidth, 0);                // cut off
    EXPECT_EQ(doc->Profile.FirstName.text(), "Quorvix"); // never reached
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

    // The same save in the parent's own hands fails for a folder that does not exist.
    EXPECT_FALSE(SaveScript(*doc, box.path("no/such/folder/cv.qds")));
    EXPECT_TRUE(doc->Dirty);
    EXPECT_EQ(doc->ScriptPath, "/somewhere/else.qds");
}
