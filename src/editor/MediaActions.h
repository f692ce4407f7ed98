#pragma once

#include <functional>

class QMenu;

namespace zentor {

// File > "Play Résumé" (F5) after the generate commands and "Collect Media..." after Save
// As; `command` runs the editor command of the item.
void AddMediaActions(QMenu* file, const std::function<void(int)>& command);

} // namespace zentor
