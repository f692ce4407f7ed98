#pragma once

#include "model/CodePage.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cstring>

namespace zentor {

// A fixed-length text field as the project file stores it: exactly N bytes in the
// document's code page. Assigning blank-pads (and cuts) to N bytes; a field never assigned
// holds NUL bytes, so that save and load reproduce the bytes exactly.
template <int N> class FixedString {
public:
    static constexpr int Size = N;

    FixedString() { bytes_.fill('\0'); }
    explicit FixedString(QStringView text) { assign(text); }

    void assign(QStringView text) {
        const QByteArray encoded = CodePage::active().encode(text, N);
        std::memcpy(bytes_.data(), encoded.constData(), size_t(encoded.size()));
        std::fill(bytes_.begin() + encoded.size(), bytes_.end(), ' ');
    }
    FixedString& operator=(QStringView text) {
        assign(text);
        return *this;
    }
    FixedString& operator=(const QString& text) {
        assign(text);
        return *this;
    }
    FixedString& operator=(const char* text) {
        assign(QString::fromUtf8(text));
        return *this;
    }

    void clearToNul() { bytes_.fill('\0'); }

    // The whole field decoded, padding and NULs included.
    QString raw() const { return CodePage::active().decode(QByteArrayView(bytes_.data(), N)); }
    // Up to the first NUL, blanks removed at both ends: how paths are read.
    QString trimNull() const { return upToNul().trimmed(); }
    // Up to the first NUL with trailing blanks removed: how names and texts are shown.
    QString text() const {
        QString s = upToNul();
        qsizetype end = s.size();
        while (end > 0 && s.at(end - 1) == QLatin1Char(' '))
            --end;
        s.truncate(end);
        return s;
    }
    // The whole field with blanks trimmed at both ends (NULs kept): VB's Trim.
    QString trimmed() const { return raw().trimmed(); }
    // True when no byte was ever assigned.
    bool isNul() const {
        return std::all_of(bytes_.begin(), bytes_.end(), [](char c) { return c == '\0'; });
    }

    const char* data() const { return bytes_.data(); }
    char* data() { return bytes_.data(); }
    QByteArrayView bytes() const { return QByteArrayView(bytes_.data(), N); }

    friend bool operator==(const FixedString& a, const FixedString& b) {
        return a.bytes_ == b.bytes_;
    }

private:
    QString upToNul() const {
        const char* end = static_cast<const char*>(std::memchr(bytes_.data(), '\0', N));
        const qsizetype len = end ? end - bytes_.data() : N;
        return CodePage::active().decode(QByteArrayView(bytes_.data(), len));
    }

    std::array<char, N> bytes_;
};

} // namespace zentor
