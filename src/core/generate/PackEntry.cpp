#include "generate/PackEntry.h"

#include "io/RecordCodec.h"

namespace zentor {

QByteArray EncodePackTable(const PackTable& table) {
    QByteArray out(Package::TableSize, '\0');
    char* at = out.data();
    for (const PackEntry& e : table) {
        PutInt32(at, e.Kind);
        PutInt32(at + 4, e.Position);
        PutInt32(at + 8, e.Length);
        at += Package::EntrySize;
    }
    return out;
}

PackTable DecodePackTable(QByteArrayView bytes) {
    PackTable table;
    const char* at = bytes.data();
    for (PackEntry& e : table) {
        e.Kind = GetInt32(at);
        e.Position = GetInt32(at + 4);
        e.Length = GetInt32(at + 8);
        at += Package::EntrySize;
    }
    return table;
}

} // namespace zentor
