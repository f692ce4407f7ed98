#include "export/PackageShowFrames.h"

#include "edit/Prompter.h"
#include "generate/PackageReader.h"
#include "generate/RenderedPictures.h"
#include "generate/ResumeGenerator.h"
#include "io/FileUtil.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "render/PageCompositor.h"

#include <algorithm>

namespace zentor {
namespace {

show::ShowSettings RunningShow(const PackageContents& package) {
    show::ShowSettings settings = show::ShowSettingsOf(package.Info.Header);
    settings.AutoRun = true;
    return settings;
}

// Generating asks nothing here: what it would say goes into the export's warnings.
class CollectingPrompter : public Prompter {
public:
    explicit CollectingPrompter(QStringList& said) : said_(said) {}
    Answer ask(const QString&, const QString& text, Buttons, Icon, Answer) override {
        said_ += text;
        return Answer::Ok;
    }
    QString chooseFile(bool, const QString&, const QString&, const QString&, const QString&,
                       const QString&) override {
        return QString();
    }
    uint32_t chooseColor() override { return 0; }

private:
    QStringList& said_;
};

} // namespace

PackageShowFrames::PackageShowFrames(const PackageContents& package, const ResImages& res,
                                     const QByteArray& defaultBackground)
    : pictures_(package, res, defaultBackground),
      model_(RunningShow(package), 0, pictures_.showOrder()) {}

int PackageShowFrames::durationMs() const {
    return model_.settings().HoldMs * stepCount();
}

int PackageShowFrames::stepCount() const {
    return int(pictures_.showOrder().size()) + 1;
}

int PackageShowFrames::stepAt(int ms) const {
    return std::clamp(ms / model_.settings().HoldMs, 0, stepCount() - 1) + 1;
}

QImage PackageShowFrames::frameAt(int ms) {
    return PaintShowFrame(pictures_, model_.at(ms), frameSize());
}

int PackageShowFrames::stillUntil(int ms) const {
    const int64_t next = model_.nextChangeMs(ms);
    const int last = durationMs() - 1;
    if (next < 0)
        return last;
    return next <= ms ? ms : int(std::min<int64_t>(next - 1, last));
}

bool DocumentPackage(const Document& doc, const ProcessContext& ctx, const ResImages& res,
                     PackageContents& package, QStringList& warnings, QString& error,
                     const PackageWatch& watch, PictureCache* pictures) {
    QStringList said;
    CollectingPrompter prompter(said);
    RenderedPictures rendered(res, pictures);
    if (watch.resampled)
        rendered.setResampledTaken(watch.resampled);
    if (ShowPictures::EmptyPages* judged = watch.judged) {
        *judged = {};
        const QSize frame = FrameSize(doc);
        rendered.setPageSeen([judged, frame](int page, const QImage& picture) {
            (*judged)[size_t(Package::FirstPageEntry + page - 1)] = IsEmptyPage(picture, frame);
        });
    }
    ResumeGenerator generator(ctx, prompter, rendered);
    PackageContents head;
    if (watch.head || watch.headOnly)
        generator.setHeadWritten([&](const QByteArray& bytes) {
            head = ParsePackage(bytes, PackageForm::Qdv);
            if (watch.head)
                watch.head(head);
        });
    generator.setHeadOnly(watch.headOnly);
    generator.setIdleWork(watch.idle);
    if (watch.blob)
        generator.setBlobWritten(watch.blob);
    generator.setProgress(watch.progress);
    generator.setParallel(true);
    Document copy = doc; // generating tidies the document it writes
    QByteArray bytes;
    const bool written =
        generator.writePackageData(copy, bytes) == ResumeGenerator::Outcome::Written;
    if (written)
        package =
            watch.headOnly ? std::move(head) : ParsePackage(std::move(bytes), PackageForm::Qdv);
    if (!written || !package.Complete) {
        error =
            said.isEmpty() ? QStringLiteral("cannot make the résumé's package") : said.join(' ');
        return false;
    }
    warnings += said;
    return true;
}

QByteArray DefaultHomeBackground(const ProcessContext& ctx) {
    QByteArray bytes;
    ReadFileBytes(ctx.defaultBackPicture(), bytes);
    return bytes;
}

std::unique_ptr<ShowFrames> DocumentShowFrames(const Document& doc, const ProcessContext& ctx,
                                               const ResImages& res, QStringList& warnings,
                                               QString& error, PictureCache* pictures) {
    PackageContents package;
    if (!DocumentPackage(doc, ctx, res, package, warnings, error, {}, pictures))
        return nullptr;
    return std::make_unique<PackageShowFrames>(package, res, DefaultHomeBackground(ctx));
}

} // namespace zentor
