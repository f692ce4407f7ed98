#include "editor/check/SpellUnderline.h"

#include "check/WordScan.h"
#include "editor/check/SpellService.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSyntaxHighlighter>
#include <QTextBlock>

#include <functional>
#include <optional>

namespace zentor {

namespace {

// The most suggestions a menu lists; the dictionary's best come first.
constexpr int MenuSuggestions = 8;

QTextCharFormat MisspeltFormat() {
    QTextCharFormat f;
    f.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    f.setUnderlineColor(Qt::red);
    return f;
}

class SpellHighlighter : public QSyntaxHighlighter {
public:
    SpellHighlighter(QTextDocument* doc, SpellService& spelling)
        : QSyntaxHighlighter(doc), spelling_(spelling) {}

protected:
    void highlightBlock(const QString& text) override {
        static const QTextCharFormat format = MisspeltFormat();
        for (const WordSpan& w : spelling_.misspelt(text))
            setFormat(w.start, w.length, format);
    }

private:
    SpellService& spelling_;
};

// The misspelt word that character `at` of `text` lies in or ends.
std::optional<WordSpan> MisspeltAt(SpellService& spelling, const QString& text, int at) {
    for (const WordSpan& w : spelling.misspelt(text))
        if (at >= w.start && at <= w.start + w.length)
            return w;
    return std::nullopt;
}

// Puts the spelling entries at the top of `menu`, for `word`; `replace` writes a suggestion
// in its place.
void AddSpellingEntries(QMenu* menu, SpellService& spelling, const QString& word,
                        const std::function<void(const QString&)>& replace) {
    QAction* first = menu->actions().value(0);
    QList<QAction*> entries;
    const QStringList suggestions = spelling.suggestions(word).mid(0, MenuSuggestions);
    for (const QString& s : suggestions) {
        auto* a = new QAction(s, menu);
        QObject::connect(a, &QAction::triggered, menu, [replace, s] { replace(s); });
        entries.append(a);
    }
    if (suggestions.isEmpty()) {
        auto* none = new QAction(QStringLiteral("(no suggestions)"), menu);
        none->setEnabled(false);
        entries.append(none);
    }
    auto* separator = new QAction(menu);
    separator->setSeparator(true);
    auto* add = new QAction(QStringLiteral("Add to Dictionary"), menu);
    add->setObjectName(QStringLiteral("SpellAdd"));
    QObject::connect(add, &QAction::triggered, &spelling,
                     [&spelling, word] { spelling.addToDictionary(word); });
    auto* ignore = new QAction(QStringLiteral("Ignore"), menu);
    ignore->setObjectName(QStringLiteral("SpellIgnore"));
    QObject::connect(ignore, &QAction::triggered, &spelling,
                     [&spelling, word] { spelling.ignore(word); });
    auto* after = new QAction(menu);
    after->setSeparator(true);
    entries << separator << add << ignore << after;
    menu->insertActions(first, entries);
    entries.first()->setObjectName(QStringLiteral("SpellSuggestion"));
}

// Underlines in a one-line box: formats relative to the cursor, as input methods give them.
void UnderlineLine(QLineEdit* box, SpellService& spelling) {
    static const QTextCharFormat format = MisspeltFormat();
    QList<QInputMethodEvent::Attribute> formats;
    for (const WordSpan& w : spelling.misspelt(box->text()))
        formats.append(
            {QInputMethodEvent::TextFormat, w.start - box->cursorPosition(), w.length, format});
    QInputMethodEvent e(QString(), formats);
    QCoreApplication::sendEvent(box, &e);
}

} // namespace

void UnderlineSpelling(QPlainTextEdit* box, SpellService& spelling) {
    auto* highlighter = new SpellHighlighter(box->document(), spelling);
    QObject::connect(&spelling, &SpellService::changed, highlighter,
                     &QSyntaxHighlighter::rehighlight);
    box->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(box, &QWidget::customContextMenuRequested, box, [box, &spelling](QPoint p) {
        std::unique_ptr<QMenu> menu(box->createStandardContextMenu(p));
        const QTextCursor at = box->cursorForPosition(p);
        const QTextBlock block = at.block();
        if (const auto w = MisspeltAt(spelling, block.text(), at.positionInBlock())) {
            const int start = block.position() + w->start;
            const int end = start + w->length;
            AddSpellingEntries(menu.get(), spelling, block.text().mid(w->start, w->length),
                               [box, start, end](const QString& s) {
                                   QTextCursor c(box->document());
                                   c.setPosition(start);
                                   c.setPosition(end, QTextCursor::KeepAnchor);
                                   c.insertText(s);
                                   box->setTextCursor(c);
                               });
        }
        menu->exec(box->viewport()->mapToGlobal(p));
    });
}

void UnderlineSpelling(QLineEdit* box, SpellService& spelling) {
    auto refresh = [box, &spelling] { UnderlineLine(box, spelling); };
    // Only new words change the underlines: moving the cursor keeps them where they are.
    QObject::connect(box, &QLineEdit::textChanged, box, refresh);
    QObject::connect(&spelling, &SpellService::changed, box, refresh);
    box->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(box, &QWidget::customContextMenuRequested, box, [box, &spelling](QPoint p) {
        std::unique_ptr<QMenu> menu(box->createStandardContextMenu());
        if (const auto w = MisspeltAt(spelling, box->text(), box->cursorPositionAt(p))) {
            AddSpellingEntries(menu.get(), spelling, box->text().mid(w->start, w->length),
                               [box, w](const QString& s) {
                                   box->setSelection(w->start, w->length);
                                   box->insert(s);
                               });
        }
        menu->exec(box->mapToGlobal(p));
    });
}

} // namespace zentor
