// The editor window: how long until it is up, and how quickly it answers the mouse on a
// stress page (32 large pictures and 128 texts on one page).
#include "BenchSupport.h"

#include "edit/Editor.h"
#include "edit/UndoStack.h"
#include "editor/FrmMain.h"
#include "model/DefaultDocument.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/WorkspacePainter.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QTabBar>
#include <QTest>

using namespace zentor;

namespace {

bench::Workspace& workspace() {
    static bench::Workspace w;
    return w;
}

// 32 camera-sized pictures, each different, written once.
QString stressPicture(int i) {
    const QString path = workspace().path(QStringLiteral("photo-%1.jpg").arg(i));
    if (QFile::exists(path))
        return path;
    QImage img(1600, 1200, QImage::Format_RGB32);
    QPainter p(&img);
    QLinearGradient g(0, 0, 1600, 1200);
    g.setColorAt(0, QColor::fromHsv((i * 37) % 360, 160, 220));
    g.setColorAt(1, QColor::fromHsv((i * 37 + 120) % 360, 200, 90));
    p.fillRect(img.rect(), g);
    for (int k = 0; k < 40; ++k)
        p.fillRect(QRect((k * 97 + i * 13) % 1500, (k * 61 + i * 29) % 1100, 100, 100),
                   QColor::fromHsv((k * 23 + i) % 360, 200, 200));
    p.end();
    img.save(path, "JPG", 90);
    return path;
}

// Page 1 filled to the brim: every image and text slot. (The object list maps only its
// first 128 rows, so texts past slot 96 show in the list but are not picked by a click.)
std::unique_ptr<Document> stressDocument() {
    auto doc = std::make_unique<Document>();
    NewDocument(*doc, workspace().ctx);
    for (int i = 1; i <= MaxImages; ++i) {
        ImageElement& e = doc->Images[i];
        e = doc->Images[0];
        e.TabNo = 1;
        e.Name = QStringLiteral("image %1").arg(i);
        e.FileName = stressPicture(i);
        e.Left = (i % 8) * 95, e.Top = (i / 8) * 110, e.Width = 160, e.Height = 120;
    }
    for (int i = 1; i <= MaxTexts; ++i) {
        TextElement& t = doc->Texts[i];
        t = doc->Texts[0];
        t.TabNo = 1;
        t.Name = QStringLiteral("text %1").arg(i);
        t.Text =
            QStringLiteral("Résumé line %1, with a few more words to wrap. ").arg(i).repeated(3);
        t.Left = (i % 16) * 48, t.Top = 20 + (i / 16) * 70, t.Width = 200, t.Height = 80;
    }
    return doc;
}

struct StressWindow {
    const ResImages res = ResImages::load();
    bench::QuietPrompter prompter;
    std::unique_ptr<Document> doc = stressDocument();
    FrmMain window{*doc, workspace().ctx, prompter, res};
    QWidget* ws = window.findChild<QWidget*>(QStringLiteral("PicWorkSpace"));
    QWidget* frame = window.findChild<QWidget*>(QStringLiteral("LabAdd"));

    StressWindow() {
        window.formLoad();
        window.resize(1280, 860);
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
        // Page 1 (Overview) is strip position 8.
        QTest::mouseClick(window.findChild<QTabBar*>(QStringLiteral("TabTitle")), Qt::LeftButton,
                          {}, window.findChild<QTabBar*>()->tabRect(7).center());
        QApplication::processEvents();
    }
};

void BM_WindowStartup(benchmark::State& state) {
    for (auto _ : state) {
        const ResImages res = ResImages::load();
        bench::QuietPrompter prompter;
        auto doc = std::make_unique<Document>();
        NewDocument(*doc, workspace().ctx);
        auto window = std::make_unique<FrmMain>(*doc, workspace().ctx, prompter, res);
        window->formLoad();
        window->show();
        (void)QTest::qWaitForWindowExposed(window.get());
        QApplication::processEvents();
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_WindowStartup)->Unit(benchmark::kMillisecond);

// A click on a picture of the stress page: selects it, and the release repaints the page.
void BM_ClickSelectOnStressPage(benchmark::State& state) {
    StressWindow w;
    const QPoint points[2] = {QPoint(700, 380), QPoint(30, 400)};
    int n = 0;
    for (auto _ : state) {
        // Beside the frame, so the press lands on the workspace and picks anew.
        QTest::mouseClick(w.ws, Qt::LeftButton, {}, points[n++ % 2]);
        QApplication::processEvents();
    }
}
BENCHMARK(BM_ClickSelectOnStressPage)->Unit(benchmark::kMillisecond);

// A drag of the selected object by its frame: ten moves, then the release repaints.
void BM_DragAndRepaintOnStressPage(benchmark::State& state) {
    StressWindow w;
    QTest::mouseClick(w.ws, Qt::LeftButton, {}, QPoint(30, 400));
    QApplication::processEvents();
    if (!w.frame->isVisible()) {
        state.SkipWithError("nothing selected");
        return;
    }
    int round = 0;
    for (auto _ : state) {
        // Right on even rounds, back left on odd ones, so the object stays where it was.
        const int dir = round++ % 2 ? -1 : 1;
        const QPoint start = w.frame->geometry().topLeft() + QPoint(5, 5);
        QTest::mousePress(w.frame, Qt::LeftButton, {}, QPoint(5, 5));
        for (int k = 1; k <= 10; ++k)
            QTest::mouseMove(w.ws, start + QPoint(dir * k * 3, (k % 2) * 4));
        QTest::mouseRelease(w.ws, Qt::LeftButton, {}, start + QPoint(dir * 30, 0));
        QApplication::processEvents();
    }
}
BENCHMARK(BM_DragAndRepaintOnStressPage)->Unit(benchmark::kMillisecond);

// The page picture alone, as the release of a drag repaints it (pictures already decoded).
void BM_PaintStressPage(benchmark::State& state) {
    const ResImages res = ResImages::load();
    auto doc = stressDocument();
    PictureCache cache;
    PaintWorkspace(*doc, 1, 0, res, workspace().ctx, &cache); // decodes the pictures once
    for (auto _ : state)
        benchmark::DoNotOptimize(PaintWorkspace(*doc, 1, 0, res, workspace().ctx, &cache));
}
BENCHMARK(BM_PaintStressPage)->Unit(benchmark::kMillisecond);

// One frame move during a drag (no page repaint until the release).
void BM_DragMoveOnStressPage(benchmark::State& state) {
    StressWindow w;
    QTest::mouseClick(w.ws, Qt::LeftButton, {}, QPoint(30, 400));
    QApplication::processEvents();
    const QPoint start = w.frame->geometry().topLeft() + QPoint(5, 5);
    QTest::mousePress(w.frame, Qt::LeftButton, {}, QPoint(5, 5));
    int k = 0;
    for (auto _ : state) {
        QTest::mouseMove(w.ws, start + QPoint((k % 20) * 2, (k % 7)));
        ++k;
        QApplication::processEvents();
    }
    QTest::mouseRelease(w.ws, Qt::LeftButton, {}, start);
}
BENCHMARK(BM_DragMoveOnStressPage)->Unit(benchmark::kMicrosecond);

// Every command first records what the document became (nothing, mostly): the question
// "did anything change" on 128 texts of 4096 characters, with no change and with a nudge.
void BM_UndoRecordOnStressDocument(benchmark::State& state) {
    const bool change = state.range(0) != 0;
    Document doc;
    NewDocument(doc, workspace().ctx);
    for (int i = 1; i <= MaxTexts; ++i) {
        TextElement& t = doc.Texts[i];
        t = doc.Texts[0];
        t.TabNo = 1 + i % 7;
        t.Text =
            QStringLiteral("Résumé line %1, with words to wrap. ").arg(i).repeated(120).left(4096);
    }
    UndoStack undo;
    DocumentRecords before = RecordsOf(doc);
    int k = 0;
    for (auto _ : state) {
        if (change)
            doc.Texts[1 + k++ % MaxTexts].Left += 1;
        if (undo.push(QStringLiteral("Nudge"), before, doc, QStringLiteral("nudge")))
            before = RecordsOf(doc);
    }
}
BENCHMARK(BM_UndoRecordOnStressDocument)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    PrepareRuntimeDir();
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
