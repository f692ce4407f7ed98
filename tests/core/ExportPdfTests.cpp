#include "TestSupport.h"

#include "export/PdfExport.h"
#include "io/ScriptFile.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cmath>

using namespace zentor;

namespace {

// A project whose every content page has its own words, a picture and a gradient tab
// picture; the profile carries a name, an e-mail address and a web site.
struct PdfProject {
    test::Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    QString project = box.path("cv.qds");

    PdfProject() {
        QImage tab(400, 300, QImage::Format_RGB32);
        QPainter p(&tab);
        QLinearGradient g(0, 0, 400, 300);
        g.setColorAt(0, QColor(30, 60, 90));
        g.setColorAt(1, QColor(200, 160, 80));
        p.fillRect(tab.rect(), g);
        p.end();
        EXPECT_TRUE(tab.save(box.path("tab.jpg")));
        EXPECT_TRUE(test::Solid(300, 200, qRgb(0, 120, 40)).save(box.path("green.png")));
        Profile().FirstName = QStringLiteral("Ada");
        Profile().LastName = QStringLiteral("Quill");
        Profile().Email = QStringLiteral("ada@quill.example");
        Profile().Website = QStringLiteral("quill.example");
        for (int tabNo = 1; tabNo <= 7; ++tabNo) {
            ImageElement& pic = doc->Tabs[size_t(tabNo)].Picture;
            pic.FileName = QStringLiteral("tab.jpg");
            pic.Left = 0;
            pic.Top = 0;
            pic.Width = 800;
            pic.Height = 600;
            TextElement& t = test::PlaceText(*doc, tabNo, tabNo, {40, 40 + tabNo * 30, 500, 120},
                                             Word(tabNo) + QStringLiteral(" leads the team"));
            t.FontShadow = -1;
            t.FontStyle = tabNo == 3 ? 4 : 0; // one underlined text
        }
        // The same picture at one size on two pages, and once at another size.
        test::PlaceImage(*doc, 1, 7, {500, 300, 150, 100}, QStringLiteral("green.png"));
        test::PlaceImage(*doc, 2, 6, {500, 300, 150, 100}, QStringLiteral("green.png"));
        test::PlaceImage(*doc, 3, 5, {100, 300, 60, 40}, QStringLiteral("green.png"));
        EXPECT_TRUE(SaveScript(*doc, project));
    }
    ProfileRecord& Profile() { return doc->Profile; }
    static QString Word(int tab) { return QStringLiteral("Marker%1word").arg(tab); }

    QString exportPdf() {
        const QString out = box.path("cv.pdf");
        QByteArray err;
        EXPECT_EQ(test::RunCli({"pdf", project, out}, nullptr, &err), 0) << err.constData();
        return out;
    }
};

QString Tool(const QString& program, const QStringList& args) {
    QByteArray out, err;
    EXPECT_EQ(test::RunProcess(program, args, &out, &err), 0)
        << qPrintable(program) << ": " << err.constData();
    return QString::fromUtf8(out);
}

} // namespace

TEST(ExportPdf, ReadsBackAsTextFontsLinksAndMetadata) {
    PdfProject pr;
    const QString pdf = pr.exportPdf();

    const QString info = Tool("pdfinfo", {pdf});
    EXPECT_TRUE(info.contains(QRegularExpression("Pages:\\s+8\\n"))) << qPrintable(info);
    EXPECT_TRUE(info.contains(QRegularExpression("Title:\\s+Ada Quill\\n")));
    EXPECT_TRUE(info.contains(QRegularExpression("Author:\\s+Ada Quill\\n")));
    EXPECT_TRUE(info.contains(QRegularExpression("Creator:\\s+Vitara Zentor\\n")));
    EXPECT_TRUE(info.contains(QRegularExpression("Page size:\\s+600 x 450 pts")));

    const QStringList fonts = Tool("pdffonts", {pdf}).split('\n', Qt::SkipEmptyParts).mid(2);
    ASSERT_FALSE(fonts.isEmpty());
    for (const QString& row : fonts) {
        const QStringList cols = row.split(' ', Qt::SkipEmptyParts);
        ASSERT_GE(cols.size(), 5) << qPrintable(row);
        EXPECT_EQ(cols[cols.size() - 5], "yes") << "not embedded: " << qPrintable(row);
    }

    const QString urls = Tool("pdfinfo", {"-url", pdf});
    EXPECT_TRUE(urls.contains(QRegularExpression("\\s1\\s+Annotation\\s+mailto:ada@quill.example")))
        << qPrintable(urls);
    EXPECT_TRUE(urls.contains("http://quill.example"));

    // Each page's words once (shadows are no second copy), pages in the strip's order.
    const QString text = Tool("pdftotext", {pdf, "-"});
    const QStringList pages = text.split('\f');
    ASSERT_GE(pages.size(), 8);
    EXPECT_TRUE(pages[0].contains("Ada Quill"));
    EXPECT_TRUE(pages[0].contains("ada@quill.example"));
    for (int tab = 7; tab >= 1; --tab) {
        const QString& page = pages[8 - tab];
        EXPECT_EQ(page.count(PdfProject::Word(tab)), 1) << "page " << 9 - tab << qPrintable(page);
        EXPECT_EQ(page.count("leads the team"), 1);
    }
}

TEST(ExportPdf, ContentPagesLookLikeTheirJpegPages) {
    PdfProject pr;
    const QString pdf = pr.exportPdf();
    Tool("pdftoppm", {"-r", "96", "-png", pdf, pr.box.path("pg")});
    const ResImages res = ResImages::load();
    ASSERT_TRUE(LoadScript(*pr.doc, pr.project).complete);
    for (int tab = 7; tab >= 1; --tab) {
        const int page = 9 - tab;
        QImage shown(pr.box.path(QStringLiteral("pg-%1.png").arg(page)));
        ASSERT_EQ(shown.size(), QSize(800, 600)) << "page " << page;
        QImage jpeg;
        ASSERT_TRUE(jpeg.loadFromData(RenderPageJpeg(*pr.doc, tab, res)));
        shown = shown.convertToFormat(QImage::Format_RGB32);
        jpeg = jpeg.convertToFormat(QImage::Format_RGB32);
        double sum = 0;
        for (int y = 0; y < 600; ++y)
            for (int x = 0; x < 800; ++x) {
                const QRgb a = shown.pixel(x, y), b = jpeg.pixel(x, y);
                sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                       std::abs(qBlue(a) - qBlue(b));
            }
        EXPECT_LT(sum / (800.0 * 600 * 3 * 255), 0.04) << "page " << page;
    }
}

TEST(ExportPdf, PicturesOnceEachNoLargerThanDrawn) {
    PdfProject pr;
    const QString list = Tool("pdfimages", {"-list", pr.exportPdf()});
    // page num type width height color comp bpc enc interp object ID ...
    QHash<QString, QSize> objects;
    for (const QString& row : list.split('\n', Qt::SkipEmptyParts).mid(2)) {
        const QStringList c = row.split(' ', Qt::SkipEmptyParts);
        ASSERT_GE(c.size(), 12) << qPrintable(row);
        objects.insert(c[10], QSize(c[3].toInt(), c[4].toInt()));
    }
    // The background of the cover, the logo and the border, one tab picture for all seven
    // pages, and the green picture at its two sizes.
    QList<QSize> sizes = objects.values();
    EXPECT_EQ(sizes.count(QSize(150, 100)), 1) << qPrintable(list);
    EXPECT_EQ(sizes.count(QSize(60, 40)), 1);
    EXPECT_EQ(sizes.count(QSize(400, 300)), 1);
    for (const QSize& s : sizes)
        EXPECT_TRUE(s.width() <= 800 && s.height() <= 600);
}

TEST(ExportPdf, AuthorKeepsEveryOffsetRight) {
    PdfProject pr;
    const QByteArray pdf = test::ReadAll(pr.exportPdf());
    const qsizetype xref = pdf.lastIndexOf("\nxref\n0 ");
    ASSERT_GT(xref, 0);
    const int count = pdf.mid(xref + 8, pdf.indexOf('\n', xref + 8) - xref - 8).toInt();
    qsizetype row = pdf.indexOf('\n', xref + 8) + 1;
    for (int i = 0; i < count; ++i, row += 20) {
        if (pdf.at(row + 17) != 'n')
            continue;
        const qsizetype at = pdf.mid(row, 10).toLongLong();
        EXPECT_TRUE(pdf.mid(at).startsWith(QByteArray::number(i) + " 0 obj")) << "object " << i;
    }
    const qsizetype start = pdf.lastIndexOf("startxref\n") + 10;
    EXPECT_EQ(pdf.mid(start).split('\n').first().toLongLong(), xref + 1);
    QByteArray plain = "%PDF-1.4\n";
    EXPECT_FALSE(AddPdfAuthor(plain, "X"));
    EXPECT_EQ(plain, "%PDF-1.4\n");
}

TEST(ExportPdf, FailureLeavesNothingBehind) {
    PdfProject pr;
    const QString old = pr.box.path("old.pdf");
    ASSERT_TRUE(test::WriteAll(old, "old"));
    pr.doc->Header.FrameWidth = 0;
    const QString broken = pr.box.path("broken.qds");
    ASSERT_TRUE(SaveScript(*pr.doc, broken));
    const struct {
        QStringList args;
        int status;
        QString out;
        QByteArray left; // what the output path holds afterwards
    } cases[] = {
        {{"pdf", pr.project, pr.box.path("no/such/dir/cv.pdf")},
         1,
         pr.box.path("no/such/dir/cv.pdf"),
         {}},
        {{"pdf", broken, old}, 1, old, "old"},
        {{"pdf", pr.project}, 2, {}, {}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(test::RunCli(c.args), c.status) << qPrintable(c.args.join(' '));
        if (!c.out.isEmpty())
            EXPECT_EQ(test::ReadAll(c.out), c.left);
    }
    EXPECT_EQ(QDir(pr.box.path("")).entryList({"*.pdf*"}, QDir::Files), QStringList{"old.pdf"});
}
