// quillane-cli generate, run in-process: the written list holds what the window's Create IFS makes.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <set>

#include "app/grid_generator_commands.h"
#include "app/symmetric_commands.h"
#include "cli/generate_command.h"
#include "cli/list_input.h"
#include "cli/options.h"

namespace quillane::cli {
namespace {

namespace fs = std::filesystem;

class Generate : public ::testing::Test {
  protected:
    void SetUp() override {
        dir = fs::temp_directory_path() / ("quillane-generate-" + std::to_string(::getpid()));
        fs::create_directories(dir);
    }
    void TearDown() override { fs::remove_all(dir); }

    // Parses and runs "generate ARGS... -o OUT"; the exit status.
    int run(std::vector<std::string> args) {
        args.insert(args.begin(), "generate");
        args.push_back("-o");
        args.push_back(out());
        GenerateOptions g;
        if (ParseGenerateOptions(args, g)) return 2;
        return RunGenerate(g);
    }
    std::string out() const { return (dir / "out.ifs").string(); }
    IFSEntry written() {
        Workbench wb;
        CliHost host;
        EXPECT_TRUE(ReadList(wb, host, out()));
        EXPECT_EQ(wb.ListCount(), 1);
        return wb.FractalList.at(1);
    }

    fs::path dir;
};

// The translations of the maps, rounded to 1e-4, as a set.
std::set<std::pair<long, long>> translations(const IFSEntry& ifs) {
    std::set<std::pair<long, long>> t;
    for (int i = 0; i < ifs.nMaps; ++i) t.emplace(std::lround(ifs.e[i] * 1e4), std::lround(ifs.f[i] * 1e4));
    return t;
}

TEST_F(Generate, BoxThreeByThreeWithoutTheCentreIsTheCarpet) {
    ASSERT_EQ(run({"box", "--n", "3", "--remove", "2,2"}), 0);
    const IFSEntry ifs = written();
    ASSERT_EQ(ifs.nMaps, 8);
    std::set<std::pair<long, long>> carpet;
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c)
            if (r != 1 || c != 1) carpet.emplace(std::lround(c / 3.0 * 1e4), std::lround(r / 3.0 * 1e4));
    EXPECT_EQ(translations(ifs), carpet);
    for (int i = 0; i < 8; ++i) {
        EXPECT_NEAR(ifs.a[i], 1 / 3.0, 1e-6);
        EXPECT_NEAR(ifs.d[i], 1 / 3.0, 1e-6);
        EXPECT_EQ(ifs.b[i], 0);
        EXPECT_EQ(ifs.c[i], 0);
    }
}

TEST_F(Generate, BoxRowsCountFromTheTop) {
    // Removing row 1, column 2 of the 2 x 2 grid leaves no map translated to (0.5, 0.5).
    ASSERT_EQ(run({"box", "--remove", "1,2"}), 0);
    const auto t = translations(written());
    EXPECT_EQ(t, (std::set<std::pair<long, long>>{{0, 0}, {5000, 0}, {0, 5000}}));
}

TEST_F(Generate, TriangleOfSizeTwoWithoutTheMiddleIsSierpinski) {
    ASSERT_EQ(run({"triangle", "--n", "2", "--remove", "2,2"}), 0);
    const IFSEntry ifs = written();
    ASSERT_EQ(ifs.nMaps, 3);
    const long h = std::lround(std::sqrt(3.0) / 4 * 1e4);
    EXPECT_EQ(translations(ifs), (std::set<std::pair<long, long>>{{0, 0}, {5000, 0}, {2500, h}}));
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(ifs.a[i], 0.5, 1e-6);
        EXPECT_NEAR(ifs.d[i], 0.5, 1e-6);
    }
}

TEST_F(Generate, RemovingEveryBoxIsRefusedWithTheWindowsMessageAndNoFile) {
    testing::internal::CaptureStderr();
    const int status = run({"box", "--remove", "1,1 1,2 2,1 2,2"});
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_EQ(status, 1);
    EXPECT_NE(err.find("You cannot remove all the boxes"), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(Generate, RemovingEveryTriangleIsRefused) {
    testing::internal::CaptureStderr();
    const int status = run({"triangle", "--remove", "1,1 2,1 2,2 2,3"});
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_EQ(status, 1);
    EXPECT_NE(err.find("You cannot remove all the triangles"), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(Generate, CellsOutsideTheGridAreBadUsage) {
    EXPECT_EQ(run({"box", "--n", "3", "--remove", "4,1"}), 2);
    EXPECT_EQ(run({"triangle", "--n", "3", "--remove", "2,4"}), 2);
    EXPECT_EQ(run({"box", "--n", "11"}), 2);
    EXPECT_EQ(run({"box", "--frobnicate", "1"}), 2);
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(Generate, SymmetricWritesWhatTheWindowBuilds) {
    ASSERT_EQ(run({"symmetric", "--order", "5", "--group", "dihedral", "--base", "0.4 0 0 sqrt(0.16) 0.5 0"}),
              0);
    AppState s;
    CliHost host;
    SymmetricForm form;
    form.n = 5;
    form.group = SymmetryGroup::Dihedral;
    form.txtMatrix = {"0.4", "0", "0", "0.4"};
    form.txtE = "0.5";
    form.txtF = "0";
    ASSERT_EQ(SymmetricCreate(s, host, form), SymmetricFocus::None);
    const IFSEntry ifs = written();
    ASSERT_EQ(ifs.nMaps, 10);
    ASSERT_EQ(s.wb.CurrentIFS.nMaps, 10);
    for (int i = 0; i < 10; ++i) {
        EXPECT_NEAR(ifs.a[i], s.wb.CurrentIFS.a[i], 1e-6) << i;
        EXPECT_NEAR(ifs.c[i], s.wb.CurrentIFS.c[i], 1e-6) << i;
        EXPECT_NEAR(ifs.e[i], s.wb.CurrentIFS.e[i], 1e-6) << i;
        EXPECT_NEAR(ifs.f[i], s.wb.CurrentIFS.f[i], 1e-6) << i;
    }
}

TEST_F(Generate, SymmetricFromAListEntry) {
    ASSERT_EQ(run({"symmetric", "--order", "3", "--group", "cyclic", "--from",
                   std::string(QUILLANE_DATA_DIR) + "/default.ifs:1"}),
              0);
    EXPECT_EQ(written().nMaps, 9);  // the three maps of the first entry, turned three ways
}

TEST_F(Generate, SymmetricRefusesABadBaseWithTheWindowsMessage) {
    testing::internal::CaptureStderr();
    const int status = run({"symmetric", "--order", "3", "--group", "cyclic", "--base", "0.5 0 0 0.5 x 0"});
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_EQ(status, 1);
    EXPECT_NE(err.find(SymmetricEError), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(Generate, SierpinskiDefaultsGiveTheSierpinskiTriangle) {
    ASSERT_EQ(run({"sierpinski"}), 0);
    const IFSEntry ifs = written();
    ASSERT_EQ(ifs.nMaps, 3);
    EXPECT_EQ(ifs.Name, "Modified Sierpinski Triangle");
    const long h = std::lround(0.8660254 / 2 * 1e4);
    EXPECT_EQ(translations(ifs), (std::set<std::pair<long, long>>{{0, 0}, {5000, 0}, {2500, h}}));
}

TEST_F(Generate, SierpinskiRefusesAFactorOutsideTheUnitInterval) {
    testing::internal::CaptureStderr();
    const int status = run({"sierpinski", "--method", "2", "--factors", "0.5,1.5,0.5"});
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_EQ(status, 1);
    EXPECT_NE(err.find("Factors must be between 0 and 1"), std::string::npos) << err;
}

TEST_F(Generate, APictureIsDrawnWhenAsked) {
    std::vector<std::string> args{"generate", "box",    "--n", "3",         "--remove",
                                  "2,2",      "--size", "90",  "--picture", (dir / "carpet.png").string(),
                                  "-o",       out()};
    GenerateOptions g;
    ASSERT_FALSE(ParseGenerateOptions(args, g));
    EXPECT_EQ(g.size, 90);
    EXPECT_EQ(RunGenerate(g), 0);
    EXPECT_TRUE(fs::exists(dir / "carpet.png"));
    EXPECT_GT(fs::file_size(dir / "carpet.png"), 100u);
}

TEST(GenerateOptionsParsing, NeedsAKnownKindAndAnOutput) {
    GenerateOptions g;
    EXPECT_TRUE(ParseGenerateOptions({"generate"}, g));
    EXPECT_TRUE(ParseGenerateOptions({"generate", "frobnicate", "-o", "x.ifs"}, g));
    EXPECT_TRUE(ParseGenerateOptions({"generate", "box"}, g));
    EXPECT_TRUE(ParseGenerateOptions({"generate", "box", "--levels", "101", "-o", "x.ifs"}, g));
    EXPECT_FALSE(ParseGenerateOptions({"generate", "box", "--levels", "4", "-o", "x.ifs"}, g));
    EXPECT_EQ(g.levels, 4);
}

TEST(GenerateOptionsParsing, HelpListsEveryGenerator) {
    const std::string help = FullUsageText();
    for (const GeneratorCli& gen : CliGenerators())
        EXPECT_NE(help.find("generate " + gen.kind), std::string::npos) << gen.kind;
}

}  // namespace
}  // namespace quillane::cli
