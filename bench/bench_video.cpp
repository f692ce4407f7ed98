// Video speed: the sample résumé recorded at 1080p by the exporter, and the ffmpeg program
// making the same video from the same page pictures with its xfade filter, side by side.
#include "BenchSupport.h"

#include "export/PackageShowFrames.h"
#include "export/VideoExport.h"
#include "io/FileUtil.h"
#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"
#include "show/ShowModel.h"

#include <QProcess>

#include <benchmark/benchmark.h>

#include <memory>

using namespace zentor;

namespace {

constexpr int Height = 1080;

struct Fixture {
    bench::Workspace ws;
    std::unique_ptr<Document> doc = std::make_unique<Document>();
    ResImages res = ResImages::load();
    std::unique_ptr<ShowFrames> show;
    double seconds = 0;

    Fixture() {
        NewDocument(*doc, ws.ctx);
        LoadScript(*doc, QStringLiteral(ZENTOR_SAMPLE));
        show = Show();
        seconds = show->durationMs() / 1000.0;
    }

    std::unique_ptr<ShowFrames> Show() {
        QStringList warnings;
        QString error;
        auto s = DocumentShowFrames(*doc, ws.ctx, res, warnings, error);
        if (!s)
            qFatal("%s", qPrintable(error));
        return s;
    }
};

Fixture& F() {
    static Fixture f;
    return f;
}

void Report(benchmark::State& state) {
    state.counters["x_real_time"] =
        benchmark::Counter(F().seconds * double(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_ExportVideo(benchmark::State& state) {
    Fixture& f = F();
    for (auto _ : state) {
        const auto show = f.Show();
        const VideoResult r =
            ExportVideo(*f.doc, *show, f.ws.path("export.mp4"), VideoOptions{Height, 30});
        if (r.outcome != VideoResult::Outcome::Written)
            state.SkipWithError(qPrintable(r.error));
    }
    Report(state);
}

// The same show from the ffmpeg program: each step's picture a looped still, the same fades
// between them, the music mixed in; the pictures are drawn beforehand and not timed.
void BM_FfmpegXfade(benchmark::State& state) {
    Fixture& f = F();
    const int steps = f.show->stepCount();
    const int holdMs = f.show->durationMs() / steps;
    const double keep = holdMs / 1000.0;
    double fade = std::clamp(int(f.doc->Header.ShowSpeed), 0, show::MaxShowSpeed) *
                  show::FadeMsPerSpeed / 1000.0;
    fade = std::max(fade, 1 / 30.0); // xfade needs one frame at least
    QStringList args{"-v", "error", "-y"};
    for (int i = 0; i < steps; ++i) {
        const QString png = f.ws.path(QStringLiteral("page%1.png").arg(i));
        f.show->frameAt((i + 1) * holdMs - 1).save(png);
        args << "-loop"
             << "1"
             << "-framerate"
             << "30"
             << "-t" << QString::number(i + 1 == steps ? keep : keep + fade) << "-i" << png;
    }
    args << "-i" << ResolvePath(f.doc->ScriptPath, f.doc->Header.BackMusic.trimNull());
    QString graph;
    QString last = "[0:v]";
    for (int i = 1; i < steps; ++i) {
        const QString out = QStringLiteral("[v%1]").arg(i);
        graph += QStringLiteral("%1[%2:v]xfade=transition=fade:duration=%3:offset=%4%5;")
                     .arg(last)
                     .arg(i)
                     .arg(fade)
                     .arg(i * keep)
                     .arg(out);
        last = out;
    }
    graph += last + QStringLiteral("scale=-2:%1,format=yuv420p[v]").arg(Height);
    args << "-filter_complex" << graph << "-map"
         << "[v]"
         << "-map" << QString::number(steps) + ":a"
         << "-c:v"
         << "libx264"
         << "-c:a"
         << "aac"
         << "-t" << QString::number(f.seconds) << "-movflags"
         << "+faststart" << f.ws.path("ffmpeg.mp4");
    for (auto _ : state) {
        QProcess p;
        p.start("ffmpeg", args);
        if (!p.waitForFinished(-1) || p.exitCode() != 0)
            state.SkipWithError(p.readAllStandardError().constData());
    }
    Report(state);
}

BENCHMARK(BM_ExportVideo)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Repetitions(3)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_FfmpegXfade)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Repetitions(3)
    ->ReportAggregatesOnly(true);

} // namespace

int main(int argc, char** argv) {
    return bench::RunBenchmarks(argc, argv);
}
