#include "editor/RecentFilesMenu.h"

#include "edit/Editor.h"
#include "edit/RecentFiles.h"

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QSettings>

namespace zentor {

namespace {

const QString Key = QStringLiteral("recentFiles");

QStringList Stored() {
    return QSettings().value(Key).toStringList().mid(0, MaxRecentFiles);
}

void Store(const QStringList& list) {
    QSettings().setValue(Key, list);
}

} // namespace

RecentFilesMenu::RecentFilesMenu(QMenu* menu, Editor& editor, std::function<void()> commitPending)
    : QObject(menu), menu_(menu), editor_(editor), commitPending_(std::move(commitPending)) {
    menu_->setObjectName(QStringLiteral("MenuRecent"));
    rebuild();
}

void RecentFilesMenu::add(const QString& path) {
    Store(WithRecentFile(Stored(), path));
    rebuild();
}

void RecentFilesMenu::open(const QString& path) {
    commitPending_();
    if (!editor_.openRecent(path)) {
        QStringList list = Stored();
        list.removeAll(path);
        Store(list);
        rebuild();
    }
}

void RecentFilesMenu::rebuild() {
    menu_->clear();
    const QStringList list = Stored();
    int n = 0;
    for (const QString& path : list) {
        ++n;
        QString shown = QDir::toNativeSeparators(path);
        shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* a = menu_->addAction(QStringLiteral("&%1 %2").arg(n).arg(shown));
        a->setObjectName(QStringLiteral("Recent%1").arg(n));
        // Queued: opening rebuilds this menu, which must not delete the action mid-signal.
        connect(
            a, &QAction::triggered, this, [this, path] { open(path); }, Qt::QueuedConnection);
    }
    menu_->setEnabled(!list.isEmpty());
}

} // namespace zentor
