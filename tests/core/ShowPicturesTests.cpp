#include "TestSupport.h"

#include "export/PackageShowFrames.h"
#include "generate/PackageReader.h"
#include "render/ResImages.h"

#include <gtest/gtest.h>

using namespace zentor;

// The window's picture: the frame as it is when the shapes agree, else scaled to fit and
// centred between bars of the back colour; a fade lies the new page over the old.
TEST(ShowPictures, FramesFitTheWindowBetweenBars) {
    test::Sandbox box;
    auto doc = box.newDocument();
    doc->Header.BackColor = 0x0000FF00; // green bars
    ASSERT_TRUE(test::Solid(8, 8, qRgb(220, 30, 30)).save(box.path("red.png")));
    test::PlaceImage(*doc, 1, 1, {0, 0, 800, 600}, box.path("red.png"));
    const ResImages res = ResImages::load();
    PackageContents package;
    QStringList warnings;
    QString error;
    ASSERT_TRUE(DocumentPackage(*doc, box.ctx, res, package, warnings, error))
        << error.toStdString();
    const ShowPictures pictures(package, res, DefaultHomeBackground(box.ctx));
    const int page = 11; // the Overview page: red all over
    const struct {
        QSize window;
        double alpha;
        QRgb corner, middle; // what the top left corner shows; the middle red or not
    } cases[] = {
        {{800, 600}, 1.0, qRgb(220, 30, 30), qRgb(220, 30, 30)},
        {{1000, 600}, 1.0, qRgb(0, 255, 0), qRgb(220, 30, 30)},
        {{400, 400}, 1.0, qRgb(0, 255, 0), qRgb(220, 30, 30)}, // bars above and below
        {{1000, 600}, 0.0, qRgb(0, 255, 0), 0},                // still the home page
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.window.width());
        const QImage frame = PaintShowFrame(pictures, {page, show::HomePicture, c.alpha}, c.window);
        ASSERT_EQ(frame.size(), c.window);
        EXPECT_TRUE(test::Near(frame.pixel(2, 2), c.corner));
        const QRgb middle = frame.pixel(c.window.width() / 2, c.window.height() / 2);
        EXPECT_EQ(test::Near(middle, qRgb(220, 30, 30)), c.middle != 0);
    }
}
