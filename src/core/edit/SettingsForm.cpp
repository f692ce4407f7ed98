#include "edit/SettingsForm.h"

#include "edit/Prompter.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zentor {

namespace {

// A frame side as the dialog stores it: rounded half to even; a value beyond 32 bits is
// pinned to the nearest end rather than wrapping.
int32_t ToSide(double v) {
    if (std::isnan(v))
        return 0;
    const double r = std::nearbyint(v);
    const double lo = double(std::numeric_limits<int32_t>::min());
    const double hi = double(std::numeric_limits<int32_t>::max());
    return int32_t(std::clamp(r, lo, hi));
}

QString SizeText(int32_t w, int32_t h) {
    return QString::number(w) + QStringLiteral(" x ") + QString::number(h);
}

} // namespace

QStringList FrameSizeRows() {
    return {"600 x 400", "600 x 450", "640 x 480",  "720 x 480", "720 x 540",
            "800 x 600", "900 x 600", "1024 x 768", "Custom"};
}

SettingsForm IniCBFrame(const ScriptHeader& header) {
    SettingsForm f;
    f.music = header.BackMusic.trimNull();
    f.musicVolume =
        std::clamp(int(std::nearbyint(header.MusicVolume / 100.0)), 0, MusicVolumeSliderMax);
    f.autoRepeat = header.AutoRepeat != 0;
    f.showSlide = header.ShowAsRun != 0;
    f.speed = header.ShowSpeed != 0 ? std::clamp(header.ShowSpeed / 10, 0, SpeedSliderMax) : 0;
    f.widthText = QString::number(header.FrameWidth);
    f.heightText = QString::number(header.FrameHeight);
    f.frameRow = int(FrameSizeRows().indexOf(SizeText(header.FrameWidth, header.FrameHeight)));
    f.custom = f.frameRow < 0;
    return f;
}

void ApplySettings(ScriptHeader& header, const SettingsForm& form) {
    if (!form.custom) {
        const QStringList rows = FrameSizeRows();
        const QString row =
            form.frameRow >= 0 && form.frameRow < rows.size() ? rows[form.frameRow] : QString();
        header.FrameWidth = ToSide(LeadingNumber(row.left(4)));
        header.FrameHeight = ToSide(LeadingNumber(row.right(3)));
    } else {
        header.FrameWidth = ToSide(LeadingNumber(form.widthText));
        header.FrameHeight = ToSide(LeadingNumber(form.heightText));
    }
    header.ShowSpeed = form.speed * 10;
    header.ShowAsRun = form.showSlide ? 1 : 0;
    header.BackMusic = form.music;
    header.MusicVolume = form.musicVolume * 100;
    header.AutoRepeat = form.autoRepeat ? 1 : 0;
}

void ChooseSettingsMusic(Prompter& prompter, SettingsForm& form) {
    const QString path = prompter.chooseFile(false, QStringLiteral("Choose Background Music"),
                                             QStringLiteral("*.mp3|*.mp3"));
    if (!path.isEmpty())
        form.music = path;
}

double LeadingNumber(QStringView text) {
    QString s;
    s.reserve(text.size());
    for (QChar c : text) {
        if (c != QLatin1Char(' ') && c != QLatin1Char('\t') && c != QLatin1Char('\n'))
            s.append(c);
    }
    qsizetype i = 0;
    auto digit = [&](qsizetype k) {
        return k < s.size() && s[k] >= QLatin1Char('0') && s[k] <= QLatin1Char('9');
    };
    if (i < s.size() && (s[i] == QLatin1Char('-') || s[i] == QLatin1Char('+')))
        ++i;
    qsizetype mantissa = 0;
    while (digit(i))
        ++i, ++mantissa;
    if (i < s.size() && s[i] == QLatin1Char('.')) {
        ++i;
        while (digit(i))
            ++i, ++mantissa;
    }
    if (mantissa == 0)
        return 0;
    qsizetype end = i;
    // An exponent counts only when digits follow it ("1e" is 1).
    if (i < s.size() && QStringLiteral("eEdD").contains(s[i])) {
        qsizetype k = i + 1;
        if (k < s.size() && (s[k] == QLatin1Char('-') || s[k] == QLatin1Char('+')))
            ++k;
        if (digit(k)) {
            while (digit(k))
                ++k;
            end = k;
        }
    }
    QString number = s.left(end);
    number.replace(QLatin1Char('d'), QLatin1Char('e')).replace(QLatin1Char('D'), QLatin1Char('e'));
    bool ok = false;
    const double v = number.toDouble(&ok);
    return ok ? v : 0;
}

} // namespace zentor
