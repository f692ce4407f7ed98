#pragma once

// The heavy résumé the generate and export benchmarks share: 32 pictures from different
// 4000 x 3000 JPEGs, 128 shadowed texts, 7 tab pictures of 1920 x 1080, 7 tab icons, a
// 4000 x 3000 background and 5 MB of music.

#include "BenchSupport.h"

#include "model/DefaultDocument.h"
#include "render/ResImages.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QRandomGenerator>

#include <memory>

namespace zentor::bench {

// A photo-like picture: gradients, shapes and noise, so that JPEG has real work to do.
inline QImage Photo(int w, int h, int seed) {
    QImage img(w, h, QImage::Format_RGB32);
    QRandomGenerator rng(seed);
    QPainter p(&img);
    QLinearGradient g(0, 0, w, h);
    g.setColorAt(0, QColor::fromHsv(seed * 37 % 360, 120, 230));
    g.setColorAt(1, QColor::fromHsv((seed * 37 + 150) % 360, 200, 90));
    p.fillRect(img.rect(), g);
    for (int i = 0; i < 60; ++i) {
        p.setBrush(QColor::fromHsv(rng.bounded(360), 150, 200, 160));
        p.setPen(Qt::NoPen);
        p.drawEllipse(QPoint(rng.bounded(w), rng.bounded(h)), rng.bounded(w / 6) + 10,
                      rng.bounded(h / 6) + 10);
    }
    p.end();
    for (int y = 0; y < h; y += 2) {
        auto* line = reinterpret_cast<QRgb*>(img.scanLine(y));
        for (int x = 0; x < w; x += 3)
            line[x] ^= rng.generate() & 0x0f0f0f;
    }
    return img;
}

inline void Save(const QImage& img, const QString& path, int quality = 90) {
    QImageWriter w(path);
    w.setQuality(quality);
    w.write(img);
}

struct Stress {
    bench::Workspace ws;
    std::unique_ptr<Document> doc = std::make_unique<Document>();
    ResImages res = ResImages::load();

    Stress() {
        const QString media = ws.path(QStringLiteral("media/"));
        QDir().mkpath(media);
        NewDocument(*doc, ws.ctx);
        for (int i = 1; i <= 32; ++i) {
            const QString path = media + QStringLiteral("photo%1.jpg").arg(i);
            Save(Photo(4000, 3000, i), path);
            ImageElement& e = doc->Images[size_t(i)];
            e = doc->Images[0];
            e.TabNo = 1 + (i - 1) % 7;
            e.FileName = path;
            e.Left = 20 + (i * 53) % 500;
            e.Top = 20 + (i * 31) % 350;
            e.Width = 240;
            e.Height = 180;
        }
        for (int i = 1; i <= 128; ++i) {
            TextElement& t = doc->Texts[size_t(i)];
            t = doc->Texts[0];
            t.TabNo = 1 + (i - 1) % 7;
            t.Text = QStringLiteral("Line %1: led the redesign of the riverside park, budget and "
                                    "planting plan")
                         .arg(i);
            t.Left = 10 + (i * 17) % 400;
            t.Top = 10 + (i * 29) % 540;
            t.Width = 380;
            t.Height = 50;
            t.FontShadow = -1;
        }
        for (int tab = 1; tab <= 7; ++tab) {
            const QString picture = media + QStringLiteral("tab%1.jpg").arg(tab);
            Save(Photo(1920, 1080, 100 + tab), picture);
            ImageElement& p = doc->Tabs[size_t(tab)].Picture;
            p.FileName = picture;
            p.Left = 0;
            p.Top = 0;
            p.Width = doc->Header.FrameWidth;
            p.Height = doc->Header.FrameHeight;
            const QString icon = media + QStringLiteral("icon%1.png").arg(tab);
            Photo(64, 64, 200 + tab).save(icon);
            doc->Tabs[size_t(tab + 1)].Icon = icon;
        }
        const QString back = media + QStringLiteral("back.jpg");
        Save(Photo(4000, 3000, 300), back);
        doc->Header.BackPicture = back;
        doc->Profile.UserIcon = media + QStringLiteral("photo1.jpg");
        QByteArray music(5 * 1024 * 1024, '\0');
        QRandomGenerator(7).fillRange(reinterpret_cast<quint32*>(music.data()), music.size() / 4);
        QFile m(media + QStringLiteral("theme.mp3"));
        m.open(QIODevice::WriteOnly);
        m.write(music);
        m.close();
        doc->Header.BackMusic = m.fileName();
    }
};

inline Stress& Workload() {
    static Stress s;
    return s;
}

} // namespace zentor::bench
