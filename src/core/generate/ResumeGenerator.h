#pragma once

#include "generate/PackEntry.h"
#include "generate/PackagePictures.h"
#include "model/Document.h"
#include "model/ProcessContext.h"
#include "model/Progress.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>
#include <limits>

namespace zentor {

class Prompter;

// Writes résumé packages: the data file for the player (.qdv) or the self-running program
// (the player's bytes followed by the same package). One generator lives as long as the
// program: like the original buffer and table, FileBytes and Entries outlive each call.
class ResumeGenerator {
public:
    enum class Outcome { Written, Cancelled, Failed };

    ResumeGenerator(const ProcessContext& ctx, Prompter& prompter, PackagePictures& pictures);

    // The player's bytes that open a self-running program (the "RES" resource). They must
    // be exactly ctx.PlayerStubSize long: the player looks for its package at that offset.
    void setPlayer(const QByteArray& player) { player_ = player; }

    // Lets resampling and page rendering run ahead on worker threads while the file is
    // written in order; the file is byte for byte what the sequential procedure writes.
    void setParallel(bool on) { parallel_ = on; }

    // The last position a package may address (a signed 32-bit position). Tests lower it.
    void setPositionLimit(qint64 limit) { positionLimit_ = limit; }

    // Told before each of the eight pages; a cancelled run removes what it wrote.
    void setProgress(Progress progress) { progress_ = std::move(progress); }

    // The whole command: asks for the output path (adding the extension unless the name
    // ends in it exactly), confirms overwriting, deletes the old file and writes the package.
    Outcome GenerateResume(Document& doc, bool selfRun);

    // Writes the package to `path` as given, replacing any file there. Reports failures
    // through the prompter like GenerateResume.
    Outcome writePackage(Document& doc, const QString& path, bool selfRun);

    // The same data file made in memory, for a program that shows or exports it: the same
    // bytes, the temporary picture kept in memory, nothing written to disk but resampling's
    // scratch pictures.
    Outcome writePackageData(Document& doc, QByteArray& out);
    // Shown, when the package is made in memory, the package up to its pages once all that
    // comes before them but the music is written, with the entry table as it stands: what
    // the home page is drawn from, while the pages are still being drawn.
    void setHeadWritten(std::function<void(const QByteArray& head)> seen) {
        headWritten_ = std::move(seen);
    }
    // Shown, when the package is made in memory, each blob as it is written, in the
    // package's order: its entry and its bytes (empty for a source that could not be read).
    void setBlobWritten(std::function<void(int entry, const QByteArray& bytes)> seen) {
        blobWritten_ = std::move(seen);
    }
    // Made in memory, the package may keep no more than its head: what follows (the music
    // and the pages) is only shown to blobWritten, for a program that takes it from there.
    // The entry table still gives every blob's place and length.
    void setHeadOnly(bool on) { headOnly_ = on; }
    // Work for a picture worker that finds no picture left to make, run there while the
    // others finish theirs (only when generating in parallel).
    void setIdleWork(std::function<void()> work) { idleWork_ = std::move(work); }

    // The extension rule: `path` gets ".exe" or ".qdv" unless its last four characters are
    // exactly that (case matters: "cv.EXE" becomes "cv.EXE.exe").
    static QString withExtension(const QString& path, bool selfRun);

    // The path of the last package written in full.
    const QString& writtenPath() const { return writtenPath_; }

    // The shared byte buffer: the last file read (or the player's bytes).
    QByteArray FileBytes;
    // The entry table of the last package written.
    PackTable Entries{};

private:
    class Writer;
    // Runs `write`; running out of memory in it is told as a failure to write.
    Outcome run(const std::function<bool()>& write, Writer& writer);
    const ProcessContext& ctx_;
    Prompter& prompter_;
    PackagePictures& pictures_;
    QByteArray player_;
    QString writtenPath_;
    bool parallel_ = false;
    qint64 positionLimit_ = std::numeric_limits<int32_t>::max();
    Progress progress_;
    std::function<void(const QByteArray&)> headWritten_;
    std::function<void(int, const QByteArray&)> blobWritten_;
    bool headOnly_ = false;
    std::function<void()> idleWork_;
};

} // namespace zentor
