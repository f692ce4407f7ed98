#include "PackageFixtures.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "generate/PackageReader.h"
#include "generate/ResumeGenerator.h"

#include "PlayerStub.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonDocument>

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

TEST_F(PackagePlayerTest, EmbeddedStubIsThePlayerPaddedToItsFixedSize) {
    const QByteArray stub = PlayerStub();
    const QByteArray player = ReadAll(QStringLiteral(ZENTOR_PLAYER_PATH));
    ASSERT_EQ(stub.size(), 524288);
    ASSERT_GT(player.size(), 0);
    EXPECT_EQ(stub.left(player.size()), player);
    EXPECT_TRUE(stub.startsWith("\x7f"
                                "ELF"));
}

TEST_F(PackagePlayerTest, SelfRunningResumeReadsItself) {
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
        {generate("other.exe", true), 0, "selfrun", nullptr},
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

} // namespace
} // namespace zentor::test
