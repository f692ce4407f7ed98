#pragma once

#include <QString>

#include <cstdint>

namespace zentor {

// Every question, message and file or colour choice goes through this interface: the
// editor answers with Qt dialogs, tests with a scripted fake that checks what it was asked.
class Prompter {
public:
    enum class Icon { None, Information, Question, Exclamation, Critical };
    enum class Buttons { Ok, YesNo, YesNoCancel };
    enum class Answer { Ok, Yes, No, Cancel };

    virtual ~Prompter() = default;

    // A message box. `defaultAnswer` is the button Enter presses.
    virtual Answer ask(const QString& title, const QString& text, Buttons buttons, Icon icon,
                       Answer defaultAnswer) = 0;

    // A file dialog. `filter` uses the "|" syntax: description|pattern|description|pattern.
    // Returns the chosen full path, or an empty string when cancelled.
    virtual QString chooseFile(bool save, const QString& title, const QString& filter,
                               const QString& initFile = QString(),
                               const QString& defExt = QString(),
                               const QString& initDir = QString()) = 0;

    // A folder chooser: the chosen folder, or an empty string when cancelled. Programs
    // without one (the CLI) never get a folder.
    virtual QString chooseFolder(const QString& title, const QString& initDir = QString()) {
        Q_UNUSED(title);
        Q_UNUSED(initDir);
        return QString();
    }

    // The colour chooser: 0x00BBGGRR, or 0 when cancelled (the same as black).
    virtual uint32_t chooseColor() = 0;

    // Shorthands for the two kinds of box the program shows.
    bool askYesNo(const QString& title, const QString& text) {
        return ask(title, text, Buttons::YesNo, Icon::Question, Answer::No) == Answer::Yes;
    }
    void warn(const QString& title, const QString& text) {
        ask(title, text, Buttons::Ok, Icon::Exclamation, Answer::Ok);
    }
};

} // namespace zentor
