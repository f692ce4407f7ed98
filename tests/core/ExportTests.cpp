#include "TestSupport.h"

#include "ScriptedPrompter.h"

#include "export/Base64.h"
#include "export/ExportCommand.h"
#include "export/PackageShowFrames.h"
#include "export/PdfExport.h"
#include "export/PdfJoin.h"
#include "export/WebPageExport.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "io/ScriptFile.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"
#include "render/ResImages.h"
#include "render/WorkspacePainter.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QRegularExpression>
#include <QUrl>

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <map>
#include <thread>

using namespace zentor;

namespace {

// A project whose every content page has its own words, a picture and a gradient tab
// picture; the profile carries a name, an e-mail address and a web site; music plays.
struct ExportProject {
    test::Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    QString project = box.path("cv.qds");

    ExportProject() {
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
            if (tabNo == 2)                   // markup in a text is text, never part of the page
                t.Text = t.Text.text() + QStringLiteral(" </script><!-- <b>");
        }
        // The same picture at one size on two pages, and once at another size.
        test::PlaceImage(*doc, 1, 7, {500, 300, 150, 100}, QStringLiteral("green.png"));
        test::PlaceImage(*doc, 2, 6, {500, 300, 150, 100}, QStringLiteral("green.png"));
        test::PlaceImage(*doc, 3, 5, {100, 300, 60, 40}, QStringLiteral("green.png")).Name =
            QStringLiteral("Green field");
        EXPECT_TRUE(test::WriteAll(box.path("tune.mp3"), QByteArray("ID3\x03tune", 8)));
        doc->Header.BackMusic = QStringLiteral("tune.mp3");
        doc->Header.ShowAsRun = 0;
        EXPECT_TRUE(SaveScript(*doc, project));
    }
    ProfileRecord& Profile() { return doc->Profile; }
    static QString Word(int tab) { return QStringLiteral("Marker%1word").arg(tab); }

    QString exportAs(const char* command, const QString& name) {
        EXPECT_TRUE(SaveScript(*doc, project));
        const QString out = box.path(name);
        QByteArray err;
        EXPECT_EQ(test::RunCli({command, project, out}, nullptr, &err), 0) << err.constData();
        return out;
    }
    QString exportPdf() { return exportAs("pdf", "cv.pdf"); }
};

// Mean difference of two pictures of one size, 0..1 over every channel of every pixel.
double MeanDifference(QImage a, QImage b) {
    EXPECT_EQ(a.size(), b.size());
    a = a.convertToFormat(QImage::Format_RGB32);
    b = b.convertToFormat(QImage::Format_RGB32).scaled(a.size());
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q));
        }
    return sum / (double(a.width()) * a.height() * 3 * 255);
}

QString Tool(const QString& program, const QStringList& args) {
    QByteArray out, err;
    EXPECT_EQ(test::RunProcess(program, args, &out, &err), 0)
        << qPrintable(program) << ": " << err.constData();
    return QString::fromUtf8(out);
}

} // namespace

// One export read back by every reader: text, fonts, links and metadata; each page's look;
// the pictures it holds; the offsets of the pages it joined.
TEST(ExportPdf, ReadsBackAsTheResume) {
    ExportProject pr;
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
        EXPECT_EQ(page.count(ExportProject::Word(tab)), 1)
            << "page " << 9 - tab << qPrintable(page);
        EXPECT_EQ(page.count("leads the team"), 1);
    }

    Tool("pdftoppm", {"-r", "96", "-png", pdf, pr.box.path("pg")});
    const ResImages res = ResImages::load();
    ASSERT_TRUE(LoadScript(*pr.doc, pr.project).complete);
    for (int tab = 7; tab >= 1; --tab) {
        const int page = 9 - tab;
        QImage shown(pr.box.path(QStringLiteral("pg-%1.png").arg(page)));
        ASSERT_EQ(shown.size(), QSize(800, 600)) << "page " << page;
        QImage jpeg;
        ASSERT_TRUE(jpeg.loadFromData(RenderPageJpeg(*pr.doc, tab, res)));
        EXPECT_LT(MeanDifference(shown, jpeg), 0.04) << "page " << page;
    }

    const QString list = Tool("pdfimages", {"-list", pdf});
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

    const QByteArray bytes = test::ReadAll(pdf);
    const qsizetype xref = bytes.lastIndexOf("\nxref\n0 ");
    ASSERT_GT(xref, 0);
    const int count = bytes.mid(xref + 8, bytes.indexOf('\n', xref + 8) - xref - 8).toInt();
    qsizetype row = bytes.indexOf('\n', xref + 8) + 1;
    for (int i = 0; i < count; ++i, row += 20) {
        if (bytes.at(row + 17) != 'n')
            continue;
        const qsizetype at = bytes.mid(row, 10).toLongLong();
        EXPECT_TRUE(bytes.mid(at).startsWith(QByteArray::number(i) + " 0 obj")) << "object " << i;
    }
    const qsizetype start = bytes.lastIndexOf("startxref\n") + 10;
    EXPECT_EQ(bytes.mid(start).split('\n').first().toLongLong(), xref + 1);
    EXPECT_TRUE(JoinPdfs({bytes, "%PDF-1.4\n"}, {}).isEmpty());
}

TEST(ExportPdf, FailureLeavesNothingBehind) {
    ExportProject pr;
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
        if (!c.out.isEmpty()) {
            EXPECT_EQ(test::ReadAll(c.out), c.left);
        }
    }
    EXPECT_EQ(QDir(pr.box.path("")).entryList({"*.pdf*"}, QDir::Files), QStringList{"old.pdf"});
}

namespace {

// What the page showed in headless Chromium (see support/web_probe.js).
QJsonObject Probe(const QString& html, const QString& profile, const QStringList& extra) {
    QByteArray out, err;
    const QStringList args = QStringList{ZENTOR_WEB_PROBE, "/usr/bin/chromium",
                                         QUrl::fromLocalFile(html).toString(), profile} +
                             extra;
    EXPECT_EQ(test::RunProcess("node", args, &out, &err), 0) << err.constData();
    return QJsonDocument::fromJson(out).object();
}

QStringList Strings(const QJsonValue& v) {
    QStringList list;
    for (const QJsonValue& s : v.toArray())
        list += s.toString();
    return list;
}

} // namespace

TEST(ExportWebPage, PlaysInABrowserLikeThePlayer) {
    ExportProject pr;
    const QString html = pr.exportAs("html", "cv.html");
    const QByteArray bytes = test::ReadAll(html);
    EXPECT_TRUE(
        bytes.contains("data:audio/mpeg;base64," + QByteArray("ID3\x03tune", 8).toBase64()));

    const QString shot = pr.box.path("home.png");
    const QJsonObject seen = Probe(html, pr.box.path("profile"), {"--shot", shot, "--click", "3"});
    EXPECT_EQ(Strings(seen["errors"]), QStringList());
    EXPECT_EQ(Strings(seen["external"]), QStringList());
    EXPECT_EQ(seen["undecoded"].toInt(-1), 0);
    EXPECT_EQ(seen["title"].toString(), "Ada Quill");
    EXPECT_EQ(seen["page"].toString(), "0");
    EXPECT_EQ(seen["clicked"].toString(), "3");
    const QStringList texts = Strings(seen["texts"]);
    EXPECT_TRUE(texts.contains("Ada Quill"));
    for (int tab = 1; tab <= 7; ++tab)
        EXPECT_TRUE(texts.join(' ').contains(ExportProject::Word(tab) + " leads the team"))
            << qPrintable(texts.join('|'));
    EXPECT_TRUE(texts.join(' ').contains("</script><!-- <b>"));
    EXPECT_TRUE(Strings(seen["names"]).contains("Green field"));

    // The home page as the player opens on it.
    const QString package = pr.box.path("cv.qdv");
    const QString frame = pr.box.path("frame.png");
    ASSERT_EQ(test::RunCli({"generate", pr.project, package}), 0);
    ASSERT_EQ(
        test::RunProcess(QStringLiteral(ZENTOR_PLAYER_PATH), {package, "--frame", "0", frame}), 0);
    EXPECT_LT(MeanDifference(QImage(shot), QImage(frame)), 0.04);
}

TEST(ExportWebPage, ShowMovesOnByItself) {
    ExportProject pr;
    pr.doc->Header.ShowAsRun = 1;
    pr.doc->Header.KeepOnTime = 600;
    pr.doc->Header.BackMusic = QString(); // and no music: nothing names one
    const QString html = pr.exportAs("html", "run.html");
    EXPECT_FALSE(test::ReadAll(html).contains("\"music\":"));
    const QJsonObject seen = Probe(html, pr.box.path("profile"), {"--wait-advance"});
    EXPECT_EQ(Strings(seen["errors"]), QStringList());
    EXPECT_EQ(seen["advanced"].toString(), "7"); // Personal, the strip's first page
}

// The web page's package is made in memory, its pages judged as they are rendered and its
// home page drawn from the package's beginning: the same bytes as the generated file, the
// same show and home page as a player decoding them finds.
TEST(ExportWebPage, PackageInMemoryIsTheGeneratedFileAndJudgedAsPlayersJudge) {
    ExportProject pr;
    pr.doc->Tabs[4].Picture.FileName = QString();
    pr.doc->Texts[4].TabNo = 0; // page 4 holds nothing now
    pr.doc->Tabs[3].Icon = QStringLiteral("green.png");
    const ResImages res = ResImages::load();
    const QByteArray background = DefaultHomeBackground(pr.box.ctx);
    PackageContents package;
    QStringList warnings;
    QString error;
    ShowPictures::EmptyPages judged;
    QImage homeFromHead;
    std::map<int, QByteArray> blobs;
    PackageWatch watch;
    watch.judged = &judged;
    watch.head = [&](PackageContents head) {
        homeFromHead = ShowPictures(head, res, background, {}).picture(show::HomePicture);
    };
    watch.blob = [&](int entry, const QByteArray& bytes) { blobs[entry] = bytes; };
    std::atomic<int> idleWorkers = 0; // picture workers that found nothing left to make
    watch.idle = [&, caller = std::this_thread::get_id()] {
        idleWorkers += std::this_thread::get_id() != caller;
    };
    ASSERT_TRUE(DocumentPackage(*pr.doc, pr.box.ctx, res, package, warnings, error, watch))
        << error.toStdString();

    test::ScriptedPrompter prompter;
    RenderedPictures rendered(res);
    ResumeGenerator generator(pr.box.ctx, prompter, rendered);
    Document copy = *pr.doc;
    ASSERT_EQ(generator.writePackage(copy, pr.box.path("cv.qdv"), false),
              ResumeGenerator::Outcome::Written);
    EXPECT_EQ(package.Data, test::ReadAll(pr.box.path("cv.qdv")));
    for (int entry = 0; entry < Package::EntryCount; ++entry)
        EXPECT_EQ(blobs[entry], package.blobView(entry)) << entry;
    EXPECT_GT(idleWorkers, 0);

    const ShowPictures decoded(package, res, background);
    EXPECT_EQ(ShowPictures(package, res, background, judged).showOrder(), decoded.showOrder());
    EXPECT_EQ(decoded.showOrder(), (std::vector<int>{17, 16, 15, 13, 12, 11, 18}));
    EXPECT_EQ(homeFromHead, decoded.picture(show::HomePicture));
}

// From the editor, an export draws from the pictures its workspace has decoded: none is
// decoded again, and the file is the one a cold export writes.
TEST(ExportWebPage, FromTheEditorDrawsWhatTheWorkspaceDecoded) {
    ExportProject pr;
    const ResImages res = ResImages::load();
    PictureCache shown;
    Document viewed = *pr.doc;
    for (int tab = 0; tab <= 8; ++tab)
        ASSERT_FALSE(PaintWorkspace(viewed, tab, 0, res, pr.box.ctx, &shown).isNull());
    const int decoded = shown.count();
    ASSERT_GT(decoded, 0);
    EXPECT_EQ(RenderWebPage(*pr.doc, res, pr.box.ctx, {}, &shown),
              RenderWebPage(*pr.doc, res, pr.box.ctx));
    EXPECT_EQ(shown.count(), decoded + 1); // the background at the package's own size
}

// Every length up to 300 (sixteen at a time and the tails after), every byte value.
TEST(ExportWebPage, Base64OfEveryLength) {
    QByteArray bytes;
    for (int i = 0; i < 300; ++i)
        bytes += char(i * 97 + i / 256);
    for (qsizetype n = 0; n <= bytes.size(); ++n) {
        QByteArray out("uri,");
        AppendBase64(out, QByteArrayView(bytes).first(n));
        EXPECT_EQ(out, "uri," + bytes.first(n).toBase64()) << n << " bytes";
    }
}

TEST(ExportCommand, AsksForAPathAddsTheEndingAndConfirmsOverwriting) {
    ExportProject pr;
    ASSERT_TRUE(LoadScript(*pr.doc, pr.project).complete);
    const ResImages res = ResImages::load();
    ASSERT_TRUE(test::WriteAll(pr.box.path("kept.html"), "kept"));
    const QString overwrite = "This file already exists. Do you want to overwrite it?";
    const struct {
        ExportKind kind;
        QString chosen; // empty: the dialog is cancelled
        QString written;
        bool overwriteAsked;
        bool ok;
    } cases[] = {
        {ExportKind::Pdf, pr.box.path("a"), pr.box.path("a.pdf"), false, true},
        {ExportKind::Pdf, pr.box.path("b.PDF"), pr.box.path("b.PDF"), false, true},
        {ExportKind::WebPage, pr.box.path("c.htm"), pr.box.path("c.htm.html"), false, true},
        {ExportKind::WebPage, pr.box.path("kept.html"), pr.box.path("kept.html"), true, false},
        {ExportKind::Pdf, QString(), QString(), false, false},
    };
    for (const auto& c : cases) {
        const bool pdf = c.kind == ExportKind::Pdf;
        const QString title = pdf ? "Export PDF" : "Export Web Page";
        test::ScriptedPrompter prompter;
        prompter.expectFile(true, title, pdf ? "*.pdf|*.pdf" : "*.html|*.html", c.chosen);
        if (c.overwriteAsked)
            prompter.expectQuestion(title, overwrite, Prompter::Answer::No);
        EXPECT_EQ(RunExport(c.kind, *pr.doc, prompter, res, pr.box.ctx), c.ok)
            << qPrintable(c.chosen);
        EXPECT_PROMPTS_DONE(prompter);
        if (c.ok) {
            EXPECT_TRUE(test::ReadAll(c.written).startsWith(pdf ? "%PDF" : "<!DOCTYPE html>"));
        }
    }
    EXPECT_EQ(test::ReadAll(pr.box.path("kept.html")), "kept");
}
