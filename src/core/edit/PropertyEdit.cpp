#include "edit/PropertyEdit.h"

#include "edit/ObjectList.h"
#include "edit/Prompter.h"
#include "io/FileUtil.h"

#include <cmath>
#include <limits>

namespace zentor {

namespace {

// Assigns and reports whether the field's bytes changed.
template <int N> bool Store(FixedString<N>& field, const QString& text) {
    const FixedString<N> before = field;
    field = text;
    return !(before == field);
}

template <typename T> bool StoreNumber(T& field, int32_t value) {
    const bool changed = field != T(value);
    field = T(value);
    return changed;
}

bool ValidTab(int tab) {
    return tab >= 0 && tab <= MaxTab;
}
bool ValidImage(int slot) {
    return slot >= 0 && slot <= MaxImages;
}
bool ValidText(int slot) {
    return slot >= 0 && slot <= MaxTexts;
}

// Rounds to the nearest whole number, halves to even, as the panel's conversions do.
std::optional<int32_t> ToInt32(double v) {
    const double r = std::nearbyint(v);
    if (!std::isfinite(r) || r < double(std::numeric_limits<int32_t>::min()) ||
        r > double(std::numeric_limits<int32_t>::max()))
        return std::nullopt;
    return int32_t(r);
}

} // namespace

PropertyTarget CurrentTarget(const EditorState& st) {
    return {st.CurrentTab, st.SelectedIndex};
}

bool MarksDirtyOnChange(PropertyText box) {
    switch (box) {
    case PropertyText::FirstName:
    case PropertyText::LastName:
    case PropertyText::Phone:
    case PropertyText::Email:
    case PropertyText::Website:
    case PropertyText::Address:
    case PropertyText::PostCode:
    case PropertyText::Word:
        return true;
    default:
        return false;
    }
}

bool CommitsOnEnter(PropertyText box) {
    return box != PropertyText::Word;
}

QString PropertyBoxText(const Document& doc, const PropertyTarget& t, PropertyText box) {
    const ProfileRecord& p = doc.Profile;
    switch (box) {
    case PropertyText::FirstName:
        return p.FirstName.trimNull();
    case PropertyText::LastName:
        return p.LastName.trimNull();
    case PropertyText::Phone:
        return p.Phone.trimNull();
    case PropertyText::Email:
        return p.Email.trimNull();
    case PropertyText::Website:
        return p.Website.trimNull();
    case PropertyText::Address:
        return p.Address.trimNull();
    case PropertyText::PostCode:
        return p.PostCode.trimNull();
    case PropertyText::TabName:
        return ValidTab(t.tab) ? doc.Tabs[t.tab].Name.trimNull() : QString();
    case PropertyText::ImgName:
        return ValidImage(t.slot) ? doc.Images[t.slot].Name.trimNull() : QString();
    case PropertyText::TextName:
        return ValidText(t.slot) ? doc.Texts[t.slot].Name.trimNull() : QString();
    case PropertyText::Word:
        if (!ValidText(t.slot))
            return QString();
        return QString(doc.Texts[t.slot].Text.text())
            .replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    case PropertyText::KeepOnTime:
        return QString::number(doc.Header.KeepOnTime);
    }
    return QString();
}

TextCommit CommitPropertyText(Document& doc, const PropertyTarget& t, PropertyText box,
                              const QString& text) {
    TextCommit c;
    bool changed = false;
    ProfileRecord& p = doc.Profile;
    c.stored = true;
    c.refresh = true;
    switch (box) {
    case PropertyText::FirstName:
        changed = Store(p.FirstName, text);
        break;
    case PropertyText::LastName:
        changed = Store(p.LastName, text);
        break;
    case PropertyText::Phone:
        changed = Store(p.Phone, text);
        break;
    case PropertyText::Email:
        changed = Store(p.Email, text);
        break;
    case PropertyText::Website:
        changed = Store(p.Website, text);
        break;
    case PropertyText::Address:
        changed = Store(p.Address, text);
        break;
    case PropertyText::PostCode:
        changed = Store(p.PostCode, text);
        break;
    case PropertyText::TabName:
        if (!ValidTab(t.tab))
            return {};
        changed = Store(doc.Tabs[t.tab].Name, text);
        c.renameStrip = true;
        break;
    case PropertyText::ImgName:
        if (!ValidImage(t.slot))
            return {};
        changed = Store(doc.Images[t.slot].Name, text);
        break;
    case PropertyText::TextName:
        if (!ValidText(t.slot))
            return {};
        changed = Store(doc.Texts[t.slot].Name, text);
        break;
    case PropertyText::Word:
        if (!ValidText(t.slot))
            return {};
        changed = Store(doc.Texts[t.slot].Text, text);
        break;
    case PropertyText::KeepOnTime: {
        c.refresh = false;
        const std::optional<int32_t> v = ParseWholeNumber(text);
        if (!v)
            return {};
        changed = StoreNumber(doc.Header.KeepOnTime, *v);
        break;
    }
    }
    if (changed)
        doc.Dirty = true;
    return c;
}

std::optional<int32_t> ParseWholeNumber(const QString& text) {
    const QString s = text.trimmed();
    // Sign, digits, an optional fraction: nothing else (no exponent, no hexadecimal).
    qsizetype i = 0;
    if (i < s.size() && (s[i] == QLatin1Char('-') || s[i] == QLatin1Char('+')))
        ++i;
    qsizetype digits = 0;
    while (i < s.size() && s[i].isDigit() && s[i].unicode() < 128)
        ++i, ++digits;
    if (i < s.size() && s[i] == QLatin1Char('.')) {
        ++i;
        while (i < s.size() && s[i].isDigit() && s[i].unicode() < 128)
            ++i, ++digits;
    }
    if (digits == 0 || i != s.size())
        return std::nullopt;
    bool ok = false;
    const double v = s.toDouble(&ok);
    if (!ok)
        return std::nullopt;
    return ToInt32(v);
}

IntRect LocationFromBoxes(const std::array<QString, 4>& boxes, const IntRect& record) {
    IntRect r = record;
    int* fields[4] = {&r.Left, &r.Top, &r.Width, &r.Height};
    for (int i = 0; i < 4; ++i) {
        if (const std::optional<int32_t> v = ParseWholeNumber(boxes[size_t(i)]))
            *fields[i] = *v;
    }
    return r;
}

std::optional<IntRect> ObjectRect(const Document& doc, int kind, int slot) {
    if (kind == KindImage && ValidImage(slot)) {
        const ImageElement& e = doc.Images[slot];
        return IntRect{e.Left, e.Top, e.Width, e.Height};
    }
    if (kind == KindText && ValidText(slot)) {
        const TextElement& e = doc.Texts[slot];
        return IntRect{e.Left, e.Top, e.Width, e.Height};
    }
    return std::nullopt;
}

QStringList ComboRows(PropertyCombo combo) {
    switch (combo) {
    case PropertyCombo::TabPicAlign:
        return {"Fitness", "Fitness & Center", "Center", "Original"};
    case PropertyCombo::AlignH:
        return {"0 - Left Just", "1 - Center ", "2 - Right Just"};
    case PropertyCombo::AlignV:
        return {"0 - Top Just", "1 - Center", "2 - Bottom Just"};
    case PropertyCombo::FontShadow:
    case PropertyCombo::AutoRepeat:
    case PropertyCombo::ShowAsRun:
        return {"False", "True"};
    case PropertyCombo::TextHint:
        return {"SystemDefault",     "SingleBitPerPixelGridFit",
                "SingleBitPerPixel", "AntiAliasGridFit",
                "AntiAlias",         "ClearTypeGridFit"};
    case PropertyCombo::MusicVol:
        return {"0", "10", "20", "30", "40", "50", "60", "70", "80", "90", "100"};
    case PropertyCombo::ShowSpeed:
        return {"Very Fast", "Fast", "Medium", "Slow", "Very Slow"};
    }
    return {};
}

int32_t ComboValue(PropertyCombo combo, int row) {
    switch (combo) {
    case PropertyCombo::MusicVol:
        return row * 100;
    case PropertyCombo::ShowSpeed:
        return row * 10;
    case PropertyCombo::FontShadow:
        return row == 1 ? -1 : 0; // a 16-bit Boolean: True is -1
    default:
        return row;
    }
}

int ComboRow(PropertyCombo combo, int32_t value) {
    int row = value;
    switch (combo) {
    case PropertyCombo::MusicVol:
        row = int(std::nearbyint(value / 100.0));
        break;
    case PropertyCombo::ShowSpeed:
        row = int(std::nearbyint(value / 10.0));
        break;
    case PropertyCombo::FontShadow:
        row = value != 0 ? 1 : 0;
        break;
    default:
        break;
    }
    return row >= 0 && row < ComboRows(combo).size() ? row : -1;
}

bool ComboRefreshes(PropertyCombo combo) {
    switch (combo) {
    case PropertyCombo::MusicVol:
    case PropertyCombo::AutoRepeat:
    case PropertyCombo::ShowSpeed:
    case PropertyCombo::ShowAsRun:
        return false;
    default:
        return true;
    }
}

namespace {

// Runs `f` on the document field a combo writes for `t`; false when the target is no slot.
template <typename Doc, typename F>
bool WithComboField(Doc& doc, const PropertyTarget& t, PropertyCombo combo, F&& f) {
    switch (combo) {
    case PropertyCombo::TabPicAlign:
        return ValidTab(t.tab) ? f(doc.Tabs[t.tab].Picture.PicAlign) : false;
    case PropertyCombo::AlignH:
        return ValidText(t.slot) ? f(doc.Texts[t.slot].Align) : false;
    case PropertyCombo::AlignV:
        return ValidText(t.slot) ? f(doc.Texts[t.slot].LineAlign) : false;
    case PropertyCombo::FontShadow:
        return ValidText(t.slot) ? f(doc.Texts[t.slot].FontShadow) : false;
    case PropertyCombo::TextHint:
        return ValidText(t.slot) ? f(doc.Texts[t.slot].TextHint) : false;
    case PropertyCombo::MusicVol:
        return f(doc.Header.MusicVolume);
    case PropertyCombo::AutoRepeat:
        return f(doc.Header.AutoRepeat);
    case PropertyCombo::ShowSpeed:
        return f(doc.Header.ShowSpeed);
    case PropertyCombo::ShowAsRun:
        return f(doc.Header.ShowAsRun);
    }
    return false;
}

} // namespace

int ComboRowFromDocument(const Document& doc, const PropertyTarget& t, PropertyCombo combo) {
    int row = -1;
    WithComboField(doc, t, combo, [&](const auto& field) {
        row = ComboRow(combo, int32_t(field));
        return true;
    });
    return row;
}

bool CommitCombo(Document& doc, const PropertyTarget& t, PropertyCombo combo, int row) {
    if (row < 0 || row >= ComboRows(combo).size())
        return false;
    bool changed = false;
    const bool stored = WithComboField(doc, t, combo, [&](auto& field) {
        changed = StoreNumber(field, ComboValue(combo, row));
        return true;
    });
    if (changed)
        doc.Dirty = true;
    return stored;
}

FileChoiceDialog FileChoiceFor(FileChoice choice) {
    const QString pictures = QStringLiteral("*.jpg;*.bmp;*.png|*.jpg;*.bmp;*.png|*.*|*.*");
    const QString withIcons =
        QStringLiteral("*.jpg;*.bmp;*.ico;*.png|*.jpg;*.bmp;*.ico;*.png|*.*|*.*");
    switch (choice) {
    case FileChoice::UserIcon:
        return {QStringLiteral("Choose user icon file"), pictures, true};
    case FileChoice::TabIcon:
        return {QStringLiteral("Choose tab icon file"),
                QStringLiteral("*.ico;*.png|*.ico;*.png|*.*|*.*"), false};
    case FileChoice::TabPicture:
        return {QStringLiteral("Choose picture file"), withIcons, true};
    case FileChoice::ImageFile:
        return {QStringLiteral("Choose image file"), pictures, true};
    case FileChoice::BackPicture:
        return {QStringLiteral("Choose Background picture file"), withIcons, true};
    case FileChoice::BackMusic:
        return {QStringLiteral("Choose Background Music"), QStringLiteral("*.mp3|*.mp3"), false};
    }
    return {};
}

namespace {

template <typename Doc, typename F>
bool WithFileField(Doc& doc, const PropertyTarget& t, FileChoice choice, F&& f) {
    switch (choice) {
    case FileChoice::UserIcon:
        return f(doc.Profile.UserIcon);
    case FileChoice::TabIcon:
        return ValidTab(t.tab) ? f(doc.Tabs[t.tab].Icon) : false;
    case FileChoice::TabPicture:
        return ValidTab(t.tab) ? f(doc.Tabs[t.tab].Picture.FileName) : false;
    case FileChoice::ImageFile:
        return ValidImage(t.slot) ? f(doc.Images[t.slot].FileName) : false;
    case FileChoice::BackPicture:
        return f(doc.Header.BackPicture);
    case FileChoice::BackMusic:
        return f(doc.Header.BackMusic);
    }
    return false;
}

} // namespace

QString ChooseAndStoreFile(Prompter& prompter, Document& doc, const PropertyTarget& t,
                           FileChoice choice) {
    const FileChoiceDialog dialog = FileChoiceFor(choice);
    const QString path = prompter.chooseFile(false, dialog.title, dialog.filter);
    if (path.isEmpty())
        return QString();
    bool changed = false;
    WithFileField(doc, t, choice, [&](auto& field) {
        changed = Store(field, path);
        return true;
    });
    if (changed)
        doc.Dirty = true;
    return path;
}

QString StoredFile(const Document& doc, const PropertyTarget& t, FileChoice choice) {
    QString s;
    WithFileField(doc, t, choice, [&](const auto& field) {
        s = field.trimNull();
        return true;
    });
    return s;
}

QString BackColorText(int32_t backColor) {
    return QStringLiteral("     &H") + HexColor(uint32_t(backColor), 8);
}

uint32_t BackColorArgb(int32_t backColor) {
    const uint32_t v = uint32_t(backColor);
    return 0xFF000000u | ((v & 0xFFu) << 16) | (v & 0xFF00u) | ((v >> 16) & 0xFFu);
}

int32_t ChooseAndStoreBackColor(Prompter& prompter, Document& doc) {
    const int32_t c = int32_t(prompter.chooseColor());
    if (StoreNumber(doc.Header.BackColor, c))
        doc.Dirty = true;
    return c;
}

QString FontColorText(int32_t argb) {
    return QStringLiteral("&H") + QString::number(uint32_t(argb), 16).toUpper();
}

QString TrimStoredFontName(Document& doc, const PropertyTarget& t) {
    if (!ValidText(t.slot))
        return QString();
    FixedString<31>& name = doc.Texts[t.slot].FontName;
    const QString trimmed = name.trimmed();
    if (Store(name, trimmed))
        doc.Dirty = true;
    return name.text();
}

} // namespace zentor
