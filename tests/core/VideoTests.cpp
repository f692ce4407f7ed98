#include "ScriptedPrompter.h"
#include "TestSupport.h"

#include "export/ExportCommand.h"
#include "export/VideoAudio.h"
#include "export/VideoExport.h"
#include "io/ScriptFile.h"
#include "render/ResImages.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <cmath>

using namespace zentor;
using namespace zentor::test;

namespace {

// The shortest holding time a show has; with Show Speed 20 each picture fades in over 500 ms.
constexpr int KeepMs = 1000;
constexpr int FadeMs = 500;
// Page 2, page 1 and the slide-show page, then the home page.
constexpr int ShowSteps = 4;

QString Project(test::Sandbox& box, const QString& music) {
    auto doc = box.newDocument();
    doc->Header.KeepOnTime = KeepMs;
    doc->Header.ShowSpeed = FadeMs / 25;
    doc->Header.ShowAsRun = 1; // so that the player's --frame runs the show as the video does
    doc->Header.BackMusic = music;
    doc->Header.FrameWidth = 321; // odd, to be rounded down
    doc->Header.FrameHeight = 240;
    doc->Profile.FirstName = "Quorvix";
    doc->Profile.LastName = "Dellamere";
    // Red on page 1's left half (the slide-show page shows page 1's objects too), blue on
    // page 2's; the other pages hold nothing, and the show passes them over.
    test::PlaceImage(*doc, 1, 1, {0, 0, 160, 240}, "red.png");
    test::PlaceImage(*doc, 2, 2, {0, 0, 160, 240}, "blue.png");
    const QString path = box.path("v.qds");
    EXPECT_TRUE(test::Solid(8, 8, qRgb(220, 30, 30)).save(box.path("red.png")));
    EXPECT_TRUE(test::Solid(8, 8, qRgb(30, 30, 220)).save(box.path("blue.png")));
    // One second of a 440 Hz tone, as the ffmpeg program makes it.
    EXPECT_EQ(test::RunProcess("ffmpeg", {"-v", "error", "-y", "-f", "lavfi", "-i",
                                          "sine=frequency=440:duration=1", box.path("tone.wav")}),
              0);
    EXPECT_TRUE(test::WriteAll(box.path("notes.txt"), "not sound at all"));
    EXPECT_TRUE(SaveScript(*doc, path));
    return path;
}

QJsonObject Probe(const QString& file) {
    QByteArray out;
    EXPECT_EQ(
        test::RunProcess(
            "ffprobe", {"-v", "error", "-show_streams", "-show_format", "-of", "json", file}, &out),
        0);
    return QJsonDocument::fromJson(out).object();
}

// The video's picture at `ms`, as the ffmpeg program decodes it. Its -ss drops a held frame
// that began before the time asked for, so the video is first made constant-rate.
QImage FrameAt(const QString& video, int ms, const QString& png) {
    EXPECT_EQ(test::RunProcess("ffmpeg", {"-v", "error", "-y", "-i", video, "-vf",
                                          QStringLiteral("fps=30,trim=start=%1").arg(ms / 1000.0),
                                          "-frames:v", "1", png}),
              0);
    return QImage(png).convertToFormat(QImage::Format_RGB32);
}

double MeanDifference(const QImage& a, const QImage& b) {
    const QImage sb = b.convertToFormat(QImage::Format_RGB32)
                          .scaled(a.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = sb.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q));
        }
    return sum / (3.0 * 255.0 * a.width() * a.height());
}

} // namespace

TEST(VideoCli, WritesThePlayableShowOfThePlayersPictures) {
    test::Sandbox box;
    const struct {
        QString music;
        QStringList options;
        QSize size;
        bool audio;
        bool warns;
    } cases[] = {
        {"", {}, {320, 240}, false, false},
        {"tone.wav", {"--height", "120"}, {160, 120}, true, false},
        {"tone.wav", {"--fps", "1"}, {320, 240}, true, false}, // the slowest rate
        {"notes.txt", {}, {320, 240}, false, true},
        {"missing.mp3", {}, {320, 240}, false, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(qPrintable(c.music + " " + c.options.join(' ')));
        const QString project = Project(box, c.music);
        const QString out = box.path("show.mp4");
        QByteArray err;
        ASSERT_EQ(test::RunCli(QStringList{"video", project, out} + c.options, nullptr, &err), 0)
            << err.constData();
        EXPECT_EQ(err.contains("warning"), c.warns) << err.constData();
        const QJsonObject probe = Probe(out);
        const QJsonArray streams = probe["streams"].toArray();
        ASSERT_EQ(streams.size(), c.audio ? 2 : 1);
        const QJsonObject video = streams[0].toObject();
        EXPECT_EQ(video["codec_name"].toString(), "h264");
        EXPECT_EQ(video["pix_fmt"].toString(), "yuv420p");
        EXPECT_EQ(QSize(video["width"].toInt(), video["height"].toInt()), c.size);
        const QJsonObject format = probe["format"].toObject();
        EXPECT_NEAR(format["duration"].toString().toDouble(), ShowSteps * KeepMs / 1000.0, 0.1);
        EXPECT_EQ(format["tags"].toObject()["title"].toString(), "Quorvix Dellamere");
        if (c.audio) {
            const QJsonObject audio = streams[1].toObject();
            EXPECT_EQ(audio["codec_name"].toString(), "aac");
            EXPECT_EQ(audio["channels"].toInt(), 2);
        }
        if (!c.music.isEmpty() || !c.options.isEmpty())
            continue;
        // The pictures are the player's: inside the first page's hold, half way through the
        // second page's fade, inside the second page's hold, and back home.
        const QString package = box.path("cv.qdv");
        ASSERT_EQ(test::RunCli({"generate", project, package}), 0);
        for (int ms : {800, KeepMs + FadeMs / 2, KeepMs + 800, (ShowSteps - 1) * KeepMs + 800}) {
            const QString png = box.path(QStringLiteral("player%1.png").arg(ms));
            ASSERT_EQ(test::RunProcess(QStringLiteral(ZENTOR_PLAYER_PATH),
                                       {package, "--frame", QString::number(ms), png}),
                      0);
            const QImage frame = FrameAt(out, ms, box.path("f.png"));
            ASSERT_FALSE(frame.isNull());
            EXPECT_LT(MeanDifference(frame, QImage(png)), 0.04) << ms;
        }
    }
}

TEST(VideoAudio, SoundtrackLoopsOrStopsAndFadesOut) {
    StereoTrack music;
    music.left.assign(VideoSampleRate, 1.0f);
    music.right.assign(VideoSampleRate, -1.0f);
    const size_t length = 3 * VideoSampleRate;
    const struct {
        bool loop;
        size_t at;
        float left;
    } cases[] = {
        {true, 10, 0.5f},                            // volume applies
        {true, VideoSampleRate + 10, 0.5f},          // loops
        {false, VideoSampleRate + 10, 0.0f},         // played once
        {true, length - VideoSampleRate / 2, 0.25f}, // half way through the fade
        {true, length - 1, 0.0f},
    };
    for (const auto& c : cases) {
        const StereoTrack out = ShowSoundtrack(music, length, 0.5, c.loop);
        ASSERT_EQ(out.size(), length);
        EXPECT_NEAR(out.left[c.at], c.left, 0.001) << c.at;
        EXPECT_NEAR(out.right[c.at], -c.left, 0.001) << c.at;
    }
}

TEST(VideoExport, SizeKeepsAspectAndEvenSides) {
    EXPECT_EQ(VideoSize({801, 601}, 0), QSize(800, 600));
    EXPECT_EQ(VideoSize({800, 600}, 1080), QSize(1440, 1080));
    EXPECT_EQ(VideoSize({1000, 700}, 101), QSize(144, 100));
}

// A video that cannot be written says why.
TEST(ExportVideo, AFailedWriteSaysWhy) {
    Sandbox box;
    auto doc = box.newDocument();
    QString error;
    EXPECT_FALSE(WriteExport(ExportKind::Video, *doc, box.path("gone/show.mp4"), ResImages::load(),
                             box.ctx, &error));
    EXPECT_FALSE(error.isEmpty());
}

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
        int steps = 0, first = 0;
        const Progress progress = [&](int page, int) {
            first = first ? first : page;
            return ++steps, !cancel;
        };
        QString written;
        EXPECT_EQ(RunExport(ExportKind::Video, *doc, prompter, res, box.ctx, progress, &written),
                  !cancel);
        EXPECT_GT(steps, 0); // the progress dialog saw the run, from page 1
        EXPECT_EQ(first, 1);
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
