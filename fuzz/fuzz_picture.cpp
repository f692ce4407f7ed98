// The picture loader on arbitrary file contents: a size read without decoding, a decode
// at full size and one scaled for drawing; none may crash or pass the pixel bound.
#include "FuzzSupport.h"

#include "render/PictureLoader.h"

#include <QFile>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace zentor;
    static QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("input"));
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    f.write(reinterpret_cast<const char*>(data), qint64(size));
    f.close();
    const QSize said = ReadPictureSize(path);
    if (qint64(said.width()) * said.height() > MaxPicturePixels)
        __builtin_trap();
    for (QSize drawn : {QSize(), QSize(64, 48)}) {
        const QImage img = LoadPicture(path, drawn);
        if (qint64(img.width()) * img.height() > MaxPicturePixels)
            __builtin_trap();
    }
    return 0;
}
