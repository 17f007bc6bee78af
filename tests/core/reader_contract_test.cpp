// Each reader of outside input, given broken bytes: it returns, and changes only what it read whole.
// The same checks run in the fuzz targets; the inputs the fuzzers once found are replayed here too.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <random>

#include "fuzz/reader_contracts.h"

namespace quillane::testing {
namespace {

using Check = std::function<const char*(const std::string&)>;

std::string fileText(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// Truncations, single bytes replaced by troublesome ones, and noise, from one good text.
std::vector<std::string> mangled(const std::string& good) {
    std::vector<std::string> texts{good, "", std::string(1, '\0'), std::string(70000, '{')};
    const size_t step = std::max<size_t>(1, good.size() / 25);
    for (size_t n = 0; n < good.size(); n += step) texts.push_back(good.substr(0, n));
    const char replacements[] = {'\0', '{', '}', '\n', '-', '9', 'e', static_cast<char>(0xFF)};
    for (size_t i = 0; i < good.size(); i += step)
        for (char r : replacements) {
            std::string t = good;
            t[i] = r;
            texts.push_back(t);
        }
    std::mt19937 random(11);
    for (int k = 0; k < 10; ++k) {
        std::string noise(random() % 2000, ' ');
        for (char& c : noise) c = static_cast<char>(random() & 0xFF);
        texts.push_back(noise);
        texts.push_back(good + noise);
    }
    return texts;
}

void expectContract(const std::string& good, const Check& check) {
    for (const std::string& text : mangled(good)) {
        const char* broken = check(text);
        ASSERT_EQ(broken, nullptr) << broken << " for a text of " << text.size() << " bytes";
    }
}

std::filesystem::path dataFile(const char* name) {
    return std::filesystem::path(QUILLANE_DATA_DIR) / name;
}

TEST(ReaderContract, IfsListsOnlyChangeTheEntriesReadWhole) {
    const std::string good = fileText(dataFile("default.ifs"));
    ASSERT_FALSE(good.empty());
    for (int start : {-1, 29})
        expectContract(good,
                       [start](const std::string& t) { return contracts::checkListRead(t, false, start); });
}

TEST(ReaderContract, ChaosGameListsOnlyChangeTheEntriesReadWhole) {
    const std::string good = fileText(dataFile("default.chg"));
    ASSERT_FALSE(good.empty());
    for (int start : {12})
        expectContract(good,
                       [start](const std::string& t) { return contracts::checkListRead(t, true, start); });
}

TEST(ReaderContract, PolygonFilesKeepTheKindAndAtMost110Entries) {
    expectContract(WritePolygonText(BuiltInPolygon(7)), contracts::checkPolygonRead);
    std::string many;
    for (int i = 0; i < 500; ++i) many += "1,2\r\n";
    EXPECT_EQ(contracts::checkPolygonRead(many), nullptr);
}

TEST(ReaderContract, PalettesGiveColoursOrNothing) {
    expectContract(MapPaletteText(FunctionColorDefaults()),
                   [](const std::string& t) { return contracts::checkPaletteRead(t, false); });
    expectContract(IfpPaletteText(FunctionColorDefaults()),
                   [](const std::string& t) { return contracts::checkPaletteRead(t, true); });
}

TEST(ReaderContract, GradientFilesGiveAGradientOrNothing) {
    expectContract(GradientFileText(DefaultGradient()), contracts::checkGradientRead);
}

TEST(ReaderContract, SettingsFilesNeverTouchTheList) {
    Workbench wb;
    DefaultSettings(wb, 15000);
    expectContract(SettingsText(wb), contracts::checkSettingsRead);
}

TEST(ReaderContract, TheEvaluatorTakesAnyText) {
    expectContract("-sqr(3)/2 + sin(30)*2^3 - 1e308*10 + 0/0", contracts::checkEvaluation);
}

// Every input a fuzz target once failed on is kept beside the targets, as it was found.
TEST(ReaderContract, InputsTheFuzzersFoundStayHarmless) {
    const std::filesystem::path kept =
        std::filesystem::path(QUILLANE_DATA_DIR) / ".." / "fuzz" / "regressions";
    const std::map<std::string, Check> checks = {
        {"ifs_fuzz",
         [](const std::string& t) {
             return contracts::checkListRead(
                 t, false, t.empty() ? 0 : static_cast<unsigned char>(t[0]) % (MaxFractals + 2) - 1);
         }},
        {"chg_fuzz",
         [](const std::string& t) {
             return contracts::checkListRead(
                 t, true, t.empty() ? 0 : static_cast<unsigned char>(t[0]) % (MaxFractals + 2) - 1);
         }},
        {"gon_fuzz", contracts::checkPolygonRead},
        {"map_fuzz", [](const std::string& t) { return contracts::checkPaletteRead(t, false); }},
        {"ifp_fuzz", [](const std::string& t) { return contracts::checkPaletteRead(t, true); }},
        {"gradient_fuzz", contracts::checkGradientRead},
        {"settings_fuzz", contracts::checkSettingsRead},
        {"evaluator_fuzz", contracts::checkEvaluation},
    };
    if (!std::filesystem::exists(kept)) GTEST_SKIP() << "no findings kept yet";
    for (const auto& folder : std::filesystem::directory_iterator(kept)) {
        const auto check = checks.find(folder.path().filename().string());
        ASSERT_NE(check, checks.end()) << "a kept finding of an unknown target: " << folder.path();
        for (const auto& file : std::filesystem::directory_iterator(folder.path())) {
            const char* broken = check->second(fileText(file.path()));
            EXPECT_EQ(broken, nullptr) << file.path() << ": " << broken;
        }
    }
}

}  // namespace
}  // namespace quillane::testing
