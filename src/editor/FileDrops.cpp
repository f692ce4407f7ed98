#include "editor/FileDrops.h"

#include "edit/Editor.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace zentor {

namespace {

class DropFilter : public QObject {
public:
    DropFilter(QWidget* window, QWidget* workspace, Editor& editor)
        : QObject(window), window_(window), workspace_(workspace), editor_(editor) {}

protected:
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (watched != window_)
            return false;
        switch (e->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            auto* d = static_cast<QDropEvent*>(e);
            if (d->mimeData()->hasUrls())
                d->acceptProposedAction();
            return true;
        }
        case QEvent::Drop: {
            auto* d = static_cast<QDropEvent*>(e);
            QStringList paths;
            for (const QUrl& url : d->mimeData()->urls())
                if (url.isLocalFile())
                    paths << url.toLocalFile();
            const QPoint p = workspace_->mapFrom(window_, d->position().toPoint());
            std::optional<IntPoint> at;
            if (workspace_->rect().contains(p))
                at = IntPoint{p.x(), p.y()};
            d->acceptProposedAction();
            editor_.dropFiles(paths, at);
            return true;
        }
        default:
            return false;
        }
    }

private:
    QWidget* window_;
    QWidget* workspace_;
    Editor& editor_;
};

} // namespace

void AcceptFileDrops(QWidget* window, QWidget* workspace, Editor& editor) {
    window->setAcceptDrops(true);
    window->installEventFilter(new DropFilter(window, workspace, editor));
}

} // namespace zentor
