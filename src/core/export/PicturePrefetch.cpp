#include "export/PicturePrefetch.h"

#include "generate/PictureJobs.h"
#include "io/FileUtil.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "render/PageCompositor.h"
#include "render/PictureCache.h"

#include <QThread>

namespace zentor {

void PrefetchPictures(const Document& doc, const ProcessContext& ctx, PictureCache& cache) {
    std::vector<PictureJobs::Job> jobs;
    const auto add = [&](const QString& field, QRect box) {
        const QString path = ResolvePath(doc.ScriptPath, field);
        if (path.isEmpty() || box.width() <= 0 || box.height() <= 0)
            return;
        jobs.push_back([&cache, path, size = box.size()] {
            cache.picture(path, size);
            return PictureJobs::Result(QByteArray());
        });
    };
    for (int tab = 1; tab <= 7; ++tab) {
        const ImageElement& pic = doc.Tabs[size_t(tab)].Picture;
        add(pic.FileName.trimmed(), BoxRect(pic.Left, pic.Top, pic.Width, pic.Height));
    }
    for (int i = 1; i <= MaxImages; ++i) {
        const ImageElement& img = doc.Images[size_t(i)];
        if (img.TabNo >= 1 && img.TabNo <= 7)
            add(img.FileName.trimmed(), BoxRect(img.Left, img.Top, img.Width, img.Height));
    }
    const QString back = doc.Header.BackPicture.trimNull();
    add(back.isEmpty() ? ctx.defaultBackPicture() : back, QRect(QPoint(0, 0), FrameSize(doc)));
    const size_t count = jobs.size();
    PictureJobs run(std::move(jobs), std::max(1, QThread::idealThreadCount()));
    for (size_t i = 0; i < count; ++i)
        run.take(i);
}

} // namespace zentor
