#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::vector<unsigned char> readAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

uint32_t le32(const std::vector<unsigned char>& b, size_t at) {
    return uint32_t(b[at]) | uint32_t(b[at + 1]) << 8 | uint32_t(b[at + 2]) << 16 |
           uint32_t(b[at + 3]) << 24;
}

int cli(const std::string& args) {
    const int status =
        std::system((std::string(ZENTOR_CLI_PATH) + " " + args + " 2>/dev/null").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
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

// A self-running file is for Windows unless the Linux player is asked for by name.
TEST(WinPlayerFile, GenerateChoosesThePlayer) {
    const std::string dir = ZENTOR_WORK_DIR;
    ASSERT_EQ(std::system(("rm -rf " + dir + " && mkdir -p " + dir).c_str()), 0);
    ASSERT_EQ(cli("new " + dir + "/cv.qds"), 0);
    const auto windows = readAll(ZENTOR_WINPLAYER_PADDED);
    const struct {
        const char* out;
        const char* options;
        int status;
        const char* player; // "windows", "linux", "" for none
    } cases[] = {
        {"cv.exe", "", 0, "windows"},
        {"cv.bin", "--selfrun", 0, "windows"},
        {"cv.win", "--player windows", 0, "windows"},
        {"cv.exe", "--player linux", 0, "linux"},
        {"cv.qdv", "", 0, ""},
        {"cv.run", "--player mac", 2, nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.out) + " " + c.options);
        const std::string out = dir + "/" + c.out;
        std::remove(out.c_str());
        ASSERT_EQ(cli("generate " + dir + "/cv.qds " + out + " " + c.options), c.status);
        const auto bytes = readAll(out);
        if (!c.player) {
            EXPECT_TRUE(bytes.empty());
            continue;
        }
        const std::string player = c.player;
        if (player.empty()) { // a data file opens with the entry table: page 1 is entry 11
            ASSERT_GT(bytes.size(), size_t(11 * 12 + 4));
            EXPECT_EQ(le32(bytes, 11 * 12), 1u);
            continue;
        }
        ASSERT_GT(bytes.size(), size_t(ZENTOR_PLAYER_SIZE));
        if (player == "windows")
            EXPECT_TRUE(std::equal(windows.begin(), windows.end(), bytes.begin()));
        else
            EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 4), "\x7f"
                                                                     "ELF");
    }
}
