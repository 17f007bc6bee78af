// The GIF reader and decoder, given broken movies: they return, and what they list lies inside the
// file. The same check runs in the GIF fuzz target; its kept findings are replayed here too.
#include "fuzz/gif_contract.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace quillane::testing {
namespace {

namespace fs = std::filesystem;

std::string fileBytes(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

const fs::path Seeds = fs::path(QUILLANE_SOURCE_DIR) / "tests" / "movies" / "seeds";

TEST(GifContract, TheSeedMoviesReadWholeAndKeepTheContract) {
    for (const char* name : {"morph.gif", "levels.gif"}) {
        const std::string bytes = fileBytes(Seeds / name);
        ASSERT_GT(bytes.size(), 100u) << name;
        EXPECT_EQ(contracts::checkGifRead(bytes), nullptr) << name;
        const GifFile gif = ReadGifBytes(std::vector<uint8_t>(bytes.begin(), bytes.end()));
        EXPECT_EQ(gif.Frames.size(), 3u) << name;
        EXPECT_FALSE(gif.Truncated) << name;
    }
}

TEST(GifContract, EveryTruncationAndByteChangeKeepsTheContract) {
    const std::string good = fileBytes(Seeds / "morph.gif");
    ASSERT_FALSE(good.empty());
    // Every byte of the header and the first table; a sample of the rest.
    const auto next = [](size_t i) { return i < 200 ? i + 1 : i + 11; };
    for (size_t n = 0; n <= good.size(); n = next(n))
        ASSERT_EQ(contracts::checkGifRead(good.substr(0, n)), nullptr) << "cut at " << n;
    const unsigned char replacements[] = {0x00, 0x01, 0x21, 0x2C, 0x3B, 0x7F, 0x80, 0xFF};
    for (size_t i = 0; i < good.size(); i = next(i))
        for (unsigned char r : replacements) {
            std::string t = good;
            t[i] = static_cast<char>(r);
            ASSERT_EQ(contracts::checkGifRead(t), nullptr) << "byte " << i << " set to " << int(r);
        }
    std::mt19937 random(5);
    for (int k = 0; k < 200; ++k) {
        std::string noise = "GIF89a" + std::string(random() % 3000, ' ');
        for (size_t i = 6; i < noise.size(); ++i) noise[i] = static_cast<char>(random() & 0xFF);
        ASSERT_EQ(contracts::checkGifRead(noise), nullptr) << "noise " << k;
    }
}

TEST(GifContract, InputsTheFuzzerFoundStayHarmless) {
    const fs::path kept = fs::path(QUILLANE_SOURCE_DIR) / "fuzz" / "regressions" / "gif_fuzz";
    if (!fs::exists(kept)) GTEST_SKIP() << "no findings kept yet";
    for (const auto& file : fs::directory_iterator(kept))
        EXPECT_EQ(contracts::checkGifRead(fileBytes(file.path())), nullptr) << file.path();
}

}  // namespace
}  // namespace quillane::testing
