#pragma once

#include <QByteArray>

namespace zentor {

// The web page around the show's data: its style and the script that plays the numbers.
// "@TITLE@" and "@DATA@" mark where the title and the JSON go.
QByteArray WebPageTemplate();

} // namespace zentor
