#include "generate/ResumeGenerator.h"

#include "edit/Prompter.h"
#include "generate/PictureJobs.h"
#include "io/FileUtil.h"
#include "io/RecordCodec.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <exception>
#include <memory>
#include <optional>

namespace zentor {
namespace {

const QString GenerateTitle = QStringLiteral("Generate Resume");
const QString OverwriteQuestion =
    QStringLiteral("This file already exists. Do you want to overwrite it?");
const QString WriteErrorTitle = QStringLiteral("Generate QDV Error");
const QString ReadErrorTitle = QStringLiteral("Error");

// Strips a path field of blanks at both ends and stores it back (padded again), as each
// blob step does before looking at its source; returns the text before the first NUL.
template <int N> QString tidyPath(FixedString<N>& field) {
    field = field.trimmed();
    return field.trimNull();
}

// What the writer needs to know about one blob whose bytes come from the picture jobs.
struct PictureJob {
    int entry;
    QString source; // resolved picture path; empty for a page
    int page = 0;
};

} // namespace

// One run of the procedure: the device written, the running position and the failure state.
// The temporary picture is a file in the work folder, or bytes in memory for a package that
// never leaves the program.
class ResumeGenerator::Writer {
public:
    // `memory` is what `out` writes into when the package is made in memory.
    Writer(ResumeGenerator& gen, Document& doc, QIODevice& out, const QString& name,
           const QByteArray* memory)
        : gen_(gen), doc_(doc), out_(out), name_(name), memory_(memory) {}

    bool run(bool selfRun);
    bool cancelled() const { return cancelled_; }

    bool fail() {
        gen_.prompter_.warn(WriteErrorTitle, QStringLiteral("Can't create file : ") + name_);
        return false;
    }

private:
    bool write(const QByteArray& bytes) {
        if (pastHead_) {
            position_ += bytes.size();
            return true;
        }
        if (out_.write(bytes) != bytes.size())
            return false;
        position_ += bytes.size();
        return true;
    }

    // The whole-file reader: on failure it says so and leaves the shared buffer alone.
    qint64 read(const QString& path) {
        const QString p = path.trimmed().isEmpty() ? gen_.ctx_.TempImagePath : path.trimmed();
        if (memory_ && p == gen_.ctx_.TempImagePath) {
            if (temp_) {
                gen_.FileBytes = *temp_;
                return gen_.FileBytes.size();
            }
        } else if (const qint64 n = ReadFileBytes(p, gen_.FileBytes);
                   n > 0 || (IsRegularFile(p) && QFileInfo(p).size() == 0)) {
            return n;
        }
        gen_.prompter_.warn(ReadErrorTitle, QStringLiteral("Can't find the file: ") + p);
        return 0;
    }

    // Notes the entry, reads the blob's source and appends the shared buffer. A source that
    // cannot be read still gets its Kind and Position, Length 0, and the buffer's old bytes.
    bool append(int entry, PackKind kind, const QString& source) {
        PackEntry& e = gen_.Entries[size_t(entry)];
        e.Kind = kind;
        e.Position = int32_t(position_);
        const qint64 n = read(source);
        // Positions are signed 32-bit: refuse what they could not address.
        if (position_ > gen_.positionLimit_ ||
            position_ - 1 + gen_.FileBytes.size() > gen_.positionLimit_)
            return false;
        e.Length = int32_t(n);
        if (!write(gen_.FileBytes))
            return false;
        if (memory_ && gen_.blobWritten_)
            gen_.blobWritten_(entry, n > 0 ? gen_.FileBytes : QByteArray());
        return true;
    }

    // A resampled picture or a page goes through the temporary picture, read back whole.
    bool appendPicture(int entry, size_t job) {
        if (auto jpeg = jobs_->take(job)) {
            if (memory_) {
                temp_ = std::move(*jpeg);
            } else {
                QFile temp(gen_.ctx_.TempImagePath);
                if (temp.open(QIODevice::WriteOnly | QIODevice::Truncate))
                    temp.write(*jpeg);
            }
        }
        return append(entry, PackPicture, QString());
    }

    ResumeGenerator& gen_;
    Document& doc_;
    QIODevice& out_;
    QString name_;
    const QByteArray* memory_;       // the temporary picture is kept in memory too
    std::optional<QByteArray> temp_; // the temporary picture when it is kept in memory
    qint64 position_ = 1;            // 1-based position of the next byte
    std::unique_ptr<Document> snapshot_;
    std::unique_ptr<PictureJobs> jobs_; // after snapshot_: its workers read the copy
    bool cancelled_ = false;
    bool pastHead_ = false; // the head-only package keeps nothing more
};

bool ResumeGenerator::Writer::run(bool selfRun) {
    gen_.Entries = PackTable{};
    qint64 tableAt = 0;
    if (selfRun) {
        if (gen_.player_.size() != gen_.ctx_.PlayerStubSize)
            return fail();
        gen_.FileBytes = gen_.player_;
        tableAt = gen_.FileBytes.size();
        if (!write(gen_.FileBytes))
            return fail();
    }
    QByteArray head = EncodePackTable(gen_.Entries);
    head += EncodeHeader(doc_.Header);
    head += EncodeProfile(doc_.Profile);
    for (int tab = 1; tab <= Package::TabNameCount; ++tab)
        head += doc_.Tabs[size_t(tab)].Name.bytes().toByteArray();
    if (!write(head))
        return fail();

    // Which pictures will be needed, in the order they are written. The sources are read
    // as the steps below will see them (blanks stripped, relative to the project).
    const QString userIcon = doc_.Profile.UserIcon.trimNull();
    const QString backPicture = doc_.Header.BackPicture.trimNull();
    std::vector<PictureJobs::Job> jobs;
    PackagePictures& pictures = gen_.pictures_;
    // The pages are drawn from a copy, so workers never read what the steps below tidy.
    snapshot_ = std::make_unique<Document>(doc_);
    const Document& doc = *snapshot_;
    const auto resample = [&](int entry, const QString& field, int w, int h) {
        const QString source = ResolvePath(doc.ScriptPath, field);
        jobs.push_back(
            [&pictures, entry, source, w, h] { return pictures.resample(entry, source, w, h); });
    };
    if (!userIcon.isEmpty())
        resample(Package::UserIconEntry, userIcon, Package::UserIconSize, Package::UserIconSize);
    if (!backPicture.isEmpty())
        resample(Package::BackPictureEntry, backPicture, Package::BackPictureWidth,
                 Package::BackPictureHeight);
    for (int page = 1; page <= Package::PageCount; ++page)
        jobs.push_back([&pictures, &doc, page] { return pictures.renderPage(doc, page); });
    const int threads =
        gen_.parallel_ && pictures.reentrant() ? std::max(1, QThread::idealThreadCount()) : 0;
    jobs_ = std::make_unique<PictureJobs>(std::move(jobs), threads, gen_.idleWork_);
    size_t nextJob = 0;

    if (!tidyPath(doc_.Profile.UserIcon).isEmpty() &&
        !appendPicture(Package::UserIconEntry, nextJob++))
        return fail();
    for (int tab = 2; tab <= 8; ++tab) {
        const QString icon = tidyPath(doc_.Tabs[size_t(tab)].Icon);
        if (!icon.isEmpty() && !append(tab, PackPicture, ResolvePath(doc_.ScriptPath, icon)))
            return fail();
    }
    if (!tidyPath(doc_.Header.BackPicture).isEmpty() &&
        !appendPicture(Package::BackPictureEntry, nextJob++))
        return fail();
    if (memory_ && gen_.headWritten_) {
        QByteArray head = memory_->left(position_ - 1);
        head.replace(tableAt, Package::TableSize, EncodePackTable(gen_.Entries));
        gen_.headWritten_(head);
    }
    pastHead_ = memory_ && gen_.headOnly_;
    const QString music = tidyPath(doc_.Header.BackMusic);
    if (!music.isEmpty() &&
        !append(Package::MusicEntry, PackMusic, ResolvePath(doc_.ScriptPath, music)))
        return fail();
    for (int page = 1; page <= Package::PageCount; ++page) {
        if (!GoOn(gen_.progress_, page, Package::PageCount)) {
            cancelled_ = true;
            jobs_.reset();
            return false;
        }
        if (!appendPicture(Package::FirstPageEntry + page - 1, nextJob++))
            return fail();
        pictures.pageWritten(doc_, page);
    }
    jobs_.reset();

    if (!out_.seek(tableAt) || out_.write(EncodePackTable(gen_.Entries)) != Package::TableSize)
        return fail();
    return true;
}

ResumeGenerator::ResumeGenerator(const ProcessContext& ctx, Prompter& prompter,
                                 PackagePictures& pictures)
    : ctx_(ctx), prompter_(prompter), pictures_(pictures) {}

QString ResumeGenerator::withExtension(const QString& path, bool selfRun) {
    const QString ext = selfRun ? QStringLiteral(".exe") : QStringLiteral(".qdv");
    return path.right(4) == ext ? path : path + ext;
}

ResumeGenerator::Outcome ResumeGenerator::GenerateResume(Document& doc, bool selfRun) {
    const QString title =
        selfRun ? QStringLiteral("Generate Selfrun File") : QStringLiteral("Generate QDV File");
    const QString filter = selfRun ? QStringLiteral("*.exe|*.exe") : QStringLiteral("*.qdv|*.qdv");
    QString path = prompter_.chooseFile(true, title, filter);
    if (path.isEmpty())
        return Outcome::Cancelled;
    path = withExtension(path, selfRun);
    if (QFileInfo::exists(path) && !prompter_.askYesNo(GenerateTitle, OverwriteQuestion))
        return Outcome::Cancelled;
    QFile::remove(path);
    return writePackage(doc, path, selfRun);
}

ResumeGenerator::Outcome ResumeGenerator::writePackage(Document& doc, const QString& path,
                                                       bool selfRun) {
    ctx_.ensureWorkFolder();
    QFile file(path);
    Writer writer(*this, doc, file, path, nullptr);
    const Outcome outcome = run(
        [&] {
            if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
                return writer.fail();
            if (!writer.run(selfRun)) {
                if (writer.cancelled()) {
                    file.remove(); // a cancelled run leaves no part of a package behind
                    QFile::remove(ctx_.TempImagePath);
                }
                return false;
            }
            if (!file.flush())
                return writer.fail();
            file.close();
            if (file.error() != QFileDevice::NoError)
                return writer.fail();
            if (selfRun)
                file.setPermissions(file.permissions() | QFileDevice::ExeOwner |
                                    QFileDevice::ExeGroup | QFileDevice::ExeOther);
            QFile::remove(ctx_.TempImagePath);
            return true;
        },
        writer);
    if (outcome == Outcome::Written)
        writtenPath_ = path;
    return outcome;
}

ResumeGenerator::Outcome ResumeGenerator::writePackageData(Document& doc, QByteArray& out) {
    ctx_.ensureWorkFolder();
    out.clear();
    QBuffer buffer(&out);
    buffer.open(QIODevice::WriteOnly);
    Writer writer(*this, doc, buffer, QString(), &out);
    return run([&] { return writer.run(false); }, writer);
}

ResumeGenerator::Outcome ResumeGenerator::run(const std::function<bool()>& write, Writer& writer) {
    try {
        if (write())
            return Outcome::Written;
        return writer.cancelled() ? Outcome::Cancelled : Outcome::Failed;
    } catch (const std::exception&) {
        // Out of memory while decoding or rendering ends like any other failure to write.
        writer.fail();
        return Outcome::Failed;
    }
}

} // namespace zentor
