#include "ScriptedPrompter.h"

// Steps name only the fields they set; the rest keep their defaults on purpose.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

namespace zentor::test {

namespace {
// A message box whose buttons, icon and default button are checked too.
ScriptedPrompter::Step Box(const QString& title, const QString& text, Prompter::Answer answer,
                           Prompter::Buttons buttons, Prompter::Icon icon) {
    const Prompter::Answer byDefault =
        buttons == Prompter::Buttons::Ok ? Prompter::Answer::Ok : Prompter::Answer::No;
    return {.title = title,
            .text = text,
            .answer = answer,
            .buttons = buttons,
            .icon = icon,
            .defaultAnswer = byDefault,
            .checkButtons = true};
}
} // namespace

ScriptedPrompter& ScriptedPrompter::expectQuestion(const QString& title, const QString& text,
                                                   Answer answer) {
    return add(Box(title, text, answer, Buttons::YesNo, Icon::Question));
}

ScriptedPrompter& ScriptedPrompter::expectYesNoCancel(const QString& title, const QString& text,
                                                      Answer answer) {
    return add(Box(title, text, answer, Buttons::YesNoCancel, Icon::Question));
}

ScriptedPrompter& ScriptedPrompter::expectWarning(const QString& title, const QString& text) {
    return add(Box(title, text, Answer::Ok, Buttons::Ok, Icon::Exclamation));
}

ScriptedPrompter& ScriptedPrompter::expectAsk(const QString& title, const QString& text,
                                              Answer answer) {
    return add({.title = title, .text = text, .answer = answer});
}

ScriptedPrompter& ScriptedPrompter::expectFile(bool save, const QString& title,
                                               const QString& filter, const QString& result) {
    return add({.kind = Step::File, .title = title, .text = filter, .path = result, .save = save});
}

ScriptedPrompter& ScriptedPrompter::expectColor(uint32_t result) {
    return add({.kind = Step::Color, .color = result});
}

ScriptedPrompter& ScriptedPrompter::expectFolder(const QString& title, const QString& result) {
    return add({.kind = Step::Folder, .title = title, .path = result});
}

const ScriptedPrompter::Step* ScriptedPrompter::next(Step::Kind kind, const QString& what) {
    log_.append(what);
    if (used_ >= steps_.size()) {
        failures_.append(QStringLiteral("unexpected call: ") + what);
        return nullptr;
    }
    const Step& s = steps_[used_++];
    if (s.kind != kind) {
        failures_.append(QStringLiteral("expected another kind of prompt, got: ") + what);
        return nullptr;
    }
    return &s;
}

Prompter::Answer ScriptedPrompter::ask(const QString& title, const QString& text, Buttons buttons,
                                       Icon icon, Answer defaultAnswer) {
    const Step* s = next(Step::Ask, title + QStringLiteral(" | ") + text);
    if (!s)
        return Answer::Cancel;
    if (s->title != title || s->text != text)
        failures_.append(QStringLiteral("asked \"%1\" / \"%2\", expected \"%3\" / \"%4\"")
                             .arg(title, text, s->title, s->text));
    if (s->checkButtons &&
        (s->buttons != buttons || s->icon != icon || s->defaultAnswer != defaultAnswer))
        failures_.append(
            QStringLiteral("wrong buttons, icon or default button for \"%1\"").arg(text));
    return s->answer;
}

QString ScriptedPrompter::chooseFile(bool save, const QString& title, const QString& filter,
                                     const QString&, const QString&, const QString&) {
    const Step* s =
        next(Step::File, QStringLiteral("file: ") + title + QStringLiteral(" | ") + filter);
    if (!s)
        return QString();
    if (s->title != title || s->text != filter || s->save != save)
        failures_.append(
            QStringLiteral("file dialog \"%1\" (%2, %3), expected \"%4\" (%5, %6)")
                .arg(title, filter, save ? QStringLiteral("save") : QStringLiteral("open"),
                     s->title, s->text, s->save ? QStringLiteral("save") : QStringLiteral("open")));
    return s->path;
}

QString ScriptedPrompter::chooseFolder(const QString& title, const QString&) {
    const Step* s = next(Step::Folder, QStringLiteral("folder: ") + title);
    if (s && s->title != title)
        failures_.append(
            QStringLiteral("folder dialog \"%1\", expected \"%2\"").arg(title, s->title));
    return s ? s->path : QString();
}

uint32_t ScriptedPrompter::chooseColor() {
    const Step* s = next(Step::Color, QStringLiteral("colour dialog"));
    return s ? s->color : 0;
}

QStringList ScriptedPrompter::failures() const {
    QStringList all = failures_;
    for (qsizetype i = used_; i < steps_.size(); ++i)
        all.append(QStringLiteral("never asked: ") + steps_[i].title + QStringLiteral(" | ") +
                   steps_[i].text);
    return all;
}

} // namespace zentor::test
