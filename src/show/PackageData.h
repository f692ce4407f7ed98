#pragma once

#include "PackageLayout.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zentor::show {

// Where a package's table lies: at the start of a data file, or after the player's bytes.
enum class PackageForm { Qdv, SelfRun, Detect };

// The show settings of the package's header (the document's numbers, unchecked).
struct ShowHeader {
    int32_t MusicVolume = 0; // 0..1000
    int32_t AutoRepeat = 0;  // 1 loops the music
    int32_t BackColor = 0;   // 0x00BBGGRR
    int32_t ShowSpeed = 0;   // 0 very fast .. 40 very slow
    int32_t ShowAsRun = 0;   // 1 starts the slide show at once
    int32_t KeepOnTime = 0;  // ms each page is held
    int32_t FrameWidth = 0;
    int32_t FrameHeight = 0;
};

// The person's texts as stored: bytes of the document's code page, cut at the first NUL,
// trailing blanks removed.
struct ShowProfile {
    std::string UserIcon, FirstName, LastName, Phone, Email, Website, Address, PostCode;
};

// Where one blob lies in the file: bytes [Offset, Offset + Length).
struct BlobRange {
    int64_t Offset = 0;
    int64_t Length = 0;
};

// A package taken apart. A damaged package parses as far as it goes: what is wrong is in
// Problems, and an entry that does not lie inside the file has no blob.
struct PackageInfo {
    PackageForm Form = PackageForm::Qdv;
    int64_t Base = 0;     // byte offset of the entry table
    int64_t FileSize = 0; // bytes in the whole file
    PackTable Entries{};
    ShowHeader Header;
    ShowProfile Profile;
    std::array<std::string, Package::TabNameCount> TabNames; // tabs 1..7, as Profile's texts
    std::vector<std::string> Problems;
    bool Complete = false; // the table and the records were all there

    // A present entry whose bytes lie inside the file (Length is trusted, never the next
    // blob's Position).
    bool usable(int entry) const;
    // Its bytes' range; {0, 0} when not usable.
    BlobRange range(int entry) const;
};

// Parses a package held in memory. Detect takes data that starts like a program (ELF or
// MZ) as self-running, anything else as a data file. Nothing of `data` is kept.
PackageInfo ParsePackage(const char* data, size_t size, PackageForm form);

// A whole package file held in memory with what it says.
struct PackageFile {
    std::vector<char> Bytes;
    PackageInfo Info;
    // The blob of a usable entry; empty otherwise.
    std::string blob(int entry) const;
};

// Reads and parses a file; false (with `error`) only when it cannot be read at all.
bool ReadPackageFile(const std::string& path, PackageForm form, PackageFile& out,
                     std::string& error);

} // namespace zentor::show
