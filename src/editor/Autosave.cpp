#include "editor/Autosave.h"

#include "edit/Editor.h"

#include <QTimer>

namespace zentor {

void StartAutosave(QObject* owner, Editor& editor, int intervalMs) {
    auto* timer = new QTimer(owner);
    timer->setObjectName(QStringLiteral("AutosaveTimer"));
    QObject::connect(timer, &QTimer::timeout, owner, [&editor] { editor.autosave(); });
    timer->start(intervalMs);
}

} // namespace zentor
