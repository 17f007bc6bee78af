// quillane-cli generate koch, run in-process: the list the window's Create IFS makes, its refusals,
// and the picture drawn by the curve's recursion.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "app/koch_commands.h"
#include "cli/cli_host.h"
#include "cli/generate_command.h"
#include "cli/list_input.h"
#include "render/image_file.h"

namespace quillane::cli {
namespace {

namespace fs = std::filesystem;

class GenerateKoch : public ::testing::Test {
  protected:
    void SetUp() override {
        dir = fs::temp_directory_path() / ("quillane-generate-koch-" + std::to_string(::getpid()));
        fs::create_directories(dir);
    }
    void TearDown() override { fs::remove_all(dir); }

    int run(std::vector<std::string> args) {
        args.insert(args.begin(), {"generate", "koch"});
        args.push_back("-o");
        args.push_back(out());
        GenerateOptions g;
        if (ParseGenerateOptions(args, g)) return 2;
        return RunGenerate(g);
    }
    // The run's status and what it wrote on stderr.
    std::pair<int, std::string> refused(std::vector<std::string> args) {
        ::testing::internal::CaptureStderr();
        const int status = run(std::move(args));
        return {status, ::testing::internal::GetCapturedStderr()};
    }
    std::string out() const { return (dir / "koch.ifs").string(); }
    IFSEntry written() {
        Workbench wb;
        CliHost host;
        EXPECT_TRUE(ReadList(wb, host, out()));
        EXPECT_EQ(wb.ListCount(), 1);
        return wb.FractalList.at(1);
    }
    // What the window's Create IFS makes of the same boxes.
    IFSEntry windowBuild(const std::string& n, const std::string& c) {
        AppState s;
        CliHost host;
        KochForm form;
        form.txtN = n;
        form.txtC = c;
        EXPECT_EQ(KochCreate(s, host, form), KochFocus::None);
        return s.wb.CurrentIFS;
    }
    void expectSameMaps(const IFSEntry& file, const IFSEntry& window) {
        ASSERT_EQ(file.nMaps, window.nMaps);
        EXPECT_EQ(file.Name, window.Name);
        ASSERT_EQ(file.nComments, window.nComments);
        for (int k = 1; k <= window.nComments; ++k) EXPECT_EQ(file.Comment[k], window.Comment[k]);
        for (int i = 0; i < window.nMaps; ++i) {
            EXPECT_NEAR(file.a[i], window.a[i], 1e-6) << i;
            EXPECT_NEAR(file.b[i], window.b[i], 1e-6) << i;
            EXPECT_NEAR(file.c[i], window.c[i], 1e-6) << i;
            EXPECT_NEAR(file.d[i], window.d[i], 1e-6) << i;
            EXPECT_NEAR(file.e[i], window.e[i], 1e-6) << i;
            EXPECT_NEAR(file.f[i], window.f[i], 1e-6) << i;
            EXPECT_NEAR(file.p[i], window.p[i], 1e-6) << i;
        }
    }

    fs::path dir;
};

TEST_F(GenerateKoch, TheClassicCurveIsWhatTheWindowBuilds) {
    ASSERT_EQ(run({"--n", "3", "--c", "1/3"}), 0);
    const IFSEntry ifs = written();
    EXPECT_EQ(ifs.Name, "Koch Curve (3, 1/3)");
    EXPECT_EQ(ifs.nMaps, 4);
    expectSameMaps(ifs, windowBuild("3", "1/3"));
}

TEST_F(GenerateKoch, ValuesMayBeExpressionsOrNegative) {
    ASSERT_EQ(run({"--n", "6", "--c", "sqrt(2)/4"}), 0);
    expectSameMaps(written(), windowBuild("6", "sqrt(2)/4"));
    ASSERT_EQ(run({"--n", "5", "--c", "-0.2"}), 0);
    const IFSEntry negative = written();
    EXPECT_EQ(negative.Name, "Koch Curve (5, -0.20000)");
    expectSameMaps(negative, windowBuild("5", "-0.2"));
}

TEST_F(GenerateKoch, AvoidTakesTheSelfAvoidingLength) {
    ASSERT_EQ(run({"--n", "4", "--avoid"}), 0);
    const IFSEntry ifs = written();
    EXPECT_EQ(ifs.Name, "Koch Curve (4, 0.33333)");
    expectSameMaps(ifs, windowBuild("4", "0.33333"));
}

TEST_F(GenerateKoch, RefusalsCarryTheWindowsMessagesAndWriteNothing) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases{
        {{"--n", "2"}, "The number of edges must be at least 3"},
        {{"--n", "61"}, "The number of edges can be at most 60"},
        {{"--c", "1"}, "The edge length must be less than 1"},
        {{"--c", "sqrt("}, "Cannot evaluate expression for c.  "},
        {{"--n", "2", "--c", "x+"}, "Cannot evaluate expression for c.  "},
    };
    for (const auto& [args, message] : cases) {
        const auto [status, err] = refused(args);
        EXPECT_EQ(status, 1) << message;
        EXPECT_NE(err.find(message), std::string::npos) << err;
        EXPECT_FALSE(fs::exists(out())) << message;
    }
}

TEST_F(GenerateKoch, BadUsageIsExitTwo) {
    EXPECT_EQ(run({"--avoid", "--c", "0.3"}), 2);
    EXPECT_EQ(run({"--edges", "3"}), 2);
    EXPECT_EQ(run({"--n"}), 2);
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(GenerateKoch, ThePictureIsTheRecursiveDrawing) {
    const std::string png = (dir / "koch.png").string();
    ASSERT_EQ(run({"--n", "3", "--c", "1/3", "--picture", png, "--size", "300", "--levels", "1"}), 0);
    RasterSurface one;
    std::string error;
    StartFreeImage();
    ASSERT_TRUE(LoadImageFile(png, one, error)) << error;
    ASSERT_EQ(one.width(), 300);
    ASSERT_EQ(run({"--n", "3", "--c", "1/3", "--picture", png, "--size", "300"}), 0);
    RasterSurface deep;
    ASSERT_TRUE(LoadImageFile(png, deep, error)) << error;
    // Level 1 is four lines; the deepest level draws many more pixels and differs.
    int setOne = 0, setDeep = 0;
    for (int r = 0; r < 300; ++r)
        for (int c = 0; c < 300; ++c) {
            setOne += (one.pixel(c, r) & 0xFFFFFFu) != White;
            setDeep += (deep.pixel(c, r) & 0xFFFFFFu) != White;
        }
    EXPECT_GT(setOne, 250);
    EXPECT_GT(setDeep, setOne);
    EXPECT_TRUE(fs::exists(out()));
}

}  // namespace
}  // namespace quillane::cli
