#include "PackageFixtures.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"
#include "export/ExportCommand.h"
#include "generate/PackageReader.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "io/FileUtil.h"
#include "io/ScriptFile.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <functional>

namespace zentor::test {
namespace {

constexpr int Player = 524288;

// A document with every kind of blob: user icon, icons of tabs 1, 2, 5 and 8 (tab 1's is
// never carried), a background picture and music, all as paths relative to the project.
class PackageWriterTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(box.dir.path()).mkpath("media"));
        media("face.png", PictureBytes(300, 100, 0xff336699));
        media("one.png", PictureBytes(16, 16, 0xff000000));
        media("two.png", icon2);
        media("five.ico", icon5);
        media("eight.png", icon8);
        media("back.jpg", PictureBytes(40, 30, 0xffcc0000, "JPEG"));
        media("song.mp3", music);
        doc->Profile.UserIcon = "media/face.png";
        doc->Tabs[1].Icon = "media/one.png";
        doc->Tabs[2].Icon = "media/two.png";
        doc->Tabs[5].Icon = "media/five.ico";
        doc->Tabs[8].Icon = "media/eight.png";
        doc->Header.BackPicture = "media/back.jpg";
        doc->Header.BackMusic = "media/song.mp3";
        doc->Profile.FirstName = "Ada";
        ASSERT_TRUE(SaveScript(*doc, box.path("cv.qds")));
        project = ReadAll(box.path("cv.qds"));
        gen.setPlayer(FakePlayer());
    }
    void media(const QString& name, const QByteArray& bytes) {
        ASSERT_TRUE(WriteAll(box.path(QStringLiteral("media/") + name), bytes));
    }
    QByteArray generate(bool selfRun, const QString& name = "out.pkg") {
        const QString out = box.path(name);
        EXPECT_EQ(gen.writePackage(*doc, out, selfRun), ResumeGenerator::Outcome::Written);
        return ReadAll(out);
    }
    struct Entry {
        int32_t kind, position, length;
    };
    static Entry entryAt(const QByteArray& file, qsizetype table, int i) {
        return {Int32At(file, table + 12 * i), Int32At(file, table + 12 * i + 4),
                Int32At(file, table + 12 * i + 8)};
    }
    static QByteArray blob(const QByteArray& file, const Entry& e) {
        return file.mid(e.position - 1, e.length);
    }

    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    FakePictures pictures;
    ScriptedPrompter prompter;
    ResumeGenerator gen{box.ctx, prompter, pictures};
    QByteArray icon2 = PictureBytes(32, 32, 0xff00ff00);
    QByteArray icon5 = QByteArray("\0\0\1\0\1\0", 6) + QByteArray(90, 'i');
    QByteArray icon8 = PictureBytes(24, 24, 0xff0000ff);
    QByteArray music = QByteArray("ID3\3\0") + QByteArray(5000, 'm');
    QByteArray project;
};

TEST_F(PackageWriterTest, DataFileHoldsTheProjectRecordsAndContiguousBlobs) {
    const QByteArray qdv = generate(false);
    EXPECT_PROMPTS_DONE(prompter);

    // The header and profile exactly as the project file has them; then tabs 1..7's names.
    EXPECT_EQ(qdv.mid(228, 564), project.mid(0, 564));
    EXPECT_EQ(qdv.mid(792, 800), project.mid(564, 800));
    for (int tab = 1; tab <= 7; ++tab)
        EXPECT_EQ(qdv.mid(1592 + 32 * (tab - 1), 32),
                  doc->Tabs[tab].Name.text().toLatin1().leftJustified(32, ' '))
            << "tab " << tab;

    // Present: 0, 2, 5, 8, 9, 10, 11..18, back to back from position 1817.
    const QList<int> present{0, 2, 5, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};
    qint64 next = 1817;
    for (int i = 0; i < 19; ++i) {
        const Entry e = entryAt(qdv, 0, i);
        if (!present.contains(i)) {
            EXPECT_TRUE(e.kind == 0 && e.position == 0 && e.length == 0) << "entry " << i;
            continue;
        }
        EXPECT_EQ(e.kind, i == 10 ? 2 : 1) << "entry " << i;
        EXPECT_EQ(e.position, next) << "entry " << i;
        EXPECT_GT(e.length, 0) << "entry " << i;
        next += e.length;
    }
    EXPECT_EQ(next - 1, qdv.size());

    // Icons and music as they are on disk.
    EXPECT_EQ(blob(qdv, entryAt(qdv, 0, 2)), icon2);
    EXPECT_EQ(blob(qdv, entryAt(qdv, 0, 5)), icon5);
    EXPECT_EQ(blob(qdv, entryAt(qdv, 0, 8)), icon8);
    EXPECT_EQ(blob(qdv, entryAt(qdv, 0, 10)), music);
    // Resampled pictures and pages at their sizes.
    EXPECT_EQ(QImage::fromData(blob(qdv, entryAt(qdv, 0, 0))).size(), QSize(128, 128));
    EXPECT_EQ(QImage::fromData(blob(qdv, entryAt(qdv, 0, 9))).size(), QSize(1024, 768));
    for (int page = 1; page <= 8; ++page)
        EXPECT_EQ(QImage::fromData(blob(qdv, entryAt(qdv, 0, 10 + page))).size(), QSize(800, 600));
    EXPECT_FALSE(QFile::exists(box.ctx.TempImagePath));
}

TEST_F(PackageWriterTest, SelfRunningFormIsThePlayerFollowedByTheShiftedPackage) {
    const QByteArray qdv = generate(false, "cv.qdv");
    const QByteArray exe = generate(true, "cv.exe");
    ASSERT_EQ(exe.size(), qdv.size() + Player);
    EXPECT_EQ(exe.left(Player), FakePlayer());
    EXPECT_EQ(entryAt(exe, Player, 0).position, 526105);
    for (int i = 0; i < 19; ++i) {
        const Entry d = entryAt(qdv, 0, i), e = entryAt(exe, Player, i);
        EXPECT_EQ(e.kind, d.kind) << "entry " << i;
        EXPECT_EQ(e.length, d.length) << "entry " << i;
        EXPECT_EQ(e.position, d.position ? d.position + Player : 0) << "entry " << i;
    }
    EXPECT_EQ(exe.mid(Player + 228), qdv.mid(228));
    EXPECT_TRUE(QFile::permissions(box.path("cv.exe")) & QFileDevice::ExeOwner);
}

// A source that cannot be read keeps its Kind and Position, gets Length 0, and the shared
// buffer's old bytes are appended where it would have been.
TEST_F(PackageWriterTest, UnreadableSourceAppendsThePreviousBuffer) {
    struct Case {
        const char* name;
        bool selfRun;
        int entry;
        std::function<void(Document&)> breakIt;
        int previousEntry; // whose bytes are appended again; -1 the player, -2 nothing
    };
    const QList<Case> cases{
        {"music after the background", false, 10,
         [](Document& d) { d.Header.BackMusic = "media/none.mp3"; }, 9},
        {"tab icon after another icon", false, 5,
         [](Document& d) { d.Tabs[5].Icon = "media/none.ico"; }, 2},
        {"first icon of a data file", false, 0,
         [](Document& d) { d.Profile.UserIcon = "media/none.png"; }, -2},
        {"first icon of a self-running file", true, 0,
         [](Document& d) { d.Profile.UserIcon = "media/none.png"; }, -1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ScriptedPrompter local;
        FakePictures fake;
        ResumeGenerator fresh(box.ctx, local, fake);
        fresh.setPlayer(FakePlayer());
        auto broken = std::make_unique<Document>(*doc);
        c.breakIt(*broken);
        const bool resampled = c.entry == 0 || c.entry == 9;
        const QString missing =
            resampled ? box.ctx.TempImagePath
                      : ResolvePath(broken->ScriptPath,
                                    c.entry == 10 ? broken->Header.BackMusic.trimNull()
                                                  : broken->Tabs[c.entry].Icon.trimNull());
        local.expectWarning("Error", QStringLiteral("Can't find the file: ") + missing);
        const QString out = box.path("broken.pkg");
        ASSERT_EQ(fresh.writePackage(*broken, out, c.selfRun), ResumeGenerator::Outcome::Written);
        EXPECT_PROMPTS_DONE(local);

        const QByteArray file = ReadAll(out);
        const qsizetype table = c.selfRun ? Player : 0;
        const Entry e = entryAt(file, table, c.entry);
        EXPECT_EQ(e.kind, c.entry == 10 ? 2 : 1);
        EXPECT_EQ(e.length, 0);
        const QByteArray previous = c.previousEntry == -1 ? FakePlayer()
                                    : c.previousEntry == -2
                                        ? QByteArray()
                                        : blob(file, entryAt(file, table, c.previousEntry));
        EXPECT_EQ(file.mid(e.position - 1, previous.size()), previous);
        // The next present blob starts after the repeated bytes.
        int following = c.entry + 1;
        while (entryAt(file, table, following).kind == 0)
            ++following;
        EXPECT_EQ(entryAt(file, table, following).position, e.position + previous.size());
    }
}

// The records go out as they stand in memory: counts as they are, paths tidied only after.
TEST_F(PackageWriterTest, RecordsAreWrittenAsTheyStandAndPathsTidiedAfter) {
    doc->Header.TextCount = 77;
    doc->Header.ImageCount = 5;
    doc->Profile.UserIcon = "  media/face.png";
    doc->Header.BackMusic = " media/song.mp3";
    const QByteArray qdv = generate(false);
    EXPECT_EQ(Int32At(qdv, 228 + 12), 77);
    EXPECT_EQ(Int32At(qdv, 228 + 16), 5);
    EXPECT_TRUE(qdv.mid(792, 16).startsWith("  media/face.png"));
    EXPECT_TRUE(qdv.mid(228 + 20, 16).startsWith(" media/song.mp3"));
    EXPECT_TRUE(QByteArray(doc->Profile.UserIcon.data(), 16).startsWith("media/face.png  "));
    EXPECT_TRUE(QByteArray(doc->Header.BackMusic.data(), 16).startsWith("media/song.mp3 "));
    EXPECT_EQ(blob(qdv, entryAt(qdv, 0, 10)), music);
}

TEST_F(PackageWriterTest, FailuresToWriteShowTheWriteError) {
    const QByteArray full = generate(false, "full.qdv");
    struct Case {
        const char* name;
        QString path;
        bool selfRun;
        QByteArray player;
        qint64 limit; // the last 1-based position a blob may start at
    };
    const QList<Case> cases{
        {"last byte at the limit", box.path("at.qdv"), false, FakePlayer(), full.size()},
        {"one past the limit", box.path("past.qdv"), false, FakePlayer(), full.size() - 1},
        {"folder missing", box.path("no/such/folder/cv.qdv"), false, FakePlayer(), 0},
        {"player of the wrong size", box.path("cv.exe"), true, FakePlayer().left(1000), 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ScriptedPrompter local;
        ResumeGenerator failing(box.ctx, local, pictures);
        failing.setPlayer(c.player);
        if (c.limit)
            failing.setPositionLimit(c.limit);
        const bool fits = c.limit == full.size();
        if (!fits)
            local.expectWarning("Generate QDV Error",
                                QStringLiteral("Can't create file : ") + c.path);
        EXPECT_EQ(failing.writePackage(*doc, c.path, c.selfRun),
                  fits ? ResumeGenerator::Outcome::Written : ResumeGenerator::Outcome::Failed);
        EXPECT_PROMPTS_DONE(local);
        if (fits) {
            EXPECT_EQ(ReadAll(c.path), full);
        }
    }
}

using Answer = Prompter::Answer;
using Outcome = ResumeGenerator::Outcome;

const QString QdvTitle = "Generate QDV File";
const QString QdvFilter = "*.qdv|*.qdv";
const QString ExeTitle = "Generate Selfrun File";
const QString ExeFilter = "*.exe|*.exe";
const QString Overwrite = "This file already exists. Do you want to overwrite it?";

struct GenerateResumeTest : ::testing::Test {
    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    FakePictures pictures;
    void SetUp() override { doc->Header.BackPicture.clearToNul(); }
};

TEST_F(GenerateResumeTest, ExtensionIsAddedUnlessTheNameEndsInItExactly) {
    const struct {
        bool selfRun;
        const char* chosen;
        const char* written;
    } cases[] = {
        {false, "cv", "cv.qdv"},         {false, "cv.qdv", "cv.qdv"},
        {false, "cv.QDV", "cv.QDV.qdv"}, {true, "cv", "cv.exe"},
        {true, "cv.exe", "cv.exe"},      {true, "cv.EXE", "cv.EXE.exe"},
        {true, "cv.qdv", "cv.qdv.exe"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.chosen);
        QDir(box.dir.path()).removeRecursively();
        QDir().mkpath(box.dir.path());
        ScriptedPrompter prompter;
        prompter.expectFile(true, c.selfRun ? ExeTitle : QdvTitle,
                            c.selfRun ? ExeFilter : QdvFilter, box.path(QLatin1String(c.chosen)));
        ResumeGenerator gen(box.ctx, prompter, pictures);
        gen.setPlayer(FakePlayer());
        EXPECT_EQ(gen.GenerateResume(*doc, c.selfRun), Outcome::Written);
        EXPECT_PROMPTS_DONE(prompter);
        EXPECT_TRUE(QFile::exists(box.path(QLatin1String(c.written))));
        EXPECT_EQ(QDir(box.dir.path()).entryList(QDir::Files).size(), 1);
    }
}

TEST_F(GenerateResumeTest, CancelOrNoWritesNothingAndYesReplacesWithTheSameBytesEachTime) {
    ASSERT_TRUE(WriteAll(box.path("face.png"), PictureBytes(50, 50, 0xff102030)));
    doc->Profile.UserIcon = box.path("face.png");
    const QString path = box.path("cv.qdv");
    const QByteArray old("an older file");
    // Cancelling the file dialog renders nothing at all.
    ScriptedPrompter cancel;
    cancel.expectFile(true, QdvTitle, QdvFilter, QString());
    EXPECT_EQ(ResumeGenerator(box.ctx, cancel, pictures).GenerateResume(*doc, false),
              Outcome::Cancelled);
    EXPECT_PROMPTS_DONE(cancel);
    EXPECT_EQ(pictures.calls, 0);
    QByteArray first;
    for (const Answer answer : {Answer::No, Answer::Yes, Answer::Yes}) {
        if (first.isEmpty()) {
            ASSERT_TRUE(WriteAll(path, old));
        }
        ScriptedPrompter prompter;
        prompter.expectFile(true, QdvTitle, QdvFilter, box.path("cv"))
            .expectQuestion("Generate Resume", Overwrite, answer);
        ResumeGenerator gen(box.ctx, prompter, pictures);
        EXPECT_EQ(gen.GenerateResume(*doc, false),
                  answer == Answer::Yes ? Outcome::Written : Outcome::Cancelled);
        EXPECT_PROMPTS_DONE(prompter);
        EXPECT_EQ(ReadAll(path) == old, answer == Answer::No);
        EXPECT_FALSE(QFile::exists(box.ctx.TempImagePath));
        if (answer == Answer::Yes && !first.isEmpty()) {
            EXPECT_EQ(ReadAll(path), first); // generating again gives the same file
        }
        if (answer == Answer::Yes)
            first = ReadAll(path);
    }
}

// Runs one long job with a progress that records the pages and cancels at page `stopAt`
// (never when 0); returns whether the job says it wrote its file.
using Job = std::function<bool(const Sandbox&, const QString& path, const Progress&)>;

TEST(Progress, EveryLongRunCountsItsPagesAndACancelledOneLeavesNoFile) {
    const ResImages res = ResImages::load();
    FakePictures pictures;
    const auto exportJob = [&res](ExportKind kind) -> Job {
        return [&res, kind](const Sandbox& box, const QString& path, const Progress& progress) {
            auto doc = box.newDocument();
            QString error;
            const bool ok = WriteExport(kind, *doc, path, res, box.ctx, &error, progress);
            EXPECT_TRUE(ok || error.isEmpty()) << error.toStdString(); // a cancel is no error
            return ok;
        };
    };
    const struct {
        const char* what;
        Job job;
        int pages;
    } cases[] = {
        {"package",
         [&pictures](const Sandbox& box, const QString& path, const Progress& progress) {
             auto doc = box.newDocument();
             doc->Header.BackPicture.clearToNul(); // no picture the fake would fail to read
             ScriptedPrompter quiet;
             ResumeGenerator gen(box.ctx, quiet, pictures);
             gen.setProgress(progress);
             const bool ok =
                 gen.writePackage(*doc, path, false) == ResumeGenerator::Outcome::Written;
             EXPECT_PROMPTS_DONE(quiet);
             return ok;
         },
         8},
        {"pdf", exportJob(ExportKind::Pdf), 8},
        {"web page", exportJob(ExportKind::WebPage), 9},
    };
    for (const auto& c : cases) {
        for (int stopAt : {0, 1, 3}) {
            SCOPED_TRACE(
                QStringLiteral("%1 cancelled at %2").arg(c.what).arg(stopAt).toStdString());
            Sandbox box;
            const QString out = box.path("out");
            QList<int> seen;
            const bool written = c.job(box, out, [&](int page, int pages) {
                EXPECT_EQ(pages, c.pages);
                seen << page;
                return page != stopAt;
            });
            EXPECT_EQ(written, stopAt == 0);
            EXPECT_EQ(QFile::exists(out), stopAt == 0);
            EXPECT_EQ(QDir(box.dir.path()).entryList(QDir::Files).size(), stopAt == 0 ? 1 : 0);
            QList<int> expected;
            for (int p = 1; p <= (stopAt ? stopAt : c.pages); ++p)
                expected << p;
            EXPECT_EQ(seen, expected);
        }
    }
}

// A small résumé drawn by the test: a 640 x 480 frame, a tab picture, a picture and a
// shadowed text on page 1, a user icon and a background of other proportions.
class GenerateRenderedTest : public ::testing::Test {
protected:
    void SetUp() override {
        write("face.png", PictureBytes(300, 100, 0xff884422));
        write("back.jpg", PictureBytes(200, 50, 0xff224488, "JPEG"));
        write("hills.png", PictureBytes(320, 240, 0xff40a040));
        write("photo.jpg", PictureBytes(90, 60, 0xffa04040, "JPEG"));
        write("song.mp3", QByteArray("ID3\3\0") + QByteArray(700, 's'));
        doc->Header.FrameWidth = 640;
        doc->Header.FrameHeight = 480;
        doc->Header.BackPicture = "back.jpg";
        doc->Header.BackMusic = "song.mp3";
        doc->Profile.UserIcon = "face.png";
        ImageElement& tabPicture = doc->Tabs[1].Picture;
        tabPicture.FileName = "  hills.png";
        tabPicture.Width = 640;
        tabPicture.Height = 480;
        PlaceImage(*doc, 1, 1, {20, 30, 180, 120}, "photo.jpg");
        PlaceText(*doc, 1, 1, {20, 200, 400, 60}, "Experience").FontShadow = -1;
        ASSERT_TRUE(SaveScript(*doc, box.path("cv.qds")));
    }
    void write(const QString& name, const QByteArray& bytes) {
        ASSERT_TRUE(WriteAll(box.path(name), bytes));
    }
    PackageContents generate(const QString& name, bool parallel, Document& d) {
        ScriptedPrompter prompter;
        ResumeGenerator gen(box.ctx, prompter, pictures);
        gen.setParallel(parallel);
        EXPECT_EQ(gen.writePackage(d, box.path(name), false), ResumeGenerator::Outcome::Written);
        EXPECT_PROMPTS_DONE(prompter);
        return ParsePackage(ReadAll(box.path(name)), PackageForm::Qdv);
    }

    Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    ResImages res = ResImages::load();
    RenderedPictures pictures{res};
};

TEST_F(GenerateRenderedTest, PicturesAreJpegsOfQuality95AtTheirSizes) {
    const PackageContents p = generate("cv.qdv", false, *doc);
    ASSERT_TRUE(p.Problems.isEmpty()) << p.Problems.join('\n').toStdString();
    const struct {
        int entry;
        QSize size;
    } cases[] = {{0, {128, 128}},  {9, {1024, 768}}, {11, {640, 480}}, {12, {640, 480}},
                 {13, {640, 480}}, {14, {640, 480}}, {15, {640, 480}}, {16, {640, 480}},
                 {17, {640, 480}}, {18, {640, 480}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.entry);
        const QByteArray jpeg = p.blob(c.entry);
        EXPECT_TRUE(jpeg.startsWith("\xff\xd8\xff"));
        EXPECT_EQ(QImage::fromData(jpeg, "JPEG").size(), c.size);
        EXPECT_EQ(JpegQuality(jpeg), 95);
    }
    // Stretched, not letterboxed: the corners of the 300 x 100 face are its colour.
    const QImage icon = QImage::fromData(p.blob(0));
    for (const QPoint corner : {QPoint(1, 1), QPoint(126, 126)})
        EXPECT_LT(qAbs(qRed(icon.pixel(corner)) - 0x88), 8);
}

TEST_F(GenerateRenderedTest, PagesAreWhatTheCompositorWritesAndWorkersChangeNothing) {
    auto reference = std::make_unique<Document>(*doc);
    const PackageContents sequential = generate("seq.qdv", false, *doc);
    for (int page = 1; page <= 8; ++page) {
        SCOPED_TRACE(page);
        ASSERT_TRUE(RenderPage(*reference, page, res, box.ctx));
        EXPECT_EQ(sequential.blob(10 + page), ReadAll(box.ctx.TempImagePath));
    }
    auto again = std::make_unique<Document>(*reference);
    again->Tabs[1].Picture.FileName = "  hills.png";
    const PackageContents parallel = generate("par.qdv", true, *again);
    EXPECT_EQ(parallel.Data, sequential.Data);
    // Rendering wrote the tab picture's path back without its blanks, as the page does.
    EXPECT_TRUE(doc->Tabs[1].Picture.FileName.raw().startsWith("hills.png "));
    EXPECT_TRUE(again->Tabs[1].Picture.FileName.raw().startsWith("hills.png "));
}

TEST_F(GenerateRenderedTest, CliGenerateWarnsForEachUnreadableSource) {
    doc->Header.BackMusic = "gone.mp3";
    doc->Profile.UserIcon = "gone.png";
    doc->Tabs[4].Icon = "gone.ico";
    doc->Tabs[7].Picture.FileName = "gone-tab.jpg";
    PlaceImage(*doc, 32, 3, QRect(0, 0, 50, 50), "gone-object.png");
    const QString project = box.path("broken.qds");
    ASSERT_TRUE(SaveScript(*doc, project));
    const struct {
        const char* name;
        QStringList extra;
        const char* out;
        int status;
        const char* format; // nullptr: nothing written
    } cases[] = {
        {"data file", {}, "cv.qdv", 0, "qdv"},
        {"exe by its name", {}, "cv.EXE", 0, "selfrun"},
        {"strict", {"--strict"}, "strict.qdv", 1, nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const QString out = box.path(QLatin1String(c.out));
        QByteArray stdOut, stdErr;
        EXPECT_EQ(RunCli(QStringList{"generate", project, out} + c.extra, &stdOut, &stdErr),
                  c.status)
            << stdErr.toStdString();
        const QList<QByteArray> lines = stdErr.trimmed().split('\n');
        EXPECT_EQ(lines.count(), c.format ? 5 : 6) << stdErr.toStdString();
        EXPECT_TRUE(stdErr.contains("gone.mp3") && stdErr.contains("gone.png") &&
                    stdErr.contains("gone.ico") && stdErr.contains("gone-tab.jpg") &&
                    stdErr.contains("gone-object.png"))
            << stdErr.toStdString();
        EXPECT_EQ(QFile::exists(out), c.format != nullptr);
        EXPECT_FALSE(QFile::exists(out + ".part"));
        if (!c.format)
            continue;
        const PackageContents p = ParsePackage(ReadAll(out), PackageForm::Detect);
        EXPECT_EQ(p.Form == PackageForm::SelfRun ? "selfrun" : "qdv", std::string(c.format));
        EXPECT_EQ(p.Entries[10].Kind, 2);
        EXPECT_EQ(p.Entries[10].Length, 0);
        EXPECT_EQ(p.Entries[4].Length, 0);
    }
}

} // namespace
} // namespace zentor::test
