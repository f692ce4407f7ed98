#include "TestSupport.h"
#include "io/ScriptFile.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace zentor;
using namespace zentor::test;

namespace {
QJsonObject parse(const QByteArray& json) {
    return QJsonDocument::fromJson(json).object();
}
QJsonValue field(const QJsonObject& json, const char* record, const char* name) {
    return json.value(record).toObject().value(name);
}
} // namespace

TEST(Cli, NewWritesTheDefaultDocumentAndInfoPackAreInverse) {
    Sandbox box;
    ASSERT_EQ(RunCli({"new", box.path("a.qds")}), 0);
    EXPECT_EQ(ReadAll(box.path("a.qds")).size(), 6292);

    // Edit the JSON the way a user would, pack it, and read it back.
    QByteArray out;
    ASSERT_EQ(RunCli({"info", box.path("a.qds")}, &out), 0);
    QJsonObject json = parse(out);
    ASSERT_TRUE(field(json, "Profile", "Phone").isNull());
    QJsonObject profile = json.value("Profile").toObject();
    profile.insert("FirstName", "Mäve");
    json.insert("Profile", profile);
    const QJsonObject text{{"TabNo", 3},          {"Name", "text 1"},       {"Text", "Hello €"},
                           {"FontName", "Arial"}, {"FontColor", -16777216}, {"Width", 200}};
    json.insert("Texts", QJsonArray{text});
    json.insert("Images", QJsonArray{QJsonObject{{"TabNo", 1}, {"FileName", "a.png"}}});
    ASSERT_TRUE(WriteAll(box.path("in.json"), QJsonDocument(json).toJson()));
    ASSERT_EQ(RunCli({"pack", box.path("in.json"), box.path("b.qds")}), 0);
    EXPECT_EQ(ReadAll(box.path("b.qds")).size(), 6292 + 4216 + 324);

    QByteArray again;
    ASSERT_EQ(RunCli({"info", box.path("b.qds")}, &again), 0);
    const QJsonObject back = parse(again);
    EXPECT_EQ(field(back, "Profile", "FirstName").toString(), "Mäve");
    const QJsonObject t = back.value("Texts").toArray().at(0).toObject();
    EXPECT_EQ(t.value("Text").toString(), "Hello €");
    EXPECT_EQ(t.value("FontColor").toInt(), -16777216);
    EXPECT_EQ(t.value("Width").toInt(), 200);
    EXPECT_TRUE(t.value("Extra").isDouble()); // every field is listed
    EXPECT_EQ(field(back, "Header", "TextCount").toInt(), 1);

    // info -> pack gives back the same bytes, and pack -> info the same JSON.
    ASSERT_TRUE(WriteAll(box.path("again.json"), again));
    ASSERT_EQ(RunCli({"pack", box.path("again.json"), box.path("c.qds")}), 0);
    EXPECT_EQ(ReadAll(box.path("c.qds")), ReadAll(box.path("b.qds")));
    QByteArray third;
    ASSERT_EQ(RunCli({"info", box.path("c.qds")}, &third), 0);
    EXPECT_EQ(parse(third), back);
}

TEST(Cli, ErrorsAndDamagedFiles) {
    Sandbox box;
    const QString a = box.path("a.qds");
    ASSERT_EQ(RunCli({"new", a}), 0);
    ASSERT_TRUE(WriteAll(box.path("cut.qds"), ReadAll(a).left(2000)));
    ASSERT_TRUE(WriteAll(box.path("bad.json"), QByteArray("{\"Texts\": 5}")));
    ASSERT_TRUE(WriteAll(box.path("broken.json"), QByteArray("{")));

    const struct {
        const char* name;
        QStringList args;
        int status;
        const char* stderrHas;
    } cases[] = {
        {"no command", {}, 2, "usage"},
        {"unknown command", {"frobnicate"}, 2, "unknown command"},
        {"missing file", {"info", box.path("none.qds")}, 1, "cannot open"},
        {"a folder", {"info", box.path("")}, 2, "unknown kind"},
        {"a folder as project", {"info", box.dir.path(), "--as", "qds"}, 1, "cannot open"},
        {"unknown extension", {"info", box.path("x.txt")}, 2, "unknown kind"},
        {"damaged project", {"info", box.path("cut.qds")}, 0, "damaged"},
        {"wrong JSON type",
         {"pack", box.path("bad.json"), box.path("o.qds")},
         1,
         "Texts must be an array"},
        {"broken JSON", {"pack", box.path("broken.json"), box.path("o.qds")}, 1, "offset"},
        {"unwritable output", {"new", box.path("no/dir/x.qds")}, 1, "cannot write"},
        {"page 0 is only a view", {"render", a, "0", box.path("o.png")}, 2, ""},
        {"no page 9", {"render", a, "9", box.path("o.png")}, 2, ""},
        {"no view 9", {"render", a, "9", box.path("o.png"), "--view"}, 2, ""},
        {"not a page", {"render", a, "x", box.path("o.png")}, 2, ""},
        {"no BMP", {"render", a, "1", box.path("o.bmp")}, 2, ""},
        {"no output", {"render", a, "1"}, 2, ""},
        {"unwritable picture", {"render", a, "1", box.path("no/dir/o.png")}, 1, ""},
        {"no project to film", {"video", box.path("none.qds"), box.path("o.mp4")}, 1, ""},
        {"a damaged project to film", {"video", box.path("cut.qds"), box.path("o.mp4")}, 1, ""},
        {"unwritable video", {"video", a, box.path("no/dir/o.mp4")}, 1, ""},
        {"no AVI", {"video", a, box.path("o.avi")}, 2, ""},
        {"no film at 0 fps", {"video", a, box.path("o.mp4"), "--fps", "0"}, 2, ""},
        {"not a height", {"video", a, box.path("o.mp4"), "--height", "tall"}, 2, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        QByteArray out, err;
        EXPECT_EQ(RunCli(c.args, &out, &err), c.status);
        EXPECT_FALSE(err.isEmpty());
        EXPECT_TRUE(err.contains(c.stderrHas)) << err.toStdString();
    }
    // Usage asked for is the answer, on stdout.
    QByteArray help, helpErr;
    EXPECT_EQ(RunCli({"--help"}, &help, &helpErr), 0);
    EXPECT_TRUE(help.startsWith("usage: zentor-cli")) << help.toStdString();
    EXPECT_TRUE(helpErr.isEmpty());

    QByteArray out;
    ASSERT_EQ(RunCli({"info", box.path("cut.qds")}, &out), 0);
    EXPECT_EQ(field(parse(out), "Profile", "FirstName").toString(), "Quorvix");
    // A disk that takes no more (here a file size limit) fails the save's last bytes.
    EXPECT_EQ(test::RunProcess("sh", {"-c", "trap '' XFSZ; ulimit -f 1; exec \"$0\" new \"$1\"",
                                      ZENTOR_CLI_PATH, box.path("o.qds")}),
              1);
    // A failed command leaves no file, not even a part of one.
    for (const char* name : {"o.qds", "o.png", "o.mp4"})
        EXPECT_FALSE(QFile::exists(box.path(name))) << name;
    EXPECT_TRUE(QDir(box.dir.path()).entryList({"*.part"}, QDir::Hidden | QDir::Files).isEmpty());
}

TEST(Cli, PackNamesFieldsTheCodePageCannotHold) {
    Sandbox box;
    QByteArray json;
    ASSERT_EQ(RunCli({"new", box.path("a.qds")}), 0);
    ASSERT_EQ(RunCli({"info", box.path("a.qds")}, &json), 0);
    QJsonObject project = parse(json);
    QJsonObject profile = project.value("Profile").toObject();
    profile.insert("FirstName", "Ελένη");
    project.insert("Profile", profile);
    ASSERT_TRUE(WriteAll(box.path("in.json"), QJsonDocument(project).toJson()));

    const struct {
        const char* codePage; // ZENTOR_CODEPAGE, empty: chosen from the language
        const char* language;
        bool strict;
        int status;
        const char* stderrHas;
    } cases[] = {
        {"1252", "C", false, 0, "Profile.FirstName: Code page windows-1252 cannot store \"Ελένη\""},
        {"1252", "C", true, 1, "nothing written"},
        {"", "el_GR.UTF-8", true, 0, ""},
        {"", "de_DE.UTF-8", true, 1, "Profile.FirstName"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.codePage) + " " + c.language);
        qputenv("ZENTOR_CODEPAGE", c.codePage);
        qputenv("LC_ALL", c.language);
        QFile::remove(box.path("out.qds"));
        QStringList args{"pack", box.path("in.json"), box.path("out.qds")};
        if (c.strict)
            args << "--strict";
        QByteArray err;
        EXPECT_EQ(RunCli(args, nullptr, &err), c.status);
        EXPECT_TRUE(*c.stderrHas ? err.contains(c.stderrHas) : err.isEmpty()) << err.toStdString();
        EXPECT_EQ(QFile::exists(box.path("out.qds")), c.status == 0);
    }
    qunsetenv("ZENTOR_CODEPAGE");
    qunsetenv("LC_ALL");
}

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
