#include "io/RecordCodec.h"

#include <QtEndian>

#include <cstring>

namespace zentor {

void PutInt32(char* at, int32_t v) {
    qToLittleEndian<qint32>(v, at);
}
void PutInt16(char* at, int16_t v) {
    qToLittleEndian<qint16>(v, at);
}
int32_t GetInt32(const char* at) {
    return qFromLittleEndian<qint32>(at);
}
int16_t GetInt16(const char* at) {
    return qFromLittleEndian<qint16>(at);
}

namespace {

template <int N> void putString(char* at, const FixedString<N>& s) {
    std::memcpy(at, s.data(), N);
}
template <int N> void getString(const char* at, FixedString<N>& s) {
    std::memcpy(s.data(), at, N);
}

// One table of offsets per record drives both directions, so they cannot disagree.
template <typename Io, typename Rec> void headerFields(Io& io, Rec& h) {
    io.i32(0, h.VersionMajor);
    io.i32(4, h.VersionMinor);
    io.i32(8, h.VersionRevision);
    io.i32(12, h.TextCount);
    io.i32(16, h.ImageCount);
    io.str(20, h.BackMusic);
    io.str(276, h.BackPicture);
    io.i32(532, h.MusicVolume);
    io.i32(536, h.AutoRepeat);
    io.i32(540, h.BackColor);
    io.i32(544, h.ShowSpeed);
    io.i32(548, h.ShowAsRun);
    io.i32(552, h.KeepOnTime);
    io.i32(556, h.FrameWidth);
    io.i32(560, h.FrameHeight);
}

template <typename Io, typename Rec> void profileFields(Io& io, Rec& p) {
    io.str(0, p.UserIcon);
    io.str(256, p.FirstName);
    io.str(288, p.LastName);
    io.str(320, p.Phone);
    io.str(336, p.Email);
    io.str(400, p.Website);
    io.str(528, p.Address);
    io.str(784, p.PostCode);
}

template <typename Io, typename Rec> void imageFields(Io& io, Rec& e) {
    io.i32(0, e.TabNo);
    io.i16(4, e.Reserved);
    io.str(6, e.Name);
    io.str(38, e.FileName);
    io.i32(296, e.PicAlign); // 294..295 gap
    io.i16(300, e.Flag);
    io.i32(304, e.Left); // 302..303 gap
    io.i32(308, e.Top);
    io.i32(312, e.Width);
    io.i32(316, e.Height);
    io.i32(320, e.Extra);
}

template <typename Io, typename Rec> void tabFields(Io& io, Rec& t) {
    auto picture = io.at(0);
    imageFields(picture, t.Picture);
    io.str(324, t.Icon);
    io.str(580, t.Name);
    io.i32(612, t.Extra);
}

template <typename Io, typename Rec> void textFields(Io& io, Rec& t) {
    io.i32(0, t.TabNo);
    io.str(4, t.Name);
    io.str(36, t.Text);
    io.i32(4132, t.Extra);
    io.i32(4136, t.Left);
    io.i32(4140, t.Top);
    io.i32(4144, t.Width);
    io.i32(4148, t.Height);
    io.str(4152, t.FontName);
    io.i32(4184, t.FontSize); // 4183 gap
    io.i32(4188, t.FontStyle);
    io.i32(4192, t.Align);
    io.i32(4196, t.FontColor);
    io.i16(4200, t.FontShadow);
    io.i32(4204, t.TextHint); // 4202..4203 gap
    io.i32(4208, t.LineAlign);
    io.i32(4212, t.Extra2);
}

struct Writer {
    char* base;
    void i32(int off, int32_t v) { PutInt32(base + off, v); }
    void i16(int off, int16_t v) { PutInt16(base + off, v); }
    template <int N> void str(int off, const FixedString<N>& s) { putString(base + off, s); }
    Writer at(int off) { return Writer{base + off}; }
};

struct Reader {
    const char* base;
    void i32(int off, int32_t& v) { v = GetInt32(base + off); }
    void i16(int off, int16_t& v) { v = GetInt16(base + off); }
    template <int N> void str(int off, FixedString<N>& s) { getString(base + off, s); }
    Reader at(int off) { return Reader{base + off}; }
};

template <int Size, typename Rec, typename Fields>
QByteArray encode(const Rec& rec, Fields fields) {
    QByteArray out(Size, '\0');
    Writer w{out.data()};
    fields(w, rec);
    return out;
}

template <int Size, typename Rec, typename Fields>
void decode(QByteArrayView bytes, Rec& rec, Fields fields) {
    Q_ASSERT(bytes.size() >= Size);
    Reader r{bytes.data()};
    fields(r, rec);
}

} // namespace

QByteArray EncodeHeader(const ScriptHeader& h) {
    return encode<RecordSize::Header>(h,
                                      [](Writer& w, const ScriptHeader& r) { headerFields(w, r); });
}
QByteArray EncodeProfile(const ProfileRecord& p) {
    return encode<RecordSize::Profile>(
        p, [](Writer& w, const ProfileRecord& r) { profileFields(w, r); });
}
QByteArray EncodeImage(const ImageElement& e) {
    return encode<RecordSize::Image>(e,
                                     [](Writer& w, const ImageElement& r) { imageFields(w, r); });
}
QByteArray EncodeTab(const TabRecord& t) {
    return encode<RecordSize::Tab>(t, [](Writer& w, const TabRecord& r) { tabFields(w, r); });
}
QByteArray EncodeText(const TextElement& t) {
    return encode<RecordSize::Text>(t, [](Writer& w, const TextElement& r) { textFields(w, r); });
}

void DecodeHeader(QByteArrayView b, ScriptHeader& h) {
    decode<RecordSize::Header>(b, h, [](Reader& r, ScriptHeader& x) { headerFields(r, x); });
}
void DecodeProfile(QByteArrayView b, ProfileRecord& p) {
    decode<RecordSize::Profile>(b, p, [](Reader& r, ProfileRecord& x) { profileFields(r, x); });
}
void DecodeImage(QByteArrayView b, ImageElement& e) {
    decode<RecordSize::Image>(b, e, [](Reader& r, ImageElement& x) { imageFields(r, x); });
}
void DecodeTab(QByteArrayView b, TabRecord& t) {
    decode<RecordSize::Tab>(b, t, [](Reader& r, TabRecord& x) { tabFields(r, x); });
}
void DecodeText(QByteArrayView b, TextElement& t) {
    decode<RecordSize::Text>(b, t, [](Reader& r, TextElement& x) { textFields(r, x); });
}

} // namespace zentor
