#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QMenu;

namespace zentor {

class Editor;

// File > Open Recent: the last eight projects opened or saved, kept in the user's settings.
// Choosing one opens it like Open; one that is gone is told about and taken off the list.
class RecentFilesMenu : public QObject {
public:
    RecentFilesMenu(QMenu* menu, Editor& editor, std::function<void()> commitPending);

    // A project was opened or saved.
    void add(const QString& path);
    QMenu* menu() const { return menu_; }

private:
    void rebuild();
    void open(const QString& path);

    QMenu* menu_;
    Editor& editor_;
    std::function<void()> commitPending_;
};

} // namespace zentor
