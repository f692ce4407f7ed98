#include "VideoExportRun.h"

#include "editor/ProgressRun.h"
#include "export/PackageShowFrames.h"
#include "export/VideoExport.h"
#include "model/Document.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace zentor {

QString ExportVideoInteractive(QWidget* parent, const Document& doc, const ResImages& res,
                               const ProcessContext& ctx) {
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

    QStringList warnings;
    QString error;
    const auto show = DocumentShowFrames(doc, ctx, res, warnings, error);
    if (!show) {
        QMessageBox::warning(parent, QStringLiteral("Export Video"), error);
        return QString();
    }
    VideoResult result;
    {
        ProgressRun progress(parent, QStringLiteral("Export Video"));
        result = ExportVideo(doc, *show, path, VideoOptions{}, progress.progress());
    }
    result.warnings = warnings + result.warnings;
    if (result.outcome == VideoResult::Outcome::Failed)
        QMessageBox::warning(parent, QStringLiteral("Export Video"), result.error);
    else if (result.outcome == VideoResult::Outcome::Written && !result.warnings.isEmpty())
        QMessageBox::information(parent, QStringLiteral("Export Video"),
                                 result.warnings.join(QLatin1Char('\n')));
    return result.outcome == VideoResult::Outcome::Written ? path : QString();
}

} // namespace zentor
