#include "TestSupport.h"

#include "edit/Prompter.h"
#include "export/ExportCommand.h"
#include "render/ResImages.h"

#include <gtest/gtest.h>

#include <QDir>

namespace zentor::test {
namespace {

// Answers the save dialog with `path` and keeps every box it was shown.
struct RecordingPrompter : Prompter {
    QString path;
    QStringList dialogs, boxes;
    Answer ask(const QString& title, const QString& text, Buttons, Icon icon, Answer) override {
        boxes << title + (icon == Icon::Information ? " (i): " : ": ") + text;
        return Answer::Yes;
    }
    QString chooseFile(bool save, const QString& title, const QString& filter, const QString&,
                       const QString&, const QString&) override {
        dialogs << QString::number(save) + " " + title + " " + filter;
        return path;
    }
    uint32_t chooseColor() override { return 0; }
};

TEST(ExportVideo, RunsTheEditorsExportPathFromDialogToFile) {
    const ResImages res = ResImages::load();
    const struct {
        const char* typed;
        const char* written; // empty: nothing may be left
        bool badMusic;
        bool cancel;
    } cases[] = {
        {"show", "show.mp4", false, false},
        {"show.MP4", "show.MP4", true, false}, // written, and told it is silent
        {"cancelled.mp4", "", false, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        Sandbox box;
        auto doc = box.newDocument();
        if (c.badMusic) {
            WriteAll(box.path("noise.mp3"), QByteArray(4000, 'x'));
            doc->Header.BackMusic = box.path("noise.mp3");
        }
        RecordingPrompter prompter;
        prompter.path = box.path(c.typed);
        int steps = 0;
        const Progress progress = [&](int, int) { return ++steps, !c.cancel; };
        QString written;
        const bool ok =
            RunExport(ExportKind::Video, *doc, prompter, res, box.ctx, progress, &written);

        EXPECT_EQ(prompter.dialogs, QStringList{"1 Export Video *.mp4|*.mp4"});
        EXPECT_EQ(ok, !c.cancel);
        EXPECT_GT(steps, 0); // the progress dialog saw the run
        const QString expected = *c.written ? box.path(c.written) : QString();
        EXPECT_EQ(written, expected);
        if (!expected.isEmpty())
            EXPECT_EQ(ReadAll(expected).mid(4, 4), "ftyp");
        // A cancelled run leaves nothing beside the target either.
        EXPECT_EQ(QDir(box.dir.path()).entryList({"*.mp4", "*.MP4", "*.mp4.*"}, QDir::Files),
                  *c.written ? QStringList{c.written} : QStringList{});
        if (c.badMusic) {
            ASSERT_EQ(prompter.boxes.size(), 1);
            EXPECT_TRUE(prompter.boxes[0].startsWith("Export Video (i): "));
            EXPECT_TRUE(prompter.boxes[0].endsWith("the video is silent"));
        } else {
            EXPECT_TRUE(prompter.boxes.isEmpty()) << prompter.boxes.join('\n').toStdString();
        }
    }
}

} // namespace
} // namespace zentor::test
