#include "TestSupport.h"
#include "render/ColorTable.h"
#include "render/HomePage.h"
#include "render/IconRing.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"
#include "render/TabPictureLayout.h"
#include "render/WorkspacePainter.h"
#include "show/ShowFrame.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSet>

#include <climits>

using namespace zentor;

namespace {

constexpr QRgb White = 0xFFFFFFFFu;

void PlaceText(Document& doc, int slot, int tab, const QString& text, QRect r, int color) {
    TextElement& t = test::PlaceText(doc, slot, tab, r, text);
    t.FontName = "Liberation Sans";
    t.FontSize = 40;
    t.FontShadow = 0;
    t.FontColor = color;
    t.TextHint = 2; // crisp: every text pixel has exactly the text colour
}

struct RenderCompositor : ::testing::Test {
    test::Sandbox box;
    std::unique_ptr<Document> doc = box.newDocument();
    ResImages res;
    RenderCompositor() {
        QImage badge(24, 17, QImage::Format_RGB32);
        badge.fill(qRgb(255, 0, 255));
        res.setImage(ResHired, badge);
    }
};

QImage Solid(QSize size, QRgb color) {
    return test::Solid(size.width(), size.height(), color);
}

// Distinct colours for the built-in pictures: slot i is (i * 20, 100, 200 - i * 10).
QRgb ResColor(int slot) {
    return qRgb(slot * 20, 100, 200 - slot * 10);
}

struct RenderWorkspace : ::testing::Test {
    test::Sandbox box;
    ProcessContext ctx;
    std::unique_ptr<Document> doc;
    ResImages res;
    RenderWorkspace() {
        // A program folder of our own, with a default background beside it.
        QDir(box.dir.path()).mkpath("app/Res");
        Solid({64, 48}, qRgb(0, 90, 0)).save(box.path("app/Res/bakpic.jpg"), "JPEG", 100);
        ctx = ProcessContext::create(box.path("app"), box.path("tmp"));
        doc = std::make_unique<Document>();
        NewDocument(*doc, ctx);
        for (int slot = 1; slot <= ResHired; ++slot)
            res.setImage(slot, Solid({16, 16}, ResColor(slot)));
    }
};

} // namespace

TEST_F(RenderCompositor, TabPictureAtItsStoredRectangle) {
    ImageElement& pic = doc->Tabs[2].Picture;
    pic.FileName = QStringLiteral("  ") + test::Picture(box, "tab.png", 40, 40, qRgb(0, 0, 255));
    pic.Left = 100, pic.Top = 50, pic.Width = 300, pic.Height = 200;
    const QImage page = RenderPageImage(*doc, 2, res);
    ASSERT_EQ(page.size(), QSize(800, 600));
    EXPECT_EQ(test::CountPixels(page, qRgb(0, 0, 255), QRect(100, 50, 300, 200)), 300 * 200);
    EXPECT_EQ(test::CountPixels(page, qRgb(0, 0, 255), page.rect()), 300 * 200);
    EXPECT_EQ(page.pixel(99, 49), White);
    // Other pages do not show it.
    EXPECT_EQ(test::CountPixels(RenderPageImage(*doc, 3, res), White, QRect(0, 0, 800, 600)),
              800 * 600);

    // A relative path follows the project's folder; without one it is not found.
    pic.FileName = "tab.png";
    EXPECT_EQ(RenderPageImage(*doc, 2, res).pixel(150, 100), White);
    doc->ScriptPath = box.path("resume.qds");
    EXPECT_EQ(RenderPageImage(*doc, 2, res).pixel(150, 100), qRgb(0, 0, 255));
}

TEST_F(RenderCompositor, SlotOrderThenTextsOverPictures) {
    const QString red = test::Picture(box, "red.png", 40, 40, qRgb(255, 0, 0));
    const QString green = test::Picture(box, "green.png", 40, 40, qRgb(0, 255, 0));
    // Slot 3 (green) over slot 2 (red) where they overlap; slot 5 on another tab.
    test::PlaceImage(*doc, 2, 4, QRect(100, 100, 200, 200), red);
    test::PlaceImage(*doc, 3, 4, QRect(200, 200, 200, 200), green);
    test::PlaceImage(*doc, 5, 6, QRect(500, 400, 100, 100), red);
    // A text in a low slot still lies above a picture in a high one.
    PlaceText(*doc, 1, 4, "XXXX", QRect(210, 210, 180, 80), int(0xFF0000FFu));
    // A free slot (TabNo 0) with a file is never drawn.
    test::PlaceImage(*doc, 7, 4, QRect(600, 0, 100, 100), red);
    doc->Images[7].TabNo = 0;
    // The last slot of each table is drawn like any other.
    test::PlaceImage(*doc, MaxImages, 4, QRect(700, 500, 50, 50), green);
    PlaceText(*doc, MaxTexts, 4, "XX", QRect(500, 20, 90, 60), int(0xFF0000FFu));

    const QImage page = RenderPageImage(*doc, 4, res);
    EXPECT_EQ(page.pixel(150, 150), qRgb(255, 0, 0));
    EXPECT_EQ(page.pixel(250, 350), qRgb(0, 255, 0)); // overlap, below the text
    EXPECT_EQ(test::CountPixels(page, qRgb(255, 0, 0), QRect(200, 200, 100, 100)), 0);
    EXPECT_GT(test::CountPixels(page, qRgb(0, 0, 255), QRect(210, 210, 180, 80)), 200);
    EXPECT_EQ(page.pixel(550, 450), White);
    EXPECT_EQ(page.pixel(650, 50), White);
    EXPECT_EQ(page.pixel(725, 525), qRgb(0, 255, 0));
    EXPECT_GT(test::CountPixels(page, qRgb(0, 0, 255), QRect(500, 20, 90, 60)), 100);
    // Tab 6 has its own picture, and not tab 4's.
    const QImage other = RenderPageImage(*doc, 6, res);
    EXPECT_EQ(other.pixel(550, 450), qRgb(255, 0, 0));
    EXPECT_EQ(other.pixel(150, 150), White);
}

TEST_F(RenderCompositor, BadgeOnlyOnTheSlideShowPage) {
    const QString blue = test::Picture(box, "blue.png", 40, 40, qRgb(0, 0, 255));
    test::PlaceImage(*doc, 1, 1, QRect(10, 10, 50, 50), blue);
    test::PlaceImage(*doc, 2, 8, QRect(100, 100, 50, 50), blue); // tab 8 objects are not shown
    const QRgb badge = qRgb(255, 0, 255);
    for (const QSize frame : {QSize(800, 600), QSize(640, 480), QSize(1024, 768)}) {
        doc->Header.FrameWidth = frame.width();
        doc->Header.FrameHeight = frame.height();
        const QRect where = BadgeRect(frame);
        for (int page = 1; page <= 8; ++page) {
            const QImage img = RenderPageImage(*doc, page, res);
            ASSERT_EQ(img.size(), frame);
            const int inBadge = test::CountPixels(img, badge, img.rect());
            if (page == 8) {
                EXPECT_EQ(test::CountPixels(img, badge, where), where.width() * where.height());
                EXPECT_EQ(inBadge, where.width() * where.height());
                EXPECT_EQ(img.pixel(30, 30), qRgb(0, 0, 255)) << "page 8 shows page 1";
                EXPECT_EQ(img.pixel(120, 120), White);
            } else {
                EXPECT_EQ(inBadge, 0) << page;
                EXPECT_EQ(img.pixel(30, 30), page == 1 ? qRgb(0, 0, 255) : White) << page;
            }
        }
    }
}

TEST_F(RenderCompositor, OutputsAndWriteBack) {
    doc->Tabs[1].Picture.FileName = "   pic.png";
    const QByteArray jpeg = RenderPageJpeg(*doc, 8, res);
    ASSERT_TRUE(jpeg.startsWith("\xFF\xD8"));
    EXPECT_EQ(QImage::fromData(jpeg).size(), QSize(800, 600));
    EXPECT_EQ(doc->Tabs[1].Picture.FileName.raw().left(10), "   pic.png");

    // Writing the page trims the path of the tab picture it shows: page 8 shows page 1's.
    for (const int page : {8, 1}) {
        doc->Tabs[1].Picture.FileName = "   pic.png";
        ASSERT_TRUE(RenderPage(*doc, page, res, box.ctx));
        EXPECT_EQ(QImage::fromData(test::ReadAll(box.ctx.TempImagePath)).size(), QSize(800, 600));
        EXPECT_EQ(doc->Tabs[1].Picture.FileName.raw().left(8), "pic.png ") << page;
    }
    // Painting onto another surface: a page outside 1..8 leaves it as it was.
    for (const int page : {0, SlideShowTab + 1}) {
        QImage img = test::Solid(800, 600, qRgb(1, 2, 3));
        QPainter p(&img);
        PaintPage(p, *doc, page, res);
        p.end();
        EXPECT_EQ(img, test::Solid(800, 600, qRgb(1, 2, 3))) << page;
    }

    // Pages outside 1..8 and frames that cannot be drawn give nothing.
    EXPECT_TRUE(RenderPageImage(*doc, 0, res).isNull());
    EXPECT_TRUE(RenderPageImage(*doc, 9, res).isNull());
    for (const QSize bad : {QSize(0, 600), QSize(800, -1), QSize(100000, 100000)}) {
        doc->Header.FrameWidth = bad.width();
        doc->Header.FrameHeight = bad.height();
        EXPECT_TRUE(RenderPageImage(*doc, 1, res).isNull());
        EXPECT_FALSE(RenderPage(*doc, 1, res, box.ctx));
    }
    for (const QSize largest : {QSize(MaxFrameSide, 1), QSize(1, MaxFrameSide)}) {
        doc->Header.FrameWidth = largest.width();
        doc->Header.FrameHeight = largest.height();
        EXPECT_EQ(FrameSize(*doc), largest);
    }
}

TEST_F(RenderCompositor, ExtremeGeometryFromADamagedFileIsSurvived) {
    const QString red = test::Picture(box, "red.png", 40, 40, qRgb(255, 0, 0));
    // Left, top, width, height as a damaged file may hold them (no QRect: it would overflow).
    const int boxes[][4] = {{INT_MAX, INT_MAX, INT_MAX, INT_MAX},
                            {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                            {100, 100, -50, -50},
                            {0, 0, 100000, 3},
                            {-5, -5, 0, 0},
                            {0, 590, 800, INT_MAX}};
    int slot = 1;
    for (const auto& b : boxes) {
        test::PlaceImage(*doc, slot, 1, QRect(), red);
        PlaceText(*doc, slot, 1, "far away", QRect(), -1);
        ImageElement& img = doc->Images[size_t(slot)];
        TextElement& t = doc->Texts[size_t(slot)];
        img.Left = t.Left = b[0];
        img.Top = t.Top = b[1];
        img.Width = t.Width = b[2];
        img.Height = t.Height = b[3];
        t.FontSize = slot == 1 ? INT_MAX : -slot;
        ++slot;
    }
    const QImage page = RenderPageImage(*doc, 1, res);
    ASSERT_EQ(page.size(), QSize(800, 600));
    EXPECT_EQ(page.pixel(400, 2), qRgb(255, 0, 0));   // the 100000 x 3 strip
    EXPECT_EQ(page.pixel(400, 595), qRgb(255, 0, 0)); // the endless one at the bottom
    EXPECT_EQ(page.pixel(400, 300), White);
}

TEST_F(RenderWorkspace, ContentTabLaysOutItsPictureAndMarksObjects) {
    ImageElement& pic = doc->Tabs[5].Picture;
    pic.FileName = QStringLiteral(" ") + test::Picture(box, "tab.png", 400, 300, qRgb(0, 0, 255));
    pic.PicAlign = 2;
    ImageElement& img = test::PlaceImage(*doc, 4, 5, {10, 10, 50, 50},
                                         test::Picture(box, "obj.png", 40, 30, qRgb(255, 0, 0)) +
                                             QStringLiteral("   "));
    img.Reserved = 7;
    // An image object whose file is gone keeps its record changes and draws nothing.
    ImageElement& gone = doc->Images[6];
    gone = img;
    gone.FileName = box.path("gone.png");
    gone.Left = 700;

    const QImage ws = PaintWorkspace(*doc, 5, 0, res, ctx);
    ASSERT_EQ(ws.size(), QSize(800, 600));
    // Mode 2 centres the 400 x 300 picture; the record takes the laid-out rectangle.
    EXPECT_EQ(QRect(pic.Left, pic.Top, pic.Width, pic.Height), QRect(200, 150, 400, 300));
    EXPECT_EQ(pic.Reserved, -1);
    EXPECT_EQ(pic.FileName.text(), box.path("tab.png"));
    EXPECT_EQ(ws.pixel(400, 300), qRgb(0, 0, 255));
    EXPECT_EQ(ws.pixel(199, 149), White);
    EXPECT_EQ(ws.pixel(30, 30), qRgb(255, 0, 0));
    EXPECT_EQ(ws.pixel(720, 30), White);
    for (const ImageElement* e : {&img, &gone}) {
        EXPECT_EQ(e->PicAlign, 4);
        EXPECT_EQ(e->Reserved, 0);
        EXPECT_EQ(e->TabNo, 5);
        EXPECT_FALSE(e->FileName.raw().startsWith(' '));
    }
    EXPECT_EQ(img.FileName.text(), box.path("obj.png"));
    // Without the badge, a content tab shows what its generated page shows.
    ResImages plain = res;
    plain.setImage(ResHired, QImage());
    EXPECT_EQ(ws, RenderPageImage(*doc, 5, plain));
}

TEST_F(RenderWorkspace, ProfilePageRingCaptionAndIcons) {
    doc->Tabs[3].Icon = test::Picture(box, "icon3.png", 40, 30, qRgb(255, 255, 0));
    IconRectTable rects{};
    const QImage ws = PaintWorkspace(*doc, 0, 0, res, ctx, nullptr, &rects);
    EXPECT_EQ(rects, IconRects(QSize(800, 600)));
    for (int i = 1; i <= 8; ++i) {
        const QPoint c((rects[i].Left + rects[i].Right) / 2, (rects[i].Top + rects[i].Bottom) / 2);
        EXPECT_EQ(ws.pixel(c), i == 3 ? qRgb(255, 255, 0) : ResColor(i)) << i;
    }
    // The logo inside the border, the border's rim around it, the background beyond.
    EXPECT_EQ(ws.pixel(400, 300), ResColor(ResLogo));
    EXPECT_EQ(ws.pixel(400 - 70, 300), ResColor(ResBorder));
    EXPECT_TRUE(test::Near(ws.pixel(20, 20), qRgb(0, 90, 0), 8));

    // The caption: names by default, the hovered tab's name instead; white on the background.
    const QRect caption(0, 380, 800, 24);
    const auto captionOf = [&](int hover) {
        return PaintWorkspace(*doc, 0, hover, res, ctx).copy(caption);
    };
    const QImage names = captionOf(0);
    EXPECT_NE(names, captionOf(3));
    EXPECT_EQ(captionOf(3), captionOf(3));
    EXPECT_NE(captionOf(3), captionOf(4));
    int white = 0;
    for (int y = 0; y < names.height(); ++y)
        for (int x = 0; x < names.width(); ++x)
            white += names.pixel(x, y) == White;
    EXPECT_GT(white, 50);
    // Out-of-range hover values show the names.
    EXPECT_EQ(captionOf(9), names);

    // A user icon replaces the logo.
    doc->Profile.UserIcon = test::Picture(box, "me.png", 40, 30, qRgb(10, 20, 30));
    EXPECT_EQ(PaintWorkspace(*doc, 0, 0, res, ctx).pixel(400, 300), qRgb(10, 20, 30));
}

TEST_F(RenderWorkspace, SlideShowBackgroundAndProfileWriteBacks) {
    doc->Header.BackPicture = test::Picture(box, "back.png", 80, 60, qRgb(200, 100, 0));
    EXPECT_EQ(PaintWorkspace(*doc, 8, 0, res, ctx).pixel(799, 599), qRgb(200, 100, 0));
    // Empty: the default picture beside the program.
    doc->Header.BackPicture.clearToNul();
    const QImage ws = PaintWorkspace(*doc, 8, 0, res, ctx);
    EXPECT_TRUE(test::Near(ws.pixel(400, 300), qRgb(0, 90, 0), 8));
    EXPECT_TRUE(test::Near(ws.pixel(0, 0), qRgb(0, 90, 0), 8));
    EXPECT_EQ(doc->Header.BackPicture.raw(), QString(256, QLatin1Char(' ')));

    doc->Profile.FirstName = "  Ada";
    doc->Tabs[2].Name = "  Awards";
    PaintWorkspace(*doc, 0, 2, res, ctx);
    EXPECT_EQ(doc->Tabs[2].Name.raw().left(7), "Awards ");
    EXPECT_EQ(doc->Profile.FirstName.raw().left(4), "  Ad"); // not hovered: kept
    PaintWorkspace(*doc, 0, 0, res, ctx);
    EXPECT_EQ(doc->Profile.FirstName.raw().left(4), "Ada ");
    // Never-assigned icon paths come back cut at NUL, that is blank.
    EXPECT_EQ(doc->Tabs[1].Icon.raw(), QString(256, QLatin1Char(' ')));
}

TEST_F(RenderWorkspace, Previews) {
    const QImage tabIcon = TabIconPreview(*doc, 4, res);
    ASSERT_EQ(tabIcon.size(), QSize(128, 128));
    EXPECT_EQ(tabIcon.pixel(0, 0), ResColor(4));
    EXPECT_EQ(tabIcon.pixel(127, 127), ResColor(4));
    doc->Tabs[4].Icon = test::Picture(box, "i.png", 40, 30, qRgb(1, 2, 3));
    EXPECT_EQ(TabIconPreview(*doc, 4, res).pixel(64, 64), qRgb(1, 2, 3));

    EXPECT_EQ(UserIconPreview(*doc, res).pixel(64, 64), ResColor(ResLogo));
    doc->Profile.UserIcon = test::Picture(box, "u.png", 40, 30, qRgb(4, 5, 6));
    EXPECT_EQ(UserIconPreview(*doc, res).pixel(127, 127),
              qRgb(4, 5, 6)); // filled, corner to corner
    // A missing file leaves the preview white.
    doc->Profile.UserIcon = box.path("none.png");
    EXPECT_EQ(UserIconPreview(*doc, res).pixel(64, 64), White);
}

TEST(RenderLayout, RoundsHalvesToEvenInTheTabPictureRectangles) {
    const struct {
        double in;
        int out;
    } cases[] = {{0.5, 0},   {1.5, 2},    {2.5, 2},    {3.5, 4},     {-0.5, 0}, {-1.5, -2},
                 {-2.5, -2}, {2.4999, 2}, {2.5001, 3}, {171.6, 172}, {-3.7, -4}};
    for (const auto& c : cases)
        EXPECT_EQ(RoundHalfEven(c.in), c.out) << c.in;

    // The tab picture's rectangle in each mode, rounded so.
    const struct {
        int mode;
        QSize pic, frame;
        QRect want;
    } rects[] = {
        // A picture smaller than the frame.
        {0, {400, 300}, {800, 600}, {0, 0, 800, 600}},
        {1, {400, 300}, {800, 600}, {0, 0, 800, 600}},
        {2, {400, 300}, {800, 600}, {200, 150, 400, 300}},
        {3, {400, 300}, {800, 600}, {0, 0, 400, 300}},
        // Wider than the frame: fitted to the width, centred vertically.
        {1, {1000, 500}, {800, 600}, {0, 100, 800, 400}},
        {2, {1000, 500}, {800, 600}, {0, 100, 800, 400}},
        {3, {1000, 500}, {800, 600}, {0, 0, 1000, 500}},
        // Taller: fitted to the height, centred horizontally.
        {1, {300, 600}, {800, 600}, {250, 0, 300, 600}},
        {2, {300, 600}, {800, 600}, {250, 0, 300, 600}},
        // Fits exactly in one direction only: mode 2 keeps its own size.
        {2, {800, 100}, {800, 600}, {0, 250, 800, 100}},
        // Taller than the frame but narrow: mode 2 scales it down.
        {2, {100, 1200}, {800, 600}, {375, 0, 50, 600}},
        // Rounding: height 800 / (1000 / 499) = 399.2, top (600 - 399) / 2 = 100.5 -> 100.
        {1, {1000, 499}, {800, 600}, {0, 100, 800, 399}},
        // Width 600 / (1 / (601 / 900)) = 400.67 -> 401, left 199.5 -> 200.
        {1, {601, 900}, {800, 600}, {200, 0, 401, 600}},
        // Odd room left: (801 - 400) / 2 = 200.5 rounds to 200, (301 - 300) / 2 to 0.
        {2, {400, 300}, {801, 301}, {200, 0, 400, 300}},
        // (803 - 400) / 2 = 201.5 rounds to 202.
        {2, {400, 300}, {803, 600}, {202, 150, 400, 300}},
        // Other frame sizes.
        {1, {1920, 1080}, {1024, 768}, {0, 96, 1024, 576}},
        // A picture whose size could not be read.
        {1, {0, 0}, {800, 600}, {400, 300, 0, 0}},
        {2, {0, 0}, {800, 600}, {400, 300, 0, 0}},
        {3, {0, 0}, {800, 600}, {0, 0, 0, 0}},
        {0, {0, 0}, {800, 600}, {0, 0, 800, 600}},
    };
    for (const auto& c : rects) {
        const auto r = TabPictureRect(c.mode, c.pic, c.frame);
        ASSERT_TRUE(r.has_value()) << c.mode;
        EXPECT_EQ(*r, c.want) << "mode " << c.mode << " picture " << c.pic.width() << "x"
                              << c.pic.height() << " frame " << c.frame.width() << "x"
                              << c.frame.height();
    }
    EXPECT_FALSE(TabPictureRect(4, {400, 300}, {800, 600}).has_value());
    EXPECT_FALSE(TabPictureRect(-1, {400, 300}, {800, 600}).has_value());
}

TEST(RenderLayout, LayingOutStoresTheRecord) {
    test::Sandbox box;
    auto doc = box.newDocument();
    ASSERT_TRUE(test::Solid(1000, 500, qRgb(255, 0, 0)).save(box.path("wide.png")));
    doc->ScriptPath = box.path("project.qds");

    // Relative to the project's folder, blanks trimmed.
    LayoutTabPicture(*doc, 1, 3, "  wide.png  ");
    const ImageElement& p = doc->Tabs[3].Picture;
    EXPECT_EQ(p.FileName.text(), "wide.png");
    EXPECT_EQ(p.PicAlign, 1);
    EXPECT_EQ(QRect(p.Left, p.Top, p.Width, p.Height), QRect(0, 100, 800, 400));
    EXPECT_EQ(p.Reserved, -1);
    EXPECT_EQ(doc->Tabs[2].Picture, box.newDocument()->Tabs[2].Picture);

    // An unknown mode keeps the rectangle but still takes path and mode.
    LayoutTabPicture(*doc, 7, 3, "wide.png");
    EXPECT_EQ(QRect(p.Left, p.Top, p.Width, p.Height), QRect(0, 100, 800, 400));
    EXPECT_EQ(p.PicAlign, 7);

    // A missing picture lays out as 0 x 0.
    LayoutTabPicture(*doc, 3, 3, "missing.png");
    EXPECT_EQ(QRect(p.Left, p.Top, p.Width, p.Height), QRect(0, 0, 0, 0));
}

TEST(RenderLayout, IconRingAndBadge) {
    const IconRectTable r = IconRects(QSize(800, 600));
    // Centre (400, 300), radius 250, 80 x 80 icons; 250 * cos(45 degrees) = 176.78.
    const IconRect want[9] = {{336, 236, 464, 364}, {610, 260, 690, 340}, {537, 437, 617, 517},
                              {360, 510, 440, 590}, {183, 437, 263, 517}, {110, 260, 190, 340},
                              {183, 83, 263, 163},  {360, 10, 440, 90},   {537, 83, 617, 163}};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(r[i], want[i]) << i;
    // An odd frame: the centre 512.5 rounds to 512, (1025 - 128) / 2 = 448.5 to 448.
    const IconRectTable odd = IconRects(QSize(1025, 768));
    EXPECT_EQ(odd[1].Left, 512 + 250 - 40);
    EXPECT_EQ(odd[0].Left, 448);

    EXPECT_EQ(BadgeRect(QSize(800, 600)), QRect(530, 418, 240, 172));
    // The home caption's strip: the frame's width, 80 below the centre (300.5 rounds to 300).
    EXPECT_EQ(HomeCaptionBox(QSize(800, 601)), QRect(0, 380, 800, 24));
    // 1024 * 0.3 = 307.2 -> 307; 307 * 0.715 = 219.505 -> 220.
    EXPECT_EQ(BadgeRect(QSize(1024, 768)), QRect(1024 - 307 - 30, 768 - 220 - 10, 307, 220));
}

// Under the centre picture: the hovered ring icon's tab name, from the first icon to the
// slide show's, else the person.
TEST(RenderLayout, HomeCaptionNamesTheHoveredIcon) {
    std::array<QString, 9> names;
    for (int i = 0; i < 9; ++i)
        names[size_t(i)] = QStringLiteral(" Tab%1 ").arg(i);
    const struct {
        int hover;
        const char* caption;
    } cases[] = {{0, "Ann Lee"}, {1, "Tab1"}, {8, "Tab8"}, {9, "Ann Lee"}, {-1, "Ann Lee"}};
    for (const auto& c : cases)
        EXPECT_EQ(HomeCaption(names, "Ann Lee", c.hover), c.caption) << c.hover;
}

TEST(RenderColor, SpotValuesInListOrderAndTheirLookUp) {
    GDIColorTable table{};
    IniGDIColor(table);
    EXPECT_EQ(table, GDIColor());
    const struct {
        int index;
        const char* name;
        uint32_t argb;
    } cases[] = {
        {0, "AliceBlue", 0xFFF0F8FFu},     {2, "Aqua", 0xFF00FFFFu},
        {20, "Cyan", 0xFF00FFFFu},         {22, "DarkBrown", 0xFF804040u},
        {46, "Fuchsia", 0xFFFF00FFu},      {80, "Magenta", 0xFFFF00FFu},
        {114, "Red", 0xFFFF0000u},         {134, "Transparent", 0x00FFFFFFu},
        {138, "White", 0xFFFFFFFFu},       {140, "XPBlue", 0xFF003CC7u},
        {143, "XPGoldLight", 0xFFFCF9C3u}, {145, "YellowGreen", 0xFF9ACD32u},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(GDIColorName(c.index), QLatin1String(c.name)) << c.index;
        EXPECT_EQ(table[size_t(c.index)], c.argb) << c.index;
        // The look-up finds the first entry of a colour listed twice (Aqua and Cyan).
        const int found = GDIColorIndex(c.argb);
        EXPECT_TRUE(found >= 0 && found <= c.index && table[size_t(found)] == c.argb) << c.index;
    }
    for (const uint32_t none : {0x80FF0000u, 0xFF123456u, 0x00000000u})
        EXPECT_EQ(GDIColorIndex(none), -1) << std::hex << none;
    EXPECT_EQ(GDIColorNames().size(), GDIColorCount);
    EXPECT_EQ(GDIColorNames().indexOf("White"), 138);
    EXPECT_TRUE(GDIColorName(-1).isEmpty());
    EXPECT_TRUE(GDIColorName(146).isEmpty());
    // Every entry but Transparent is opaque; names are unique.
    for (int i = 0; i < GDIColorCount; ++i)
        EXPECT_EQ(table[size_t(i)] >> 24, i == 134 ? 0u : 0xFFu) << i;
    const QStringList names = GDIColorNames();
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), GDIColorCount);
}

// Both players show a package at this size, so a damaged header must give the same answer.
TEST(ShowFrameTest, HeaderFrameOrTheDefault) {
    const struct {
        int width, height;
        int expectWidth, expectHeight;
    } cases[] = {
        {800, 600, 800, 600},         {1024, 768, 1024, 768}, {1, 1, 1, 1},
        {16384, 16384, 16384, 16384}, {0, 600, 800, 600},     {800, 0, 800, 600},
        {-800, 600, 800, 600},        {16385, 600, 800, 600}, {800, 16385, 800, 600},
    };
    for (const auto& c : cases) {
        show::ShowHeader h;
        h.FrameWidth = c.width;
        h.FrameHeight = c.height;
        const auto f = show::FrameOf(h);
        EXPECT_EQ(f.Width, c.expectWidth) << c.width << " x " << c.height;
        EXPECT_EQ(f.Height, c.expectHeight) << c.width << " x " << c.height;
    }
}
