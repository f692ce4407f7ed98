#include "PackageLayout.h"

namespace zentor::show {

int32_t ReadInt32(const char* at) {
    const auto* b = reinterpret_cast<const unsigned char*>(at);
    return int32_t(uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 |
                   uint32_t(b[3]) << 24);
}

void WriteInt32(char* at, int32_t v) {
    const uint32_t u = uint32_t(v);
    for (int i = 0; i < 4; ++i)
        at[i] = char((u >> (8 * i)) & 0xff);
}

PackTable DecodeTable(const char* bytes) {
    PackTable table;
    for (PackEntry& e : table) {
        e.Kind = ReadInt32(bytes);
        e.Position = ReadInt32(bytes + 4);
        e.Length = ReadInt32(bytes + 8);
        bytes += Package::EntrySize;
    }
    return table;
}

void EncodeTable(const PackTable& table, char* out) {
    for (const PackEntry& e : table) {
        WriteInt32(out, e.Kind);
        WriteInt32(out + 4, e.Position);
        WriteInt32(out + 8, e.Length);
        out += Package::EntrySize;
    }
}

} // namespace zentor::show
