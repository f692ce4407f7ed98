#include "editor/WorkspaceWidgets.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace zentor {

WorkspaceItem::WorkspaceItem(QWidget* parent) : QWidget(parent) {}

QPoint WorkspaceItem::toWorkspace(const QPointF& local) const {
    // The workspace is the canvas itself, or the parent every frame control lies on.
    const QPoint p = local.toPoint();
    if (qobject_cast<const WorkspaceCanvas*>(this))
        return p;
    return parentWidget() ? mapToParent(p) : p;
}

void WorkspaceItem::mousePressEvent(QMouseEvent* e) {
    emit pressed(e->button(), toWorkspace(e->position()));
}

void WorkspaceItem::mouseMoveEvent(QMouseEvent* e) {
    emit moved(toWorkspace(e->position()));
}

void WorkspaceItem::mouseReleaseEvent(QMouseEvent* e) {
    emit released(e->button(), rect().contains(e->position().toPoint()));
}

void WorkspaceItem::mouseDoubleClickEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton)
        emit doubleClicked();
}

WorkspaceCanvas::WorkspaceCanvas(QWidget* parent) : WorkspaceItem(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);         // the profile page's ring reacts to hovering
    setFocusPolicy(Qt::ClickFocus); // a press leaves (and so commits) the box being edited
}

void WorkspaceCanvas::setBuffer(QImage page) {
    buffer_ = std::move(page);
    update();
}

void WorkspaceCanvas::paintEvent(QPaintEvent* e) {
    QPainter p(this);
    const QRect shown = e->rect().intersected(buffer_.rect());
    if (!shown.isEmpty())
        p.drawImage(shown, buffer_, shown);
    for (const QRect& r : QRegion(e->rect()).subtracted(shown))
        p.fillRect(r, Qt::white);
}

SelectionFrame::SelectionFrame(QWidget* parent) : WorkspaceItem(parent) {
    setAttribute(Qt::WA_NoSystemBackground);
}

void SelectionFrame::paintEvent(QPaintEvent*) {
    // A dotted outline in two tones stays visible on light and dark pages alike.
    QPainter p(this);
    const QRect r = rect().adjusted(0, 0, -1, -1);
    p.setPen(QPen(Qt::white, 1));
    p.drawRect(r);
    p.setPen(QPen(QColor(30, 30, 30), 1, Qt::DotLine));
    p.drawRect(r);
}

SizeHandle::SizeHandle(int index, QWidget* parent) : WorkspaceItem(parent), index_(index) {
    static const Qt::CursorShape shapes[8] = {
        Qt::SizeFDiagCursor, Qt::SizeHorCursor,   Qt::SizeBDiagCursor, Qt::SizeVerCursor,
        Qt::SizeVerCursor,   Qt::SizeBDiagCursor, Qt::SizeHorCursor,   Qt::SizeFDiagCursor};
    setCursor(shapes[index & 7]);
}

void SizeHandle::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), QColor(30, 30, 30));
    p.fillRect(rect().adjusted(1, 1, -1, -1), Qt::white);
}

InPlaceEdit::InPlaceEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setFrameShape(QFrame::Box);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
}

void InPlaceEdit::focusOutEvent(QFocusEvent* e) {
    QPlainTextEdit::focusOutEvent(e);
    if (e->reason() != Qt::ActiveWindowFocusReason && e->reason() != Qt::PopupFocusReason)
        emit focusLost();
}

void InPlaceEdit::keyPressEvent(QKeyEvent* e) {
    // Enter starts a new line in a text; Ctrl+Enter finishes the edit.
    if ((e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) &&
        (e->modifiers() & Qt::ControlModifier)) {
        emit commitRequested();
        return;
    }
    QPlainTextEdit::keyPressEvent(e);
}

} // namespace zentor
