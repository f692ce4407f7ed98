#include "render/TabPictureLayout.h"

#include "io/FileUtil.h"
#include "model/Document.h"
#include "render/PictureCache.h"
#include "render/PictureLoader.h"
#include "show/Ring.h"

#include <cmath>

namespace zentor {

int RoundHalfEven(double v) {
    return show::RoundHalfEven(v);
}

namespace {

// Mode 1: the largest size of the picture's aspect that fits the frame.
QSize FittedSize(QSize pic, QSize frame) {
    const double W = frame.width(), H = frame.height();
    const double F = W / H;
    const double P = double(pic.width()) / double(pic.height());
    if (F > P)
        return QSize(RoundHalfEven(H / (1.0 / P)), frame.height());
    if (F == P)
        return frame;
    return QSize(frame.width(), RoundHalfEven(W / P));
}

QRect Centred(QSize size, QSize frame) {
    return QRect(RoundHalfEven((frame.width() - size.width()) / 2.0),
                 RoundHalfEven((frame.height() - size.height()) / 2.0), size.width(),
                 size.height());
}

} // namespace

std::optional<QRect> TabPictureRect(int mode, QSize picture, QSize frame) {
    const bool known =
        picture.width() > 0 && picture.height() > 0 && frame.width() > 0 && frame.height() > 0;
    switch (mode) {
    case PicAlignFitness:
        return QRect(QPoint(0, 0), frame);
    case PicAlignFitnessCenter:
        return Centred(known ? FittedSize(picture, frame) : QSize(0, 0), frame);
    case PicAlignCenter:
        if (!known)
            return Centred(QSize(0, 0), frame);
        if (picture.width() <= frame.width() && picture.height() <= frame.height())
            return Centred(picture, frame);
        return Centred(FittedSize(picture, frame), frame);
    case PicAlignOriginal:
        return QRect(QPoint(0, 0), known ? picture : QSize(0, 0));
    default:
        return std::nullopt;
    }
}

void LayoutTabPicture(Document& doc, int mode, int tab, const QString& path, PictureCache* cache) {
    if (tab < 0 || tab > MaxTab)
        return;
    ImageElement& pic = doc.Tabs[size_t(tab)].Picture;
    const QString trimmed = path.trimmed();
    const QString file = ResolvePath(doc.ScriptPath, trimmed);
    const QSize size = cache ? cache->pictureSize(file) : ReadPictureSize(file);
    pic.FileName = trimmed;
    pic.PicAlign = mode;
    if (const auto r =
            TabPictureRect(mode, size, QSize(doc.Header.FrameWidth, doc.Header.FrameHeight))) {
        pic.Left = r->left();
        pic.Top = r->top();
        pic.Width = r->width();
        pic.Height = r->height();
    }
    pic.Reserved = -1;
}

} // namespace zentor
