// The points reader's promise for any bytes, on mangled files and on what the fuzzer found.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "fuzz/points_contract.h"

namespace quillane::testing {
namespace {

namespace fs = std::filesystem;

const fs::path Fuzz = fs::path(QUILLANE_SOURCE_DIR) / "fuzz";

std::string fileText(const fs::path& p) {
    std::ifstream in(p, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void expectContract(const std::string& text) {
    const char* broken = contracts::checkPointsRead(text);
    EXPECT_EQ(broken, nullptr) << broken << " for: " << text.substr(0, 200);
}

TEST(PointsReaderContract, EveryCutAndFlipOfTheSeedsIsHarmless) {
    int seeds = 0;
    for (const auto& entry : fs::directory_iterator(Fuzz / "seeds" / "points")) {
        const std::string text = fileText(entry.path());
        ++seeds;
        for (size_t n = 0; n <= text.size(); ++n) expectContract(text.substr(0, n));
        for (size_t k = 0; k < text.size(); ++k)
            for (const char c : {'\0', '\n', '{', ',', '-', 'e', '9', '(', ';'}) {
                std::string mangled = text;
                mangled[k] = c;
                expectContract(mangled);
            }
    }
    EXPECT_GE(seeds, 4);
}

TEST(PointsReaderContract, HugeAndStrangeNumbersAreHarmless) {
    expectContract("{\n0,0\n1e39,-1e39\nnan,inf\n1,0\n}\n");
    expectContract("{\n0,0\n1e308,1e-308,G\n" + std::string(100000, '9') + ",1\n1,0\n}\n");
    std::string many = "Line Fractal Design {\n";
    for (int i = 0; i < 100000; ++i) many += "0,0\n";
    expectContract(many);
    expectContract(std::string(200000, '{'));
    expectContract(std::string("{\n\0,\0\n", 7));
}

// Every input the fuzz target once failed on is kept as it was found and must stay harmless.
TEST(PointsReaderContract, InputsTheFuzzerFoundStayHarmless) {
    const fs::path kept = Fuzz / "regressions" / "points_fuzz";
    if (!fs::exists(kept)) GTEST_SKIP() << "no findings kept";
    for (const auto& file : fs::directory_iterator(kept)) expectContract(fileText(file.path()));
}

}  // namespace
}  // namespace quillane::testing
