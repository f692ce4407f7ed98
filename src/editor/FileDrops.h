#pragma once

class QWidget;

namespace zentor {

class Editor;

// Files dropped anywhere on `window` go to the editor: a project opens; pictures dropped
// over `workspace` land there as picture objects.
void AcceptFileDrops(QWidget* window, QWidget* workspace, Editor& editor);

} // namespace zentor
