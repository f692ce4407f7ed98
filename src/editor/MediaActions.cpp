#include "editor/MediaActions.h"

#include "edit/Editor.h"

#include <QAction>
#include <QMenu>

namespace zentor {

namespace {

void AddBefore(QMenu* menu, const char* before, QAction* a) {
    menu->insertAction(menu->findChild<QAction*>(QString::fromLatin1(before)), a);
}

} // namespace

void AddMediaActions(QMenu* file, const std::function<void(int)>& command) {
    auto* play = new QAction(QStringLiteral("&Play Résumé"), file);
    play->setObjectName(QStringLiteral("SubFilePlay"));
    play->setShortcut(QKeySequence(Qt::Key_F5));
    QObject::connect(play, &QAction::triggered, file, [command] { command(CmdPlay); });
    // Beside the generate commands: the package it plays is what they write.
    AddBefore(file, "SubFile11", play);

    auto* collect = new QAction(QStringLiteral("&Collect Media..."), file);
    collect->setObjectName(QStringLiteral("SubFileCollect"));
    QObject::connect(collect, &QAction::triggered, file, [command] { command(CmdCollectMedia); });
    AddBefore(file, "SubFile9", collect);
}

} // namespace zentor
