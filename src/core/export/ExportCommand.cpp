#include "export/ExportCommand.h"

#include "edit/Prompter.h"
#include "export/PackageShowFrames.h"
#include "export/PdfExport.h"
#include "export/VideoExport.h"
#include "export/WebPageExport.h"
#include "io/FileUtil.h"
#include "model/Document.h"

#include <QFileInfo>

namespace zentor {

namespace {

// The show recorded as the player runs it; ExportVideo writes beside `path` itself.
bool WriteVideo(const Document& doc, const QString& path, const ResImages& res,
                const ProcessContext& ctx, QString& error, const Progress& progress,
                QStringList& warnings, PictureCache* pictures) {
    const auto show = DocumentShowFrames(doc, ctx, res, warnings, error, pictures);
    if (!show)
        return false;
    const VideoResult result = ExportVideo(doc, *show, path, VideoOptions{}, progress);
    warnings += result.warnings;
    if (result.outcome == VideoResult::Outcome::Failed)
        error = result.error;
    return result.outcome == VideoResult::Outcome::Written;
}

struct ExportNames {
    QString title, ext;
};

ExportNames NamesOf(ExportKind kind) {
    switch (kind) {
    case ExportKind::Pdf:
        return {QStringLiteral("Export PDF"), QStringLiteral(".pdf")};
    case ExportKind::WebPage:
        return {QStringLiteral("Export Web Page"), QStringLiteral(".html")};
    case ExportKind::Video:
        break;
    }
    return {QStringLiteral("Export Video"), QStringLiteral(".mp4")};
}

} // namespace

QString ExportTitle(ExportKind kind) {
    return NamesOf(kind).title;
}

bool WriteExport(ExportKind kind, const Document& doc, const QString& path, const ResImages& res,
                 const ProcessContext& ctx, QString* error, const Progress& progress,
                 QStringList* warnings, PictureCache* pictures) {
    const auto fail = [&](const QString& why) {
        if (error)
            *error = why;
        return false;
    };
    if (kind == ExportKind::Video) {
        QString why;
        QStringList told;
        const bool written = WriteVideo(doc, path, res, ctx, why, progress, told, pictures);
        if (warnings)
            *warnings += told;
        return written || fail(why);
    }
    bool cancelled = false;
    const Progress watched = [&](int page, int pages) {
        cancelled = !GoOn(progress, page, pages);
        return !cancelled;
    };
    const QByteArray bytes = kind == ExportKind::Pdf
                                 ? RenderPdf(doc, res, ctx, watched, pictures)
                                 : RenderWebPage(doc, res, ctx, watched, pictures);
    if (cancelled)
        return fail(QString());
    if (bytes.isEmpty())
        return fail(QStringLiteral("the frame size %1 x %2 cannot be drawn")
                        .arg(doc.Header.FrameWidth)
                        .arg(doc.Header.FrameHeight));
    // Written beside the target and renamed at the end: a failure leaves no file behind.
    QString why;
    if (!WriteFileAtomically(path, bytes, &why))
        return fail(QStringLiteral("cannot write %1: %2").arg(path, why));
    return true;
}

bool RunExport(ExportKind kind, const Document& doc, Prompter& prompter, const ResImages& res,
               const ProcessContext& ctx, const Progress& progress, QString* written,
               PictureCache* pictures) {
    const auto [title, ext] = NamesOf(kind);
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
    QStringList warnings;
    if (WriteExport(kind, doc, path, res, ctx, &error, progress, &warnings, pictures)) {
        if (!warnings.isEmpty())
            prompter.ask(title, warnings.join(QLatin1Char('\n')), Prompter::Buttons::Ok,
                         Prompter::Icon::Information, Prompter::Answer::Ok);
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
