#pragma once

class QObject;

namespace zentor {

class Editor;

// Every minute the editor keeps unsaved work in its recovery file.
void StartAutosave(QObject* owner, Editor& editor, int intervalMs = 60 * 1000);

} // namespace zentor
