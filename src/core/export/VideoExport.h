#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include "model/Progress.h"

#include <functional>

namespace zentor {

struct Document;
class ShowFrames;

struct VideoOptions {
    int height = 0; // 0: the frame's own height
    int fps = 30;
};

struct VideoResult {
    enum class Outcome { Written, Cancelled, Failed } outcome = Outcome::Failed;
    QString error;
    QStringList warnings;
};

// Called as the video moves into step `step` of `steps`; returning false cancels.
using VideoProgress = Progress;

// The video's size: the frame scaled to `height` keeping its aspect, both sides even.
QSize VideoSize(QSize frame, int height);

// Records `show` into an MP4 at `path`, with the document's music and the person's name as
// title. The file is written beside `path` and only renamed into place when complete, so a
// failed or cancelled run leaves no file and an old one untouched.
VideoResult ExportVideo(const Document& doc, ShowFrames& show, const QString& path,
                        const VideoOptions& options, const VideoProgress& progress = {});

} // namespace zentor
