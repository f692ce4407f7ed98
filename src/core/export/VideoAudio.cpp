#include "export/VideoAudio.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}

#include <algorithm>
#include <memory>

namespace zentor {

namespace {

struct Closer {
    void operator()(AVFormatContext* p) const { avformat_close_input(&p); }
    void operator()(AVCodecContext* p) const { avcodec_free_context(&p); }
    void operator()(SwrContext* p) const { swr_free(&p); }
    void operator()(AVFrame* p) const { av_frame_free(&p); }
    void operator()(AVPacket* p) const { av_packet_free(&p); }
};
template <class T> using Owned = std::unique_ptr<T, Closer>;

// Appends what the resampler gives for `frame` (or its tail when `frame` is null).
bool appendConverted(SwrContext* swr, const AVFrame* frame, StereoTrack& out) {
    const int in = frame ? frame->nb_samples : 0;
    const int room = swr_get_out_samples(swr, in);
    if (room <= 0)
        return true;
    const size_t at = out.size();
    out.left.resize(at + size_t(room));
    out.right.resize(at + size_t(room));
    uint8_t* planes[2] = {reinterpret_cast<uint8_t*>(out.left.data() + at),
                          reinterpret_cast<uint8_t*>(out.right.data() + at)};
    const int got = swr_convert(
        swr, planes, room, frame ? const_cast<const uint8_t**>(frame->extended_data) : nullptr, in);
    if (got < 0)
        return false;
    out.left.resize(at + size_t(got));
    out.right.resize(at + size_t(got));
    return true;
}

} // namespace

StereoTrack DecodeMusic(const QString& path, QString& error) {
    StereoTrack track;
    AVFormatContext* rawFmt = nullptr;
    if (avformat_open_input(&rawFmt, path.toUtf8().constData(), nullptr, nullptr) < 0) {
        error = QStringLiteral("cannot open the music %1").arg(path);
        return track;
    }
    Owned<AVFormatContext> fmt(rawFmt);
    const AVCodec* codec = nullptr;
    const int stream = avformat_find_stream_info(fmt.get(), nullptr) < 0
                           ? -1
                           : av_find_best_stream(fmt.get(), AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
    if (stream < 0 || !codec) {
        error = QStringLiteral("the music %1 is not sound this program can play").arg(path);
        return track;
    }
    Owned<AVCodecContext> dec(avcodec_alloc_context3(codec));
    avcodec_parameters_to_context(dec.get(), fmt->streams[stream]->codecpar);
    if (avcodec_open2(dec.get(), codec, nullptr) < 0) {
        error = QStringLiteral("the music %1 cannot be decoded").arg(path);
        return track;
    }
    if (dec->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
        av_channel_layout_default(&dec->ch_layout, dec->ch_layout.nb_channels);
    AVChannelLayout stereo = AV_CHANNEL_LAYOUT_STEREO;
    SwrContext* rawSwr = nullptr;
    if (swr_alloc_set_opts2(&rawSwr, &stereo, AV_SAMPLE_FMT_FLTP, VideoSampleRate, &dec->ch_layout,
                            dec->sample_fmt, dec->sample_rate, 0, nullptr) < 0 ||
        swr_init(rawSwr) < 0) {
        swr_free(&rawSwr);
        error = QStringLiteral("the music %1 cannot be converted").arg(path);
        return track;
    }
    Owned<SwrContext> swr(rawSwr);
    Owned<AVPacket> pkt(av_packet_alloc());
    Owned<AVFrame> frame(av_frame_alloc());
    bool ok = true;
    auto drain = [&] {
        while (avcodec_receive_frame(dec.get(), frame.get()) >= 0) {
            ok = ok && appendConverted(swr.get(), frame.get(), track);
            av_frame_unref(frame.get());
        }
    };
    while (ok && av_read_frame(fmt.get(), pkt.get()) >= 0) {
        if (pkt->stream_index == stream && avcodec_send_packet(dec.get(), pkt.get()) >= 0)
            drain();
        av_packet_unref(pkt.get());
    }
    avcodec_send_packet(dec.get(), nullptr);
    drain();
    ok = ok && appendConverted(swr.get(), nullptr, track);
    if (!ok || track.size() == 0) {
        error = QStringLiteral("the music %1 holds no sound that can be decoded").arg(path);
        return {};
    }
    return track;
}

StereoTrack ShowSoundtrack(const StereoTrack& music, size_t samples, double volume, bool loop) {
    StereoTrack out;
    out.left.assign(samples, 0.0f);
    out.right.assign(samples, 0.0f);
    const size_t n = music.size();
    if (n == 0)
        return out;
    const size_t fade = std::min<size_t>(VideoSampleRate, samples);
    for (size_t i = 0; i < samples; ++i) {
        if (!loop && i >= n)
            break;
        const size_t from = i % n;
        const size_t left = samples - i;
        const double gain = volume * (left < fade ? double(left) / double(fade) : 1.0);
        out.left[i] = float(music.left[from] * gain);
        out.right[i] = float(music.right[from] * gain);
    }
    return out;
}

} // namespace zentor
