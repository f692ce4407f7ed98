#pragma once

#include <QString>

class QWidget;

namespace zentor {

struct Document;
class ResImages;
struct ProcessContext;

// File > Export Video: asks where to write, records the show with a cancellable progress
// dialog and says how it went. Returns the path written, empty when nothing was.
QString ExportVideoInteractive(QWidget* parent, const Document& doc, const ResImages& res,
                               const ProcessContext& ctx);

} // namespace zentor
