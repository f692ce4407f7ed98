#pragma once

#include "model/Progress.h"

#include <QString>

namespace zentor {

struct Document;
struct ProcessContext;
class Prompter;
class ResImages;

enum class ExportKind { Pdf, WebPage };

// The editor's export commands: the save dialog ("Export PDF" with "*.pdf|*.pdf", "Export
// Web Page" with "*.html|*.html"), the extension added unless the name ends in it (any
// case), the overwrite question, then the export. A failure is told in a box under the
// same title; a cancelled one is not. Returns whether a file was written, and where in
// `written`.
bool RunExport(ExportKind kind, const Document& doc, Prompter& prompter, const ResImages& res,
               const ProcessContext& ctx, const Progress& progress = {},
               QString* written = nullptr);

// Writes the export of `kind` to `path` (beside it first, renamed at the end). A run that
// `progress` cancelled returns false with `error` left empty.
bool WriteExport(ExportKind kind, const Document& doc, const QString& path, const ResImages& res,
                 const ProcessContext& ctx, QString* error, const Progress& progress = {});

} // namespace zentor
