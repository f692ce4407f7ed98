#pragma once

#include <QImage>
#include <QPlainTextEdit>
#include <QPoint>
#include <QWidget>

namespace zentor {

// A control on (or being) the workspace that reports its mouse events in workspace
// pixels, so that a drag keeps one coordinate system while the control itself moves.
class WorkspaceItem : public QWidget {
    Q_OBJECT
public:
    explicit WorkspaceItem(QWidget* parent);

signals:
    void pressed(Qt::MouseButton button, QPoint workspacePos);
    void moved(QPoint workspacePos);
    void released(Qt::MouseButton button, bool inside);
    void doubleClicked();

protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
    QPoint toWorkspace(const QPointF& local) const;
};

// PicWorkSpace: the page, painted into a back buffer; painting the widget only copies it,
// so moving the widget (scrolling) or the frame over it never redraws the page.
class WorkspaceCanvas : public WorkspaceItem {
    Q_OBJECT
public:
    explicit WorkspaceCanvas(QWidget* parent);
    const QImage& buffer() const { return buffer_; }
    // The page picture to show; where it does not reach, the workspace shows white.
    void setBuffer(QImage page);

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    QImage buffer_;
};

// LabAdd: the transparent selection frame over the selected object.
class SelectionFrame : public WorkspaceItem {
    Q_OBJECT
public:
    explicit SelectionFrame(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* e) override;
};

// LabSize(k): one of the eight square handles of the frame.
class SizeHandle : public WorkspaceItem {
    Q_OBJECT
public:
    SizeHandle(int index, QWidget* parent);
    int index() const { return index_; }

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    int index_;
};

// TxtAdd: the in-place text editor over a text object. Reports leaving the box (not when
// the window merely loses activation or the box's own context menu opens) and Ctrl+Enter.
class InPlaceEdit : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit InPlaceEdit(QWidget* parent);

signals:
    void focusLost();
    void commitRequested();

protected:
    void focusOutEvent(QFocusEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
};

} // namespace zentor
