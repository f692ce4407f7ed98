#include "editor/check/CheckUi.h"

#include "check/CheckDocument.h"
#include "check/ShowFinding.h"
#include "edit/Editor.h"
#include "editor/check/CheckPanel.h"
#include "editor/check/SpellService.h"
#include "editor/check/SpellUnderline.h"
#include "model/Document.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QThread>

namespace zentor {

CheckUi::CheckUi(QMainWindow* window, EditorView& view, Editor& editor, PictureCache& cache,
                 QMenu* editMenu)
    : QObject(window), window_(window), view_(view), editor_(editor), cache_(cache),
      spelling_(new SpellService(editor.document(), this)), panel_(new CheckPanel(window)) {
    // The boxes whose words the résumé shows: a text's words, in place and in the panel,
    // and the page's name.
    for (const char* name : {"TxtWord", "TxtAdd"})
        if (auto* box = window->findChild<QPlainTextEdit*>(QLatin1String(name)))
            UnderlineSpelling(box, *spelling_);
    if (auto* box = window->findChild<QLineEdit*>(QStringLiteral("TxtTabName")))
        UnderlineSpelling(box, *spelling_);

    window->addDockWidget(Qt::RightDockWidgetArea, panel_);
    panel_->hide();
    connect(panel_, &CheckPanel::checkAgain, this, [this] { runCheck(true); });
    // A word accepted from a box's menu leaves the list too; what is being typed stays open.
    connect(spelling_, &SpellService::changed, this, [this] {
        if (panel_->isVisible())
            runCheck(false);
    });
    connect(panel_, &CheckPanel::languageChosen, spelling_, &SpellService::setLanguage);
    connect(panel_, &CheckPanel::chosen, this, [this](const Finding& f) {
        ShowFinding(editor_, view_, f);
        selectWord(f);
    });

    editMenu->addSeparator();
    QAction* check = editMenu->addAction(QStringLiteral("Check Résumé..."));
    check->setObjectName(QStringLiteral("SubEditCheck"));
    check->setShortcut(QKeySequence(Qt::Key_F7));
    connect(check, &QAction::triggered, this, &CheckUi::openPanel);
}

// The window's dictionary and decoded pictures; without a dictionary the check says which
// language has none.
CheckOptions CheckUi::options() const {
    CheckOptions o;
    o.speller = spelling_->speller();
    o.language = spelling_->language();
    o.cache = &cache_;
    return o;
}

void CheckUi::runCheck(bool commitTyping) {
    if (commitTyping)
        editor_.commitInPlaceEdit();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::vector<Finding> findings = CheckDocument(editor_.document(), options());
    QApplication::restoreOverrideCursor();
    panel_->setLanguages(AvailableDictionaries(), spelling_->language());
    panel_->showFindings(editor_.document(), std::move(findings));
}

// A misspelt word of a text is selected in the text's box, ready to be retyped.
void CheckUi::selectWord(const Finding& f) {
    auto* box = window_->findChild<QPlainTextEdit*>(QStringLiteral("TxtWord"));
    if (!box || f.kind != FindingKind::Spelling || f.objectKind != 2 || f.place < 0)
        return;
    // The box holds "\r\n" as one paragraph break.
    const QString text = editor_.document().Texts[size_t(f.slot)].Text.text();
    const int at = f.place - int(text.left(f.place).count(QStringLiteral("\r\n")));
    QTextCursor c(box->document());
    c.setPosition(std::min(at, c.document()->characterCount() - 1));
    c.setPosition(std::min(at + int(f.word.size()), c.document()->characterCount() - 1),
                  QTextCursor::KeepAnchor);
    box->setTextCursor(c);
    box->ensureCursorVisible();
}

void CheckUi::openPanel() {
    runCheck(true);
    const bool first = panel_->isHidden() && !shownOnce_;
    panel_->show();
    panel_->raise();
    if (first) // wide enough to read the problems beside the page
        window_->resizeDocks({panel_}, {480}, Qt::Horizontal);
    shownOnce_ = true;
}

void CheckUi::reportAfterOutput() {
    auto doc = std::make_shared<const Document>(editor_.document());
    auto speller = spelling_->sharedSpeller();
    CheckOptions o = options();
    auto remaining = std::make_shared<size_t>(0);
    QThread* worker = QThread::create(
        [doc, speller, o, remaining] { *remaining = CheckDocument(*doc, o).size(); });
    worker->setParent(this);
    // Queued to the window's thread, so the command has set its own status by then.
    connect(worker, &QThread::finished, this, [this, remaining] {
        if (*remaining == 0)
            return;
        const auto* status = window_->findChild<QLabel*>(QStringLiteral("StatusPanel1"));
        view_.setStatusText(StatusAfterOutput(status ? status->text() : QString(), *remaining));
    });
    connect(worker, &QThread::finished, worker, &QObject::deleteLater);
    worker->start(QThread::LowPriority);
}

CheckUi::~CheckUi() {
    for (QThread* worker : findChildren<QThread*>(Qt::FindDirectChildrenOnly))
        worker->wait();
}

} // namespace zentor
