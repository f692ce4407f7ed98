#include "PackageFixtures.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "export/PackageShowFrames.h"
#include "generate/PackageReader.h"
#include "generate/ResumeGenerator.h"
#include "io/RecordCodec.h"
#include "render/ResImages.h"

#include "PlayerStub.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include <functional>

namespace zentor::test {
namespace {

// The player must manage without a display for --info and --export.
int RunProgram(const QString& program, const QStringList& args, QByteArray* out = nullptr,
               QByteArray* err = nullptr) {
    return RunProcess(program, args, out, err, {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"});
}

class PackagePlayerTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(WriteAll(box.path("song.mp3"), music));
        doc->Header.BackMusic = box.path("song.mp3");
        doc->Header.BackPicture.clearToNul();
        doc->Profile.FirstName = "Grace";
        gen.setPlayer(PlayerStub());
    }
    QString generate(const QString& name, bool selfRun) {
        const QString out = box.path(name);
        EXPECT_EQ(gen.writePackage(*doc, out, selfRun), ResumeGenerator::Outcome::Written);
        return out;
    }

    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    FakePictures pictures;
    ScriptedPrompter prompter;
    ResumeGenerator gen{box.ctx, prompter, pictures};
    QByteArray music = QByteArray("ID3\3\0") + QByteArray(1234, 'a');
};

// The embedded stub is the player padded to its fixed size; a self-running file reads itself.
TEST_F(PackagePlayerTest, SelfRunningResumeIsThePaddedPlayerAndReadsItself) {
    const QByteArray stub = PlayerStub();
    const QByteArray player = ReadAll(QStringLiteral(ZENTOR_PLAYER_PATH));
    ASSERT_EQ(stub.size(), 524288);
    ASSERT_GT(player.size(), 0);
    EXPECT_EQ(stub.left(player.size()), player);
    const QString exe = generate("cv.exe", true);
    QByteArray out, err;
    ASSERT_EQ(RunProgram(exe, {"--info"}, &out, &err), 0) << err.toStdString();
    const QJsonObject expected = PackageToJson(ParsePackage(ReadAll(exe), PackageForm::SelfRun));
    EXPECT_EQ(QJsonDocument::fromJson(out).object(), expected);
    EXPECT_EQ(expected.value("Format").toString(), "selfrun");

    const QString dir = box.path("shown");
    ASSERT_EQ(RunProgram(exe, {"--export", dir}, nullptr, &err), 0) << err.toStdString();
    QStringList expectedFiles{"10-music.mp3"};
    for (int page = 1; page <= 8; ++page)
        expectedFiles << QStringLiteral("%1-page%2.jpg").arg(10 + page).arg(page);
    EXPECT_EQ(QDir(dir).entryList(QDir::Files, QDir::Name), expectedFiles);
    EXPECT_EQ(ReadAll(dir + QStringLiteral("/10-music.mp3")), music);
    EXPECT_EQ(QImage(dir + QStringLiteral("/18-page8.jpg")).size(), QSize(800, 600));
}

TEST_F(PackagePlayerTest, PlayerReadsAPackageNamedOnItsCommandLine) {
    const QString junk = box.path("junk.qdv");
    ASSERT_TRUE(WriteAll(junk, QByteArray(100, 'j')));
    const struct {
        QString package; // empty: none named
        int status;
        const char* format; // on success
        const char* error;  // on failure
    } cases[] = {
        {generate("cv.qdv", false), 0, "qdv", nullptr},
        {QString(), 1, nullptr, "no résumé inside this program"},
        {junk, 1, nullptr, "is not a package"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.package.toStdString());
        QStringList args{"--info"};
        if (!c.package.isEmpty())
            args.prepend(c.package);
        QByteArray out, err;
        ASSERT_EQ(RunProgram(QStringLiteral(ZENTOR_PLAYER_PATH), args, &out, &err), c.status)
            << err.toStdString();
        if (c.error) {
            EXPECT_TRUE(err.contains(c.error)) << err.toStdString();
            continue;
        }
        const QJsonObject json = QJsonDocument::fromJson(out).object();
        EXPECT_EQ(json.value("Format").toString(), QLatin1String(c.format));
        EXPECT_EQ(json.value("Profile").toObject().value("FirstName"), "Grace");
    }
}

TEST_F(PackagePlayerTest, CliInfoAndUnpackOfPackages) {
    const QString qdv = generate("cv.qdv", false);
    const QString exe = generate("cv.exe", true);
    QByteArray out, err;
    ASSERT_EQ(RunCli({"info", exe}, &out, &err), 0) << err.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(out).object(),
              PackageToJson(ParsePackage(ReadAll(exe), PackageForm::SelfRun)));
    // --as overrides the extension.
    const QString renamed = box.path("cv.bin");
    ASSERT_TRUE(QFile::copy(qdv, renamed));
    ASSERT_EQ(RunCli({"info", renamed, "--as", "qdv"}, &out, &err), 0) << err.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(out).object().value("Format"), "qdv");

    const QString dir = box.path("blobs");
    ASSERT_EQ(RunCli({"unpack", exe, dir}, &out, &err), 0) << err.toStdString();
    const PackageContents p = ParsePackage(ReadAll(exe), PackageForm::SelfRun);
    QStringList expected;
    for (int entry = 0; entry < 19; ++entry)
        if (p.usable(entry)) {
            expected << BlobFileName(entry, p.blob(entry));
            EXPECT_EQ(ReadAll(dir + u'/' + expected.last()), p.blob(entry));
        }
    EXPECT_EQ(expected.size(), 9);
    EXPECT_EQ(QDir(dir).entryList(QDir::Files, QDir::Name), expected);

    // A damaged package: the JSON still comes out, the damage is an error.
    QByteArray damaged = ReadAll(qdv);
    damaged.chop(1);
    ASSERT_TRUE(WriteAll(qdv, damaged));
    EXPECT_EQ(RunCli({"info", qdv}, &out, &err), 1);
    EXPECT_TRUE(err.contains("entry 18")) << err.toStdString();
    EXPECT_TRUE(QJsonDocument::fromJson(out).isObject());
}

// The same résumé with a tab icon, a renamed page and a last name, behind the stand-in player.
class PackageReaderTest : public PackagePlayerTest {
protected:
    void SetUp() override {
        PackagePlayerTest::SetUp();
        ASSERT_TRUE(WriteAll(box.path("icon.png"), icon));
        doc->Tabs[3].Icon = box.path("icon.png");
        doc->Tabs[4].Name = "Hobbies";
        doc->Profile.LastName = "Lovelace";
        gen.setPlayer(FakePlayer());
    }
    QByteArray generate(bool selfRun) {
        return ReadAll(PackagePlayerTest::generate("pkg", selfRun));
    }

    QByteArray icon = PictureBytes(20, 20, 0xff808000);
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
        // The JSON carries the form, the entries, the records and the tab names.
        const QJsonObject json = PackageToJson(p);
        EXPECT_EQ(json.value("Format").toString(), selfRun ? "selfrun" : "qdv");
        const QJsonArray entries = json.value("Entries").toArray();
        ASSERT_EQ(entries.size(), 19);
        EXPECT_EQ(entries[10].toObject().value("Kind").toInt(), 2);
        EXPECT_EQ(entries[10].toObject().value("Length").toInt(), music.size());
        EXPECT_EQ(entries[3].toObject().value("Position").toInt(), selfRun ? 526105 : 1817);
        EXPECT_EQ(json.value("TabNames").toArray().at(3).toString(), "Hobbies");
        EXPECT_EQ(json.value("Profile").toObject().value("LastName"), "Lovelace");
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

// The window's picture: the frame as it is when the shapes agree, else scaled to fit and
// centred between bars of the back colour; a fade lies the new page over the old.
TEST(ShowPictures, FramesFitTheWindowBetweenBars) {
    Sandbox box;
    auto doc = box.newDocument();
    doc->Header.BackColor = 0x0000FF00; // green bars
    ASSERT_TRUE(Solid(8, 8, qRgb(220, 30, 30)).save(box.path("red.png")));
    PlaceImage(*doc, 1, 1, {0, 0, 800, 600}, box.path("red.png"));
    const ResImages res = ResImages::load();
    PackageContents package;
    QStringList warnings;
    QString error;
    ASSERT_TRUE(DocumentPackage(*doc, box.ctx, res, package, warnings, error))
        << error.toStdString();
    const ShowPictures pictures(package, res, DefaultHomeBackground(box.ctx));
    const int page = 11; // the Overview page: red all over
    const struct {
        QSize window;
        double alpha;
        QRgb corner, middle; // what the top left corner shows; the middle red or not
    } cases[] = {
        {{800, 600}, 1.0, qRgb(220, 30, 30), qRgb(220, 30, 30)},
        {{1000, 600}, 1.0, qRgb(0, 255, 0), qRgb(220, 30, 30)},
        {{400, 400}, 1.0, qRgb(0, 255, 0), qRgb(220, 30, 30)}, // bars above and below
        {{1000, 600}, 0.0, qRgb(0, 255, 0), 0},                // still the home page
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.window.width());
        const QImage frame = PaintShowFrame(pictures, {page, show::HomePicture, c.alpha}, c.window);
        ASSERT_EQ(frame.size(), c.window);
        EXPECT_TRUE(Near(frame.pixel(2, 2), c.corner));
        const QRgb middle = frame.pixel(c.window.width() / 2, c.window.height() / 2);
        EXPECT_EQ(Near(middle, qRgb(220, 30, 30)), c.middle != 0);
    }
}

// Hovering a ring icon names its own page, from the package's tab names.
TEST(ShowPictures, HoveringAnIconNamesItsPage) {
    Sandbox box;
    const ResImages res = ResImages::load();
    const auto hovered = [&](const char* thirdName) {
        auto doc = box.newDocument();
        doc->Tabs[3].Name = thirdName;
        PackageContents package;
        QStringList warnings;
        QString error;
        EXPECT_TRUE(DocumentPackage(*doc, box.ctx, res, package, warnings, error));
        const ShowPictures pictures(package, res, DefaultHomeBackground(box.ctx));
        return std::pair{pictures.picture(show::HomePicture, 3),
                         pictures.picture(show::HomePicture, 4)};
    };
    const auto skills = hovered("Skills"), talents = hovered("Talents");
    EXPECT_NE(skills.first, talents.first);
    EXPECT_EQ(skills.second, talents.second);
}

} // namespace
} // namespace zentor::test
