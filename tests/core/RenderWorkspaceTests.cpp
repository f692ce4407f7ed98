#include "TestSupport.h"

#include "render/IconRing.h"
#include "render/PageCompositor.h"
#include "render/ResImages.h"
#include "render/WorkspacePainter.h"

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

using namespace zentor;

namespace {

constexpr QRgb White = 0xFFFFFFFFu;

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
    QString file(const QString& name, QRgb color, QSize size = {40, 30}) {
        Solid(size, color).save(box.path(name));
        return box.path(name);
    }
};

} // namespace

TEST_F(RenderWorkspace, ContentTabLaysOutItsPictureAndMarksObjects) {
    ImageElement& pic = doc->Tabs[5].Picture;
    pic.FileName = QStringLiteral(" ") + file("tab.png", qRgb(0, 0, 255), {400, 300});
    pic.PicAlign = 2;
    ImageElement& img = test::PlaceImage(*doc, 4, 5, {10, 10, 50, 50},
                                         file("obj.png", qRgb(255, 0, 0)) + QStringLiteral("   "));
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

TEST_F(RenderWorkspace, SlideShowTabShowsTheBackground) {
    doc->Header.BackPicture = file("back.png", qRgb(200, 100, 0), {80, 60});
    EXPECT_EQ(PaintWorkspace(*doc, 8, 0, res, ctx).pixel(799, 599), qRgb(200, 100, 0));
    // Empty: the default picture beside the program.
    doc->Header.BackPicture.clearToNul();
    const QImage ws = PaintWorkspace(*doc, 8, 0, res, ctx);
    EXPECT_TRUE(test::Near(ws.pixel(400, 300), qRgb(0, 90, 0), 8));
    EXPECT_TRUE(test::Near(ws.pixel(0, 0), qRgb(0, 90, 0), 8));
    EXPECT_EQ(doc->Header.BackPicture.raw(), QString(256, QLatin1Char(' ')));
}

TEST_F(RenderWorkspace, ProfilePageRingCaptionAndIcons) {
    doc->Tabs[3].Icon = file("icon3.png", qRgb(255, 255, 0));
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
    doc->Profile.UserIcon = file("me.png", qRgb(10, 20, 30));
    EXPECT_EQ(PaintWorkspace(*doc, 0, 0, res, ctx).pixel(400, 300), qRgb(10, 20, 30));
}

TEST_F(RenderWorkspace, ProfileWriteBacks) {
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
    doc->Tabs[4].Icon = file("i.png", qRgb(1, 2, 3));
    EXPECT_EQ(TabIconPreview(*doc, 4, res).pixel(64, 64), qRgb(1, 2, 3));

    EXPECT_EQ(UserIconPreview(*doc, res).pixel(64, 64), ResColor(ResLogo));
    doc->Profile.UserIcon = file("u.png", qRgb(4, 5, 6));
    for (const QPoint corner : {QPoint(0, 0), QPoint(127, 127)})
        EXPECT_EQ(UserIconPreview(*doc, res).pixel(corner), qRgb(4, 5, 6));
    // A missing file leaves the preview white.
    doc->Profile.UserIcon = box.path("none.png");
    EXPECT_EQ(UserIconPreview(*doc, res).pixel(64, 64), White);
}
