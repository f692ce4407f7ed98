#include "PackageFixtures.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "generate/PackageReader.h"
#include "generate/ResumeGenerator.h"
#include "io/RecordCodec.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include <functional>

namespace zentor::test {
namespace {

class PackageReaderTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(WriteAll(box.path("icon.png"), icon));
        ASSERT_TRUE(WriteAll(box.path("song.mp3"), music));
        doc->Tabs[3].Icon = box.path("icon.png");
        doc->Header.BackMusic = box.path("song.mp3");
        doc->Header.BackPicture.clearToNul();
        doc->Tabs[4].Name = "Hobbies";
        doc->Profile.LastName = "Lovelace";
        gen.setPlayer(FakePlayer());
    }
    QByteArray generate(bool selfRun) {
        const QString out = box.path("pkg");
        EXPECT_EQ(gen.writePackage(*doc, out, selfRun), ResumeGenerator::Outcome::Written);
        return ReadAll(out);
    }

    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    FakePictures pictures;
    ScriptedPrompter prompter;
    ResumeGenerator gen{box.ctx, prompter, pictures};
    QByteArray icon = PictureBytes(20, 20, 0xff808000);
    QByteArray music = QByteArray("ID3\4\0") + QByteArray(300, 'x');
};

TEST_F(PackageReaderTest, ReadsBackWhatWasWritten) {
    for (const bool selfRun : {false, true}) {
        SCOPED_TRACE(selfRun);
        const ScriptHeader header = doc->Header;
        const ProfileRecord profile = doc->Profile;
        const QByteArray file = generate(selfRun);
        const PackageContents p =
            ParsePackage(file, selfRun ? PackageForm::SelfRun : PackageForm::Qdv);
        EXPECT_TRUE(p.Complete);
        EXPECT_TRUE(p.Problems.isEmpty()) << p.Problems.join('\n').toStdString();
        EXPECT_EQ(p.Entries, gen.Entries);
        EXPECT_EQ(p.Header, header);
        EXPECT_EQ(p.Profile, profile);
        for (int tab = 1; tab <= 7; ++tab)
            EXPECT_EQ(p.TabNames[tab - 1], doc->Tabs[tab].Name);
        EXPECT_EQ(p.blob(3), icon);
        EXPECT_EQ(p.blob(10), music);
        EXPECT_TRUE(p.blob(0).isEmpty());
        // Tidying a path that was never assigned leaves it unassigned.
        EXPECT_TRUE(doc->Profile.UserIcon.isNul());
        EXPECT_EQ(QImage::fromData(p.blob(18)).size(), QSize(800, 600));
    }
}

// Damage is reported, the rest still reads, and nothing outside the file is touched.
TEST_F(PackageReaderTest, DamagedPackagesAreReported) {
    const QByteArray good = generate(false);
    const auto setEntry = [](QByteArray& f, int entry, int field, int32_t v) {
        PutInt32(f.data() + entry * 12 + field * 4, v);
    };
    struct Case {
        const char* name;
        std::function<void(QByteArray&)> damage;
        int brokenEntry; // -1: the file is too short to be a package
    };
    const QList<Case> cases{
        {"cut inside the records", [](QByteArray& f) { f.truncate(1000); }, -1},
        {"cut inside the last page", [](QByteArray& f) { f.chop(10); }, 18},
        {"position past the end", [&](QByteArray& f) { setEntry(f, 10, 1, 0x7fffffff); }, 10},
        {"position zero", [&](QByteArray& f) { setEntry(f, 11, 1, 0); }, 11},
        {"position inside the header", [&](QByteArray& f) { setEntry(f, 12, 1, 300); }, 12},
        {"negative length", [&](QByteArray& f) { setEntry(f, 13, 2, -5); }, 13},
        {"huge length", [&](QByteArray& f) { setEntry(f, 3, 2, 0x7fffffff); }, 3},
        {"unknown kind", [&](QByteArray& f) { setEntry(f, 14, 0, 9); }, 14},
        {"empty entry with a position", [&](QByteArray& f) { setEntry(f, 1, 1, 1817); }, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        QByteArray file = good;
        c.damage(file);
        const PackageContents p = ParsePackage(file, PackageForm::Qdv);
        EXPECT_FALSE(p.Problems.isEmpty());
        if (c.brokenEntry < 0) {
            EXPECT_FALSE(p.Complete);
            continue;
        }
        EXPECT_TRUE(p.Complete);
        EXPECT_TRUE(p.blob(c.brokenEntry).isEmpty());
        EXPECT_TRUE(p.Problems.first().contains(QStringLiteral("entry %1 ").arg(c.brokenEntry)))
            << p.Problems.first().toStdString();
        if (c.brokenEntry != 3) {
            EXPECT_EQ(p.blob(3), icon);
        }
    }
}

TEST_F(PackageReaderTest, JsonCarriesFormEntriesRecordsAndTabNames) {
    const PackageContents p = ParsePackage(generate(true), PackageForm::SelfRun);
    const QJsonObject json = PackageToJson(p);
    EXPECT_EQ(json.value("Format").toString(), "selfrun");
    const QJsonArray entries = json.value("Entries").toArray();
    ASSERT_EQ(entries.size(), 19);
    EXPECT_EQ(entries[10].toObject().value("Kind").toInt(), 2);
    EXPECT_EQ(entries[10].toObject().value("Length").toInt(), music.size());
    EXPECT_EQ(entries[3].toObject().value("Position").toInt(), 526105);
    const QJsonArray names = json.value("TabNames").toArray();
    ASSERT_EQ(names.size(), 7);
    EXPECT_EQ(names[3].toString(), "Hobbies");
    EXPECT_EQ(json.value("Profile").toObject().value("LastName"), "Lovelace");
}

TEST(PackageBlobNames, NameSaysEntryContentAndFormat) {
    const QByteArray jpeg = EncodeJpeg(QImage(4, 4, QImage::Format_RGB32));
    const QByteArray png = PictureBytes(4, 4, 0xff000000);
    const QByteArray ico("\0\0\1\0\1\0", 6);
    const struct {
        int entry;
        QByteArray bytes;
        const char* name;
    } cases[] = {
        {0, jpeg, "00-usericon.jpg"},        {2, png, "02-tabicon.png"},
        {8, ico, "08-tabicon.ico"},          {9, jpeg, "09-background.jpg"},
        {10, "ID3\3", "10-music.mp3"},       {10, "\xff\xfb\x90", "10-music.mp3"},
        {11, jpeg, "11-page1.jpg"},          {18, jpeg, "18-page8.jpg"},
        {5, QByteArray(), "05-tabicon.bin"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(BlobFileName(c.entry, c.bytes), QLatin1String(c.name)) << c.name;
}

} // namespace
} // namespace zentor::test
