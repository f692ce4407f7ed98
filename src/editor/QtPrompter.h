#pragma once

#include "edit/Prompter.h"

#include <QStringList>

class QWidget;

namespace zentor {

// The prompter the window uses: Qt message boxes and file and colour dialogs.
class QtPrompter : public Prompter {
public:
    explicit QtPrompter(QWidget* owner = nullptr) : owner_(owner) {}
    // The window the dialogs belong to (made after the prompter it is given).
    void setOwner(QWidget* owner) { owner_ = owner; }

    Answer ask(const QString& title, const QString& text, Buttons buttons, Icon icon,
               Answer defaultAnswer) override;
    QString chooseFile(bool save, const QString& title, const QString& filter,
                       const QString& initFile, const QString& defExt,
                       const QString& initDir) override;
    QString chooseFolder(const QString& title, const QString& initDir) override;
    uint32_t chooseColor() override;

    // "desc|pattern|desc|pattern" -> Qt name filters ("desc (pattern)"); a piece without a
    // pattern is shown as its description alone.
    static QStringList qtNameFilters(const QString& filter);

private:
    QWidget* owner_;
};

} // namespace zentor
