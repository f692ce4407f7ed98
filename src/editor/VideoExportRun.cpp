#include "VideoExportRun.h"

#include "export/PageShowFrames.h"
#include "export/VideoExport.h"
#include "model/Document.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>

namespace zentor {

QString ExportVideoInteractive(QWidget* parent, const Document& doc, const ResImages& res) {
    const QString start = doc.ScriptPath.isEmpty()
                              ? QStringLiteral("resume.mp4")
                              : QFileInfo(doc.ScriptPath).path() + QLatin1Char('/') +
                                    QFileInfo(doc.ScriptPath).completeBaseName() +
                                    QStringLiteral(".mp4");
    QString path = QFileDialog::getSaveFileName(parent, QStringLiteral("Export Video"), start,
                                                QStringLiteral("MP4 video (*.mp4)"));
    if (path.isEmpty())
        return QString();
    if (!path.endsWith(QLatin1String(".mp4"), Qt::CaseInsensitive))
        path += QStringLiteral(".mp4");

    PageShowFrames show(doc, res);
    QProgressDialog progress(QStringLiteral("Recording the video..."), QStringLiteral("Cancel"), 0,
                             show.stepCount(), parent);
    progress.setWindowTitle(QStringLiteral("Export Video"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    const VideoResult result =
        ExportVideo(doc, show, path, VideoOptions{}, [&](int step, int steps) {
            progress.setLabelText(QStringLiteral("Page %1 of %2").arg(step).arg(steps));
            progress.setValue(step - 1);
            QApplication::processEvents();
            return !progress.wasCanceled();
        });
    progress.close();
    if (result.outcome == VideoResult::Outcome::Failed)
        QMessageBox::warning(parent, QStringLiteral("Export Video"), result.error);
    else if (result.outcome == VideoResult::Outcome::Written && !result.warnings.isEmpty())
        QMessageBox::information(parent, QStringLiteral("Export Video"),
                                 result.warnings.join(QLatin1Char('\n')));
    return result.outcome == VideoResult::Outcome::Written ? path : QString();
}

} // namespace zentor
