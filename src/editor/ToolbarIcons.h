#pragma once

#include <QIcon>

namespace zentor {

// The toolbar's pictures, drawn here so that they scale cleanly: one per command number
// (an empty icon for a number without a button).
QIcon ToolbarIcon(int command);

} // namespace zentor
