// Saving and loading a full project: 128 texts and 32 images (about 556 KB).
#include "BenchSupport.h"

#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"

#include <benchmark/benchmark.h>

using namespace zentor;

namespace {

std::unique_ptr<Document> fullDocument(const ProcessContext& ctx) {
    auto doc = std::make_unique<Document>();
    NewDocument(*doc, ctx);
    for (int i = 1; i <= MaxTexts; ++i) {
        doc->Texts[i] = doc->Texts[0];
        doc->Texts[i].TabNo = 1 + i % 7;
        doc->Texts[i].Name = QStringLiteral("text %1").arg(i);
        doc->Texts[i].Text = QStringLiteral("Line of résumé text number %1. ").repeated(40);
    }
    for (int i = 1; i <= MaxImages; ++i) {
        doc->Images[i] = doc->Images[0];
        doc->Images[i].TabNo = 1 + i % 7;
        doc->Images[i].Name = QStringLiteral("image %1").arg(i);
        doc->Images[i].FileName = QStringLiteral("media/picture-%1.jpg").arg(i);
    }
    return doc;
}

bench::Workspace& workspace() {
    static bench::Workspace w;
    return w;
}

void BM_SaveFullDocument(benchmark::State& state) {
    auto doc = fullDocument(workspace().ctx);
    const QString path = workspace().path(QStringLiteral("full.qds"));
    for (auto _ : state) {
        if (!SaveScript(*doc, path))
            state.SkipWithError("save failed");
    }
    state.SetBytesProcessed(state.iterations() * SerializeScript(*doc).size());
}
BENCHMARK(BM_SaveFullDocument)->Unit(benchmark::kMillisecond);

void BM_LoadFullDocument(benchmark::State& state) {
    auto doc = fullDocument(workspace().ctx);
    const QString path = workspace().path(QStringLiteral("load.qds"));
    SaveScript(*doc, path);
    auto target = std::make_unique<Document>();
    NewDocument(*target, workspace().ctx);
    for (auto _ : state) {
        const LoadReport r = LoadScript(*target, path);
        benchmark::DoNotOptimize(r);
        if (r.textsRead != MaxTexts)
            state.SkipWithError("load incomplete");
    }
}
BENCHMARK(BM_LoadFullDocument)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return zentor::bench::RunBenchmarks(argc, argv);
}
