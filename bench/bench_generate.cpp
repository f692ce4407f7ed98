// Generating a heavy résumé: 32 pictures from different 4000 x 3000 JPEGs, 128 shadowed
// texts, 7 tab pictures of 1920 x 1080, 7 tab icons, a 4000 x 3000 background and 5 MB of
// music. The target is the whole package in under 1.2 s on the two-core build machine.

#include "BenchSupport.h"
#include "StressDocument.h"

#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "model/DefaultDocument.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QRandomGenerator>

#include <memory>

using namespace zentor;
using zentor::bench::Stress;
using zentor::bench::Workload;

namespace {

void BM_GeneratePackage(benchmark::State& state) {
    Stress& s = Workload();
    bench::QuietPrompter prompter;
    const QString out = s.ws.path(QStringLiteral("cv.exe"));
    for (auto _ : state) {
        // A fresh renderer each time: nothing decoded in an earlier round is reused.
        RenderedPictures pictures(s.res);
        ResumeGenerator gen(s.ws.ctx, prompter, pictures);
        gen.setPlayer(QByteArray(int(s.ws.ctx.PlayerStubSize), '\0'));
        gen.setParallel(state.range(0) != 0);
        auto doc = std::make_unique<Document>(*s.doc);
        if (gen.writePackage(*doc, out, true) != ResumeGenerator::Outcome::Written)
            state.SkipWithError("generation failed");
    }
    state.counters["bytes"] = double(QFile(out).size());
}
BENCHMARK(BM_GeneratePackage)
    ->Arg(0)
    ->Arg(1)
    ->ArgName("parallel")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// Where the time goes: one page with its pictures and texts, and one resample.
void BM_RenderPage(benchmark::State& state) {
    Stress& s = Workload();
    for (auto _ : state) {
        PictureCache cache;
        benchmark::DoNotOptimize(RenderPageJpeg(*s.doc, int(state.range(0)), s.res, &cache));
    }
}
BENCHMARK(BM_RenderPage)->Arg(1)->Arg(8)->ArgName("page")->Unit(benchmark::kMillisecond);

void BM_ResampleBackground(benchmark::State& state) {
    Stress& s = Workload();
    RenderedPictures pictures(s.res);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            pictures.resample(Package::BackPictureEntry, s.doc->Header.BackPicture.trimNull(),
                              Package::BackPictureWidth, Package::BackPictureHeight));
}
BENCHMARK(BM_ResampleBackground)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return zentor::bench::RunBenchmarks(argc, argv);
}
