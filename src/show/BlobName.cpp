#include "BlobName.h"

#include "PackageLayout.h"

#include <cstring>

namespace zentor::show {
namespace {

bool startsWith(const char* bytes, size_t size, const char* prefix, size_t n) {
    return size >= n && std::memcmp(bytes, prefix, n) == 0;
}

const char* sniffExtension(const char* b, size_t size) {
    if (startsWith(b, size, "\xff\xd8\xff", 3))
        return "jpg";
    if (startsWith(b, size, "\x89PNG\r\n\x1a\n", 8))
        return "png";
    if (startsWith(b, size, "\0\0\1\0", 4))
        return "ico";
    if (startsWith(b, size, "BM", 2))
        return "bmp";
    if (startsWith(b, size, "GIF8", 4))
        return "gif";
    // An MP3 opens with its tag or straight with a frame's sync bits.
    if (startsWith(b, size, "ID3", 3) ||
        (size >= 2 && (unsigned char)b[0] == 0xff && ((unsigned char)b[1] & 0xe0) == 0xe0))
        return "mp3";
    return "bin";
}

std::string whatEntryHolds(int entry) {
    if (entry == Package::UserIconEntry)
        return "usericon";
    if (entry >= Package::FirstTabIconEntry && entry <= Package::LastTabIconEntry)
        return "tabicon";
    if (entry == Package::BackPictureEntry)
        return "background";
    if (entry == Package::MusicEntry)
        return "music";
    if (entry >= Package::FirstPageEntry)
        return "page" + std::to_string(entry - Package::FirstPageEntry + 1);
    return "unused";
}

} // namespace

std::string BlobFileName(int entry, const char* bytes, size_t size) {
    std::string number = std::to_string(entry);
    if (number.size() < 2)
        number.insert(0, 2 - number.size(), '0');
    return number + "-" + whatEntryHolds(entry) + "." + sniffExtension(bytes, size);
}

} // namespace zentor::show
