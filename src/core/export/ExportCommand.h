#pragma once

#include "model/Progress.h"

#include <QString>
#include <QStringList>

namespace zentor {

struct Document;
struct ProcessContext;
class PictureCache;
class Prompter;
class ResImages;

enum class ExportKind { Pdf, WebPage, Video };

// The editor's export commands: the save dialog ("Export PDF" with "*.pdf|*.pdf", "Export
// Web Page" with "*.html|*.html", "Export Video" with "*.mp4|*.mp4"), the extension added
// unless the name ends in it (any case), the overwrite question, then the export. A failure
// is told in a box under the same title; a cancelled one is not; what a written one warned
// about (music that could not be decoded) is told after it. Returns whether a file was
// written, and where in `written`. Pictures are decoded into `pictures` when given.
bool RunExport(ExportKind kind, const Document& doc, Prompter& prompter, const ResImages& res,
               const ProcessContext& ctx, const Progress& progress = {}, QString* written = nullptr,
               PictureCache* pictures = nullptr);

// "Export PDF", "Export Web Page", "Export Video": the title of its dialogs and boxes.
QString ExportTitle(ExportKind kind);

// Writes the export of `kind` to `path` (beside it first, renamed at the end). A run that
// `progress` cancelled returns false with `error` left empty. What was written with a
// shortcoming (a silent video) is added to `warnings`.
bool WriteExport(ExportKind kind, const Document& doc, const QString& path, const ResImages& res,
                 const ProcessContext& ctx, QString* error, const Progress& progress = {},
                 QStringList* warnings = nullptr, PictureCache* pictures = nullptr);

} // namespace zentor
