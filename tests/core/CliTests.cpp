#include "TestSupport.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace zentor::test;

namespace {
QJsonObject parse(const QByteArray& json) {
    return QJsonDocument::fromJson(json).object();
}
} // namespace

TEST(Cli, NewWritesTheDefaultDocumentAndInfoPackAreInverse) {
    Sandbox box;
    ASSERT_EQ(RunCli({QStringLiteral("new"), box.path("a.qds")}), 0);
    EXPECT_EQ(ReadAll(box.path("a.qds")).size(), 6292);

    // Edit the JSON the way a user would, pack it, and read it back.
    QByteArray out;
    ASSERT_EQ(RunCli({QStringLiteral("info"), box.path("a.qds")}, &out), 0);
    QJsonObject json = parse(out);
    ASSERT_TRUE(
        json.value(QStringLiteral("Profile")).toObject().value(QStringLiteral("Phone")).isNull());
    QJsonObject profile = json.value(QStringLiteral("Profile")).toObject();
    profile.insert(QStringLiteral("FirstName"), QStringLiteral("Mäve"));
    json.insert(QStringLiteral("Profile"), profile);
    QJsonObject text{{QStringLiteral("TabNo"), 3},
                     {QStringLiteral("Name"), QStringLiteral("text 1")},
                     {QStringLiteral("Text"), QStringLiteral("Hello €")},
                     {QStringLiteral("FontName"), QStringLiteral("Arial")},
                     {QStringLiteral("FontColor"), -16777216},
                     {QStringLiteral("Width"), 200}};
    json.insert(QStringLiteral("Texts"), QJsonArray{text});
    QJsonObject image{{QStringLiteral("TabNo"), 1},
                      {QStringLiteral("FileName"), QStringLiteral("a.png")}};
    json.insert(QStringLiteral("Images"), QJsonArray{image});
    ASSERT_TRUE(WriteAll(box.path("in.json"), QJsonDocument(json).toJson()));
    ASSERT_EQ(RunCli({QStringLiteral("pack"), box.path("in.json"), box.path("b.qds")}), 0);
    EXPECT_EQ(ReadAll(box.path("b.qds")).size(), 6292 + 4216 + 324);

    QByteArray again;
    ASSERT_EQ(RunCli({QStringLiteral("info"), box.path("b.qds")}, &again), 0);
    const QJsonObject back = parse(again);
    EXPECT_EQ(back.value(QStringLiteral("Profile"))
                  .toObject()
                  .value(QStringLiteral("FirstName"))
                  .toString(),
              QStringLiteral("Mäve"));
    const QJsonObject t = back.value(QStringLiteral("Texts")).toArray().at(0).toObject();
    EXPECT_EQ(t.value(QStringLiteral("Text")).toString(), QStringLiteral("Hello €"));
    EXPECT_EQ(t.value(QStringLiteral("FontColor")).toInt(), -16777216);
    EXPECT_EQ(t.value(QStringLiteral("Width")).toInt(), 200);
    EXPECT_TRUE(t.value(QStringLiteral("Extra")).isDouble()); // every field is listed
    EXPECT_EQ(
        back.value(QStringLiteral("Header")).toObject().value(QStringLiteral("TextCount")).toInt(),
        1);

    // info -> pack gives back the same bytes.
    ASSERT_TRUE(WriteAll(box.path("again.json"), again));
    ASSERT_EQ(RunCli({QStringLiteral("pack"), box.path("again.json"), box.path("c.qds")}), 0);
    EXPECT_EQ(ReadAll(box.path("c.qds")), ReadAll(box.path("b.qds")));
    // pack -> info gives back the same JSON.
    QByteArray third;
    ASSERT_EQ(RunCli({QStringLiteral("info"), box.path("c.qds")}, &third), 0);
    EXPECT_EQ(parse(third), back);
}

TEST(Cli, ErrorsAndDamagedFiles) {
    Sandbox box;
    ASSERT_EQ(RunCli({QStringLiteral("new"), box.path("a.qds")}), 0);
    ASSERT_TRUE(WriteAll(box.path("cut.qds"), ReadAll(box.path("a.qds")).left(2000)));
    ASSERT_TRUE(WriteAll(box.path("bad.json"), QByteArray("{\"Texts\": 5}")));
    ASSERT_TRUE(WriteAll(box.path("broken.json"), QByteArray("{")));

    struct Case {
        const char* name;
        QStringList args;
        int status;
        const char* stderrHas;
    };
    const Case cases[] = {
        {"no command", {}, 2, "usage"},
        {"unknown command", {QStringLiteral("frobnicate")}, 2, "unknown command"},
        {"missing argument", {QStringLiteral("new")}, 2, "usage"},
        {"missing file", {QStringLiteral("info"), box.path("none.qds")}, 1, "cannot open"},
        {"a folder", {QStringLiteral("info"), box.path("")}, 2, "unknown kind"},
        {"a folder as project",
         {QStringLiteral("info"), box.dir.path(), QStringLiteral("--as"), QStringLiteral("qds")},
         1,
         "cannot open"},
        {"unknown extension", {QStringLiteral("info"), box.path("x.txt")}, 2, "unknown kind"},
        {"damaged project", {QStringLiteral("info"), box.path("cut.qds")}, 0, "damaged"},
        {"wrong JSON type",
         {QStringLiteral("pack"), box.path("bad.json"), box.path("o.qds")},
         1,
         "Texts must be an array"},
        {"broken JSON",
         {QStringLiteral("pack"), box.path("broken.json"), box.path("o.qds")},
         1,
         "offset"},
        {"unwritable output", {QStringLiteral("new"), box.path("no/dir/x.qds")}, 1, "cannot write"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        QByteArray out, err;
        EXPECT_EQ(RunCli(c.args, &out, &err), c.status);
        EXPECT_TRUE(err.contains(c.stderrHas)) << err.toStdString();
    }
    QByteArray out;
    ASSERT_EQ(RunCli({QStringLiteral("info"), box.path("cut.qds")}, &out), 0);
    const QJsonObject json = parse(out);
    EXPECT_EQ(json.value(QStringLiteral("Profile"))
                  .toObject()
                  .value(QStringLiteral("FirstName"))
                  .toString(),
              QStringLiteral("Quorvix"));
    EXPECT_FALSE(QFile::exists(box.path("o.qds")));
}
