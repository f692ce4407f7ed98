#include "TestSupport.h"

#include "io/ScriptFile.h"
#include "model/DefaultDocument.h"

#include <QFile>
#include <QProcess>

namespace zentor::test {

Sandbox::Sandbox() : ctx(ProcessContext::create(QStringLiteral(ZENTOR_BIN_DIR), dir.path())) {}

std::unique_ptr<Document> Sandbox::newDocument() const {
    auto doc = std::make_unique<Document>();
    NewDocument(*doc, ctx);
    return doc;
}

QByteArray SavedBytes(const Document& doc) {
    Document copy = doc; // serializing recomputes the header's counts
    return SerializeScript(copy);
}

QByteArray Padded(const QByteArray& text, int width) {
    return text.left(width) + QByteArray(std::max<qsizetype>(0, width - text.size()), ' ');
}

int32_t Int32At(const QByteArray& bytes, qsizetype offset) {
    if (offset < 0 || offset + 4 > bytes.size())
        return INT32_MIN;
    const auto* p = reinterpret_cast<const uchar*>(bytes.constData() + offset);
    return int32_t(uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 |
                   uint32_t(p[3]) << 24);
}

QImage Solid(int width, int height, QRgb colour) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

QString Picture(const Sandbox& box, const QString& name, int width, int height, QRgb colour) {
    const QString path = box.path(name);
    Solid(width, height, colour).save(path, "PNG");
    return path;
}

bool Near(QRgb a, QRgb b, int tolerance) {
    return std::abs(qRed(a) - qRed(b)) <= tolerance &&
           std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

namespace {
template <typename Element> Element& Place(Element& e, const Element& templ, int tab, QRect r) {
    e = templ;
    e.TabNo = tab;
    if (!r.isNull()) {
        e.Left = r.x();
        e.Top = r.y();
        e.Width = r.width();
        e.Height = r.height();
    }
    return e;
}
} // namespace

ImageElement& PlaceImage(Document& doc, int slot, int tab, QRect r, const QString& file) {
    ImageElement& e = Place(doc.Images[size_t(slot)], doc.Images[0], tab, r);
    if (!file.isNull())
        e.FileName = file;
    return e;
}

TextElement& PlaceText(Document& doc, int slot, int tab, QRect r, const QString& text) {
    TextElement& e = Place(doc.Texts[size_t(slot)], doc.Texts[0], tab, r);
    if (!text.isNull())
        e.Text = text;
    return e;
}

int CountPixels(const QImage& img, QRgb colour, QRect in) {
    if (in.isNull())
        in = img.rect();
    int n = 0;
    for (int y = in.top(); y <= in.bottom(); ++y)
        for (int x = in.left(); x <= in.right(); ++x)
            n += img.pixel(x, y) == colour;
    return n;
}

QByteArray ReadAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool WriteAll(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

int RunProcess(const QString& program, const QStringList& args, QByteArray* out, QByteArray* err,
               const QStringList& unset) {
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& name : unset)
        env.remove(name);
    p.setProcessEnvironment(env);
    p.start(program, args);
    if (!p.waitForFinished(120000)) {
        p.kill();
        p.waitForFinished();
        return -1;
    }
    if (out)
        *out = p.readAllStandardOutput();
    if (err)
        *err = p.readAllStandardError();
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

int RunCli(const QStringList& args, QByteArray* out, QByteArray* err) {
    return RunProcess(QStringLiteral(ZENTOR_CLI_PATH), args, out, err);
}

} // namespace zentor::test
