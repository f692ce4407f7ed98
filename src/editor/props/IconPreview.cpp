#include "editor/props/IconPreview.h"

#include "io/FileUtil.h"
#include "model/Document.h"

#include <QPainter>

namespace zentor {

namespace {

QImage Stretched(const QString& path) {
    QImage out(128, 128, QImage::Format_RGB32);
    out.fill(Qt::white);
    if (!IsRegularFile(path))
        return out;
    const QImage src(path);
    if (!src.isNull()) {
        QPainter p(&out);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.drawImage(QRect(0, 0, 128, 128), src);
    }
    return out;
}

} // namespace

QImage TabIconImage(const Document& doc, int tab) {
    if (tab < 0 || tab > MaxTab)
        return Stretched(QString());
    return Stretched(ResolvePath(doc.ScriptPath, doc.Tabs[tab].Icon.trimNull()));
}

QImage UserIconImage(const Document& doc) {
    return Stretched(ResolvePath(doc.ScriptPath, doc.Profile.UserIcon.trimNull()));
}

} // namespace zentor
