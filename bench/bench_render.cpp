// Rendering speed: the page compositor from cold files, repainting a workspace page whose
// pictures are already decoded, and a page full of shadowed texts.
#include "BenchSupport.h"

#include "model/DefaultDocument.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/WorkspacePainter.h"

#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <memory>

using namespace zentor;

namespace {

// A photo-like picture: smooth gradients with detail, so JPEG decoding does real work.
void WritePhoto(const QString& path, QSize size, int seed) {
    QImage img(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(img.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] = qRgb((x * 255 / size.width() + seed * 40) & 255,
                           (y * 255 / size.height() + ((x ^ y) & 15)) & 255,
                           ((x + y) / 7 + seed * 60) & 255);
    }
    img.save(path, "JPEG", 90);
}

QString LongText(int i) {
    return QStringLiteral("Item %1: led a team of five engineers building a multimedia résumé "
                          "editor, cutting page render time in half while keeping every "
                          "preview identical to the generated output; shipped on schedule.")
        .arg(i);
}

void AddText(Document& doc, int slot, int tab, const QString& text, QRect r) {
    TextElement& t = doc.Texts[size_t(slot)];
    t = doc.Texts[0]; // Arial 12, white with a shadow, antialiased
    t.TabNo = tab;
    t.Text = text;
    t.Left = r.x();
    t.Top = r.y();
    t.Width = r.width();
    t.Height = r.height();
}

struct Fixture {
    bench::Workspace ws;
    std::unique_ptr<Document> stress = std::make_unique<Document>();
    std::unique_ptr<Document> texts = std::make_unique<Document>();
    ResImages res = ResImages::load();

    Fixture() {
        NewDocument(*stress, ws.ctx);
        NewDocument(*texts, ws.ctx);
        WritePhoto(ws.path("tab.jpg"), QSize(1920, 1080), 9);
        WritePhoto(ws.path("back.jpg"), QSize(1024, 768), 7);
        stress->Header.BackPicture = ws.path("back.jpg");
        ImageElement& tabPic = stress->Tabs[1].Picture;
        tabPic.FileName = ws.path("tab.jpg");
        tabPic.PicAlign = 0;
        tabPic.Left = 0, tabPic.Top = 0, tabPic.Width = 800, tabPic.Height = 600;
        const QRect boxes[5] = {{20, 20, 140, 105},
                                {180, 20, 200, 150},
                                {400, 20, 320, 240},
                                {20, 300, 240, 180},
                                {560, 380, 220, 165}};
        for (int i = 0; i < 5; ++i) {
            const QString path = ws.path(QStringLiteral("photo%1.jpg").arg(i));
            WritePhoto(path, QSize(4000, 3000), i);
            ImageElement& img = stress->Images[size_t(i + 1)];
            img = stress->Images[0];
            img.TabNo = 1;
            img.FileName = path;
            img.Left = boxes[i].x(), img.Top = boxes[i].y();
            img.Width = boxes[i].width(), img.Height = boxes[i].height();
        }
        for (int i = 0; i < 18; ++i)
            AddText(*stress, i + 1, 1, LongText(i),
                    QRect(10 + (i % 3) * 260, 10 + (i / 3) * 95, 250, 90));
        for (int i = 0; i < 128; ++i)
            AddText(*texts, i + 1, 1, QStringLiteral("Text %1 with a shadow").arg(i),
                    QRect((i % 4) * 200, (i / 4) * 18, 200, 20));
    }
};

Fixture& F() {
    static Fixture f;
    return f;
}

void BM_StressPageFromColdFiles(benchmark::State& state) {
    Fixture& f = F();
    PictureCache cache;
    for (auto _ : state) {
        cache.clear();
        QImage page = RenderPageImage(*f.stress, 1, f.res, &cache);
        benchmark::DoNotOptimize(page);
    }
}

void BM_StressPageToTempJpeg(benchmark::State& state) {
    Fixture& f = F();
    for (auto _ : state)
        benchmark::DoNotOptimize(RenderPage(*f.stress, 1, f.res, f.ws.ctx));
}

void BM_WorkspaceRepaintDecoded(benchmark::State& state) {
    Fixture& f = F();
    PictureCache cache;
    PaintWorkspace(*f.stress, 1, 0, f.res, f.ws.ctx, &cache); // decode once
    for (auto _ : state) {
        QImage img = PaintWorkspace(*f.stress, 1, 0, f.res, f.ws.ctx, &cache);
        benchmark::DoNotOptimize(img);
    }
}

// The profile page is repainted whenever the pointer moves onto or off a ring icon.
void BM_ProfilePageHoverRepaint(benchmark::State& state) {
    Fixture& f = F();
    PictureCache cache;
    int hover = 0;
    for (auto _ : state) {
        QImage img = PaintWorkspace(*f.stress, 0, hover, f.res, f.ws.ctx, &cache);
        benchmark::DoNotOptimize(img);
        hover = (hover + 1) % 9;
    }
}

void BM_Page128ShadowedTexts(benchmark::State& state) {
    Fixture& f = F();
    for (auto _ : state) {
        QImage page = RenderPageImage(*f.texts, 1, f.res);
        benchmark::DoNotOptimize(page);
    }
}

BENCHMARK(BM_StressPageFromColdFiles)->Unit(benchmark::kMillisecond)->Repetitions(5)->UseRealTime();
BENCHMARK(BM_StressPageToTempJpeg)->Unit(benchmark::kMillisecond)->Repetitions(3)->UseRealTime();
BENCHMARK(BM_WorkspaceRepaintDecoded)->Unit(benchmark::kMillisecond)->Repetitions(5)->UseRealTime();
BENCHMARK(BM_ProfilePageHoverRepaint)->Unit(benchmark::kMillisecond)->Repetitions(5)->UseRealTime();
BENCHMARK(BM_Page128ShadowedTexts)->Unit(benchmark::kMillisecond)->Repetitions(5)->UseRealTime();

} // namespace

int main(int argc, char** argv) {
    bench::InitGui(argc, argv);
    benchmark::Initialize(&argc, argv);
    F(); // build the workload before timing starts
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
