#include "TestSupport.h"

#include "io/ScriptFile.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

using namespace zentor;

TEST(RenderCli, RendersPagesAndViews) {
    test::Sandbox box;
    auto doc = box.newDocument();
    ASSERT_TRUE(test::Solid(20, 20, qRgb(0, 0, 255)).save(box.path("blue.png")));
    test::PlaceImage(*doc, 1, 1, {100, 100, 50, 50}, "blue.png"); // relative to the project
    const QString project = box.path("r.qds");
    ASSERT_TRUE(SaveScript(*doc, project));

    const struct {
        QStringList args;
        QString out;
        QSize size;
        QRgb at125; // pixel (125, 125) of a PNG result
    } cases[] = {
        {{"1"}, "p1.png", {800, 600}, qRgb(0, 0, 255)},
        {{"2"}, "p2.png", {800, 600}, qRgb(255, 255, 255)},
        {{"1", "--view"}, "v1.png", {800, 600}, qRgb(0, 0, 255)},
        {{"3"}, "p3.jpg", {800, 600}, 0},
        {{"0", "--view"}, "v0.jpg", {800, 600}, 0},
    };
    for (const auto& c : cases) {
        QStringList args{"render", project, c.args[0], box.path(c.out)};
        args += c.args.mid(1);
        QByteArray err;
        ASSERT_EQ(test::RunCli(args, nullptr, &err), 0) << err.constData();
        const QImage out(box.path(c.out));
        EXPECT_EQ(out.size(), c.size) << qPrintable(c.out);
        if (c.out.endsWith(QLatin1String(".png")))
            EXPECT_EQ(out.pixel(125, 125), c.at125) << qPrintable(c.out);
        else
            EXPECT_TRUE(test::ReadAll(box.path(c.out)).startsWith("\xFF\xD8"));
    }
}

TEST(RenderCli, Errors) {
    test::Sandbox box;
    auto doc = box.newDocument();
    const QString project = box.path("r.qds");
    ASSERT_TRUE(SaveScript(*doc, project));
    const struct {
        QStringList args;
        int status;
    } cases[] = {
        {{"render", project, "0", box.path("o.png")}, 2}, // page 0 is only a view
        {{"render", project, "9", box.path("o.png")}, 2},
        {{"render", project, "9", box.path("o.png"), "--view"}, 2},
        {{"render", project, "x", box.path("o.png")}, 2},
        {{"render", project, "1", box.path("o.bmp")}, 2},
        {{"render", project, "1"}, 2},
        {{"render", project, "1", box.path("no/dir/o.png")}, 1},
    };
    for (const auto& c : cases) {
        QByteArray err;
        EXPECT_EQ(test::RunCli(c.args, nullptr, &err), c.status) << qPrintable(c.args.join(' '));
        EXPECT_FALSE(err.isEmpty()) << qPrintable(c.args.join(' '));
    }
    EXPECT_FALSE(QFile::exists(box.path("o.png")));
}
