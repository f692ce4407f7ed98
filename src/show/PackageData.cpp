#include "PackageData.h"

#include <cstring>

namespace zentor::show {
namespace {

// A stored text: up to the first NUL, trailing blanks removed.
std::string fieldText(const char* at, int size) {
    const void* nul = std::memchr(at, '\0', size_t(size));
    size_t len = nul ? size_t(static_cast<const char*>(nul) - at) : size_t(size);
    while (len > 0 && at[len - 1] == ' ')
        --len;
    return std::string(at, len);
}

ShowHeader decodeHeader(const char* at) {
    ShowHeader h;
    h.MusicVolume = ReadInt32(at + 532);
    h.AutoRepeat = ReadInt32(at + 536);
    h.BackColor = ReadInt32(at + 540);
    h.ShowSpeed = ReadInt32(at + 544);
    h.ShowAsRun = ReadInt32(at + 548);
    h.KeepOnTime = ReadInt32(at + 552);
    h.FrameWidth = ReadInt32(at + 556);
    h.FrameHeight = ReadInt32(at + 560);
    return h;
}

ShowProfile decodeProfile(const char* at) {
    ShowProfile p;
    p.UserIcon = fieldText(at, 256);
    p.FirstName = fieldText(at + 256, 32);
    p.LastName = fieldText(at + 288, 32);
    p.Phone = fieldText(at + 320, 16);
    p.Email = fieldText(at + 336, 64);
    p.Website = fieldText(at + 400, 128);
    p.Address = fieldText(at + 528, 256);
    p.PostCode = fieldText(at + 784, 16);
    return p;
}

std::string entryText(int i, const PackEntry& e) {
    return "entry " + std::to_string(i) + " (kind " + std::to_string(e.Kind) + ", position " +
           std::to_string(e.Position) + ", length " + std::to_string(e.Length) + ")";
}

} // namespace

bool PackageInfo::usable(int entry) const {
    if (entry < 0 || entry >= Package::EntryCount)
        return false;
    const PackEntry& e = Entries[size_t(entry)];
    if ((e.Kind != PackPicture && e.Kind != PackMusic) || e.Position < 1 || e.Length < 0)
        return false;
    const int64_t start = int64_t(e.Position) - 1;
    return start >= Base + Package::BlobsOffset && start + e.Length <= FileSize;
}

BlobRange PackageInfo::range(int entry) const {
    if (!usable(entry))
        return {};
    const PackEntry& e = Entries[size_t(entry)];
    return {int64_t(e.Position) - 1, e.Length};
}

PackageInfo ParsePackage(const char* data, size_t size, PackageForm form) {
    PackageInfo p;
    p.FileSize = int64_t(size);
    if (form == PackageForm::Detect) {
        const bool program = (size >= 4 && std::memcmp(data,
                                                       "\x7f"
                                                       "ELF",
                                                       4) == 0) ||
                             (size >= 2 && std::memcmp(data, "MZ", 2) == 0);
        form = program ? PackageForm::SelfRun : PackageForm::Qdv;
    }
    p.Form = form;
    p.Base = form == PackageForm::SelfRun ? PlayerStubBytes : 0;
    if (p.FileSize < p.Base + Package::BlobsOffset) {
        p.Problems.push_back("the file has " + std::to_string(p.FileSize) +
                             " bytes; a package needs at least " +
                             std::to_string(p.Base + Package::BlobsOffset));
        return p;
    }
    const char* at = data + p.Base;
    p.Entries = DecodeTable(at);
    p.Header = decodeHeader(at + Package::HeaderOffset);
    p.Profile = decodeProfile(at + Package::ProfileOffset);
    for (int i = 0; i < Package::TabNameCount; ++i)
        p.TabNames[size_t(i)] = fieldText(at + Package::TabNamesOffset + i * Package::TabNameSize,
                                          Package::TabNameSize);
    p.Complete = true;

    for (int i = 0; i < Package::EntryCount; ++i) {
        const PackEntry& e = p.Entries[size_t(i)];
        if (e.Kind < PackEmpty || e.Kind > PackMusic)
            p.Problems.push_back(entryText(i, e) + ": unknown kind");
        else if (e.Kind == PackEmpty && (e.Position != 0 || e.Length != 0))
            p.Problems.push_back(entryText(i, e) + ": an empty entry with a position or length");
        else if (e.Kind != PackEmpty && !p.usable(i))
            p.Problems.push_back(entryText(i, e) + ": does not lie inside the blobs of a " +
                                 std::to_string(p.FileSize) + "-byte file");
    }
    for (int i = 0; i < Package::PageCount; ++i)
        if (p.Entries[size_t(Package::FirstPageEntry + i)].Kind == PackEmpty)
            p.Problems.push_back("page " + std::to_string(i + 1) + " is missing");
    return p;
}

std::string PackageFile::blob(int entry) const {
    const BlobRange r = Info.range(entry);
    if (r.Length <= 0 || r.Offset + r.Length > int64_t(Bytes.size()))
        return std::string();
    return std::string(Bytes.data() + r.Offset, size_t(r.Length));
}

} // namespace zentor::show
