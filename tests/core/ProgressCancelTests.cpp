#include "PackageFixtures.h"
#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "export/ExportCommand.h"
#include "generate/ResumeGenerator.h"
#include "render/ResImages.h"

#include <gtest/gtest.h>

#include <QDir>

namespace zentor::test {
namespace {

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

} // namespace
} // namespace zentor::test
