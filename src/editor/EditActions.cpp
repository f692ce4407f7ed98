#include "editor/EditActions.h"

#include "edit/Editor.h"

#include <QAction>
#include <QMenu>
#include <QShortcut>

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

void AddWorkspaceKeys(QWidget* workspace, Editor& editor) {
    auto bind = [&](QKeySequence keys, std::function<void()> run) {
        auto* s = new QShortcut(keys, workspace);
        s->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(s, &QShortcut::activated, workspace, std::move(run));
    };
    const struct {
        Qt::Key key;
        int dx, dy;
    } arrows[] = {
        {Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, -1}, {Qt::Key_Down, 0, 1}};
    for (const auto& a : arrows) {
        bind(QKeySequence(a.key), [&editor, a] { editor.nudge(a.dx, a.dy); });
        bind(QKeySequence(Qt::SHIFT | a.key), [&editor, a] { editor.nudge(10 * a.dx, 10 * a.dy); });
    }
    bind(QKeySequence(Qt::Key_Tab), [&editor] { editor.selectNextObject(true); });
    bind(QKeySequence(Qt::Key_Backtab), [&editor] { editor.selectNextObject(false); });
    bind(QKeySequence(Qt::SHIFT | Qt::Key_Backtab), [&editor] { editor.selectNextObject(false); });
}

} // namespace zentor
