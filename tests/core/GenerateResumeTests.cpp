#include "PackageFixtures.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "generate/ResumeGenerator.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace zentor::test {
namespace {

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
        if (first.isEmpty())
            ASSERT_TRUE(WriteAll(path, old));
        ScriptedPrompter prompter;
        prompter.expectFile(true, QdvTitle, QdvFilter, box.path("cv"))
            .expectQuestion("Generate Resume", Overwrite, answer);
        ResumeGenerator gen(box.ctx, prompter, pictures);
        EXPECT_EQ(gen.GenerateResume(*doc, false),
                  answer == Answer::Yes ? Outcome::Written : Outcome::Cancelled);
        EXPECT_PROMPTS_DONE(prompter);
        EXPECT_EQ(ReadAll(path) == old, answer == Answer::No);
        EXPECT_FALSE(QFile::exists(box.ctx.TempImagePath));
        if (answer == Answer::Yes && !first.isEmpty())
            EXPECT_EQ(ReadAll(path), first); // generating again gives the same file
        if (answer == Answer::Yes)
            first = ReadAll(path);
    }
}

} // namespace
} // namespace zentor::test
