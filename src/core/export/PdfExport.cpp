#include "export/PdfExport.h"

#include "export/Contacts.h"
#include "export/PdfCover.h"
#include "export/PdfJoin.h"
#include "generate/PictureJobs.h"
#include "model/DefaultDocument.h"
#include "model/Document.h"
#include "render/PageCompositor.h"
#include "render/PageContent.h"
#include "render/PictureCache.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QThread>

#include <functional>

namespace zentor {
namespace {

constexpr int PixelsPerInch = 96;

using Painting = std::function<void(QPainter&)>;

// Pages of the résumé's size as a PDF of their own, one painting a page.
QByteArray PagePdf(QSize frame, const std::vector<Painting>& pages) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(PixelsPerInch);
    // Page size in points (72 to the inch) for a frame of pixels at 96 to the inch.
    const QSizeF points(frame.width() * 72.0 / PixelsPerInch,
                        frame.height() * 72.0 / PixelsPerInch);
    writer.setPageLayout(QPageLayout(QPageSize(points, QPageSize::Point), QPageLayout::Portrait,
                                     QMarginsF(0, 0, 0, 0)));
    QPainter p(&writer);
    for (size_t i = 0; i < pages.size(); ++i) {
        if (i > 0)
            writer.newPage();
        pages[i](p);
    }
    p.end();
    return bytes;
}

} // namespace

QByteArray RenderPdf(const Document& doc, const ResImages& res, const ProcessContext& ctx,
                     const Progress& progress, PictureCache* pictures) {
    const QSize frame = FrameSize(doc);
    if (frame.isEmpty())
        return QByteArray();
    // One cache for the whole file: a picture drawn on two pages is decoded once (and the
    // join keeps one copy of it).
    PictureCache own;
    PictureCache& cache = pictures ? *pictures : own;
    std::vector<PictureJobs::Job> jobs;
    jobs.push_back([&] {
        return PagePdf(frame, {[&](QPainter& p) { PaintCover(p, doc, res, ctx, &cache); }});
    });
    // The strip's order: Personal (tab 7) first, Overview (tab 1) last. Each is three layers
    // joined into one page: what lies under the texts, their shadows, their letters. Shadows
    // drawn as glyphs of their own cost a fraction of their outlines, and readers skip them.
    std::map<size_t, PdfLayers> layered;
    for (int tab = 7; tab >= 1; --tab) {
        layered[jobs.size()] = PdfLayers{1};
        jobs.push_back([&, tab] {
            return PagePdf(
                frame, {[&](QPainter& p) { PaintPage(p, doc, tab, res, &cache, false); },
                        [&](QPainter& p) { DrawPageTexts(p, doc, tab, TextPasses::ShadowOnly); },
                        [&](QPainter& p) { DrawPageTexts(p, doc, tab, TextPasses::LettersOnly); }});
        });
    }
    // Pages are written side by side, each its own small PDF, then joined.
    const size_t count = jobs.size();
    PictureJobs run(std::move(jobs), std::max(1, QThread::idealThreadCount()));
    std::vector<QByteArray> parts;
    for (size_t i = 0; i < count; ++i) {
        if (!GoOn(progress, int(i) + 1, int(count)))
            return QByteArray();
        parts.push_back(run.take(i).value_or(QByteArray()));
    }
    const QString person = PersonName(doc);
    return JoinPdfs(parts,
                    {person, person, QStringLiteral("Vitara Zentor"),
                     QStringLiteral("Qt ") + QLatin1String(qVersion())},
                    layered);
}

} // namespace zentor
