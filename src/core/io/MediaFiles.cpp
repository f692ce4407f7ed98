#include "io/MediaFiles.h"

#include "io/FileUtil.h"
#include "model/CodePage.h"

#include <QDir>
#include <QDirIterator>
#include <QHash>

namespace zentor {

namespace {

template <int N> void Visit(FixedString<N>& field, const MediaVisitor& f) {
    const QString stored = field.trimNull();
    if (stored.isEmpty())
        return;
    f(stored, [&field](const QString& text) {
        // A path cut at the field's end, or with characters the code page lacks, would name
        // another file: such a path is not stored.
        const CodePage& page = CodePage::active();
        if (page.decode(page.encode(text, N)) != text)
            return false;
        field = text;
        return true;
    });
}

// The one list of the fields that name files, for the readers and the writers alike.
template <class Doc, class F> void EachMediaField(Doc& doc, F&& f) {
    using K = MediaFieldKind;
    f(doc.Header.BackPicture, MediaField{K::BackPicture});
    f(doc.Header.BackMusic, MediaField{K::BackMusic});
    f(doc.Profile.UserIcon, MediaField{K::UserIcon});
    for (int tab = 1; tab <= SlideShowTab; ++tab)
        f(doc.Tabs[size_t(tab)].Icon, MediaField{K::TabIcon, tab});
    // The show page draws tab 1's picture; the profile and show records carry none.
    for (int tab = 1; tab < SlideShowTab; ++tab)
        f(doc.Tabs[size_t(tab)].Picture.FileName, MediaField{K::TabPicture, tab});
    for (int slot = 1; slot <= MaxImages; ++slot)
        if (inUse(doc.Images[size_t(slot)]))
            f(doc.Images[size_t(slot)].FileName, MediaField{K::ObjectPicture, slot});
}

} // namespace

void ForEachMediaField(Document& doc, const MediaVisitor& f) {
    EachMediaField(doc, [&f](auto& field, const MediaField&) { Visit(field, f); });
}

void VisitMediaFields(const Document& doc, const MediaFieldReader& f) {
    EachMediaField(doc, [&f](const auto& field, const MediaField& which) {
        const QString stored = field.trimNull();
        if (!stored.isEmpty())
            f(stored, which);
    });
}

QStringList MediaFiles(const Document& doc) {
    QStringList files;
    VisitMediaFields(doc, [&](const QString& stored, const MediaField&) {
        const QString path = ResolvePath(doc.ScriptPath, stored);
        if (!files.contains(path))
            files.append(path);
    });
    return files;
}

QStringList MissingMedia(const Document& doc) {
    QStringList missing;
    for (const QString& path : MediaFiles(doc))
        if (!IsRegularFile(path))
            missing.append(path);
    return missing;
}

QString StoredFileName(const QString& stored) {
    const qsizetype cut =
        std::max(stored.lastIndexOf(QLatin1Char('/')), stored.lastIndexOf(QLatin1Char('\\')));
    return stored.mid(cut + 1);
}

int FindMissingMedia(Document& doc, const QString& folder) {
    const QStringList missing = MissingMedia(doc);
    if (missing.isEmpty() || folder.isEmpty())
        return 0;
    QHash<QString, QString> wanted; // file name -> the file found, empty while not found
    for (const QString& path : missing)
        wanted.insert(StoredFileName(path), QString());
    const QString root = QDir::cleanPath(QDir(folder).absolutePath());
    QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString found = it.next();
        auto w = wanted.find(it.fileName());
        if (w == wanted.end() || !IsRegularFile(found))
            continue;
        if (w->isEmpty() || found.count(QLatin1Char('/')) < w->count(QLatin1Char('/')))
            *w = found;
    }
    QStringList pointed;
    ForEachMediaField(doc, [&](const QString& stored, const auto& store) {
        const QString path = ResolvePath(doc.ScriptPath, stored);
        if (!missing.contains(path))
            return;
        const QString found = wanted.value(StoredFileName(path));
        if (!found.isEmpty() && store(found) && !pointed.contains(path))
            pointed.append(path);
    });
    if (!pointed.isEmpty())
        doc.Dirty = true;
    return int(pointed.size());
}

} // namespace zentor
