#include "io/ProjectJson.h"

#include <QJsonArray>

namespace zentor {
namespace {

// One description of each record's fields serves both directions.
struct ToJson {
    QJsonObject obj;
    template <typename T> void num(const char* key, const T& v) {
        obj.insert(QLatin1String(key), int(v));
    }
    template <int N> void str(const char* key, const FixedString<N>& s) {
        obj.insert(QLatin1String(key), s.isNul() ? QJsonValue() : QJsonValue(s.text()));
    }
};

struct FromJson {
    const QJsonObject& obj;
    QString& error;
    QString where;
    template <typename T> void num(const char* key, T& v) {
        const QJsonValue j = obj.value(QLatin1String(key));
        if (j.isUndefined() || j.isNull())
            return;
        if (!j.isDouble()) {
            error = QStringLiteral("%1.%2 must be a number").arg(where, QLatin1String(key));
            return;
        }
        v = T(j.toInteger());
    }
    template <int N> void str(const char* key, FixedString<N>& s) {
        const QJsonValue j = obj.value(QLatin1String(key));
        if (j.isUndefined() || j.isNull())
            return;
        if (!j.isString()) {
            error = QStringLiteral("%1.%2 must be a string or null").arg(where, QLatin1String(key));
            return;
        }
        s = j.toString();
    }
};

template <typename Io, typename H> void headerFields(Io& io, H& h) {
    io.num("VersionMajor", h.VersionMajor);
    io.num("VersionMinor", h.VersionMinor);
    io.num("VersionRevision", h.VersionRevision);
    io.num("TextCount", h.TextCount);
    io.num("ImageCount", h.ImageCount);
    io.str("BackMusic", h.BackMusic);
    io.str("BackPicture", h.BackPicture);
    io.num("MusicVolume", h.MusicVolume);
    io.num("AutoRepeat", h.AutoRepeat);
    io.num("BackColor", h.BackColor);
    io.num("ShowSpeed", h.ShowSpeed);
    io.num("ShowAsRun", h.ShowAsRun);
    io.num("KeepOnTime", h.KeepOnTime);
    io.num("FrameWidth", h.FrameWidth);
    io.num("FrameHeight", h.FrameHeight);
}

template <typename Io, typename P> void profileFields(Io& io, P& p) {
    io.str("UserIcon", p.UserIcon);
    io.str("FirstName", p.FirstName);
    io.str("LastName", p.LastName);
    io.str("Phone", p.Phone);
    io.str("Email", p.Email);
    io.str("Website", p.Website);
    io.str("Address", p.Address);
    io.str("PostCode", p.PostCode);
}

template <typename Io, typename E> void imageFields(Io& io, E& e) {
    io.num("TabNo", e.TabNo);
    io.num("Reserved", e.Reserved);
    io.str("Name", e.Name);
    io.str("FileName", e.FileName);
    io.num("PicAlign", e.PicAlign);
    io.num("Flag", e.Flag);
    io.num("Left", e.Left);
    io.num("Top", e.Top);
    io.num("Width", e.Width);
    io.num("Height", e.Height);
    io.num("Extra", e.Extra);
}

template <typename Io, typename T> void textFields(Io& io, T& t) {
    io.num("TabNo", t.TabNo);
    io.str("Name", t.Name);
    io.str("Text", t.Text);
    io.num("Extra", t.Extra);
    io.num("Left", t.Left);
    io.num("Top", t.Top);
    io.num("Width", t.Width);
    io.num("Height", t.Height);
    io.str("FontName", t.FontName);
    io.num("FontSize", t.FontSize);
    io.num("FontStyle", t.FontStyle);
    io.num("Align", t.Align);
    io.num("FontColor", t.FontColor);
    io.num("FontShadow", t.FontShadow);
    io.num("TextHint", t.TextHint);
    io.num("LineAlign", t.LineAlign);
    io.num("Extra2", t.Extra2);
}

template <typename Rec, typename Fields> QJsonObject toJson(const Rec& rec, Fields fields) {
    ToJson io;
    fields(io, rec);
    return io.obj;
}

template <typename Rec, typename Fields>
void fromJson(const QJsonValue& v, Rec& rec, Fields fields, const QString& where, QString& error) {
    if (v.isUndefined() || v.isNull())
        return;
    if (!v.isObject()) {
        error = where + QStringLiteral(" must be an object");
        return;
    }
    const QJsonObject obj = v.toObject();
    FromJson io{obj, error, where};
    fields(io, rec);
}

QJsonObject tabToJson(const TabRecord& t) {
    QJsonObject o;
    o.insert(QStringLiteral("Picture"),
             toJson(t.Picture, [](ToJson& io, const ImageElement& e) { imageFields(io, e); }));
    ToJson io;
    io.str("Icon", t.Icon);
    io.str("Name", t.Name);
    io.num("Extra", t.Extra);
    for (auto it = io.obj.begin(); it != io.obj.end(); ++it)
        o.insert(it.key(), it.value());
    return o;
}

void tabFromJson(const QJsonValue& v, TabRecord& t, const QString& where, QString& error) {
    fromJson(
        v, t,
        [&](FromJson& io, TabRecord& r) {
            fromJson(
                io.obj.value(QStringLiteral("Picture")), r.Picture,
                [](FromJson& pio, ImageElement& e) { imageFields(pio, e); },
                where + QStringLiteral(".Picture"), error);
            io.str("Icon", r.Icon);
            io.str("Name", r.Name);
            io.num("Extra", r.Extra);
        },
        where, error);
}

template <typename Rec, std::size_t N, typename Fields>
void listFromJson(const QJsonValue& v, std::array<Rec, N>& table, Fields fields,
                  const QString& name, QString& error) {
    if (v.isUndefined() || v.isNull())
        return;
    if (!v.isArray()) {
        error = name + QStringLiteral(" must be an array");
        return;
    }
    const QJsonArray arr = v.toArray();
    if (arr.size() > qsizetype(N - 1)) {
        error = QStringLiteral("%1 holds %2 records; at most %3 fit")
                    .arg(name)
                    .arg(arr.size())
                    .arg(N - 1);
        return;
    }
    for (qsizetype i = 0; i < arr.size() && error.isEmpty(); ++i)
        fromJson(arr.at(i), table[size_t(i + 1)], fields, QStringLiteral("%1[%2]").arg(name).arg(i),
                 error);
}

} // namespace

QJsonObject HeaderToJson(const ScriptHeader& h) {
    return toJson(h, [](ToJson& io, const ScriptHeader& r) { headerFields(io, r); });
}

QJsonObject ProfileToJson(const ProfileRecord& p) {
    return toJson(p, [](ToJson& io, const ProfileRecord& r) { profileFields(io, r); });
}

QJsonObject ProjectToJson(const Document& doc, int textCount, int imageCount) {
    QJsonObject root;
    root.insert(QStringLiteral("Header"), HeaderToJson(doc.Header));
    root.insert(QStringLiteral("Profile"), ProfileToJson(doc.Profile));
    QJsonArray tabs;
    for (int i = 1; i <= 8; ++i)
        tabs.append(tabToJson(doc.Tabs[i]));
    root.insert(QStringLiteral("Tabs"), tabs);
    QJsonArray texts;
    for (int i = 1; i <= std::min(textCount, MaxTexts); ++i)
        texts.append(
            toJson(doc.Texts[i], [](ToJson& io, const TextElement& r) { textFields(io, r); }));
    root.insert(QStringLiteral("Texts"), texts);
    QJsonArray images;
    for (int i = 1; i <= std::min(imageCount, MaxImages); ++i)
        images.append(
            toJson(doc.Images[i], [](ToJson& io, const ImageElement& r) { imageFields(io, r); }));
    root.insert(QStringLiteral("Images"), images);
    return root;
}

QString ApplyProjectJson(const QJsonObject& json, Document& doc) {
    QString error;
    fromJson(
        json.value(QStringLiteral("Header")), doc.Header,
        [](FromJson& io, ScriptHeader& r) { headerFields(io, r); }, QStringLiteral("Header"),
        error);
    if (error.isEmpty())
        fromJson(
            json.value(QStringLiteral("Profile")), doc.Profile,
            [](FromJson& io, ProfileRecord& r) { profileFields(io, r); }, QStringLiteral("Profile"),
            error);
    const QJsonValue tabs = json.value(QStringLiteral("Tabs"));
    if (error.isEmpty() && !tabs.isUndefined() && !tabs.isNull()) {
        if (!tabs.isArray() || tabs.toArray().size() > 8) {
            error = QStringLiteral("Tabs must be an array of at most 8 records (tabs 1..8)");
        } else {
            const QJsonArray arr = tabs.toArray();
            for (qsizetype i = 0; i < arr.size() && error.isEmpty(); ++i)
                tabFromJson(arr.at(i), doc.Tabs[size_t(i + 1)], QStringLiteral("Tabs[%1]").arg(i),
                            error);
        }
    }
    if (error.isEmpty())
        listFromJson(
            json.value(QStringLiteral("Texts")), doc.Texts,
            [](FromJson& io, TextElement& r) { textFields(io, r); }, QStringLiteral("Texts"),
            error);
    if (error.isEmpty())
        listFromJson(
            json.value(QStringLiteral("Images")), doc.Images,
            [](FromJson& io, ImageElement& r) { imageFields(io, r); }, QStringLiteral("Images"),
            error);
    return error;
}

} // namespace zentor
