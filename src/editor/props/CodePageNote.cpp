#include "editor/props/CodePageNote.h"

#include "model/CodePage.h"
#include "model/CodePageCheck.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace zentor {
namespace {

// The note floats over the pane below its box rather than taking a row in every layout.
QLabel* makeNote(QWidget* box) {
    auto* note = new QLabel(box->parentWidget());
    note->setObjectName(box->objectName() + QStringLiteral("CodePageNote"));
    note->setStyleSheet(QStringLiteral("QLabel { background: #fff3c4; color: #7a2200; "
                                       "border: 1px solid #d9a400; padding: 1px 3px; }"));
    note->setWordWrap(true);
    note->hide();
    return note;
}

void update(QLabel* note, QWidget* box, const QString& text) {
    const QString message = UnstorableNote(CodePage::active(), text);
    note->setText(message);
    if (message.isEmpty()) {
        note->hide();
        return;
    }
    note->setFixedWidth(qMax(box->width(), 160));
    note->adjustSize();
    note->move(box->geometry().bottomLeft() + QPoint(0, 1));
    note->raise();
    note->show();
}

} // namespace

void AttachCodePageNote(QLineEdit* box) {
    QLabel* note = makeNote(box);
    QObject::connect(box, &QLineEdit::textChanged, note,
                     [note, box](const QString& text) { update(note, box, text); });
}

void AttachCodePageNote(QPlainTextEdit* box) {
    QLabel* note = makeNote(box);
    QObject::connect(box, &QPlainTextEdit::textChanged, note,
                     [note, box] { update(note, box, box->toPlainText()); });
}

} // namespace zentor
