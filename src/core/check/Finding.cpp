#include "check/Finding.h"

#include "model/Document.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace zentor {

QString KindName(FindingKind kind) {
    switch (kind) {
    case FindingKind::Spelling:
        return QStringLiteral("spelling");
    case FindingKind::Overflow:
        return QStringLiteral("overflow");
    case FindingKind::Contrast:
        return QStringLiteral("contrast");
    case FindingKind::Resolution:
        return QStringLiteral("resolution");
    case FindingKind::Missing:
        return QStringLiteral("missing");
    case FindingKind::Empty:
        return QStringLiteral("empty");
    }
    return QString();
}

QString PageName(const Document& doc, int tab) {
    if (tab < 0 || tab > MaxTab)
        return QStringLiteral("Résumé");
    if (tab == ProfileTab)
        return QStringLiteral("Get Started");
    const QString name = doc.Tabs[size_t(tab)].Name.text().trimmed();
    return name.isEmpty() ? QStringLiteral("page %1").arg(tab) : name;
}

QString ObjectLabel(const QString& name, int objectKind, int slot) {
    const QString trimmed = name.trimmed();
    if (!trimmed.isEmpty())
        return trimmed;
    return (objectKind == 1 ? QStringLiteral("image %1") : QStringLiteral("text %1")).arg(slot);
}

QString FindingProblem(const Finding& f) {
    if (f.suggestions.isEmpty())
        return f.message;
    return f.message +
           QStringLiteral(" (try: %1)").arg(f.suggestions.mid(0, 5).join(QStringLiteral(", ")));
}

QString FindingLine(const Document& doc, const Finding& f) {
    QString line = PageName(doc, f.tab);
    if (!f.object.isEmpty())
        line += QStringLiteral(", ") + f.object;
    return line + QStringLiteral(": ") + FindingProblem(f);
}

QString FindingCount(size_t n) {
    return n == 1 ? QStringLiteral("1 finding") : QStringLiteral("%1 findings").arg(n);
}

QString NothingToFix() {
    return QStringLiteral("Nothing to fix.");
}

QString StatusAfterOutput(const QString& said, size_t remaining) {
    if (remaining == 0)
        return said;
    const QString remain =
        FindingCount(remaining) +
        (remaining == 1 ? QStringLiteral(" remains") : QStringLiteral(" remain")) +
        QStringLiteral(": Edit > Check Résumé... (F7) lists them");
    // Beside what the command reported, not instead of it.
    return said.isEmpty() || said == QLatin1String("Ready") ? remain
                                                            : said + QStringLiteral("; ") + remain;
}

QJsonObject FindingJson(const Finding& f) {
    QJsonObject o;
    o.insert(QStringLiteral("kind"), KindName(f.kind));
    o.insert(QStringLiteral("tab"), f.tab < 0 ? QJsonValue() : QJsonValue(f.tab));
    o.insert(QStringLiteral("object"), f.object);
    o.insert(QStringLiteral("message"), f.message);
    o.insert(QStringLiteral("word"), f.word.isEmpty() ? QJsonValue() : QJsonValue(f.word));
    o.insert(QStringLiteral("suggestions"), QJsonArray::fromStringList(f.suggestions));
    return o;
}

QByteArray FindingsJson(const std::vector<Finding>& findings) {
    static const char* const keys[] = {"kind", "tab", "object", "message", "word", "suggestions"};
    QByteArray out = "{\n    \"findings\": [";
    for (size_t i = 0; i < findings.size(); ++i) {
        const QJsonObject o = FindingJson(findings[i]);
        out += i ? ",\n        {" : "\n        {";
        for (const char* key : keys) {
            // A value alone is written as the one element of an array, brackets removed.
            QByteArray value = QJsonDocument(QJsonArray{o.value(QLatin1String(key))})
                                   .toJson(QJsonDocument::Compact);
            value = value.mid(1, value.size() - 2);
            out +=
                QByteArray(key == keys[0] ? "" : ",") + "\n            \"" + key + "\": " + value;
        }
        out += "\n        }";
    }
    out += findings.empty() ? "]\n}\n" : "\n    ]\n}\n";
    return out;
}

} // namespace zentor
