// quillane-cli generate binary-tree and pythagorean, run in-process: the written list holds what the
// window's Create IFS makes, refusals carry the window's messages, pictures are the recursive drawings.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "app/binary_tree_commands.h"
#include "app/pythagorean_commands.h"
#include "cli/generate_command.h"
#include "cli/list_input.h"
#include "core/scripted_host.h"
#include "render/image_file.h"

namespace quillane::cli {
namespace {

namespace fs = std::filesystem;

class GenerateTrees : public ::testing::Test {
  protected:
    void SetUp() override {
        dir = fs::temp_directory_path() / ("quillane-trees-" + std::to_string(::getpid()));
        fs::create_directories(dir);
    }
    void TearDown() override { fs::remove_all(dir); }
    int run(std::vector<std::string> args) {
        args.insert(args.begin(), "generate");
        args.push_back("-o");
        args.push_back(out());
        GenerateOptions g;
        if (ParseGenerateOptions(args, g)) return 2;
        return RunGenerate(g);
    }
    // The exit status and what went to stderr.
    std::pair<int, std::string> refused(std::vector<std::string> args) {
        ::testing::internal::CaptureStderr();
        const int status = run(std::move(args));
        return {status, ::testing::internal::GetCapturedStderr()};
    }
    std::string out() const { return (dir / "out.ifs").string(); }
    IFSEntry written() {
        Workbench wb;
        CliHost host;
        EXPECT_TRUE(ReadList(wb, host, out()));
        EXPECT_EQ(wb.ListCount(), 1);
        return wb.FractalList.at(1);
    }
    static void expectSameMaps(const IFSEntry& a, const IFSEntry& b) {
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
    static IFSEntry windowBuilds(const BinaryTreeForm& form) {
        AppState s;
        ScriptedHost host;
        EXPECT_EQ(BinaryTreeSetup(s, host, form), TreeFocus::None);
        return s.wb.CurrentIFS;
    }
    int painted(const std::string& png) {
        RasterSurface pic;
        std::string error;
        EXPECT_TRUE(LoadImageFile(png, pic, error)) << error;
        int n = 0;
        for (int r = 0; r < pic.height(); ++r)
            for (int c = 0; c < pic.width(); ++c) n += (pic.pixel(c, r) & 0xFFFFFF) != White;
        return n;
    }
    fs::path dir;
};

TEST_F(GenerateTrees, BinaryTreeWritesWhatTheWindowBuilds) {
    ASSERT_EQ(run({"binary-tree", "--angle", "60", "--ratio", "0.6"}), 0);
    BinaryTreeForm form;
    form.txtAngle = "60";
    form.txtRatio = "0.6";
    const IFSEntry ifs = written();
    expectSameMaps(ifs, windowBuilds(form));
    EXPECT_EQ(ifs.Comment[1], "; Symmetric Binary Tree");
}

TEST_F(GenerateTrees, NonSymmetricRandomTreeWritesWhatTheWindowBuilds) {
    ASSERT_EQ(run({"binary-tree", "--angle", "30", "--ratio", "0.7", "--right-angle", "50", "--right-ratio",
                   "0.5", "--random"}),
              0);
    BinaryTreeForm form{"30", "0.7", "50", "0.5", true, false, false};
    expectSameMaps(written(), windowBuilds(form));
    EXPECT_EQ(written().nMaps, 2);
}

TEST_F(GenerateTrees, SelfContactingTakesTheRatioAtWhichBranchesTouch) {
    ASSERT_EQ(run({"binary-tree", "--angle", "90", "--self-contacting"}), 0);
    BinaryTreeForm form;
    form.txtAngle = "90";
    form.txtRatio = "0.70711";
    expectSameMaps(written(), windowBuilds(form));
}

TEST_F(GenerateTrees, ARefusedValueGetsTheWindowsMessageAndNoFile) {
    auto [status, err] = refused({"binary-tree", "--angle", "180", "--ratio", "0.5"});
    EXPECT_EQ(status, 1);
    EXPECT_NE(err.find("Branching angle must be between 0 and 180 degrees"), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(out()));
    std::tie(status, err) = refused({"binary-tree", "--angle", "60", "--ratio", "1"});
    EXPECT_EQ(status, 1);
    EXPECT_NE(err.find("Scaling ratio must be between 0 and 1"), std::string::npos) << err;
    std::tie(status, err) = refused({"pythagorean", "--theta", "90"});
    EXPECT_EQ(status, 1);
    EXPECT_NE(err.find("Must have 0 < angle < 90 degrees"), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(GenerateTrees, BadUsageIsStatusTwo) {
    EXPECT_EQ(refused({"binary-tree", "--angle", "60"}).first, 2);
    EXPECT_EQ(refused({"binary-tree", "--angle", "60", "--ratio", "0.5", "--self-contacting"}).first, 2);
    EXPECT_EQ(refused({"binary-tree", "--angle", "60", "--ratio", "0.5", "--right-angle", "40"}).first, 2);
    EXPECT_EQ(refused({"pythagorean"}).first, 2);
    EXPECT_FALSE(fs::exists(out()));
}

TEST_F(GenerateTrees, PythagoreanAtFortyFiveWritesEqualHalves) {
    ASSERT_EQ(run({"pythagorean", "--theta", "45"}), 0);
    const IFSEntry ifs = written();
    AppState s;
    ScriptedHost host;
    ASSERT_TRUE(PythagoreanSetup(s, host, "45"));
    expectSameMaps(ifs, s.wb.CurrentIFS);
    EXPECT_NEAR(ifs.a[0], 0.5, 1e-6);
    EXPECT_NEAR(ifs.a[1], 0.5, 1e-6);
    EXPECT_EQ(ifs.Name, "Pythagorean Tree (45)");
}

TEST_F(GenerateTrees, PicturesAreTheRecursiveDrawings) {
    const std::string tree = (dir / "tree.png").string(), few = (dir / "few.png").string();
    ASSERT_EQ(run({"binary-tree", "--angle", "40", "--ratio", "0.6", "--size", "200", "--picture", tree}), 0);
    ASSERT_EQ(run({"binary-tree", "--angle", "40", "--ratio", "0.6", "--size", "200", "--levels", "2",
                   "--picture", few}),
              0);
    EXPECT_GT(painted(tree), painted(few));
    EXPECT_GT(painted(few), 50);

    const std::string outline = (dir / "outline.png").string(), filled = (dir / "filled.png").string();
    ASSERT_EQ(run({"pythagorean", "--theta", "40", "--size", "200", "--levels", "6", "--picture", outline}),
              0);
    ASSERT_EQ(run({"pythagorean", "--theta", "40", "--filled", "--size", "200", "--levels", "6", "--picture",
                   filled}),
              0);
    EXPECT_GT(painted(filled), painted(outline) * 2);
}

}  // namespace
}  // namespace quillane::cli
