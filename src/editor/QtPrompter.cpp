#include "editor/QtPrompter.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QMessageBox>

namespace zentor {

namespace {
// The file dialogs' name buffer holds 260 characters; a longer initial name is refused.
constexpr int kMaxPath = 260;

QMessageBox::StandardButton toQt(Prompter::Answer a) {
    switch (a) {
    case Prompter::Answer::Yes:
        return QMessageBox::Yes;
    case Prompter::Answer::No:
        return QMessageBox::No;
    case Prompter::Answer::Cancel:
        return QMessageBox::Cancel;
    case Prompter::Answer::Ok:
        break;
    }
    return QMessageBox::Ok;
}
// The window may show the hourglass while a command runs; the dialog it asks in is a window
// of its own and keeps the normal pointer.
class NormalPointer {
public:
    NormalPointer() : active_(QApplication::overrideCursor() != nullptr) {
        if (active_)
            QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~NormalPointer() {
        if (active_)
            QApplication::restoreOverrideCursor();
    }
    NormalPointer(const NormalPointer&) = delete;
    NormalPointer& operator=(const NormalPointer&) = delete;

private:
    bool active_;
};

} // namespace

Prompter::Answer QtPrompter::ask(const QString& title, const QString& text, Buttons buttons,
                                 Icon icon, Answer defaultAnswer) {
    QMessageBox box(owner_);
    box.setWindowTitle(title);
    box.setText(text);
    switch (icon) {
    case Icon::None:
        box.setIcon(QMessageBox::NoIcon);
        break;
    case Icon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    case Icon::Question:
        box.setIcon(QMessageBox::Question);
        break;
    case Icon::Exclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case Icon::Critical:
        box.setIcon(QMessageBox::Critical);
        break;
    }
    switch (buttons) {
    case Buttons::Ok:
        box.setStandardButtons(QMessageBox::Ok);
        break;
    case Buttons::YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case Buttons::YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    box.setDefaultButton(toQt(defaultAnswer));
    box.setObjectName(QStringLiteral("MessageBox"));
    NormalPointer pointer;
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Ok:
        return Answer::Ok;
    default:
        // Escape or the close box: Cancel where there is one, else the safe answer.
        return buttons == Buttons::YesNo ? Answer::No
               : buttons == Buttons::Ok  ? Answer::Ok
                                         : Answer::Cancel;
    }
}

QStringList QtPrompter::qtNameFilters(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList out;
    for (qsizetype i = 0; i < parts.size(); i += 2) {
        const QString desc = parts[i];
        if (i + 1 >= parts.size()) {
            out.append(desc);
            break;
        }
        QString patterns = parts[i + 1];
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        out.append(QStringLiteral("%1 (%2)").arg(desc, patterns));
    }
    return out;
}

QString QtPrompter::chooseFile(bool save, const QString& title, const QString& filter,
                               const QString& initFile, const QString& defExt,
                               const QString& initDir) {
    if (initFile.size() > kMaxPath) {
        ask(QApplication::applicationName() + QStringLiteral(" - FileDialog Function"),
            QStringLiteral("Filename Length Overflow"), Buttons::Ok, Icon::Exclamation, Answer::Ok);
        return QString();
    }
    QFileDialog dialog(owner_, title, initDir);
    dialog.setObjectName(QStringLiteral("FileDialog"));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    // The callers ask their own overwrite question.
    dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
    dialog.setNameFilters(qtNameFilters(filter));
    if (!defExt.isEmpty())
        dialog.setDefaultSuffix(defExt.startsWith(QLatin1Char('.')) ? defExt.mid(1) : defExt);
    if (!initFile.isEmpty())
        dialog.selectFile(initFile);
    NormalPointer pointer;
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return QString();
    return dialog.selectedFiles().constFirst();
}

QString QtPrompter::chooseFolder(const QString& title, const QString& initDir) {
    NormalPointer pointer;
    return QFileDialog::getExistingDirectory(owner_, title, initDir);
}

uint32_t QtPrompter::chooseColor() {
    // Starts from black like the system colour chooser, and a cancel gives 0 as black does.
    NormalPointer pointer;
    const QColor c = QColorDialog::getColor(Qt::black, owner_);
    if (!c.isValid())
        return 0;
    return uint32_t(c.red()) | (uint32_t(c.green()) << 8) | (uint32_t(c.blue()) << 16);
}

} // namespace zentor
