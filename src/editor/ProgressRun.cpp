#include "editor/ProgressRun.h"

#include <QApplication>
#include <QProgressDialog>

namespace zentor {

ProgressRun::ProgressRun(QWidget* parent, const QString& title) : parent_(parent), title_(title) {}

ProgressRun::~ProgressRun() = default;

Progress ProgressRun::progress() {
    return [this](int n, int pages) { return page(n, pages); };
}

bool ProgressRun::page(int n, int pages) {
    if (!dialog_) {
        dialog_ = std::make_unique<QProgressDialog>(QString(), QStringLiteral("Cancel"), 0, pages,
                                                    parent_);
        dialog_->setObjectName(QStringLiteral("ProgressRun"));
        dialog_->setWindowTitle(title_);
        dialog_->setWindowModality(Qt::WindowModal);
        dialog_->setMinimumDuration(0);
        dialog_->setAutoClose(false);
        dialog_->setAutoReset(false);
    }
    dialog_->setMaximum(pages);
    dialog_->setLabelText(QStringLiteral("Page %1 of %2").arg(n).arg(pages));
    dialog_->setValue(n - 1);
    QApplication::processEvents();
    return !dialog_->wasCanceled();
}

} // namespace zentor
