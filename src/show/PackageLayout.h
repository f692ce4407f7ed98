#pragma once

#include <array>
#include <cstdint>

namespace zentor::show {

// One row of a package's entry table: 12 bytes, three little-endian 32-bit integers.
// Positions are 1-based and absolute in the whole file (the player's bytes included).
struct PackEntry {
    int32_t Kind = 0;     // PackKind
    int32_t Position = 0; // 1-based; 0 when the slot is empty
    int32_t Length = 0;
    bool operator==(const PackEntry& o) const {
        return Kind == o.Kind && Position == o.Position && Length == o.Length;
    }
    bool operator!=(const PackEntry& o) const { return !(*this == o); }
};

enum PackKind : int32_t { PackEmpty = 0, PackPicture = 1, PackMusic = 2 };

namespace Package {
inline constexpr int EntryCount = 19;
inline constexpr int EntrySize = 12;
inline constexpr int TableSize = EntryCount * EntrySize; // 228
inline constexpr int HeaderOffset = TableSize;           // 228
inline constexpr int HeaderSize = 564;
inline constexpr int ProfileOffset = HeaderOffset + 564; // 792
inline constexpr int ProfileSize = 800;
inline constexpr int TabNamesOffset = ProfileOffset + 800; // 1592
inline constexpr int TabNameSize = 32;
inline constexpr int TabNameCount = 7; // tabs 1..7; the slide show's name is not carried
inline constexpr int BlobsOffset = TabNamesOffset + TabNameCount * TabNameSize; // 1816

// The fixed slots.
inline constexpr int UserIconEntry = 0;
inline constexpr int UnusedEntry = 1;       // tab 1's icon is never carried
inline constexpr int FirstTabIconEntry = 2; // entry n holds the icon of tab n, 2..8
inline constexpr int LastTabIconEntry = 8;
inline constexpr int BackPictureEntry = 9;
inline constexpr int MusicEntry = 10;
inline constexpr int FirstPageEntry = 11; // entry 10 + n holds page n, 1..8
inline constexpr int PageCount = 8;
} // namespace Package

// Bytes before the table of a self-running program: the player's fixed size.
inline constexpr int64_t PlayerStubBytes = 524288;

using PackTable = std::array<PackEntry, Package::EntryCount>;

// Little-endian integers as the package stores them.
int32_t ReadInt32(const char* at);
void WriteInt32(char* at, int32_t v);

// The table's disk form (TableSize bytes), entry 0 first, and back.
PackTable DecodeTable(const char* bytes);
void EncodeTable(const PackTable& table, char* out);

} // namespace zentor::show
