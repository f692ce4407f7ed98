#include "export/Base64.h"

#include <array>
#include <cstring>

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#define ZENTOR_BASE64_VECTOR 1
#include <immintrin.h>
#endif

namespace zentor {
namespace {

constexpr char Digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

#ifdef ZENTOR_BASE64_VECTOR
// Twelve bytes at a time, while sixteen can be read: each group of three is spread over a
// 32-bit lane, two multiplies move its four 6-bit indices into bytes of their own, and each
// digit is its index plus an offset looked up by the index's range. Returns the bytes done.
__attribute__((target("ssse3"))) qsizetype EncodeVector(char* out, const uchar* in,
                                                        qsizetype size) {
    const __m128i spread = _mm_set_epi8(10, 11, 9, 10, 7, 8, 6, 7, 4, 5, 3, 4, 1, 2, 0, 1);
    const __m128i offsets =
        _mm_setr_epi8('a' - 26, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52,
                      '0' - 52, '0' - 52, '0' - 52, '0' - 52, '+' - 62, '/' - 63, 'A', 0, 0);
    qsizetype done = 0;
    for (; done + 16 <= size; done += 12, out += 16) {
        const __m128i lanes =
            _mm_shuffle_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(in + done)), spread);
        const __m128i high = _mm_mulhi_epu16(_mm_and_si128(lanes, _mm_set1_epi32(0x0fc0fc00)),
                                             _mm_set1_epi32(0x04000040));
        const __m128i low = _mm_mullo_epi16(_mm_and_si128(lanes, _mm_set1_epi32(0x003f03f0)),
                                            _mm_set1_epi32(0x01000010));
        const __m128i indices = _mm_or_si128(high, low);
        // 0..25 -> 13 ('A'), 26..51 -> 0 ('a'), 52..61 -> 1..10 ('0'), 62 -> 11, 63 -> 12.
        __m128i range = _mm_subs_epu8(indices, _mm_set1_epi8(51));
        const __m128i capital = _mm_cmpgt_epi8(_mm_set1_epi8(26), indices);
        range = _mm_or_si128(range, _mm_and_si128(capital, _mm_set1_epi8(13)));
        const __m128i digits = _mm_add_epi8(_mm_shuffle_epi8(offsets, range), indices);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), digits);
    }
    return done;
}
#endif

} // namespace

char* Base64Into(char* out, QByteArrayView bytes) {
    const auto* b = reinterpret_cast<const uchar*>(bytes.data());
    qsizetype i = 0;
#ifdef ZENTOR_BASE64_VECTOR
    static const bool vector = __builtin_cpu_supports("ssse3");
    if (vector) {
        i = EncodeVector(out, b, bytes.size());
        out += i / 3 * 4;
    }
#endif
    // Two digits at a time: twelve bits index a pair.
    static const auto Pairs = [] {
        std::array<std::array<char, 2>, 4096> pairs{};
        for (size_t p = 0; p < pairs.size(); ++p)
            pairs[p] = {Digits[p >> 6], Digits[p & 63]};
        return pairs;
    }();
    const qsizetype whole = bytes.size() / 3 * 3;
    for (; i < whole; i += 3, out += 4) {
        const uint v = uint(b[i]) << 16 | uint(b[i + 1]) << 8 | b[i + 2];
        std::memcpy(out, Pairs[v >> 12].data(), 2);
        std::memcpy(out + 2, Pairs[v & 0xFFF].data(), 2);
    }
    if (const qsizetype rest = bytes.size() - whole) {
        const uint v = uint(b[whole]) << 16 | (rest == 2 ? uint(b[whole + 1]) << 8 : 0u);
        out[0] = Digits[v >> 18];
        out[1] = Digits[(v >> 12) & 63];
        out[2] = rest == 2 ? Digits[(v >> 6) & 63] : '=';
        out[3] = '=';
        out += 4;
    }
    return out;
}

void AppendBase64(QByteArray& out, QByteArrayView bytes) {
    const qsizetype start = out.size();
    out.resize(start + (bytes.size() + 2) / 3 * 4);
    Base64Into(out.data() + start, bytes);
}

} // namespace zentor
