// Generating a heavy résumé: 32 pictures from different 4000 x 3000 JPEGs, 128 shadowed
// texts, 7 tab pictures of 1920 x 1080, 7 tab icons, a 4000 x 3000 background and 5 MB of
// music. The target is the whole package in under 1.2 s on the two-core build machine.

#include "BenchSupport.h"

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

namespace {

// A photo-like picture: gradients, shapes and noise, so that JPEG has real work to do.
QImage Photo(int w, int h, int seed) {
    QImage img(w, h, QImage::Format_RGB32);
    QRandomGenerator rng(seed);
    QPainter p(&img);
    QLinearGradient g(0, 0, w, h);
    g.setColorAt(0, QColor::fromHsv(seed * 37 % 360, 120, 230));
    g.setColorAt(1, QColor::fromHsv((seed * 37 + 150) % 360, 200, 90));
    p.fillRect(img.rect(), g);
    for (int i = 0; i < 60; ++i) {
        p.setBrush(QColor::fromHsv(rng.bounded(360), 150, 200, 160));
        p.setPen(Qt::NoPen);
        p.drawEllipse(QPoint(rng.bounded(w), rng.bounded(h)), rng.bounded(w / 6) + 10,
                      rng.bounded(h / 6) + 10);
    }
    p.end();
    for (int y = 0; y < h; y += 2) {
        auto* line = reinterpret_cast<QRgb*>(img.scanLine(y));
        for (int x = 0; x < w; x += 3)
            line[x] ^= rng.generate() & 0x0f0f0f;
    }
    return img;
}

void Save(const QImage& img, const QString& path, int quality = 90) {
    QImageWriter w(path);
    w.setQuality(quality);
    w.write(img);
}

struct Stress {
    bench::Workspace ws;
    std::unique_ptr<Document> doc = std::make_unique<Document>();
    ResImages res = ResImages::load();

    Stress() {
        const QString media = ws.path(QStringLiteral("media/"));
        QDir().mkpath(media);
        NewDocument(*doc, ws.ctx);
        for (int i = 1; i <= 32; ++i) {
            const QString path = media + QStringLiteral("photo%1.jpg").arg(i);
            Save(Photo(4000, 3000, i), path);
            ImageElement& e = doc->Images[size_t(i)];
            e = doc->Images[0];
            e.TabNo = 1 + (i - 1) % 7;
            e.FileName = path;
            e.Left = 20 + (i * 53) % 500;
            e.Top = 20 + (i * 31) % 350;
            e.Width = 240;
            e.Height = 180;
        }
        for (int i = 1; i <= 128; ++i) {
            TextElement& t = doc->Texts[size_t(i)];
            t = doc->Texts[0];
            t.TabNo = 1 + (i - 1) % 7;
            t.Text = QStringLiteral("Line %1: led the redesign of the riverside park, budget and "
                                    "planting plan")
                         .arg(i);
            t.Left = 10 + (i * 17) % 400;
            t.Top = 10 + (i * 29) % 540;
            t.Width = 380;
            t.Height = 50;
            t.FontShadow = -1;
        }
        for (int tab = 1; tab <= 7; ++tab) {
            const QString picture = media + QStringLiteral("tab%1.jpg").arg(tab);
            Save(Photo(1920, 1080, 100 + tab), picture);
            ImageElement& p = doc->Tabs[size_t(tab)].Picture;
            p.FileName = picture;
            p.Left = 0;
            p.Top = 0;
            p.Width = doc->Header.FrameWidth;
            p.Height = doc->Header.FrameHeight;
            const QString icon = media + QStringLiteral("icon%1.png").arg(tab);
            Photo(64, 64, 200 + tab).save(icon);
            doc->Tabs[size_t(tab + 1)].Icon = icon;
        }
        const QString back = media + QStringLiteral("back.jpg");
        Save(Photo(4000, 3000, 300), back);
        doc->Header.BackPicture = back;
        doc->Profile.UserIcon = media + QStringLiteral("photo1.jpg");
        QByteArray music(5 * 1024 * 1024, '\0');
        QRandomGenerator(7).fillRange(reinterpret_cast<quint32*>(music.data()), music.size() / 4);
        QFile m(media + QStringLiteral("theme.mp3"));
        m.open(QIODevice::WriteOnly);
        m.write(music);
        m.close();
        doc->Header.BackMusic = m.fileName();
    }
};

Stress& Workload() {
    static Stress s;
    return s;
}

void BM_GeneratePackage(benchmark::State& state) {
    Stress& s = Workload();
    bench::QuietPrompter prompter;
    const QString out = s.ws.path(QStringLiteral("cv.exe"));
    for (auto _ : state) {
        // A fresh renderer each time: nothing decoded in an earlier round is reused.
        RenderedPictures pictures(s.ws.ctx, s.res);
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
    RenderedPictures pictures(s.ws.ctx, s.res);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            pictures.resample(s.doc->Header.BackPicture.trimNull(), 1024, 768));
}
BENCHMARK(BM_ResampleBackground)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return zentor::bench::RunBenchmarks(argc, argv);
}
