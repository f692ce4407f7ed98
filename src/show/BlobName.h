#pragma once

#include <cstddef>
#include <string>

namespace zentor::show {

// The file name a blob is written under by `unpack` and the players' `--export`: entry
// number, what it holds, and an extension sniffed from its first bytes (e.g.
// "00-usericon.jpg", "02-tabicon.png", "10-music.mp3", "11-page1.jpg").
std::string BlobFileName(int entry, const char* bytes, size_t size);

} // namespace zentor::show
