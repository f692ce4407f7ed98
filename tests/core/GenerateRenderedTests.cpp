#include "PackageFixtures.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "generate/PackageReader.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "io/ScriptFile.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>

namespace zentor::test {
namespace {

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
    RenderedPictures pictures{box.ctx, res};
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
        {"exe by option", {"--selfrun"}, "cv.bin", 0, "selfrun"},
        {"Linux player", {"--player", "linux"}, "cv.run", 0, "selfrun"},
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
        EXPECT_EQ(p.Form == PackageForm::SelfRun,
                  bool(QFile::permissions(out) & QFileDevice::ExeOwner));
        EXPECT_EQ(p.Entries[10].Kind, 2);
        EXPECT_EQ(p.Entries[10].Length, 0);
        EXPECT_EQ(p.Entries[4].Length, 0);
    }
}

} // namespace
} // namespace zentor::test
