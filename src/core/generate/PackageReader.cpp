#include "generate/PackageReader.h"

#include "io/FileUtil.h"
#include "io/ProjectJson.h"
#include "io/RecordCodec.h"
#include "show/BlobName.h"

#include <QFile>
#include <QJsonArray>

#include <cstring>

namespace zentor {

bool PackageContents::usable(int entry) const {
    return Info.usable(entry);
}

QByteArray PackageContents::blob(int entry) const {
    const show::BlobRange r = Info.range(entry);
    return r.Length > 0 ? Data.mid(qsizetype(r.Offset), qsizetype(r.Length)) : QByteArray();
}

QByteArray PackageContents::blobView(int entry) const {
    const show::BlobRange r = Info.range(entry);
    return r.Length > 0 ? QByteArray::fromRawData(Data.constData() + r.Offset, qsizetype(r.Length))
                        : QByteArray();
}

PackageContents ParsePackage(QByteArray data, PackageForm form) {
    PackageContents p;
    p.Data = std::move(data);
    p.Info = show::ParsePackage(p.Data.constData(), size_t(p.Data.size()), form);
    p.Form = p.Info.Form;
    p.Base = p.Info.Base;
    p.Entries = p.Info.Entries;
    p.Complete = p.Info.Complete;
    for (const std::string& problem : p.Info.Problems)
        p.Problems << QString::fromStdString(problem);
    if (!p.Complete)
        return p;
    const char* at = p.Data.constData() + p.Base;
    DecodeHeader(QByteArrayView(at + Package::HeaderOffset, RecordSize::Header), p.Header);
    DecodeProfile(QByteArrayView(at + Package::ProfileOffset, RecordSize::Profile), p.Profile);
    for (int i = 0; i < Package::TabNameCount; ++i)
        std::memcpy(p.TabNames[size_t(i)].data(),
                    at + Package::TabNamesOffset + i * Package::TabNameSize, Package::TabNameSize);
    return p;
}

bool ReadPackage(const QString& path, PackageForm form, PackageContents& out, QString& error) {
    if (!IsRegularFile(path)) {
        error = QStringLiteral("cannot open %1: not a readable file").arg(path);
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("cannot open %1: %2").arg(path, file.errorString());
        return false;
    }
    QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    out = ParsePackage(std::move(data), form);
    return true;
}

QJsonObject PackageToJson(const PackageContents& p) {
    QJsonObject root;
    root.insert(QStringLiteral("Format"),
                p.Form == PackageForm::SelfRun ? QStringLiteral("selfrun") : QStringLiteral("qdv"));
    QJsonArray entries;
    for (const PackEntry& e : p.Entries)
        entries.append(QJsonObject{{QStringLiteral("Kind"), e.Kind},
                                   {QStringLiteral("Position"), e.Position},
                                   {QStringLiteral("Length"), e.Length}});
    root.insert(QStringLiteral("Entries"), entries);
    root.insert(QStringLiteral("Header"), HeaderToJson(p.Header));
    root.insert(QStringLiteral("Profile"), ProfileToJson(p.Profile));
    QJsonArray names;
    for (const auto& name : p.TabNames)
        names.append(name.isNul() ? QJsonValue() : QJsonValue(name.text()));
    root.insert(QStringLiteral("TabNames"), names);
    return root;
}

QString BlobFileName(int entry, const QByteArray& bytes) {
    return QString::fromLatin1(show::BlobFileName(entry, bytes.constData(), size_t(bytes.size())));
}

} // namespace zentor
