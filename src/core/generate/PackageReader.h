#pragma once

#include "generate/PackEntry.h"
#include "model/Records.h"
#include "show/PackageData.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <array>

namespace zentor {

using PackageForm = show::PackageForm;
using show::PlayerStubBytes;

// A package taken apart by the players' reader, with the records in the editor's types.
// A damaged package still parses as far as it goes: what is wrong is listed in Problems,
// and an entry that does not lie inside the file yields no blob.
struct PackageContents {
    show::PackageInfo Info;
    PackageForm Form = PackageForm::Qdv;
    qint64 Base = 0; // byte offset of the entry table
    PackTable Entries{};
    ScriptHeader Header;
    ProfileRecord Profile;
    std::array<FixedString<Package::TabNameSize>, Package::TabNameCount> TabNames;
    QByteArray Data; // the whole file
    QStringList Problems;
    bool Complete = false; // the table and the records were all there

    // The blob of a present entry that lies inside the file; empty otherwise.
    QByteArray blob(int entry) const;
    // The same without a copy: it looks into Data and is valid only while Data is.
    QByteArray blobView(int entry) const;
    bool usable(int entry) const;
};

// Parses a package held in memory. Detect treats data that starts like a program (ELF or
// MZ) as self-running, anything else as a data file.
PackageContents ParsePackage(QByteArray data, PackageForm form);

// Reads and parses a file; false (with `error`) only when it cannot be read at all.
bool ReadPackage(const QString& path, PackageForm form, PackageContents& out, QString& error);

// {"Format":"qdv"|"selfrun","Entries":[19 x {"Kind","Position","Length"}],"Header":{...},
//  "Profile":{...},"TabNames":[7 strings]}
QJsonObject PackageToJson(const PackageContents& p);

// The file name `unpack` gives a blob: entry number, what it holds, and an extension
// sniffed from its first bytes (e.g. "00-usericon.jpg", "02-tabicon.png", "11-page1.jpg").
QString BlobFileName(int entry, const QByteArray& bytes);

} // namespace zentor
