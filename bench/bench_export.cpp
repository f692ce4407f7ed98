// The exports of the heavy résumé beside generating its package: each export should take no
// longer than generate, and the PDF should be at most twice the package's size.

#include "BenchSupport.h"
#include "StressDocument.h"

#include "export/PdfExport.h"
#include "export/WebPageExport.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "render/PictureCache.h"

#include <benchmark/benchmark.h>

#include <sys/resource.h>

#include <ctime>

using namespace zentor;
using zentor::bench::Stress;
using zentor::bench::Workload;

namespace {

// CPU time of every thread of the process: on a shared machine the work done is steadier
// than the wall clock, which also counts the time other programs hold the cores.
double ProcessCpuMs() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) * 1e3 + double(t.tv_nsec) / 1e6;
}

// Pages the process touched for the first time: on this virtual machine each costs more
// than copying it, so fresh buffers show here before they show in the times.
double MinorFaults() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return double(u.ru_minflt);
}

// Arg "decoded" 1: from the editor, whose workspace has already decoded every picture.
void BM_GenerateQdv(benchmark::State& state) {
    Stress& s = Workload();
    bench::QuietPrompter prompter;
    const QString out = s.ws.path(QStringLiteral("cv.qdv"));
    PictureCache shown;
    PictureCache* decoded = state.range(0) ? &shown : nullptr;
    if (decoded)
        RenderWebPage(*s.doc, s.res, s.ws.ctx, {}, decoded);
    const double cpu = ProcessCpuMs();
    const double faults = MinorFaults();
    for (auto _ : state) {
        RenderedPictures pictures(s.res, decoded);
        ResumeGenerator gen(s.ws.ctx, prompter, pictures);
        gen.setParallel(true);
        auto doc = std::make_unique<Document>(*s.doc);
        if (gen.writePackage(*doc, out, false) != ResumeGenerator::Outcome::Written)
            state.SkipWithError("generation failed");
    }
    state.counters["bytes"] = double(QFile(out).size());
    state.counters["cpu_ms"] = (ProcessCpuMs() - cpu) / double(state.iterations());
    state.counters["faults"] = (MinorFaults() - faults) / double(state.iterations());
}
BENCHMARK(BM_GenerateQdv)
    ->Arg(0)
    ->Arg(1)
    ->ArgName("decoded")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// Args: 0 the PDF, 1 the web page; "decoded" as above. "bytes" is the file's size,
// "cpu_ms" the work of all threads.
void BM_Export(benchmark::State& state) {
    Stress& s = Workload();
    const auto render = state.range(0) == 0 ? RenderPdf : RenderWebPage;
    PictureCache shown;
    PictureCache* decoded = state.range(1) ? &shown : nullptr;
    if (decoded)
        render(*s.doc, s.res, s.ws.ctx, {}, decoded);
    qint64 bytes = 0;
    const double cpu = ProcessCpuMs();
    const double faults = MinorFaults();
    for (auto _ : state)
        bytes = render(*s.doc, s.res, s.ws.ctx, {}, decoded).size();
    state.counters["bytes"] = double(bytes);
    state.counters["cpu_ms"] = (ProcessCpuMs() - cpu) / double(state.iterations());
    state.counters["faults"] = (MinorFaults() - faults) / double(state.iterations());
}
BENCHMARK(BM_Export)
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->ArgNames({"web", "decoded"})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    return zentor::bench::RunBenchmarks(argc, argv);
}
