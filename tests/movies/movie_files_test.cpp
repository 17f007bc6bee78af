#include <gtest/gtest.h>

#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "movies/det_movie.h"
#include "movies/gif_reader.h"
#include "movies/morph_movie.h"
#include "movies/movie_frame.h"
#include "movies/movie_options.h"
#include "render/deterministic.h"
#include "tests/movies/gif_tools.h"

namespace quillane {
namespace {

using namespace quillane::testing;

MorphMovieOptions smallMovie(const fs::path& file) {
    MorphMovieOptions o;
    o.size = 60;
    o.iterations = 3000;
    o.frameTime = 120;
    o.loop = 0;
    o.path = file.string();
    o.colors = FunctionColorDefaults();
    o.view = {-0.1f, 1.1f, -0.1f, 1.1f};
    return o;
}

TEST(MovieFrame, TheSierpinskiFrameLeavesTheMiddleEmpty) {
    RasterSurface pic(100, 100, White);
    ApplyMovieView(pic, {0, 1, 0, 1});
    Random rng;
    rng.pin(7);
    const IFSEntry tri = SierpinskiTriangleIFS();
    DrawMovieFrame(pic, tri, tri, 3, 20000, FunctionColorDefaults(), rng);
    int drawn = 0;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x) drawn += pic.pixel(x, y) != White;
    EXPECT_GT(drawn, 1000);
    // The middle of the triangle (0.5, 0.3) is empty, its corner (0.02, 0.01) is not far from points.
    EXPECT_EQ(pic.pixel(50, 70), White);
}

TEST(MovieFrame, TheViewHoldsBothIFSAndIsSquare) {
    const IFSEntry tri = SierpinskiTriangleIFS();
    IFSEntry big = tri;
    for (int i = 0; i < 3; ++i) big.e[i] += 2;
    const std::vector<WorldPoint> square{{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    const WorldWindow v = FitMovieView(tri, big, 3, square);
    EXPECT_LE(v.xmin, 0.0f);
    EXPECT_GE(v.xmax, 3.0f);
    EXPECT_NEAR(v.xmax - v.xmin, v.ymax - v.ymin, 1e-5);
}

TEST(MorphMovie, AnIndependentReaderSeesEveryFrameOfACyclingMovie) {
    const fs::path gif = freshFolder("morph") / "morph.gif";
    MovieMorph m;
    InitialSetup(m, SierpinskiTriangleIFS(), GridIFS(4), false);
    m.nTransitions = 3;
    MoviePlayState play;
    play.CycleOn = 1;
    ScriptedHost host;
    Random rng;
    std::string error;
    MovieTimes times;
    ASSERT_EQ(WriteMorphMovie(m, play, smallMovie(gif), host, rng, error, &times), MovieEnd::Finished)
        << error;
    // Frames 1 to 4, the last once more, back to the first: eight pages of 12 centiseconds.
    EXPECT_EQ(identifyDelays(gif), std::vector<int>(8, 12));
    EXPECT_EQ(identifyIterations(gif), 0);
    EXPECT_GT(times.drawMs + times.quantiseMs + times.writeMs, 0.0);
}

TEST(MorphMovie, AStoppedMovieLeavesNoFileBehind) {
    const fs::path dir = freshFolder("morph-stopped");
    MovieMorph m;
    InitialSetup(m, SierpinskiTriangleIFS(), GridIFS(4), false);
    m.nTransitions = 10;
    MoviePlayState play;
    ScriptedHost host;
    host.onYield = [&](int n) {
        if (n == 3) play.MovieStopped = true;
    };
    Random rng;
    std::string error;
    EXPECT_EQ(WriteMorphMovie(m, play, smallMovie(dir / "stopped.gif"), host, rng, error), MovieEnd::Stopped);
    EXPECT_TRUE(fs::is_empty(dir));
}

TEST(MorphMovie, AMovieThatCannotBeWrittenFails) {
    MovieMorph m;
    InitialSetup(m, SierpinskiTriangleIFS(), GridIFS(4), false);
    MoviePlayState play;
    ScriptedHost host;
    Random rng;
    std::string error;
    EXPECT_EQ(WriteMorphMovie(m, play, smallMovie("/nonexistent-folder/m.gif"), host, rng, error),
              MovieEnd::Failed);
    EXPECT_FALSE(error.empty());
}

// A deterministic drawing of the Sierpinski triangle from a filled unit square, 64 pixels wide.
struct DetFixture {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;
    DetFixture() {
        wb.CurrentIFS = SierpinskiTriangleIFS();
        wb.txtMaps = "3";
        wb.RandomMode = false;
        wb.Window = {-0.1f, 1.1f, -0.1f, 1.1f};
        pics.resize(64, White);
        ApplyWindow(pics, wb.Window);
        pics.Det.FigureDrawer = [](Workbench&, FractalPictures& p, Host&, int, bool, bool) {
            p.picfractal.clear();
            p.picfractal.polygon({{0, 0}, {1, 0}, {1, 1}, {0, 1}}, Black, true);
            p.picImage3.takeImage(p.picfractal);
            return true;
        };
        wb.DetFigure = 0;
    }
};

TEST(DeterministicMovie, OnePageForTheStartAndOnePerLevel) {
    const fs::path gif = freshFolder("det") / "det.gif";
    DetFixture f;
    const DetMovieResult r = WriteDeterministicMovie(f.wb, f.pics, f.host, 4, 50, 2, gif.string());
    ASSERT_TRUE(r.written) << r.error;
    EXPECT_EQ(r.pages, 5);
    EXPECT_EQ(identifyDelays(gif), std::vector<int>(5, 5));
    EXPECT_EQ(identifyIterations(gif), 2);
    EXPECT_EQ(f.wb.IterationNumber, 4);
}

TEST(DeterministicMovie, AStopDuringALevelEndsAfterThatLevelsPageAndClosesTheFile) {
    const fs::path gif = freshFolder("det-stop") / "det.gif";
    DetFixture f;
    int levelsSeen = 0;
    f.host.onYield = [&](int) {
        // The first yield inside the second level asks to stop.
        if (f.wb.IterationNumber == 1 && f.wb.DrawingActive && ++levelsSeen == 1)
            f.pics.Det.IterationAbort = true;
    };
    const DetMovieResult r = WriteDeterministicMovie(f.wb, f.pics, f.host, 10, 100, 0, gif.string());
    ASSERT_TRUE(r.written) << r.error;
    EXPECT_EQ(r.pages, 3);
    EXPECT_EQ(identifyDelays(gif).size(), 3u);
}

TEST(MovieOptions, ADisplayTimeOfExactlyTenIsAccepted) {
    EXPECT_EQ(CheckDetMovieTime("10"), "");
    EXPECT_EQ(CheckDetMovieTime("9.99"), "Frame rate should be at least 10");
    EXPECT_EQ(CheckAnimatedGifSize("10", "51"), "");
    EXPECT_EQ(CheckAnimatedGifSize("5", "400"), "Frame rate should be at least 10");
    EXPECT_EQ(CheckAnimatedGifSize("100", "50"), "Pixel size must be greater than 50");
    EXPECT_EQ(CheckMovieFrameSize("401"), "Size must be between 50 and 400");
    EXPECT_EQ(CheckMovieFrameSize("50"), "");
}

}  // namespace
}  // namespace quillane
