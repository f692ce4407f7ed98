#include "export/VideoEncoder.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/error.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

namespace zentor {

struct VideoEncoder::State {
    AVFormatContext* fmt = nullptr;
    AVCodecContext* video = nullptr;
    AVCodecContext* audio = nullptr;
    AVStream* vstream = nullptr;
    AVStream* astream = nullptr;
    SwsContext* sws = nullptr;
    AVFrame* picture = nullptr;
    AVFrame* sound = nullptr;
    AVPacket* packet = nullptr;
    QSize size;
    QSize sourceSize;
    size_t audioSent = 0;
    bool headerWritten = false;

    ~State() {
        sws_freeContext(sws);
        av_frame_free(&picture);
        av_frame_free(&sound);
        av_packet_free(&packet);
        avcodec_free_context(&video);
        avcodec_free_context(&audio);
        if (fmt) {
            if (fmt->pb)
                avio_closep(&fmt->pb);
            avformat_free_context(fmt);
        }
    }
};

VideoEncoder::VideoEncoder() : s_(std::make_unique<State>()) {}
VideoEncoder::~VideoEncoder() = default;

bool VideoEncoder::fail(const QString& what, int code) {
    if (error_.isEmpty()) {
        error_ = what;
        if (code < 0) {
            char text[AV_ERROR_MAX_STRING_SIZE] = {};
            av_strerror(code, text, sizeof text);
            error_ += QStringLiteral(": ") + QString::fromUtf8(text);
        }
    }
    return false;
}

bool VideoEncoder::open(const QString& path, QSize size, int fps, const QString& title,
                        bool withAudio) {
    State& s = *s_;
    s.size = size;
    int rc = avformat_alloc_output_context2(&s.fmt, nullptr, "mp4", nullptr);
    if (rc < 0)
        return fail(QStringLiteral("cannot start an MP4"), rc);
    av_dict_set(&s.fmt->metadata, "title", title.toUtf8().constData(), 0);

    const AVCodec* h264 = avcodec_find_encoder_by_name("libx264");
    if (!h264)
        return fail(QStringLiteral("this FFmpeg has no H.264 encoder"));
    s.video = avcodec_alloc_context3(h264);
    s.video->width = size.width();
    s.video->height = size.height();
    s.video->pix_fmt = AV_PIX_FMT_YUV420P;
    s.video->time_base = AVRational{1, fps};
    s.video->framerate = AVRational{fps, 1};
    s.video->gop_size = fps * 10;
    // With frames seconds apart, B-frame reordering would push decode times far before
    // zero; without it every picture decodes at the moment it shows.
    s.video->max_b_frames = 0;
    if (s.fmt->oformat->flags & AVFMT_GLOBALHEADER)
        s.video->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    // Only cross-fades move, and each fade frame is new picture everywhere: a fast preset
    // loses little there, while holds are already free.
    av_opt_set(s.video->priv_data, "preset", "veryfast", 0);
    av_opt_set(s.video->priv_data, "crf", "20", 0);
    if ((rc = avcodec_open2(s.video, h264, nullptr)) < 0)
        return fail(QStringLiteral("cannot start the H.264 encoder"), rc);
    s.vstream = avformat_new_stream(s.fmt, nullptr);
    s.vstream->time_base = s.video->time_base;
    avcodec_parameters_from_context(s.vstream->codecpar, s.video);

    if (withAudio) {
        const AVCodec* aac = avcodec_find_encoder(AV_CODEC_ID_AAC);
        if (!aac)
            return fail(QStringLiteral("this FFmpeg has no AAC encoder"));
        s.audio = avcodec_alloc_context3(aac);
        s.audio->sample_fmt = AV_SAMPLE_FMT_FLTP;
        s.audio->sample_rate = VideoSampleRate;
        s.audio->ch_layout = AV_CHANNEL_LAYOUT_STEREO;
        s.audio->bit_rate = 160000;
        s.audio->time_base = AVRational{1, VideoSampleRate};
        if (s.fmt->oformat->flags & AVFMT_GLOBALHEADER)
            s.audio->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        if ((rc = avcodec_open2(s.audio, aac, nullptr)) < 0)
            return fail(QStringLiteral("cannot start the AAC encoder"), rc);
        s.astream = avformat_new_stream(s.fmt, nullptr);
        s.astream->time_base = s.audio->time_base;
        avcodec_parameters_from_context(s.astream->codecpar, s.audio);
        s.sound = av_frame_alloc();
    }

    // Faststart reopens the file by this name to move the index to the front.
    s.fmt->url = av_strdup(path.toUtf8().constData());
    if ((rc = avio_open(&s.fmt->pb, path.toUtf8().constData(), AVIO_FLAG_WRITE)) < 0)
        return fail(QStringLiteral("cannot write %1").arg(path), rc);
    AVDictionary* opts = nullptr;
    // The index goes first so a phone can start playing before the whole file is in.
    av_dict_set(&opts, "movflags", "+faststart", 0);
    rc = avformat_write_header(s.fmt, &opts);
    av_dict_free(&opts);
    if (rc < 0)
        return fail(QStringLiteral("cannot write %1").arg(path), rc);
    s.headerWritten = true;

    s.picture = av_frame_alloc();
    s.picture->format = AV_PIX_FMT_YUV420P;
    s.picture->width = size.width();
    s.picture->height = size.height();
    if (av_frame_get_buffer(s.picture, 0) < 0)
        return fail(QStringLiteral("out of memory"));
    s.packet = av_packet_alloc();
    return true;
}

bool VideoEncoder::drain(bool video) {
    State& s = *s_;
    AVCodecContext* ctx = video ? s.video : s.audio;
    AVStream* stream = video ? s.vstream : s.astream;
    for (;;) {
        const int rc = avcodec_receive_packet(ctx, s.packet);
        if (rc == AVERROR(EAGAIN) || rc == AVERROR_EOF)
            return true;
        if (rc < 0)
            return fail(QStringLiteral("encoding failed"), rc);
        av_packet_rescale_ts(s.packet, ctx->time_base, stream->time_base);
        s.packet->stream_index = stream->index;
        const int wrc = av_interleaved_write_frame(s.fmt, s.packet);
        if (wrc < 0)
            return fail(QStringLiteral("writing the video failed"), wrc);
    }
}

bool VideoEncoder::writeFrame(const QImage& picture, int64_t frame) {
    State& s = *s_;
    if (!error_.isEmpty())
        return false;
    const QImage src =
        picture.format() == QImage::Format_RGB32 || picture.format() == QImage::Format_ARGB32
            ? picture
            : picture.convertToFormat(QImage::Format_RGB32);
    if (!s.sws || s.sourceSize != src.size()) {
        sws_freeContext(s.sws);
        s.sourceSize = src.size();
        s.sws = sws_getContext(src.width(), src.height(), AV_PIX_FMT_BGRA, s.size.width(),
                               s.size.height(), AV_PIX_FMT_YUV420P, SWS_BICUBIC, nullptr, nullptr,
                               nullptr);
        if (!s.sws)
            return fail(QStringLiteral("cannot scale the pictures"));
    }
    if (av_frame_make_writable(s.picture) < 0)
        return fail(QStringLiteral("out of memory"));
    const uint8_t* planes[1] = {src.constBits()};
    const int strides[1] = {int(src.bytesPerLine())};
    sws_scale(s.sws, planes, strides, 0, src.height(), s.picture->data, s.picture->linesize);
    s.picture->pts = frame;
    const int rc = avcodec_send_frame(s.video, s.picture);
    if (rc < 0)
        return fail(QStringLiteral("encoding failed"), rc);
    return drain(true);
}

bool VideoEncoder::writeAudio(const StereoTrack& track, size_t to) {
    State& s = *s_;
    if (!s.audio || !error_.isEmpty())
        return error_.isEmpty();
    to = std::min(to, track.size());
    const int chunk = s.audio->frame_size > 0 ? s.audio->frame_size : 1024;
    while (s.audioSent < to) {
        const int n = int(std::min<size_t>(size_t(chunk), track.size() - s.audioSent));
        av_frame_unref(s.sound);
        s.sound->nb_samples = n;
        s.sound->format = AV_SAMPLE_FMT_FLTP;
        s.sound->sample_rate = VideoSampleRate;
        av_channel_layout_copy(&s.sound->ch_layout, &s.audio->ch_layout);
        if (av_frame_get_buffer(s.sound, 0) < 0)
            return fail(QStringLiteral("out of memory"));
        std::copy_n(track.left.data() + s.audioSent, n, reinterpret_cast<float*>(s.sound->data[0]));
        std::copy_n(track.right.data() + s.audioSent, n,
                    reinterpret_cast<float*>(s.sound->data[1]));
        s.sound->pts = int64_t(s.audioSent);
        s.audioSent += size_t(n);
        const int rc = avcodec_send_frame(s.audio, s.sound);
        if (rc < 0)
            return fail(QStringLiteral("encoding the sound failed"), rc);
        if (!drain(false))
            return false;
    }
    return true;
}

bool VideoEncoder::finish() {
    State& s = *s_;
    if (!error_.isEmpty())
        return false;
    avcodec_send_frame(s.video, nullptr);
    if (!drain(true))
        return false;
    if (s.audio) {
        avcodec_send_frame(s.audio, nullptr);
        if (!drain(false))
            return false;
    }
    int rc = av_write_trailer(s.fmt);
    if (rc < 0)
        return fail(QStringLiteral("finishing the video failed"), rc);
    rc = avio_closep(&s.fmt->pb);
    if (rc < 0)
        return fail(QStringLiteral("finishing the video failed"), rc);
    return true;
}

} // namespace zentor
