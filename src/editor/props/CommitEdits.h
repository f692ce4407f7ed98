#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

namespace zentor {

// A one-line box of the property panel: it commits when it loses the focus to another
// control and, unless told otherwise, when Enter is pressed in it. Focus that only goes to a
// pop-up or another window does not commit: the user has not left the box.
class CommitLineEdit : public QLineEdit {
    Q_OBJECT
public:
    explicit CommitLineEdit(const QString& name, QWidget* parent = nullptr);
    void setCommitOnEnter(bool on) { commitOnEnter_ = on; }
    // Fills the box showing the start of its text; a read-only path box also carries the
    // whole text as its tip, since a long path does not fit.
    void fill(const QString& text);

signals:
    void committed();

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    bool commitOnEnter_ = true;
};

// The text object's words: several lines, Enter is a line break, commits only on leaving.
// `edited` comes for every change the user makes, not for filling the box.
class CommitTextEdit : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit CommitTextEdit(const QString& name, QWidget* parent = nullptr);
    void setTextQuietly(const QString& text);

signals:
    void committed();
    void edited();

protected:
    void focusOutEvent(QFocusEvent* e) override;

private:
    bool filling_ = false;
};

// Whether losing the focus for this reason means the user left the box.
bool LeavesBox(Qt::FocusReason reason);

} // namespace zentor
