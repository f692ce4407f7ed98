#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

std::vector<unsigned char> readAll(const char* path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

uint32_t le32(const std::vector<unsigned char>& b, size_t at) {
    return uint32_t(b[at]) | uint32_t(b[at + 1]) << 8 | uint32_t(b[at + 2]) << 16 |
           uint32_t(b[at + 3]) << 24;
}

} // namespace

// What generation puts in front of a package must be a Windows program of exactly the size
// at which the package starts, or the recipient's .exe neither starts nor finds its pages.
TEST(WinPlayerFile, IsAPaddedWindowsGuiProgram) {
    const auto bytes = readAll(ZENTOR_WINPLAYER_PADDED);
    ASSERT_EQ(bytes.size(), size_t(ZENTOR_PLAYER_SIZE));
    ASSERT_EQ(bytes[0], 'M');
    ASSERT_EQ(bytes[1], 'Z');
    const uint32_t pe = le32(bytes, 0x3c);
    ASSERT_LT(pe + 24 + 70, bytes.size());
    EXPECT_EQ(le32(bytes, pe), 0x00004550u); // "PE\0\0"
    const size_t optional = pe + 24;
    EXPECT_EQ(bytes[optional] | bytes[optional + 1] << 8, 0x20b) << "not a 64-bit program";
    EXPECT_EQ(bytes[optional + 68] | bytes[optional + 69] << 8, 2) << "not a GUI program";
}
