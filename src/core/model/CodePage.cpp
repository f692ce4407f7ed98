#include "model/CodePage.h"
#include "model/CodePageCheck.h"

#include <iconv.h>

#include <QHash>
#include <QMutex>

#include <array>
#include <cerrno>
#include <cstring>

namespace zentor {
namespace {

// Windows-1252 differs from Latin-1 only in 0x80..0x9F; the five holes map to themselves.
constexpr std::array<char16_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

class Windows1252 final : public CodePage {
public:
    Windows1252() {
        for (int b = 0; b < 256; ++b) {
            const char16_t u = (b >= 0x80 && b < 0xA0) ? kCp1252High[b - 0x80] : char16_t(b);
            toUnicode_[b] = u;
            fromUnicode_.insert(u, char(b));
        }
    }
    QByteArray encode(QStringView text, int maxBytes) const override {
        QByteArray out;
        out.reserve(qMin<qsizetype>(text.size(), maxBytes));
        for (const QChar c : text) {
            if (out.size() >= maxBytes)
                break;
            const auto it = fromUnicode_.constFind(c.unicode());
            out.append(it == fromUnicode_.constEnd() ? '?' : *it);
        }
        return out;
    }
    QString decode(QByteArrayView bytes) const override {
        QString out(bytes.size(), Qt::Uninitialized);
        QChar* d = out.data();
        for (const char b : bytes)
            *d++ = QChar(toUnicode_[static_cast<unsigned char>(b)]);
        return out;
    }
    QString name() const override { return QStringLiteral("windows-1252"); }

private:
    std::array<char16_t, 256> toUnicode_{};
    QHash<char16_t, char> fromUnicode_;
};

// Any other code page through the C library's iconv, one character at a time when
// encoding so that a multi-byte character is never split at the field's end.
class IconvCodePage final : public CodePage {
public:
    explicit IconvCodePage(QByteArray name) : name_(std::move(name)) {}
    static bool available(const QByteArray& name) {
        iconv_t cd = iconv_open(name.constData(), "UTF-8");
        if (cd == iconv_t(-1))
            return false;
        iconv_close(cd);
        return true;
    }
    QByteArray encode(QStringView text, int maxBytes) const override {
        QByteArray out;
        iconv_t cd = iconv_open(name_.constData(), "UTF-8");
        if (cd == iconv_t(-1))
            return out;
        for (qsizetype i = 0; i < text.size();) {
            const qsizetype len = (text[i].isHighSurrogate() && i + 1 < text.size()) ? 2 : 1;
            QByteArray utf8 = text.mid(i, len).toUtf8();
            i += len;
            char buf[16];
            char* in = utf8.data();
            size_t inLeft = size_t(utf8.size());
            char* o = buf;
            size_t outLeft = sizeof buf;
            QByteArray one;
            if (iconv(cd, &in, &inLeft, &o, &outLeft) == size_t(-1)) {
                iconv(cd, nullptr, nullptr, nullptr, nullptr);
                one = "?";
            } else {
                one = QByteArray(buf, int(o - buf));
            }
            if (out.size() + one.size() > maxBytes)
                break;
            out += one;
        }
        iconv_close(cd);
        return out;
    }
    QString decode(QByteArrayView bytes) const override {
        iconv_t cd = iconv_open("UTF-8", name_.constData());
        if (cd == iconv_t(-1))
            return QString::fromLatin1(bytes);
        QByteArray out;
        out.resize(bytes.size() * 4 + 16);
        QByteArray in(bytes.data(), bytes.size());
        char* ip = in.data();
        size_t inLeft = size_t(in.size());
        char* op = out.data();
        size_t outLeft = size_t(out.size());
        while (inLeft > 0) {
            if (iconv(cd, &ip, &inLeft, &op, &outLeft) != size_t(-1))
                break;
            if (errno == E2BIG)
                break;
            // An invalid or cut-off sequence: show it as a replacement and go on.
            ++ip;
            --inLeft;
            if (outLeft >= 3) {
                memcpy(op, "\xEF\xBF\xBD", 3);
                op += 3;
                outLeft -= 3;
            }
        }
        iconv_close(cd);
        out.truncate(int(op - out.data()));
        return QString::fromUtf8(out);
    }
    QString name() const override { return QString::fromLatin1(name_); }

private:
    QByteArray name_;
};

// Which ANSI code page Windows gives each language; everything else is Western (1252).
QString windowsCodePage(QLocale::Language language, QLocale::Script script,
                        QLocale::Territory territory) {
    switch (language) {
    case QLocale::Czech:
    case QLocale::Polish:
    case QLocale::Slovak:
    case QLocale::Hungarian:
    case QLocale::Slovenian:
    case QLocale::Croatian:
    case QLocale::Romanian:
    case QLocale::Albanian:
        return QStringLiteral("1250");
    case QLocale::Serbian:
    case QLocale::Bosnian:
        return script == QLocale::CyrillicScript ? QStringLiteral("1251") : QStringLiteral("1250");
    case QLocale::Russian:
    case QLocale::Ukrainian:
    case QLocale::Belarusian:
    case QLocale::Bulgarian:
    case QLocale::Macedonian:
    case QLocale::Kazakh:
    case QLocale::Kyrgyz:
    case QLocale::Tatar:
    case QLocale::Mongolian:
    case QLocale::Bashkir:
    case QLocale::Tajik:
        return QStringLiteral("1251");
    case QLocale::Azerbaijani:
    case QLocale::Uzbek:
        return script == QLocale::CyrillicScript ? QStringLiteral("1251") : QStringLiteral("1254");
    case QLocale::Greek:
        return QStringLiteral("1253");
    case QLocale::Turkish:
        return QStringLiteral("1254");
    case QLocale::Hebrew:
    case QLocale::Yiddish:
        return QStringLiteral("1255");
    case QLocale::Arabic:
    case QLocale::Persian:
    case QLocale::Urdu:
        return QStringLiteral("1256");
    case QLocale::Estonian:
    case QLocale::Latvian:
    case QLocale::Lithuanian:
        return QStringLiteral("1257");
    case QLocale::Vietnamese:
        return QStringLiteral("1258");
    case QLocale::Thai:
        return QStringLiteral("874");
    case QLocale::Japanese:
        return QStringLiteral("932");
    case QLocale::Korean:
        return QStringLiteral("949");
    case QLocale::Chinese:
        if (script == QLocale::TraditionalHanScript || territory == QLocale::Taiwan ||
            territory == QLocale::HongKong || territory == QLocale::Macao)
            return script == QLocale::SimplifiedHanScript ? QStringLiteral("936")
                                                          : QStringLiteral("950");
        return QStringLiteral("936");
    default:
        return QStringLiteral("1252");
    }
}

QMutex gMutex;
std::unique_ptr<CodePage> gOverride;

} // namespace

QString UnstorableCharacters(const CodePage& page, QStringView text) {
    QString missing;
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype len = (text[i].isHighSurrogate() && i + 1 < text.size()) ? 2 : 1;
        const QStringView ch = text.mid(i, len);
        i += len;
        if (ch == u"?" || missing.contains(ch))
            continue;
        // A character the page lacks comes back as '?', or not at all from iconv.
        if (page.decode(page.encode(ch, 8)) != ch)
            missing += ch;
    }
    return missing;
}

QString UnstorableNote(const CodePage& page, QStringView text) {
    const QString lost = UnstorableCharacters(page, text);
    return lost.isEmpty() ? QString()
                          : QStringLiteral("Code page %1 cannot store \"%2\"; saved as \"?\".")
                                .arg(page.name(), lost);
}

QString WindowsCodePageFor(const QLocale& locale) {
    return windowsCodePage(locale.language(), locale.script(), locale.territory());
}

std::unique_ptr<CodePage> CodePage::create(const QString& name) {
    const QString n = name.trimmed();
    const QString upper = n.toUpper();
    if (n.isEmpty() || upper == QLatin1String("1252") || upper == QLatin1String("CP1252") ||
        upper == QLatin1String("WINDOWS-1252"))
        return std::make_unique<Windows1252>();
    bool numeric = false;
    n.toInt(&numeric);
    const QByteArray iconvName = numeric ? ("CP" + n.toLatin1()) : n.toLatin1();
    if (!IconvCodePage::available(iconvName))
        return nullptr;
    return std::make_unique<IconvCodePage>(iconvName);
}

const CodePage& CodePage::active() {
    static const std::unique_ptr<CodePage> fromEnvironment = [] {
        const QString chosen = qEnvironmentVariable("ZENTOR_CODEPAGE");
        auto page =
            create(chosen.trimmed().isEmpty() ? WindowsCodePageFor(QLocale::system()) : chosen);
        return page ? std::move(page) : create(QString());
    }();
    QMutexLocker lock(&gMutex);
    return gOverride ? *gOverride : *fromEnvironment;
}

void CodePage::overrideActive(std::unique_ptr<CodePage> page) {
    QMutexLocker lock(&gMutex);
    gOverride = std::move(page);
}

} // namespace zentor
