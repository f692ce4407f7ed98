#include "export/ExportCommand.h"

#include "edit/Prompter.h"
#include "export/PdfExport.h"

#include <QFileInfo>

namespace zentor {

bool WriteExport(ExportKind kind, const Document& doc, const QString& path, const ResImages& res,
                 const ProcessContext& ctx, QString* error) {
    switch (kind) {
    case ExportKind::Pdf:
        return ExportPdf(doc, path, res, ctx, error);
    case ExportKind::WebPage:
        break;
    }
    if (error)
        *error = QStringLiteral("this export is not available");
    return false;
}

bool RunExport(ExportKind kind, const Document& doc, Prompter& prompter, const ResImages& res,
               const ProcessContext& ctx) {
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
    if (WriteExport(kind, doc, path, res, ctx, &error))
        return true;
    prompter.warn(title,
                  QStringLiteral("Can't create file : ") + path + QStringLiteral("\n") + error);
    return false;
}

} // namespace zentor
