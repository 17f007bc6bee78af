// generate complex and render --complex-base, run in-process: the list holds what the window's Create
// IFS makes from the same base, and the picture is the base method's.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/complex_base_commands.h"
#include "app/generator_run.h"
#include "cli/commands.h"
#include "cli/generate_command.h"
#include "cli/list_input.h"
#include "cli/options.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"
#include "render/image_file.h"

namespace quillane::cli {
namespace {

namespace fs = std::filesystem;

class GenerateComplex : public ::testing::Test {
  protected:
    void SetUp() override {
        dir = fs::temp_directory_path() / ("quillane-complex-" + std::to_string(::getpid()));
        fs::create_directories(dir);
    }
    void TearDown() override { fs::remove_all(dir); }
    int generate(std::vector<std::string> args) {
        args.insert(args.begin(), {"generate", "complex"});
        args.push_back("-o");
        args.push_back(path("out.ifs"));
        GenerateOptions g;
        if (ParseGenerateOptions(args, g)) return 2;
        return RunGenerate(g);
    }
    int render(std::vector<std::string> args) {
        args.insert(args.begin(), "render");
        const ParseResult p = ParseCommandLine(args);
        if (!p.error.empty() || !p.command) return 2;
        return RunRender(*p.command);
    }
    std::string path(const std::string& name) const { return (dir / name).string(); }
    IFSEntry written() {
        Workbench wb;
        CliHost host;
        EXPECT_TRUE(ReadList(wb, host, path("out.ifs")));
        return wb.FractalList.at(1);
    }
    // What the window's Create IFS makes of the same boxes.
    IFSEntry windowBuild(const std::string& a, const std::string& b, bool polar) {
        AppState s;
        ScriptedHost host;
        InitializeMenuState(s.wb.Menu);
        EXPECT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, ComplexBasesExample));
        ComplexForm form;
        form.txta = a;
        form.txtb = b;
        form.polar = polar;
        EXPECT_EQ(ComplexCreate(s, host, form), ComplexFocus::None);
        return s.wb.CurrentIFS;
    }
    static void expectSameMaps(const IFSEntry& x, const IFSEntry& y) {
        ASSERT_EQ(x.nMaps, y.nMaps);
        for (int i = 0; i < x.nMaps; ++i) {
            // The list stores the coefficients as text: equal to the written precision.
            EXPECT_NEAR(x.a[i], y.a[i], 1e-6);
            EXPECT_NEAR(x.b[i], y.b[i], 1e-6);
            EXPECT_NEAR(x.c[i], y.c[i], 1e-6);
            EXPECT_NEAR(x.d[i], y.d[i], 1e-6);
            EXPECT_NEAR(x.e[i], y.e[i], 1e-6);
            EXPECT_NEAR(x.f[i], y.f[i], 1e-6);
            EXPECT_NEAR(x.p[i], y.p[i], 1e-6);
        }
    }
    fs::path dir;
};

TEST_F(GenerateComplex, TheListHoldsTheWindowsTwoMaps) {
    ASSERT_EQ(generate({"--base", "0.65,-0.3"}), 0);
    expectSameMaps(written(), windowBuild("0.65", "-0.3", false));
}

TEST_F(GenerateComplex, PolarBasesTakeExpressions) {
    ASSERT_EQ(generate({"--base", "-0.697,2*pi/5", "--polar"}), 0);
    const IFSEntry ifs = written();
    expectSameMaps(ifs, windowBuild("-0.697", "2*pi/5", true));
    EXPECT_LT(ifs.e[1], 0);
}

TEST_F(GenerateComplex, AModulusOfOneIsRefusedAndNothingIsWritten) {
    EXPECT_EQ(generate({"--base", "1,0"}), 1);
    EXPECT_FALSE(fs::exists(path("out.ifs")));
}

TEST_F(GenerateComplex, AMissingOrMalformedBaseIsBadUsage) {
    EXPECT_EQ(generate({}), 2);
    EXPECT_EQ(generate({"--base", "0.5"}), 2);
    EXPECT_EQ(generate({"--base", "0.5,0.5,0.5"}), 2);
    EXPECT_EQ(generate({"--base", "0.5,0.5", "--frobnicate"}), 2);
}

TEST_F(GenerateComplex, RenderDrawsTheTwinDragonByTheBaseMethod) {
    ASSERT_EQ(render({"--complex-base", "-0.5,-0.5", "--size", "120", "-o", path("dragon.png")}), 0);
    std::string error;
    RasterSurface picture(1, 1, White);
    ASSERT_TRUE(LoadImageFile(path("dragon.png"), picture, error)) << error;
    ASSERT_EQ(picture.width(), 120);
    int painted = 0;
    for (int r = 0; r < picture.height(); ++r)
        for (int c = 0; c < picture.width(); ++c) painted += picture.pixel(c, r) != White;
    // A tile, neither empty nor the whole square.
    EXPECT_GT(painted, 120 * 120 / 5);
    EXPECT_LT(painted, 120 * 120);
    // About the middle of the picture, no holes.
    for (int r = 55; r < 65; ++r)
        for (int c = 55; c < 65; ++c) EXPECT_NE(picture.pixel(c, r), White) << c << " " << r;
}

TEST_F(GenerateComplex, RenderRefusesABaseOfModulusOne) {
    EXPECT_EQ(render({"--complex-base", "0.6,0.8", "-o", path("x.png")}), 1);
    EXPECT_FALSE(fs::exists(path("x.png")));
}

TEST_F(GenerateComplex, RenderOptionsThatDoNotFitAreBadUsage) {
    EXPECT_EQ(render({"--complex-base", "0.5,0.5", "--deterministic", "-o", path("x.png")}), 2);
    EXPECT_EQ(render({"--complex-base", "0.5,0.5", "--colors", "height", "-o", path("x.png")}), 2);
    EXPECT_EQ(render({"--polar", "data.ifs", "-o", path("x.png")}), 2);
    EXPECT_EQ(render({"--complex-base", "0.5,0.5", "data.ifs", "-o", path("x.png")}), 2);
}

}  // namespace
}  // namespace quillane::cli
