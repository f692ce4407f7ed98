#include "editor/props/CommitEdits.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace zentor {

bool LeavesBox(Qt::FocusReason reason) {
    return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
}

CommitLineEdit::CommitLineEdit(const QString& name, QWidget* parent) : QLineEdit(parent) {
    setObjectName(name);
}

void CommitLineEdit::fill(const QString& text) {
    setText(text);
    setCursorPosition(0);
    if (isReadOnly())
        setToolTip(text);
}

void CommitLineEdit::keyPressEvent(QKeyEvent* e) {
    if (commitOnEnter_ && (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)) {
        emit committed();
        return;
    }
    QLineEdit::keyPressEvent(e);
}

void CommitLineEdit::focusOutEvent(QFocusEvent* e) {
    QLineEdit::focusOutEvent(e);
    if (LeavesBox(e->reason()))
        emit committed();
}

CommitTextEdit::CommitTextEdit(const QString& name, QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(name);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!filling_)
            emit edited();
    });
}

void CommitTextEdit::setTextQuietly(const QString& text) {
    filling_ = true;
    setPlainText(text);
    filling_ = false;
}

void CommitTextEdit::focusOutEvent(QFocusEvent* e) {
    QPlainTextEdit::focusOutEvent(e);
    if (LeavesBox(e->reason()))
        emit committed();
}

} // namespace zentor
