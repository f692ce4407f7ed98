#include "check/CheckDocument.h"
#include "generate/PackEntry.h"
#include "io/FileUtil.h"
#include "model/Document.h"
#include "model/EmptyPages.h"
#include "render/PictureCache.h"
#include "render/PictureLoader.h"

#include <QFile>

namespace zentor {

namespace {

// Drawn more than this many times its own pixels in either direction, a picture shows its
// pixels on screen and in print.
constexpr double MaxEnlargement = 1.5;

struct Source {
    int tab;
    int objectKind;
    int slot;
    QString object;
    QString field; // the path as the document holds it
    QString what;  // "picture", "tab picture", ...
    QSize drawn;   // the size it is drawn at; empty when only readability matters
};

QSize PictureSize(const QString& path, PictureCache* cache) {
    return cache ? cache->pictureSize(path) : ReadPictureSize(path);
}

bool Readable(const QString& path) {
    QFile f(path);
    return IsRegularFile(path) && f.open(QIODevice::ReadOnly);
}

void CheckSource(const Document& doc, const Source& s, bool picture, PictureCache* cache,
                 std::vector<Finding>& out) {
    if (s.field.isEmpty())
        return;
    const QString path = ResolvePath(doc.ScriptPath, s.field);
    Finding f{FindingKind::Missing, s.tab, s.objectKind, s.slot, s.object};
    const QSize size = picture ? PictureSize(path, cache) : QSize();
    if (picture ? size.isEmpty() : !Readable(path)) {
        f.message = QStringLiteral("the %1 file %2 cannot be read").arg(s.what, path);
        out.push_back(std::move(f));
        return;
    }
    if (s.drawn.isEmpty())
        return;
    const double enlarged =
        std::max(double(s.drawn.width()) / size.width(), double(s.drawn.height()) / size.height());
    if (enlarged <= MaxEnlargement)
        return;
    f.kind = FindingKind::Resolution;
    f.message = QStringLiteral("the %1 is drawn at %2 x %3 from %4 x %5 pixels (%6 times "
                               "enlarged) and looks blurred; use a larger picture")
                    .arg(s.what)
                    .arg(s.drawn.width())
                    .arg(s.drawn.height())
                    .arg(size.width())
                    .arg(size.height())
                    .arg(enlarged, 0, 'f', 1);
    out.push_back(std::move(f));
}

} // namespace

// Every file the résumé draws or plays, at the size the pages draw it.
void CheckPictures(const Document& doc, PictureCache* cache, std::vector<Finding>& out) {
    const ProfileRecord& p = doc.Profile;
    const int icon = Package::UserIconSize;
    CheckSource(doc,
                {ProfileTab, 3, 0, QStringLiteral("user icon"), p.UserIcon.trimNull(),
                 QStringLiteral("user icon"), QSize(icon, icon)},
                true, cache, out);
    CheckSource(doc,
                {ProfileTab, 3, 0, QStringLiteral("background"), doc.Header.BackPicture.trimNull(),
                 QStringLiteral("background picture"), QSize()},
                true, cache, out);
    for (int tab = 1; tab <= SlideShowTab; ++tab) {
        const TabRecord& rec = doc.Tabs[size_t(tab)];
        if (tab < SlideShowTab) {
            const ImageElement& pic = rec.Picture;
            const QSize drawn = BoxRect(pic.Left, pic.Top, pic.Width, pic.Height).size();
            CheckSource(doc,
                        {tab, 0, 0, QStringLiteral("page picture"), pic.FileName.trimNull(),
                         QStringLiteral("page picture"), drawn},
                        true, cache, out);
        }
        CheckSource(doc,
                    {tab, 0, 0, QStringLiteral("tab icon"), rec.Icon.trimNull(),
                     QStringLiteral("tab icon"), QSize()},
                    true, cache, out);
    }
    for (int slot = 1; slot <= MaxImages; ++slot) {
        const ImageElement& img = doc.Images[size_t(slot)];
        if (img.TabNo < 1 || img.TabNo >= SlideShowTab)
            continue;
        const QSize drawn = BoxRect(img.Left, img.Top, img.Width, img.Height).size();
        CheckSource(doc,
                    {img.TabNo, 1, slot, ObjectLabel(img.Name.text(), 1, slot),
                     img.FileName.trimNull(), QStringLiteral("picture"), drawn},
                    true, cache, out);
    }
    CheckSource(doc,
                {SlideShowTab, 4, 0, QStringLiteral("background music"),
                 doc.Header.BackMusic.trimNull(), QStringLiteral("music"), QSize()},
                false, cache, out);
}

void CheckEmptyPages(const Document& doc, std::vector<Finding>& out) {
    for (int tab : EmptyPages(doc))
        out.push_back({FindingKind::Empty, tab, 0, 0, QString(),
                       QStringLiteral("the page has no picture and nothing on it")});
}

} // namespace zentor
