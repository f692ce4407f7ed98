#pragma once

class QWidget;

namespace zentor {

struct Document;
class ResImages;

// File > Export Video: asks where to write, records the show with a cancellable progress
// dialog and says how it went. True when the video was written.
bool ExportVideoInteractive(QWidget* parent, const Document& doc, const ResImages& res);

} // namespace zentor
