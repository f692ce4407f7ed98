#pragma once

#include "show/PackageLayout.h"

#include <QByteArray>
#include <QByteArrayView>

namespace zentor {

// The package's table and fixed offsets are the players' (src/show); the editor adds only
// what it writes.
using PackEntry = show::PackEntry;
using PackTable = show::PackTable;
using show::PackEmpty;
using show::PackKind;
using show::PackMusic;
using show::PackPicture;

namespace Package {
using namespace show::Package;
inline constexpr int UserIconSize = 128;
inline constexpr int BackPictureWidth = 1024;
inline constexpr int BackPictureHeight = 768;
inline constexpr int JpegQuality = 95;
} // namespace Package

// The table's disk form, entry 0 first, and back. `bytes` must hold TableSize bytes.
QByteArray EncodePackTable(const PackTable& table);
PackTable DecodePackTable(QByteArrayView bytes);

} // namespace zentor
