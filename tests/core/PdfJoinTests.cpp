#include "export/PdfJoin.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <gtest/gtest.h>

using namespace zentor;

namespace {

QByteArray OnePagePdf() {
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    QPdfWriter writer(&out);
    QPainter(&writer).drawText(100, 100, "x");
    return out.data();
}

// The PDF with the offset of the cross-reference table's row `row` replaced.
QByteArray WithOffset(QByteArray pdf, int row, qint64 offset) {
    const qsizetype table = pdf.indexOf('\n', pdf.lastIndexOf("\nxref\n0 ") + 6) + 1;
    pdf.replace(table + 20 * row, 10, QByteArray::number(offset).rightJustified(10, '0'));
    return pdf;
}

} // namespace

// A part that is not as the writer wrote it is refused whole, never joined in part.
TEST(PdfJoin, DamagedPartsAreRefused) {
    const QByteArray pdf = OnePagePdf();
    const qsizetype xref = pdf.lastIndexOf("\nxref\n0 ") + 1;
    const struct {
        const char* what;
        QByteArray part;
        bool joined;
    } cases[] = {
        {"as written", pdf, true},
        {"no cross-reference table", "%PDF-1.4\n", false},
        {"an object at the file's start", WithOffset(pdf, 1, 0), false},
        {"an object past the table", WithOffset(pdf, 1, xref + 40), false},
        {"an object that is not where the table says", WithOffset(pdf, 1, 9), false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(!JoinPdfs({pdf, c.part}, {}).isEmpty(), c.joined) << c.what;
}
