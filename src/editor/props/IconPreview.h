#pragma once

#include <QImage>

namespace zentor {

struct Document;

// The 128 x 128 previews of the tab pane and the profile pane.
QImage TabIconImage(const Document& doc, int tab);
QImage UserIconImage(const Document& doc);

} // namespace zentor
