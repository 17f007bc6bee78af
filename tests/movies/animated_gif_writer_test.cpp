#include "movies/animated_gif_writer.h"

#include <gtest/gtest.h>

#include "movies/gif_reader.h"
#include "tests/movies/gif_tools.h"

namespace quillane {
namespace {

using namespace quillane::testing;

RasterSurface framePicture(int k) {
    RasterSurface s(40, 30, White);
    for (int x = 0; x < 40; ++x) s.setPixel(x, k % 30, RGB(255, 0, 0));
    s.setPixel(k % 40, 5, RGB(0, 0, 255));
    return s;
}

TEST(AnimatedGifWriter, IndependentReaderSeesFramesDelaysAndLoops) {
    const fs::path dir = freshFolder("writer");
    const fs::path gif = dir / "movie.gif";
    AnimatedGifWriter w;
    ASSERT_TRUE(w.open(gif.string(), 3, 70));
    for (int k = 0; k < 5; ++k) ASSERT_TRUE(w.appendPage(framePicture(k)));
    EXPECT_FALSE(fs::exists(gif)) << "the movie appears only when it is complete";
    ASSERT_TRUE(w.close()) << w.error();
    EXPECT_EQ(identifyDelays(gif), (std::vector<int>{7, 7, 7, 7, 7}));
    EXPECT_EQ(identifyIterations(gif), 3);
    // The file's word counts the repeats after the first play, and the player reads the word.
    EXPECT_EQ(ReadGifFile(gif.string()).Loops, 2);
    // Only the movie is left: no temporary or cache file beside it.
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator{}), 1);
}

TEST(AnimatedGifWriter, LoopZeroRepeatsIndefinitely) {
    const fs::path gif = freshFolder("writer-endless") / "endless.gif";
    AnimatedGifWriter w;
    ASSERT_TRUE(w.open(gif.string(), 0, 100));
    ASSERT_TRUE(w.appendPage(framePicture(1)));
    ASSERT_TRUE(w.appendPage(framePicture(2)));
    ASSERT_TRUE(w.close());
    EXPECT_EQ(identifyIterations(gif), 0);
    EXPECT_EQ(identifyDelays(gif), (std::vector<int>{10, 10}));
    const GifFile read = ReadGifFile(gif.string());
    EXPECT_EQ(read.Loops, 0);
    EXPECT_TRUE(read.LoopsGiven);
}

TEST(AnimatedGifWriter, AnAbandonedMovieLeavesNoFileAndKeepsTheOldOne) {
    const fs::path dir = freshFolder("writer-abandon");
    const fs::path gif = dir / "kept.gif";
    writeBytes(gif, {'o', 'l', 'd'});
    {
        AnimatedGifWriter w;
        ASSERT_TRUE(w.open(gif.string(), 0, 100));
        ASSERT_TRUE(w.appendPage(framePicture(1)));
        w.abandon();
    }
    EXPECT_EQ(readBytes(gif), (std::vector<uint8_t>{'o', 'l', 'd'}));
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator{}), 1);
}

TEST(AnimatedGifWriter, AMovieWithoutFramesIsNotWritten) {
    const fs::path dir = freshFolder("writer-empty");
    AnimatedGifWriter w;
    ASSERT_TRUE(w.open((dir / "none.gif").string(), 0, 100));
    EXPECT_FALSE(w.close());
    EXPECT_TRUE(fs::is_empty(dir));
}

TEST(AnimatedGifWriter, AnUnwritableFolderFailsWithoutACrash) {
    AnimatedGifWriter w;
    EXPECT_FALSE(w.open("/nonexistent-folder/x/movie.gif", 0, 100));
    EXPECT_FALSE(w.appendPage(framePicture(1)));
    EXPECT_FALSE(w.close());
}

TEST(AnimatedGifWriter, AnEmptyPictureFailsTheMovie) {
    const fs::path dir = freshFolder("writer-emptyframe");
    AnimatedGifWriter w;
    ASSERT_TRUE(w.open((dir / "m.gif").string(), 0, 100));
    EXPECT_FALSE(w.appendPage(RasterSurface()));
    EXPECT_FALSE(w.close());
    EXPECT_TRUE(fs::is_empty(dir));
}

}  // namespace
}  // namespace quillane
