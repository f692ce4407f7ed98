#include "export/VideoExport.h"

#include "export/ShowFrames.h"
#include "export/VideoAudio.h"
#include "export/VideoEncoder.h"
#include "io/FileUtil.h"
#include "model/Document.h"

#include <QFile>
#include <QFileInfo>

extern "C" {
#include <libavutil/log.h>
}

#include <cstdio>

namespace zentor {

QSize VideoSize(QSize frame, int height) {
    if (frame.isEmpty())
        return {};
    if (height <= 0)
        return {frame.width() & ~1, frame.height() & ~1};
    const int width = int(qint64(frame.width()) * height / frame.height());
    return {width & ~1, height & ~1};
}

namespace {

QString personName(const Document& doc) {
    return (doc.Profile.FirstName.trimNull() + QLatin1Char(' ') + doc.Profile.LastName.trimNull())
        .trimmed();
}

// The soundtrack, or an empty one (no audio stream) with a warning saying why.
StereoTrack soundtrack(const Document& doc, size_t samples, QStringList& warnings) {
    const QString raw = doc.Header.BackMusic.trimNull();
    if (raw.isEmpty())
        return {};
    const QString path = ResolvePath(doc.ScriptPath, raw);
    QString error;
    const StereoTrack music = DecodeMusic(path, error);
    if (music.size() == 0) {
        warnings << error + QStringLiteral("; the video is silent");
        return {};
    }
    return ShowSoundtrack(music, samples, doc.Header.MusicVolume / 1000.0,
                          doc.Header.AutoRepeat == 1);
}

VideoResult failed(const QString& error, VideoResult r) {
    r.outcome = VideoResult::Outcome::Failed;
    r.error = error;
    return r;
}

} // namespace

VideoResult ExportVideo(const Document& doc, ShowFrames& show, const QString& path,
                        const VideoOptions& options, const VideoProgress& progress) {
    // Problems come back as messages; the libraries' own chatter is not for our users.
    av_log_set_level(AV_LOG_FATAL);
    VideoResult result;
    const QSize size = VideoSize(show.frameSize(), options.height);
    if (size.width() < 2 || size.height() < 2)
        return failed(QStringLiteral("the frame is too small for a video"), result);
    if (options.fps < 1 || options.fps > 120)
        return failed(QStringLiteral("the frame rate must be from 1 to 120"), result);

    const int durationMs = show.durationMs();
    const int64_t frames = (int64_t(durationMs) * options.fps + 999) / 1000;
    const size_t samples = size_t(int64_t(durationMs) * VideoSampleRate / 1000);
    const StereoTrack sound = soundtrack(doc, samples, result.warnings);

    const QString part = QFileInfo(path).absolutePath() + QStringLiteral("/.") +
                         QFileInfo(path).fileName() + QStringLiteral(".part");
    // The encoder closes its file before the part is removed or renamed.
    const bool ok = [&] {
        VideoEncoder enc;
        if (!enc.open(part, size, options.fps, personName(doc), sound.size() > 0)) {
            result.error = enc.error();
            return false;
        }
        int step = 0;
        int stillUntil = -1;
        QImage last;
        for (int64_t f = 0; f < frames; ++f) {
            const int ms = int(f * 1000 / options.fps);
            if (show.stepAt(ms) != step) {
                step = show.stepAt(ms);
                if (progress && !progress(step, show.stepCount())) {
                    result.outcome = VideoResult::Outcome::Cancelled;
                    return false;
                }
            }
            // The last frame is sent even inside a hold: it sets where the video ends.
            if (ms <= stillUntil && f + 1 < frames)
                continue;
            if (ms > stillUntil) {
                last = show.frameAt(ms);
                stillUntil = show.stillUntil(ms);
            }
            if (last.isNull()) {
                result.error = QStringLiteral("the show could not be drawn at %1 ms").arg(ms);
                return false;
            }
            if (!enc.writeFrame(last, f) ||
                !enc.writeAudio(sound, size_t((f + 1) * VideoSampleRate / options.fps))) {
                result.error = enc.error();
                return false;
            }
        }
        if (!enc.writeAudio(sound, samples) || !enc.finish()) {
            result.error = enc.error();
            return false;
        }
        return true;
    }();
    if (!ok) {
        QFile::remove(part);
        if (result.outcome != VideoResult::Outcome::Cancelled)
            result.outcome = VideoResult::Outcome::Failed;
        return result;
    }
    // rename() replaces an existing target in one step.
    if (std::rename(QFile::encodeName(part).constData(), QFile::encodeName(path).constData()) !=
        0) {
        QFile::remove(part);
        return failed(QStringLiteral("cannot write %1").arg(path), result);
    }
    result.outcome = VideoResult::Outcome::Written;
    return result;
}

} // namespace zentor
