#include "export/ExportCommand.h"

#include "edit/Prompter.h"
#include "export/PdfExport.h"
#include "export/WebPageExport.h"
#include "model/Document.h"

#include <QFileInfo>
#include <QSaveFile>

namespace zentor {

bool WriteExport(ExportKind kind, const Document& doc, const QString& path, const ResImages& res,
                 const ProcessContext& ctx, QString* error, const Progress& progress) {
    const auto fail = [&](const QString& why) {
        if (error)
            *error = why;
        return false;
    };
    bool cancelled = false;
    const Progress watched = [&](int page, int pages) {
        cancelled = !GoOn(progress, page, pages);
        return !cancelled;
    };
    const QByteArray bytes = kind == ExportKind::Pdf ? RenderPdf(doc, res, ctx, watched)
                                                     : RenderWebPage(doc, res, ctx, watched);
    if (cancelled)
        return fail(QString());
    if (bytes.isEmpty())
        return fail(QStringLiteral("the frame size %1 x %2 cannot be drawn")
                        .arg(doc.Header.FrameWidth)
                        .arg(doc.Header.FrameHeight));
    // Written beside the target and renamed at the end: a failure leaves no file behind.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return fail(QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
    return true;
}

bool RunExport(ExportKind kind, const Document& doc, Prompter& prompter, const ResImages& res,
               const ProcessContext& ctx, const Progress& progress, QString* written) {
    const bool pdf = kind == ExportKind::Pdf;
    const QString title = pdf ? QStringLiteral("Export PDF") : QStringLiteral("Export Web Page");
    const QString ext = pdf ? QStringLiteral(".pdf") : QStringLiteral(".html");
    QString path =
        prompter.chooseFile(true, title, QLatin1Char('*') + ext + QStringLiteral("|*") + ext);
    if (path.isEmpty())
        return false;
    if (!path.endsWith(ext, Qt::CaseInsensitive))
        path += ext;
    if (QFileInfo::exists(path) &&
        !prompter.askYesNo(
            title, QStringLiteral("This file already exists. Do you want to overwrite it?")))
        return false;
    QString error;
    if (WriteExport(kind, doc, path, res, ctx, &error, progress)) {
        if (written)
            *written = path;
        return true;
    }
    if (!error.isEmpty())
        prompter.warn(title,
                      QStringLiteral("Can't create file : ") + path + QStringLiteral("\n") + error);
    return false;
}

} // namespace zentor
