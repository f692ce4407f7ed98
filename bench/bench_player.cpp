// The player on the heavy résumé: from opening the package to its first frame (goal under
// 300 ms), and one cross-fade frame on a 1920 x 1080 screen (goal under 8 ms).

#include "BenchSupport.h"
#include "StressDocument.h"

#include "generate/PackageReader.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "render/ResImages.h"
#include "show/ShowPictures.h"

#include <benchmark/benchmark.h>

#include <QProcess>

using namespace zentor;
using zentor::bench::Stress;
using zentor::bench::Workload;

namespace {

// The stress résumé as a package, once for ShowAsRun 0 (home page) and 1 (first page).
QString StressPackage(int asRun) {
    static QString paths[2];
    QString& path = paths[asRun];
    if (!path.isEmpty())
        return path;
    Stress& s = Workload();
    bench::QuietPrompter prompter;
    RenderedPictures pictures(s.res);
    ResumeGenerator gen(s.ws.ctx, prompter, pictures);
    auto doc = std::make_unique<Document>(*s.doc);
    doc->Header.ShowAsRun = asRun;
    path = s.ws.path(QStringLiteral("stress%1.qdv").arg(asRun));
    if (gen.writePackage(*doc, path, false) != ResumeGenerator::Outcome::Written)
        path.clear();
    return path;
}

QByteArray DefaultBackground() {
    QFile f(Workload().ws.ctx.defaultBackPicture());
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Reading the file, the built-in pictures, and painting what shows at 0 ms.
void BM_PlayerFirstFrame(benchmark::State& state) {
    const QString path = StressPackage(int(state.range(0)));
    if (path.isEmpty()) {
        state.SkipWithError("no package");
        return;
    }
    const QByteArray back = DefaultBackground();
    for (auto _ : state) {
        PackageContents package;
        QString error;
        ReadPackage(path, PackageForm::Detect, package, error);
        const ResImages res = ResImages::load();
        const ShowPictures pics(package, res, back);
        const show::ShowModel model(show::ShowSettingsOf(package.Info.Header), 0, pics.showOrder());
        benchmark::DoNotOptimize(PaintShowFrame(pics, model.at(0), pics.frame()));
    }
}
BENCHMARK(BM_PlayerFirstFrame)
    ->Arg(0)
    ->Arg(1)
    ->ArgName("asRun")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// The whole program: process start, package, first frame, PNG written.
void BM_PlayerProcessFrame(benchmark::State& state) {
    const QString path = StressPackage(0);
    const QString png = Workload().ws.path(QStringLiteral("frame.png"));
    for (auto _ : state) {
        QProcess p;
        p.start(QStringLiteral(ZENTOR_PLAYER_PATH),
                {path, QStringLiteral("--frame"), QStringLiteral("0"), png});
        if (!p.waitForFinished(60000) || p.exitCode() != 0)
            state.SkipWithError("the player failed");
    }
}
BENCHMARK(BM_PlayerProcessFrame)->Unit(benchmark::kMillisecond)->UseRealTime();

// One frame halfway through a fade between two pages, the pictures already decoded and
// scaled for the screen, as every frame of a running fade is.
void BM_CrossFadeFrame(benchmark::State& state) {
    const QString path = StressPackage(1);
    PackageContents package;
    QString error;
    ReadPackage(path, PackageForm::Detect, package, error);
    const ResImages res = ResImages::load();
    const ShowPictures pics(package, res, DefaultBackground());
    const QSize screen(1920, 1080);
    const show::ScreenState fade{16, 17, 0.5};
    PaintShowFrame(pics, fade, screen);
    for (auto _ : state)
        benchmark::DoNotOptimize(PaintShowFrame(pics, fade, screen));
}
BENCHMARK(BM_CrossFadeFrame)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return zentor::bench::RunBenchmarks(argc, argv);
}
