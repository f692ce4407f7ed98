#pragma once

#include <QImage>

namespace zentor {

struct Document;
struct ProcessContext;

// A plain drawing of page `tab` for the workspace: background, pictures and texts in slot
// order, without the page painter's finer points.
void PaintWorkspacePlaceholder(QImage& target, const Document& doc, const ProcessContext& ctx,
                               int tab, int hover);

} // namespace zentor
