// quillane-cli generate tiling, in-process: the written list holds what the tiling window's Create IFS
// makes from the same matrix and clicks.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "app/tiling_commands.h"
#include "cli/commands.h"
#include "cli/generate_command.h"
#include "cli/list_input.h"
#include "cli/options.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"
#include "render/image_file.h"
#include "render/tile_loop.h"

namespace quillane::cli {
namespace {

namespace fs = std::filesystem;

class GenerateTiling : public ::testing::Test {
  protected:
    void SetUp() override {
        dir = fs::temp_directory_path() / ("quillane-tiling-" + std::to_string(::getpid()));
        fs::create_directories(dir);
    }
    void TearDown() override { fs::remove_all(dir); }
    int run(std::vector<std::string> args) {
        args.insert(args.begin(), {"generate", "tiling"});
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
    // The window's Create IFS after Draw Lattice and clicks right on the points.
    IFSEntry windowMakes(const TilingForm& given, const std::vector<std::pair<int, int>>& clicks) {
        AppState s;
        InitializeMenuState(s.wb.Menu);
        s.pics.resize(64, White);
        ScriptedHost host;
        TilingForm form = given;
        EXPECT_TRUE(TilingDrawLattice(s.pics.Tiling, host, form));
        const TilingBasis B = TilingBasisInForce(form);
        for (auto [u, v] : clicks)
            EXPECT_TRUE(TilingLatticeClick(s.pics.Tiling, host, form, u * double(B.b11) + v * double(B.b12),
                                           u * double(B.b21) + v * double(B.b22)));
        EXPECT_TRUE(TilingCreate(s, host, form));
        return s.wb.CurrentIFS;
    }
    void expectSame(const IFSEntry& a, const IFSEntry& b) {
        ASSERT_EQ(a.nMaps, b.nMaps);
        for (int i = 0; i < a.nMaps; ++i) {
            EXPECT_NEAR(a.a[i], b.a[i], 1e-6) << i;
            EXPECT_NEAR(a.b[i], b.b[i], 1e-6) << i;
            EXPECT_NEAR(a.c[i], b.c[i], 1e-6) << i;
            EXPECT_NEAR(a.d[i], b.d[i], 1e-6) << i;
            EXPECT_NEAR(a.e[i], b.e[i], 1e-6) << i;
            EXPECT_NEAR(a.f[i], b.f[i], 1e-6) << i;
            EXPECT_NEAR(a.p[i], b.p[i], 1e-6) << i;
        }
    }
    fs::path dir;
};

TEST_F(GenerateTiling, TwinDragonIsWhatTheWindowMakes) {
    ASSERT_EQ(run({"--matrix", "1 -1 1 1", "--residues", "0,0 1,0"}), 0);
    const IFSEntry ifs = written();
    TilingForm form;
    form.txtM = {"1", "-1", "1", "1"};
    expectSame(ifs, windowMakes(form, {{0, 0}, {1, 0}}));
    EXPECT_FLOAT_EQ(ifs.a[0], 0.5f);
    EXPECT_FLOAT_EQ(ifs.c[1], -0.5f);
    EXPECT_FLOAT_EQ(ifs.e[1], 1);
}

TEST_F(GenerateTiling, ABasisAndZeroLastAreTakenAsTheWindowTakesThem) {
    ASSERT_EQ(run({"--matrix", "3 0 0 1", "--basis", "1 0.5 0 sqrt(3)/2", "--residues", "1,0 2,0 0,0"}), 0);
    const IFSEntry ifs = written();
    TilingForm form;
    form.txtM = {"3", "0", "0", "1"};
    form.txtb = {"1", "0.5", "0", "sqrt(3)/2"};
    form.chkbasis = true;
    expectSame(ifs, windowMakes(form, {{1, 0}, {2, 0}, {0, 0}}));
    EXPECT_EQ(ifs.e[0], 0);
    EXPECT_FLOAT_EQ(ifs.e[2], 1);
}

TEST_F(GenerateTiling, ACongruentResidueIsBadUsage) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"--matrix", "2 0 0 2", "--residues", "0,0 2,0"}), 2);
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_NE(err.find("congruent"), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(GenerateTiling, TheWindowsRefusalsKeepTheirMessages) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"--matrix", "3 0 0 7", "--residues", "0,0 1,0"}), 1);
    EXPECT_EQ(run({"--matrix", "2 0 0 2", "--residues", "0,0"}), 1);
    const std::string err = testing::internal::GetCapturedStderr();
    EXPECT_NE(err.find(TilingDetRangeMessage), std::string::npos) << err;
    EXPECT_NE(err.find(TilingTwoResiduesMessage), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(GenerateTiling, BadOptionsAreBadUsage) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"--matrix", "1 2 3", "--residues", "0,0 1,0"}), 2);
    EXPECT_EQ(run({"--matrix", "1 -1 1 1", "--residues", "0,0 21,0"}), 2);
    EXPECT_EQ(run({"--matrix", "1 -1 1 1", "--residues", "0,0 0,0"}), 2);
    EXPECT_EQ(run({"--matrix", "1 -1 1 1", "--residues", "0,0 1,0 0,1"}), 2);
    EXPECT_EQ(run({"--matrix", "1 -1 1 1"}), 2);
    testing::internal::GetCapturedStderr();
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(GenerateTiling, RenderTilesPaintsTheNeighboursInTileColours) {
    ASSERT_EQ(run({"--matrix", "1 -1 1 1", "--residues", "0,0 1,0"}), 0);
    const std::string png = (dir / "tiles.png").string();
    const ParseResult p = ParseCommandLine(
        {"render", out(), "--tiles", "1", "--points", "20000", "--size", "120", "--seed", "3", "-o", png});
    ASSERT_TRUE(p.command) << p.error;
    testing::internal::CaptureStderr();
    ASSERT_EQ(RunRender(*p.command), 0);
    testing::internal::GetCapturedStderr();
    RasterSurface picture;
    std::string error;
    ASSERT_TRUE(LoadImageFile(png, picture, error)) << error;
    const TilingColors tiles = Workbench().TilingColor;
    std::set<Color> seen;
    for (int r = 0; r < picture.height(); ++r)
        for (int c = 0; c < picture.width(); ++c) seen.insert(picture.pixel(c, r) & 0xFFFFFFu);
    // All nine tiles of radius 1 are there, each in its own colour, and nothing else but white.
    EXPECT_EQ(seen.size(), 10u);
    for (Color c : tiles) EXPECT_EQ(seen.count(c & 0xFFFFFFu), 1u) << c;
    const ParseResult bad = ParseCommandLine({"render", out(), "--tiles", "8", "-o", png});
    EXPECT_FALSE(bad.command);
    EXPECT_FALSE(
        ParseCommandLine({"render", out(), "--tiles", "1", "--tile-vectors", "1 0", "-o", png}).command);
}

}  // namespace
}  // namespace quillane::cli
