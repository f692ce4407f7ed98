// Writes the seed corpora from our own documents: the default document, one with objects
// on several pages, the sample résumé, their JSON, packages made of them and small
// pictures in every format the editor reads.
#include "FuzzSupport.h"

#include "generate/PackEntry.h"
#include "io/ProjectJson.h"
#include "io/ScriptFile.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QJsonDocument>
#include <QPainter>

#include <cstdio>

using namespace zentor;

namespace {
bool Write(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}

QByteArray Encoded(const QImage& img, const char* format) {
    QByteArray out;
    QBuffer buf(&out);
    buf.open(QIODevice::WriteOnly);
    img.save(&buf, format);
    return out;
}

// A package as the generator lays it out: table, header, profile, names, then blobs.
QByteArray PackageOf(Document& doc, const QList<QByteArray>& pages) {
    const QByteArray script = SerializeScript(doc);
    QByteArray body = script.left(564 + 800);
    for (int t = 1; t <= Package::TabNameCount; ++t)
        body += QByteArray(doc.Tabs[size_t(t)].Name.data(), Package::TabNameSize);
    PackTable table{};
    for (int i = 0; i < pages.size() && i < Package::PageCount; ++i) {
        PackEntry& e = table[size_t(Package::FirstPageEntry + i)];
        e.Kind = PackPicture;
        e.Position = int32_t(Package::TableSize + body.size() + 1);
        e.Length = int32_t(pages[i].size());
        body += pages[i];
    }
    return EncodePackTable(table) + body;
}
} // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: fuzz_seeds OUTDIR SAMPLE.qds\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    for (const char* sub : {"project", "package", "json", "picture"})
        out.mkpath(QString::fromLatin1(sub));

    QImage picture(24, 16, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter(&picture).fillRect(4, 4, 12, 8, QColor(200, 40, 40));
    const QByteArray jpeg = Encoded(picture.convertToFormat(QImage::Format_RGB32), "JPG");
    const struct {
        const char* name;
        QByteArray bytes;
    } pictures[] = {{"a.jpg", jpeg},
                    {"a.png", Encoded(picture, "PNG")},
                    {"a.bmp", Encoded(picture, "BMP")},
                    {"a.ico", Encoded(picture, "ICO")}};
    for (const auto& p : pictures)
        Write(out.filePath(QStringLiteral("picture/") + QLatin1String(p.name)), p.bytes);

    auto plain = fuzz::FreshDocument();
    auto busy = fuzz::FreshDocument();
    for (int slot = 1; slot <= 3; ++slot) {
        busy->Texts[size_t(slot)] = busy->Texts[0];
        busy->Texts[size_t(slot)].TabNo = slot;
        busy->Texts[size_t(slot)].Text = QStringLiteral("Line one\nLine two");
        busy->Images[size_t(slot)] = busy->Images[0];
        busy->Images[size_t(slot)].TabNo = 8 - slot;
        busy->Images[size_t(slot)].FileName = QStringLiteral("a.png");
    }
    auto sample = fuzz::FreshDocument();
    QFile sampleFile(QString::fromLocal8Bit(argv[2]));
    if (sampleFile.open(QIODevice::ReadOnly))
        LoadScriptBytes(*sample, sampleFile.readAll());

    const struct {
        const char* name;
        Document* doc;
    } docs[] = {{"default", plain.get()}, {"busy", busy.get()}, {"sample", sample.get()}};
    for (const auto& d : docs) {
        const QString name = QLatin1String(d.name);
        const QByteArray script = SerializeScript(*d.doc);
        Write(out.filePath(QStringLiteral("project/") + name + QStringLiteral(".qds")), script);
        const QJsonObject json =
            ProjectToJson(*d.doc, d.doc->Header.TextCount, d.doc->Header.ImageCount);
        Write(out.filePath(QStringLiteral("json/") + name + QStringLiteral(".json")),
              QJsonDocument(json).toJson(QJsonDocument::Compact));
        const QByteArray package = PackageOf(*d.doc, {jpeg, Encoded(picture, "PNG")});
        Write(out.filePath(QStringLiteral("package/") + name + QStringLiteral(".qdv")), package);
        Write(out.filePath(QStringLiteral("package/") + name + QStringLiteral(".exe")),
              QByteArray("MZ") + QByteArray(524288 - 2, '\0') + package);
    }
    return 0;
}
