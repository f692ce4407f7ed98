// The exports of the heavy résumé beside generating its package: each export should take no
// longer than generate, and the PDF should be at most twice the package's size.

#include "BenchSupport.h"
#include "StressDocument.h"

#include "export/PdfExport.h"
#include "export/WebPageExport.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"

#include <benchmark/benchmark.h>

using namespace zentor;
using zentor::bench::Stress;
using zentor::bench::Workload;

namespace {

void BM_GenerateQdv(benchmark::State& state) {
    Stress& s = Workload();
    bench::QuietPrompter prompter;
    const QString out = s.ws.path(QStringLiteral("cv.qdv"));
    for (auto _ : state) {
        RenderedPictures pictures(s.ws.ctx, s.res);
        ResumeGenerator gen(s.ws.ctx, prompter, pictures);
        gen.setParallel(true);
        auto doc = std::make_unique<Document>(*s.doc);
        if (gen.writePackage(*doc, out, false) != ResumeGenerator::Outcome::Written)
            state.SkipWithError("generation failed");
    }
    state.counters["bytes"] = double(QFile(out).size());
}
BENCHMARK(BM_GenerateQdv)->Unit(benchmark::kMillisecond)->UseRealTime();

// Arg 0 the PDF, 1 the web page; "bytes" is the file's size.
void BM_Export(benchmark::State& state) {
    Stress& s = Workload();
    const auto render = state.range(0) == 0 ? RenderPdf : RenderWebPage;
    qint64 bytes = 0;
    for (auto _ : state)
        bytes = render(*s.doc, s.res, s.ws.ctx, {}).size();
    state.counters["bytes"] = double(bytes);
}
BENCHMARK(BM_Export)->Arg(0)->Arg(1)->ArgName("web")->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    return zentor::bench::RunBenchmarks(argc, argv);
}
