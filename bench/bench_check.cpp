// Check Résumé: the whole stress résumé (128 texts of 4096 characters, 32 pictures), and the
// work one keystroke costs the underlining on a 4096-character text.
#include "StressDocument.h"

#include "check/CheckDocument.h"
#include "check/WordScan.h"
#include "render/PictureCache.h"

#include <benchmark/benchmark.h>

using namespace zentor;

namespace {

// Résumé prose with a misspelling in every few sentences, repeated to `length` characters.
QString Prose(int length, int seed) {
    static const char* const sentences[] = {
        "Led the redesign of the riverside park, its budget and planting plan. ",
        "Managed a team of twelve across three offices and recieved an award. ",
        "Wrote the tender documents, negotiated with suppliers and kept the schedule. ",
        "Presented the designs to the council and to residents at open evenings. ",
        "Introduced a shared drawing standard that cut revisions by a third. ",
        "Responsable for the maintenance contracts of forty public gardens. ",
        "Trained new colleagues in surveying, drafting and site safety. ",
    };
    QString text;
    for (int i = seed; text.size() < length; ++i)
        text += QString::fromUtf8(sentences[i % 7]);
    text.truncate(length);
    return text;
}

struct Fixture {
    bench::Stress& stress = bench::Workload();
    std::unique_ptr<SpellChecker> speller;
    Fixture() {
        for (int i = 1; i <= MaxTexts; ++i)
            stress.doc->Texts[size_t(i)].Text = Prose(4096, i);
        speller = SpellChecker::open(QStringLiteral("en_US"), nullptr);
    }
};

Fixture& Fix() {
    static Fixture f;
    return f;
}

// As zentor-cli runs it: the pictures read from their files.
void BM_CheckStressDocument(benchmark::State& state) {
    Fixture& f = Fix();
    CheckOptions options;
    options.speller = f.speller.get();
    size_t findings = 0;
    for (auto _ : state)
        findings = CheckDocument(*f.stress.doc, options).size();
    state.counters["findings"] = double(findings);
}
BENCHMARK(BM_CheckStressDocument)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

// The same with no text shadowed: every page must be drawn to see what lies under its texts.
void BM_CheckStressDocumentUnshadowed(benchmark::State& state) {
    Fixture& f = Fix();
    const auto doc = std::make_unique<Document>(*f.stress.doc);
    for (TextElement& t : doc->Texts)
        t.FontShadow = 0;
    CheckOptions options;
    options.speller = f.speller.get();
    for (auto _ : state)
        benchmark::DoNotOptimize(CheckDocument(*doc, options));
}
BENCHMARK(BM_CheckStressDocumentUnshadowed)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

// As the editor's panel runs it: the pictures already decoded for the workspace.
void BM_CheckStressDocumentWarmPictures(benchmark::State& state) {
    Fixture& f = Fix();
    PictureCache cache;
    CheckOptions options;
    options.speller = f.speller.get();
    options.cache = &cache;
    CheckDocument(*f.stress.doc, options);
    for (auto _ : state)
        benchmark::DoNotOptimize(CheckDocument(*f.stress.doc, options));
}
BENCHMARK(BM_CheckStressDocumentWarmPictures)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

void BM_OpenDictionary(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(SpellChecker::open(QStringLiteral("en_US"), nullptr));
}
BENCHMARK(BM_OpenDictionary)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

// One key typed at the end of a 4096-character paragraph: the paragraph's words found and
// looked up again, the new word among them.
void BM_KeystrokeUnderline(benchmark::State& state) {
    Fixture& f = Fix();
    const QSet<QString> exempt = ProfileWords(*f.stress.doc);
    QString text = Prose(4096, 3);
    MisspeltWords(text, *f.speller, exempt);
    int typed = 0;
    for (auto _ : state) {
        text[text.size() - 1] = QChar(u'a' + typed++ % 26);
        benchmark::DoNotOptimize(MisspeltWords(text, *f.speller, exempt));
    }
}
BENCHMARK(BM_KeystrokeUnderline)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    return bench::RunBenchmarks(argc, argv);
}
