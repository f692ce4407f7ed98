#pragma once

#include "generate/PackageReader.h"

#include <QImage>
#include <QRasterWindow>
#include <QString>

#include <vector>

namespace zentor {

// Shows a package's pages one at a time, each scaled to fit the window on black.
// Right, Down, Space, Page Down or a click go on; Left, Up, Page Up go back; Home and End
// jump; Escape quits.
class PlayerWindow : public QRasterWindow {
public:
    explicit PlayerWindow(const PackageContents& package);
    int pageCount() const { return int(pages_.size()); }

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void show(int page);

    struct Page {
        QImage image;
        QString name;
    };
    std::vector<Page> pages_;
    QString owner_;
    int current_ = 0;
};

} // namespace zentor
