#include "editor/ClipboardActions.h"

#include "edit/Editor.h"
#include "edit/ObjectClipboard.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

namespace zentor {

namespace {

void Put(const QByteArray& clip) {
    if (clip.isEmpty())
        return;
    auto* data = new QMimeData;
    data->setData(QString::fromLatin1(ObjectMimeType), clip);
    QGuiApplication::clipboard()->setMimeData(data);
}

QByteArray Take() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data ? data->data(QString::fromLatin1(ObjectMimeType)) : QByteArray();
}

} // namespace

void AddClipboardActions(QMenu* edit, Editor& editor, std::function<void()> commitPending) {
    // After Undo and Redo, before the original items.
    QAction* before = edit->actions().value(3);
    auto add = [&](const char* caption, const char* name, QKeySequence keys,
                   std::function<void()> run) {
        auto* a = new QAction(QString::fromUtf8(caption), edit);
        a->setObjectName(QString::fromLatin1(name));
        a->setShortcut(keys);
        edit->insertAction(before, a);
        QObject::connect(a, &QAction::triggered, edit, [commitPending, run] {
            commitPending();
            run();
        });
    };
    add("Cu&t", "EditCut", QKeySequence::Cut, [&editor] { Put(editor.cutSelection()); });
    add("&Copy", "EditCopy", QKeySequence::Copy, [&editor] { Put(editor.copySelection()); });
    add("&Paste", "EditPaste", QKeySequence::Paste, [&editor] { editor.paste(Take()); });
    add("D&uplicate", "EditDuplicate", QKeySequence(Qt::CTRL | Qt::Key_D),
        [&editor] { editor.duplicate(); });
    edit->insertSeparator(before);
}

} // namespace zentor
