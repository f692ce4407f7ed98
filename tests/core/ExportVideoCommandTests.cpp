#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "export/ExportCommand.h"
#include "render/ResImages.h"

#include <gtest/gtest.h>

#include <QDir>

namespace zentor::test {
namespace {

// The window's own run (tests/editor) covers a plain export; here what it may be told.
TEST(ExportVideo, RunsTheEditorsExportPathFromDialogToFile) {
    const ResImages res = ResImages::load();
    for (const bool cancel : {false, true}) {
        SCOPED_TRACE(cancel);
        Sandbox box;
        auto doc = box.newDocument();
        WriteAll(box.path("noise.mp3"), QByteArray(4000, 'x'));
        doc->Header.BackMusic = box.path("noise.mp3");
        ScriptedPrompter prompter;
        prompter.expectFile(true, "Export Video", "*.mp4|*.mp4", box.path("show.MP4"));
        int steps = 0;
        const Progress progress = [&](int, int) { return ++steps, !cancel; };
        QString written;
        EXPECT_EQ(RunExport(ExportKind::Video, *doc, prompter, res, box.ctx, progress, &written),
                  !cancel);
        EXPECT_GT(steps, 0); // the progress dialog saw the run
        EXPECT_EQ(written, cancel ? QString() : box.path("show.MP4"));
        // A cancelled run leaves nothing beside the target either.
        EXPECT_EQ(QDir(box.dir.path()).entryList({"*.mp4", "*.MP4", "*.mp4.*"}, QDir::Files),
                  cancel ? QStringList{} : QStringList{"show.MP4"});
        // Written, and told it is silent.
        const QStringList told = prompter.log().filter("the video is silent");
        ASSERT_EQ(told.size(), cancel ? 0 : 1) << prompter.log().join('\n').toStdString();
        EXPECT_TRUE(told.isEmpty() || told[0].startsWith("Export Video | "));
    }
}

} // namespace
} // namespace zentor::test
