#pragma once

#include "render/TextDraw.h"

class QPainter;

namespace zentor {

struct Document;
class PictureCache;

// The objects of one content tab, as both the generated page and the workspace show them:
// every picture in slot order, then every text in slot order, so a text always lies above
// every picture and a higher slot above a lower one. Reads the document only. Without
// `withTexts` only the pictures: what lies under the texts.
void DrawPageObjects(QPainter& p, const Document& doc, int tab, PictureCache* cache,
                     bool withTexts = true);

// Only the texts of the tab, in slot order, with the passes asked for.
void DrawPageTexts(QPainter& p, const Document& doc, int tab, TextPasses passes);

} // namespace zentor
