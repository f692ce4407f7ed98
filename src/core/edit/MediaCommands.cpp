#include "edit/Editor.h"
#include "edit/Locations.h"
#include "edit/StatusText.h"
#include "io/CollectMedia.h"
#include "io/MediaFiles.h"

#include <QDir>
#include <QFileInfo>

namespace zentor {

namespace {

const QString PlayTitle = QStringLiteral("Play Résumé");
const QString CollectTitle = QStringLiteral("Collect Media");
constexpr int ListedFiles = 12; // a longer list would not fit a message box

QString FileList(const QStringList& files) {
    QStringList lines = files.mid(0, ListedFiles);
    if (files.size() > ListedFiles)
        lines.append(QStringLiteral("... and %1 more").arg(files.size() - ListedFiles));
    return QDir::toNativeSeparators(lines.join(QLatin1Char('\n')));
}

} // namespace

void Editor::play() {
    view_.setPointer(EditorView::PointerTarget::Window, EditorView::Pointer::Hourglass);
    const QString written = generate_ ? generate_(false, PlayPackagePath(ctx_, doc_)) : QString();
    view_.setPointer(EditorView::PointerTarget::Window, EditorView::Pointer::Normal);
    // A package that could not be written was already told by the generator.
    if (written.isEmpty())
        return;
    status_ = PackageStatus(doc_, written);
    const QString player = PlayerProgram(ctx_);
    if (!launch_ || !launch_(player, {written}))
        prompter_.warn(PlayTitle, QStringLiteral("Can't start the player: ") +
                                      QDir::toNativeSeparators(player));
}

void Editor::collectMedia() {
    // The folder goes beside the project, so the project needs a place first.
    if (doc_.ScriptPath.isEmpty() && !saveForQuestion())
        return;
    const QString folder = MediaFolderFor(doc_.ScriptPath);
    const CollectResult r = CollectMedia(doc_, folder);
    recordChange(CollectTitle);
    RefreshTab(st_.CurrentTab);
    status_ = QStringLiteral("Collected %1 %2 into %3")
                  .arg(r.collected)
                  .arg(r.collected == 1 ? QStringLiteral("file") : QStringLiteral("files"))
                  .arg(QDir::toNativeSeparators(folder));
    if (!r.missing.isEmpty())
        prompter_.warn(CollectTitle,
                       QStringLiteral("These files could not be copied and stay where they "
                                      "were:\n") +
                           FileList(r.missing));
}

bool Editor::offerMissingMedia() {
    const QStringList missing = MissingMedia(doc_);
    if (missing.isEmpty())
        return false;
    if (!prompter_.askYesNo(QStringLiteral("Missing Media"),
                            QStringLiteral("These files of the project cannot be found:\n") +
                                FileList(missing) +
                                QStringLiteral("\n\nDo you want to look for them in a folder?")))
        return false;
    const QString folder = prompter_.chooseFolder(QStringLiteral("Find Missing Media"),
                                                  QFileInfo(doc_.ScriptPath).absolutePath());
    if (folder.isEmpty())
        return false;
    const int found = FindMissingMedia(doc_, folder);
    status_ = QStringLiteral("Found %1 of %2 missing files").arg(found).arg(missing.size());
    if (found == 0)
        return false;
    recordChange(QStringLiteral("Find Missing Media"));
    return true;
}

} // namespace zentor
