// quillane-cli generate line, run in-process: the written list is what the window's Create IFS makes.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/line_fractal_commands.h"
#include "cli/generate_command.h"
#include "cli/list_input.h"
#include "core/menu_tree.h"
#include "render/image_file.h"

namespace quillane::cli {
namespace {

namespace fs = std::filesystem;

class GenerateLine : public ::testing::Test {
  protected:
    void SetUp() override {
        dir = fs::temp_directory_path() / ("quillane-generate-line-" + std::to_string(::getpid()));
        fs::create_directories(dir);
    }
    void TearDown() override { fs::remove_all(dir); }
    int run(std::vector<std::string> args) {
        args.insert(args.begin(), {"generate", "line"});
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
    // What the window's Create IFS makes of the same polyline.
    IFSEntry windowBuild(const LineFractal& g) {
        AppState s;
        InitializeMenuState(s.wb.Menu);
        CliHost host;
        s.Line.Generator = g;
        EXPECT_TRUE(LineFractalSetup(s, host, false));
        return s.wb.CurrentIFS;
    }
    static void expectSameMaps(const IFSEntry& a, const IFSEntry& b) {
        ASSERT_EQ(a.nMaps, b.nMaps);
        EXPECT_EQ(a.Name, b.Name);
        EXPECT_EQ(a.nComments, b.nComments);
        for (int k = 1; k <= a.nComments; ++k) EXPECT_EQ(a.Comment[k], b.Comment[k]) << k;
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

TEST_F(GenerateLine, VerticesGiveTheWindowsMaps) {
    ASSERT_EQ(run({"--vertices", "0,0 0.3,0.2 0.6,-0.1 1,0"}), 0);
    LineFractal g;
    g.nSegments = 3;
    g.GeneratorPoints[1] = {0.3f, 0.2f};
    g.GeneratorPoints[2] = {0.6f, -0.1f};
    g.GeneratorPoints[3] = {1, 0};
    g.txtOrient = "FFF";
    const IFSEntry ifs = written();
    expectSameMaps(ifs, windowBuild(g));
    EXPECT_EQ(ifs.Name, "Line Fractal (3 segments)");
}

TEST_F(GenerateLine, VerticalAndOrientedFollowTheWindow) {
    ASSERT_EQ(run({"--vertices", "0,0 -0.4,0.5 0,1", "--vertical", "--orient", "fa"}), 0);
    LineFractal g;
    g.SegmentDirection = 1;
    g.GeneratorPoints[1] = {-0.4f, 0.5f};
    g.GeneratorPoints[2] = {0, 1};
    g.chkOrient = true;
    g.txtOrient = "FA";
    expectSameMaps(written(), windowBuild(g));
}

TEST_F(GenerateLine, APointsFileIsReadAsTheWindowReadsIt) {
    const std::string file = (dir / "points.txt").string();
    std::ofstream(file) << "Line Fractal Design {\n 0 , 0 , F\n .5 , .4 , G\n 1 ,  0 \n}\n";
    ASSERT_EQ(run({"--points", file}), 0);
    const IFSEntry ifs = written();
    EXPECT_EQ(ifs.nMaps, 2);
    EXPECT_EQ(ifs.Comment[ifs.nComments], "; oriented: FG");
}

TEST_F(GenerateLine, RefusalsGiveTheWindowsMessageAndNoFile) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"--vertices", "0,0 0,0 1,0"}), 1);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("IFS is not contracting."), std::string::npos);
    EXPECT_FALSE(fs::exists(out()));
    const std::string file = (dir / "bad.txt").string();
    std::ofstream(file) << "Line Fractal Design {\n0.5,0\n1,0\n}\n";
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"--points", file}), 1);
    EXPECT_NE(testing::internal::GetCapturedStderr().find(FirstPointMessage), std::string::npos);
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(GenerateLine, BadUsageIsExitTwo) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"--vertices", "0,0 1,0"}), 2);
    EXPECT_EQ(run({"--vertices", "0,0 x 1,0"}), 2);
    EXPECT_EQ(run({}), 2);
    EXPECT_EQ(run({"--vertices", "0,0 .5,.5 1,0", "--orient", "FX"}), 2);
    testing::internal::GetCapturedStderr();
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(GenerateLine, ThePictureIsTheRecursiveCurve) {
    const std::string png = (dir / "curve.png").string();
    ASSERT_EQ(run({"--vertices", "0,0 0.5,0 1,0", "--picture", png, "--size", "100", "--levels", "3"}), 0);
    RasterSurface picture;
    std::string error;
    ASSERT_TRUE(LoadImageFile(png, picture, error)) << error;
    // A straight generator draws the straight unit segment: one row of set pixels.
    int rows = 0;
    for (int r = 0; r < picture.height(); ++r) {
        int set = 0;
        for (int c = 0; c < picture.width(); ++c) set += picture.pixel(c, r) != White;
        if (set > 0) {
            ++rows;
            EXPECT_GT(set, 50);
        }
    }
    EXPECT_EQ(rows, 1);
}

}  // namespace
}  // namespace quillane::cli
