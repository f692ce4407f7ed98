#pragma once

#include "model/Progress.h"

#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

namespace zentor {

// The progress dialog of one long run (generation, an export): it appears at the run's first
// page, says "Page n of N" and its Cancel ends the run; it goes when this does.
class ProgressRun {
public:
    ProgressRun(QWidget* parent, const QString& title);
    ~ProgressRun();

    // What the run is handed.
    Progress progress();

private:
    bool page(int n, int pages);

    QWidget* parent_;
    QString title_;
    std::unique_ptr<QProgressDialog> dialog_;
};

} // namespace zentor
