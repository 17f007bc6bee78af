#include "app/movie_commands.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/sample_systems.h"
#include "core/scripted_host.h"

namespace quillane {
namespace {

namespace fs = std::filesystem;

AppState twoEntries() {
    AppState s;
    s.wb.FractalList.resize(MaxFractals + 1);
    s.wb.FractalList[1] = SierpinskiTriangleIFS();
    s.wb.FractalList[2] = GridIFS(4);
    s.wb.NamesItemCount = 5 + 2;
    return s;
}

TEST(MovieCommands, PlayingWithoutSelectionsNamesWhatIsMissing) {
    AppState s = twoEntries();
    ScriptedHost host;
    MovieCreator mc;
    PlayMovie(mc, s, host, MovieMode::Forward);
    mc.List1 = 0;
    PlayMovie(mc, s, host, MovieMode::Forward);
    mc.List1 = -1;
    mc.List2 = 1;
    PlayMovie(mc, s, host, MovieMode::Forward);
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{{"Error", "Please select the initial and final IFS."},
                                                       {"Error", "Please select final IFS."},
                                                       {"Error", "Please select initial IFS."}}));
    EXPECT_EQ(MovieSaveError(mc), "Select initial IFS.");
}

TEST(MovieCommands, APlayDrawsEveryFrameAndEndsOnTheLast) {
    AppState s = twoEntries();
    ScriptedHost host;
    MovieCreator mc;
    mc.List1 = 0;
    mc.List2 = 1;
    mc.txtSteps = "3";
    mc.txtIterations = "2000";
    mc.SizeDim = 80;
    MovieListClick(mc, s, host);
    EXPECT_EQ(mc.txtFrame, "1");
    PlayMovie(mc, s, host, MovieMode::Forward);
    EXPECT_EQ(mc.txtFrame, "4");
    EXPECT_EQ(mc.picCanvas.width(), 80);
    int drawn = 0;
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 80; ++x) drawn += mc.picCanvas.pixel(x, y) != White;
    EXPECT_GT(drawn, 100);
}

TEST(MovieCommands, AnAnimatedGifAndItsDesignMovieAreWrittenAndOfferedToTheViewer) {
    const fs::path dir = fs::temp_directory_path() / "quillane-movie-commands";
    fs::remove_all(dir);
    fs::create_directories(dir);
    AppState s = twoEntries();
    ScriptedHost host;
    host.fileNames.push_back((dir / "m.gif").string());
    MovieCreator mc;
    mc.List1 = 0;
    mc.List2 = 1;
    mc.txtSteps = "2";
    mc.txtIterations = "1000";
    AnimatedGifChoices c;
    c.txtMovieSize = "60";
    c.chkDesignMovie = true;
    const auto file = CreateAnimatedGif(mc, s, host, c);
    ASSERT_TRUE(file);
    EXPECT_TRUE(fs::exists(dir / "m.gif"));
    EXPECT_TRUE(fs::exists(dir / "m-design.gif"));
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(ViewerCaptionFor(*file), "Fractal Movie Viewer [m.gif]");
    EXPECT_EQ(DetViewerCaptionFor(*file), "Fractal Movie Viewer [m]");
}

TEST(MovieCommands, TheSizeDialogRefusesShortTimesAndSmallSizes) {
    AppState s = twoEntries();
    ScriptedHost host;
    MovieCreator mc;
    mc.List1 = mc.List2 = 0;
    AnimatedGifChoices c;
    c.txtTime = "9";
    EXPECT_FALSE(CreateAnimatedGif(mc, s, host, c));
    c.txtTime = "10";
    c.txtMovieSize = "50";
    EXPECT_FALSE(CreateAnimatedGif(mc, s, host, c));
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{{"Error", "Frame rate should be at least 10"},
                                                       {"Error", "Pixel size must be greater than 50"}}));
}

TEST(MovieCommands, FrameFilesArePaddedToTheDigitsOfTheTotal) {
    EXPECT_EQ(FrameFileName("/x/movie", 7, 120, "png"), "/x/movie-007.png");
    EXPECT_EQ(FrameFileName("m", 12, 12, "gif"), "m-12.gif");
    EXPECT_EQ(DesignMovieName("/x/movie.gif"), "/x/movie-design.gif");
}

TEST(MovieCommands, TheDeterministicMovieRefusesATimeBelowTen) {
    AppState s = twoEntries();
    ScriptedHost host;
    DetMovieChoices c;
    c.txtTime = "9";
    EXPECT_FALSE(DetMovieGo(s, host, c));
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{{"Error", "Frame rate should be at least 10"}}));
}

}  // namespace
}  // namespace quillane
