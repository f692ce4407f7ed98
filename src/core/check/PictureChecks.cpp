#include "check/CheckDocument.h"
#include "generate/PackEntry.h"
#include "io/FileUtil.h"
#include "model/Document.h"
#include "model/EmptyPages.h"
#include "render/PictureCache.h"
#include "render/PictureLoader.h"

#include <QFile>

#include <optional>

namespace zentor {

namespace {

// Drawn more than this many times its own pixels in either direction, a picture shows its
// pixels on screen and in print.
constexpr double MaxEnlargement = 1.5;

// A file as findings name it and as the pages draw it.
struct Source {
    int tab;
    int objectKind;
    int slot;
    QString object;
    QString what; // "picture", "tab picture", ...
    QSize drawn;  // the size it is drawn at; empty when only readability matters
    bool picture;
};

QSize Drawn(const ImageElement& e) {
    return BoxRect(e.Left, e.Top, e.Width, e.Height).size();
}

// What the résumé does with a field's file; nothing for a picture no page draws.
std::optional<Source> SourceOf(const Document& doc, const MediaField& field) {
    const int i = field.index;
    switch (field.kind) {
    case MediaFieldKind::BackPicture:
        return Source{
            ProfileTab, 3,   0, QStringLiteral("background"), QStringLiteral("background picture"),
            QSize(),    true};
    case MediaFieldKind::BackMusic:
        return Source{
            SlideShowTab, 4,    0, QStringLiteral("background music"), QStringLiteral("music"),
            QSize(),      false};
    case MediaFieldKind::UserIcon: {
        const int icon = Package::UserIconSize;
        return Source{
            ProfileTab,        3,   0, QStringLiteral("user icon"), QStringLiteral("user icon"),
            QSize(icon, icon), true};
    }
    case MediaFieldKind::TabIcon:
        return Source{i,       0,   0, QStringLiteral("tab icon"), QStringLiteral("tab icon"),
                      QSize(), true};
    case MediaFieldKind::TabPicture:
        return Source{i,
                      0,
                      0,
                      QStringLiteral("page picture"),
                      QStringLiteral("page picture"),
                      Drawn(doc.Tabs[size_t(i)].Picture),
                      true};
    case MediaFieldKind::ObjectPicture: {
        const ImageElement& img = doc.Images[size_t(i)];
        if (img.TabNo >= SlideShowTab)
            return std::nullopt;
        return Source{
            img.TabNo,  1,   i, ObjectLabel(img.Name.text(), 1, i), QStringLiteral("picture"),
            Drawn(img), true};
    }
    }
    return std::nullopt;
}

// A picture's own size, read from its header; for music an empty size. Nothing when the file
// cannot be read.
std::optional<QSize> ReadSource(const QString& path, const Source& s, PictureCache* cache) {
    if (s.picture) {
        const QSize size = cache ? cache->pictureSize(path) : ReadPictureSize(path);
        return size.isEmpty() ? std::nullopt : std::optional(size);
    }
    QFile f(path);
    return IsRegularFile(path) && f.open(QIODevice::ReadOnly) ? std::optional(QSize())
                                                              : std::nullopt;
}

// Every field the résumé draws or plays from, with what it is and what reading it gave.
void EachSource(const Document& doc, PictureCache* cache,
                const std::function<void(const Source&, const MediaField&, const QString& path,
                                         const std::optional<QSize>& size)>& f) {
    VisitMediaFields(doc, [&](const QString& stored, const MediaField& field) {
        const auto source = SourceOf(doc, field);
        if (!source)
            return;
        const QString path = ResolvePath(doc.ScriptPath, stored);
        f(*source, field, path, ReadSource(path, *source, cache));
    });
}

void CheckSource(const Source& s, const QString& path, const std::optional<QSize>& size,
                 std::vector<Finding>& out) {
    Finding f{FindingKind::Missing, s.tab, s.objectKind, s.slot, s.object, {}, {}, -1, {}};
    if (!size) {
        f.message = QStringLiteral("the %1 file %2 cannot be read").arg(s.what, path);
        out.push_back(std::move(f));
        return;
    }
    if (s.drawn.isEmpty())
        return;
    const double enlarged = std::max(double(s.drawn.width()) / size->width(),
                                     double(s.drawn.height()) / size->height());
    if (enlarged <= MaxEnlargement)
        return;
    f.kind = FindingKind::Resolution;
    f.message = QStringLiteral("the %1 is drawn at %2 x %3 from %4 x %5 pixels (%6 times "
                               "enlarged) and looks blurred; use a larger picture")
                    .arg(s.what)
                    .arg(s.drawn.width())
                    .arg(s.drawn.height())
                    .arg(size->width())
                    .arg(size->height())
                    .arg(enlarged, 0, 'f', 1);
    out.push_back(std::move(f));
}

} // namespace

void CheckPictures(const Document& doc, PictureCache* cache, std::vector<Finding>& out) {
    EachSource(doc, cache,
               [&out](const Source& s, const MediaField&, const QString& path,
                      const std::optional<QSize>& size) { CheckSource(s, path, size, out); });
}

std::vector<UnreadableMedium> UnreadableMedia(const Document& doc, PictureCache* cache) {
    std::vector<UnreadableMedium> unreadable;
    EachSource(doc, cache,
               [&unreadable](const Source&, const MediaField& field, const QString& path,
                             const std::optional<QSize>& size) {
                   if (!size)
                       unreadable.push_back({field, path});
               });
    return unreadable;
}

void CheckEmptyPages(const Document& doc, std::vector<Finding>& out) {
    for (int tab : EmptyPages(doc)) {
        Finding f;
        f.kind = FindingKind::Empty;
        f.tab = tab;
        f.message = QStringLiteral("the page has no picture and nothing on it");
        out.push_back(std::move(f));
    }
}

} // namespace zentor
