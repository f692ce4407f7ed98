#include "generate/PackEntry.h"

namespace zentor {

QByteArray EncodePackTable(const PackTable& table) {
    QByteArray out(Package::TableSize, '\0');
    show::EncodeTable(table, out.data());
    return out;
}

PackTable DecodePackTable(QByteArrayView bytes) {
    return show::DecodeTable(bytes.data());
}

} // namespace zentor
