#include "editor/EditActions.h"

#include "edit/Editor.h"

#include <QAction>
#include <QMenu>

namespace zentor {

void AddUndoActions(QMenu* edit, Editor& editor, std::function<void()> commitPending) {
    QAction* first = edit->actions().value(0);
    auto* undo = new QAction(QStringLiteral("&Undo"), edit);
    undo->setObjectName(QStringLiteral("EditUndo"));
    undo->setShortcut(QKeySequence::Undo);
    auto* redo = new QAction(QStringLiteral("&Redo"), edit);
    redo->setObjectName(QStringLiteral("EditRedo"));
    redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    edit->insertAction(first, undo);
    edit->insertAction(first, redo);
    edit->insertSeparator(first);

    QObject::connect(undo, &QAction::triggered, edit, [&editor, commitPending] {
        commitPending();
        editor.undo();
    });
    QObject::connect(redo, &QAction::triggered, edit, [&editor, commitPending] {
        commitPending();
        editor.redo();
    });
    // The texts are brought up to date when the menu opens; the keys stay live in between,
    // an empty history simply does nothing.
    QObject::connect(edit, &QMenu::aboutToShow, edit, [=, &editor] {
        commitPending();
        editor.recordPending();
        const UndoStack& s = editor.undoStack();
        undo->setText(s.canUndo() ? QStringLiteral("&Undo ") + s.undoName()
                                  : QStringLiteral("&Undo"));
        redo->setText(s.canRedo() ? QStringLiteral("&Redo ") + s.redoName()
                                  : QStringLiteral("&Redo"));
        undo->setEnabled(s.canUndo());
        redo->setEnabled(s.canRedo());
    });
    QObject::connect(edit, &QMenu::aboutToHide, edit, [=] {
        undo->setEnabled(true);
        redo->setEnabled(true);
    });
}

} // namespace zentor
