#include "export/PdfExport.h"

#include "export/Contacts.h"
#include "export/PdfCover.h"
#include "export/PicturePrefetch.h"
#include "model/DefaultDocument.h"
#include "model/Document.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

namespace zentor {
namespace {

constexpr int PixelsPerInch = 96;

// A PDF text string that holds any character: UTF-16BE with its byte-order mark, in hex.
QByteArray PdfTextString(const QString& s) {
    QByteArray hex = "<FEFF";
    for (const QChar c : s)
        hex += QByteArray::number(c.unicode() | 0x10000, 16).mid(1).toUpper();
    return hex + '>';
}

} // namespace

bool AddPdfAuthor(QByteArray& pdf, const QString& author) {
    const QByteArray info = "<<\n/Title ";
    const qsizetype at = pdf.indexOf(info);
    const qsizetype xref = pdf.lastIndexOf("\nxref\n");
    const qsizetype start = pdf.lastIndexOf("startxref\n");
    if (at < 0 || xref < at || start < xref)
        return false;
    const QByteArray entry = "<<\n/Author " + PdfTextString(author) + '\n';
    const qsizetype delta = entry.size() - 3;

    // The table: "xref\n0 N\n" then N entries of 20 bytes, "OOOOOOOOOO GGGGG n \n".
    qsizetype pos = xref + 6;
    const qsizetype eol = pdf.indexOf('\n', pos);
    const QList<QByteArray> head = pdf.mid(pos, eol - pos).split(' ');
    if (eol < 0 || head.size() != 2)
        return false;
    const int count = head[1].toInt();
    pos = eol + 1;
    if (count < 1 || pos + qsizetype(count) * 20 > start)
        return false;
    for (int i = 0; i < count; ++i, pos += 20) {
        if (pdf.at(pos + 17) != 'n')
            continue;
        const qint64 offset = pdf.mid(pos, 10).toLongLong();
        if (offset > at)
            pdf.replace(pos, 10, QByteArray::number(offset + delta).rightJustified(10, '0'));
    }
    const qsizetype numberAt = start + 10;
    const qsizetype numberEnd = pdf.indexOf('\n', numberAt);
    const qint64 table = pdf.mid(numberAt, numberEnd - numberAt).toLongLong();
    pdf.replace(numberAt, numberEnd - numberAt, QByteArray::number(table + delta));
    pdf.replace(at, 3, entry);
    return true;
}

QByteArray RenderPdf(const Document& doc, const ResImages& res, const ProcessContext& ctx,
                     const Progress& progress) {
    const QSize frame = FrameSize(doc);
    if (frame.isEmpty())
        return QByteArray();
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        const QString person = PersonName(doc);
        writer.setTitle(person);
        writer.setCreator(QStringLiteral("Vitara Zentor"));
        writer.setResolution(PixelsPerInch);
        // Page size in points (72 to the inch) for a frame of pixels at 96 to the inch.
        const QSizeF points(frame.width() * 72.0 / PixelsPerInch,
                            frame.height() * 72.0 / PixelsPerInch);
        writer.setPageLayout(QPageLayout(QPageSize(points, QPageSize::Point), QPageLayout::Portrait,
                                         QMarginsF(0, 0, 0, 0)));
        QPainter p(&writer);
        // One cache for the whole file: a picture drawn twice at one size is embedded once.
        PictureCache cache;
        PrefetchPictures(doc, ctx, cache);
        if (!GoOn(progress, 1, 8))
            return QByteArray();
        PaintCover(p, doc, res, ctx, &cache);
        // The strip's order: Personal (tab 7) first, Overview (tab 1) last.
        for (int tab = 7; tab >= 1; --tab) {
            if (!GoOn(progress, 9 - tab, 8))
                return QByteArray();
            writer.newPage();
            PaintPage(p, doc, tab, res, &cache);
        }
        p.end();
    }
    AddPdfAuthor(bytes, PersonName(doc));
    return bytes;
}

} // namespace zentor
