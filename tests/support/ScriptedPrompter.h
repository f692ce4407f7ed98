#pragma once

#include "edit/Prompter.h"

#include <QList>
#include <QString>
#include <QStringList>

// Every scripted step was used, and nothing else was asked.
#define EXPECT_PROMPTS_DONE(p)                                                                     \
    EXPECT_TRUE((p).failures().isEmpty()) << (p).failures().join('\n').toStdString()

namespace zentor::test {

// A prompter that answers from a script and records what it was asked. Each expectation
// names the title and text (or dialog title and filter) it must be given; a call that does
// not match the next expectation, or comes when none is left, is recorded as a failure
// (see failures()) and answered with Cancel / an empty path / 0.
class ScriptedPrompter : public Prompter {
public:
    struct Step {
        enum Kind { Ask, File, Color, Folder } kind = Ask;
        QString title;
        QString text; // the message, or the file dialog's filter
        Answer answer = Answer::Cancel;
        QString path; // file dialog result
        uint32_t color = 0;
        Buttons buttons = Buttons::Ok;
        Icon icon = Icon::None;
        Answer defaultAnswer = Answer::Ok;
        bool checkButtons = false;
        bool save = false; // file dialog kind expected
    };

    // A yes/no question with the question icon and No as default, answered `answer`.
    ScriptedPrompter& expectQuestion(const QString& title, const QString& text, Answer answer);
    // A Yes/No/Cancel question (question icon, default No).
    ScriptedPrompter& expectYesNoCancel(const QString& title, const QString& text, Answer answer);
    // A message with only an OK button and the exclamation icon.
    ScriptedPrompter& expectWarning(const QString& title, const QString& text);
    // Any message box, buttons and icon not checked.
    ScriptedPrompter& expectAsk(const QString& title, const QString& text, Answer answer);
    ScriptedPrompter& expectFile(bool save, const QString& title, const QString& filter,
                                 const QString& result);
    ScriptedPrompter& expectColor(uint32_t result);
    ScriptedPrompter& expectFolder(const QString& title, const QString& result);

    Answer ask(const QString& title, const QString& text, Buttons buttons, Icon icon,
               Answer defaultAnswer) override;
    QString chooseFile(bool save, const QString& title, const QString& filter,
                       const QString& initFile, const QString& defExt,
                       const QString& initDir) override;
    QString chooseFolder(const QString& title, const QString& initDir) override;
    uint32_t chooseColor() override;

    // Everything that went wrong, plus the expectations never used.
    QStringList failures() const;
    // Titles and texts of every call, in order, for tests that only look.
    const QStringList& log() const { return log_; }

private:
    ScriptedPrompter& add(Step step) {
        steps_.append(std::move(step));
        return *this;
    }
    const Step* next(Step::Kind kind, const QString& what);
    QList<Step> steps_;
    qsizetype used_ = 0;
    QStringList failures_;
    QStringList log_;
};

} // namespace zentor::test
