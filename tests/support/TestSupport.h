#pragma once

#include "model/Document.h"
#include "model/ProcessContext.h"

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace zentor::test {

// A private temporary folder with a process context whose work folder lies inside it.
struct Sandbox {
    QTemporaryDir dir;
    ProcessContext ctx;
    Sandbox();
    QString path(const QString& name) const { return dir.filePath(name); }
    std::unique_ptr<Document> newDocument() const;
};

// A field's raw bytes, independent of how FixedString decodes them.
template <int N> QByteArray Bytes(const FixedString<N>& f) {
    return QByteArray(f.data(), N);
}
// The bytes a document would be saved as.
QByteArray SavedBytes(const Document& doc);
// Text blank-padded or cut to a field's width, as the file holds it.
QByteArray Padded(const QByteArray& text, int width);
// Little-endian 32-bit integer at a byte offset, read without the code under test.
int32_t Int32At(const QByteArray& bytes, qsizetype offset);
// A picture of one colour.
QImage Solid(int width, int height, QRgb colour);
// A PNG file of one colour in the sandbox; its path.
QString Picture(const Sandbox& box, const QString& name, int width, int height,
                QRgb colour = 0xFF336699);
// Pixels of exactly `colour` inside `in` (the whole picture when `in` is null).
int CountPixels(const QImage& img, QRgb colour, QRect in = {});
// Colours within `tolerance` in each channel (JPEG and scaling shift them a little).
bool Near(QRgb a, QRgb b, int tolerance = 6);

// Slot `slot` made from the template object (slot 0) and put on page `tab`; a rectangle
// that is not null places it, a file or text that is not null fills it.
ImageElement& PlaceImage(Document& doc, int slot, int tab, QRect r = {}, const QString& file = {});
TextElement& PlaceText(Document& doc, int slot, int tab, QRect r = {}, const QString& text = {});

QByteArray ReadAll(const QString& path);
bool WriteAll(const QString& path, const QByteArray& bytes);

// Runs a program with the arguments and the environment less `unset`; returns the exit
// status (-1 for a crash or a hang), fills stdout and stderr.
int RunProcess(const QString& program, const QStringList& args, QByteArray* out = nullptr,
               QByteArray* err = nullptr, const QStringList& unset = {});

// Runs zentor-cli with the arguments; returns the exit status, fills stdout and stderr.
int RunCli(const QStringList& args, QByteArray* out = nullptr, QByteArray* err = nullptr);

} // namespace zentor::test
