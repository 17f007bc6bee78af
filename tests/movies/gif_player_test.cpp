#include "movies/gif_player.h"

#include <gtest/gtest.h>

#include "movies/gif_decoder.h"
#include "movies/gif_reader.h"
#include "tests/movies/gif_tools.h"

namespace quillane {
namespace {

using namespace quillane::testing;

// Three 20 x 10 frames of plain colours, 70 ms each, three plays, written by the independent tool.
fs::path threeFrames(const fs::path& dir) {
    const fs::path gif = dir / "three.gif";
    run("convert -delay 7 -loop 3 -size 20x10 xc:red xc:lime xc:blue '" + gif.string() + "'");
    return gif;
}

TEST(GifReader, ReadsFramesDelaysAndLoopsOfAnotherToolsFile) {
    const GifFile gif = ReadGifFile(threeFrames(freshFolder("reader")).string());
    ASSERT_EQ(gif.Frames.size(), 3u);
    for (const GifFrame& f : gif.Frames) {
        EXPECT_EQ(f.Delay, 70);
        EXPECT_EQ(f.Width, 20);
        EXPECT_EQ(f.Height, 10);
    }
    EXPECT_EQ(gif.Loops, 2);  // the file's word: repeats after the first of three plays
    EXPECT_EQ(gif.CanvasWidth, 20);
    EXPECT_EQ(gif.CanvasHeight, 10);
    EXPECT_FALSE(gif.Truncated);
}

TEST(GifReader, ReadsDisposalTransparencyAndPlacement) {
    const fs::path dir = freshFolder("reader-disposal");
    const fs::path gif = dir / "disposal.gif";
    run("convert -size 30x20 xc:white -dispose Background -delay 5 \\( -size 10x8 xc:red -repage +5+6 \\) "
        "-dispose Previous \\( -size 4x4 xc:blue -repage +20+10 \\) -dispose None \\( -size 3x3 xc:lime "
        "-transparent lime -repage +1+1 \\) '" +
        gif.string() + "'");
    const GifFile g = ReadGifFile(gif.string());
    ASSERT_EQ(g.Frames.size(), 4u);
    EXPECT_EQ(g.Frames[1].Left, 5);
    EXPECT_EQ(g.Frames[1].Top, 6);
    EXPECT_EQ(g.Frames[1].Disposal, 2);
    EXPECT_EQ(g.Frames[2].Disposal, 3);
    EXPECT_EQ(g.Frames[3].Disposal, 1);
    EXPECT_EQ(g.Frames[3].Transparent, 1);
}

TEST(GifDecoder, FramesMatchTheIndependentToolsPixels) {
    const fs::path dir = freshFolder("decoder");
    const fs::path gif = dir / "noise.gif";
    // Enough different colours and detail for long LZW codes and a table reset.
    run("convert -size 97x61 plasma:fractal -seed 3 -colors 200 '" + gif.string() + "'");
    const std::string rgb = run("convert '" + gif.string() + "[0]' rgb:-");
    const GifFile g = ReadGifFile(gif.string());
    ASSERT_EQ(g.Frames.size(), 1u);
    ASSERT_EQ(rgb.size(), 97u * 61 * 3);
    GifCanvas canvas;
    canvas.reset(&g, White);
    const RasterSurface& pic = canvas.frame(1);
    int wrong = 0;
    for (int y = 0; y < 61; ++y)
        for (int x = 0; x < 97; ++x) {
            const size_t k = 3 * (static_cast<size_t>(y) * 97 + x);
            const Color want = RGB(static_cast<uint8_t>(rgb[k]), static_cast<uint8_t>(rgb[k + 1]),
                                   static_cast<uint8_t>(rgb[k + 2]));
            wrong += pic.pixel(x, y) != want;
        }
    EXPECT_EQ(wrong, 0);
}

TEST(GifDecoder, InterlacedFramesComeOutInRowOrder) {
    const fs::path dir = freshFolder("decoder-interlace");
    const fs::path gif = dir / "interlaced.gif";
    run("convert -size 16x19 gradient:red-blue -interlace GIF '" + gif.string() + "'");
    const std::string rgb = run("convert '" + gif.string() + "' rgb:-");
    const GifFile g = ReadGifFile(gif.string());
    ASSERT_EQ(g.Frames.size(), 1u);
    ASSERT_TRUE(g.Frames[0].Interlaced);
    GifCanvas canvas;
    canvas.reset(&g, White);
    const RasterSurface& pic = canvas.frame(1);
    for (int y = 0; y < 19; ++y) {
        const size_t k = 3 * static_cast<size_t>(y) * 16;
        EXPECT_EQ(pic.pixel(0, y), RGB(static_cast<uint8_t>(rgb[k]), static_cast<uint8_t>(rgb[k + 1]),
                                       static_cast<uint8_t>(rgb[k + 2])))
            << "row " << y;
    }
}

TEST(GifCanvas, DisposalMethodsFollowTheStandard) {
    const fs::path dir = freshFolder("canvas");
    const fs::path gif = dir / "disposal.gif";
    run("convert -size 30x20 xc:white -dispose Background \\( -size 10x8 xc:red -repage +5+6 \\) "
        "-dispose Previous \\( -size 4x4 xc:blue -repage +20+10 \\) -dispose None \\( -size 3x3 xc:lime "
        "-repage +1+1 \\) '" +
        gif.string() + "'");
    const GifFile g = ReadGifFile(gif.string());
    ASSERT_EQ(g.Frames.size(), 4u);
    GifCanvas c;
    c.reset(&g, RGB(1, 2, 3));
    EXPECT_EQ(c.frame(2).pixel(6, 7), RGB(255, 0, 0));
    // Frame 2 goes back to the background before frame 3; frame 3 is drawn over that.
    EXPECT_EQ(c.frame(3).pixel(6, 7), RGB(1, 2, 3));
    EXPECT_EQ(c.picture().pixel(21, 11), RGB(0, 0, 255));
    // Frame 3 gives way to what was there before it.
    EXPECT_EQ(c.frame(4).pixel(21, 11), RGB(255, 255, 255));
    EXPECT_EQ(c.picture().pixel(2, 2), RGB(0, 255, 0));
    // Going back starts again from frame 1.
    EXPECT_EQ(c.frame(2).pixel(6, 7), RGB(255, 0, 0));
    EXPECT_EQ(c.picture().pixel(2, 2), RGB(255, 255, 255));
}

TEST(GifReader, ATruncatedFileKeepsTheFramesReadSoFarAndStillPlays) {
    const fs::path dir = freshFolder("truncated");
    const std::vector<uint8_t> whole = readBytes(threeFrames(dir));
    const GifFile full = ReadGifBytes(whole);
    ASSERT_EQ(full.Frames.size(), 3u);
    // Cut in the middle of the third frame's data.
    const size_t cut = full.Frames[2].DataOffset + 4;
    writeBytes(dir / "cut.gif", std::vector<uint8_t>(whole.begin(), whole.begin() + static_cast<long>(cut)));
    AniGifPlayer p;
    ASSERT_TRUE(p.LoadAnimatedGIF_File((dir / "cut.gif").string()));
    EXPECT_EQ(p.FrameCount(), 2);
    EXPECT_TRUE(p.file().Truncated);
    p.setAction(1);
    EXPECT_TRUE(p.timerRunning());
    p.tick();
    EXPECT_EQ(p.CurrentFrame(), 2);
    EXPECT_EQ(p.picture().pixel(3, 3), RGB(0, 255, 0));
    // Every cut of the file reads without a crash, and never more frames than the whole.
    for (size_t n = 0; n <= whole.size(); ++n) {
        const GifFile g =
            ReadGifBytes(std::vector<uint8_t>(whole.begin(), whole.begin() + static_cast<long>(n)));
        EXPECT_LE(g.Frames.size(), 3u);
        GifCanvas c;
        c.reset(&g, White);
        for (int k = 1; k <= static_cast<int>(g.Frames.size()); ++k) c.frame(k);
    }
}

TEST(GifReader, DamagedBytesAnywhereNeitherCrashNorHang) {
    const fs::path dir = freshFolder("damaged");
    const fs::path gif = dir / "noise.gif";
    run("convert -size 40x30 plasma:fractal -seed 5 -delay 5 -size 40x30 plasma:fractal '" + gif.string() +
        "'");
    const std::vector<uint8_t> whole = readBytes(gif);
    ASSERT_GT(whole.size(), 100u);
    uint32_t h = 12345;
    for (int trial = 0; trial < 300; ++trial) {
        std::vector<uint8_t> bytes = whole;
        for (int k = 0; k < 4; ++k) {
            h = h * 1664525u + 1013904223u;
            bytes[13 + h % (bytes.size() - 13)] = static_cast<uint8_t>(h >> 24);
        }
        const GifFile g = ReadGifBytes(bytes);
        GifCanvas c;
        c.reset(&g, White);
        for (int k = 1; k <= static_cast<int>(g.Frames.size()); ++k) c.frame(k);
        EXPECT_LE(g.Frames.size(), whole.size());
    }
}

TEST(GifReader, AFileThatIsNotAGifLeavesThePlayerEmpty) {
    const fs::path dir = freshFolder("notgif");
    run("convert -size 8x8 xc:red '" + (dir / "red.png").string() + "'");
    AniGifPlayer p;
    EXPECT_FALSE(p.LoadAnimatedGIF_File((dir / "red.png").string()));
    EXPECT_FALSE(p.LoadAnimatedGIF_File((dir / "missing.gif").string()));
    EXPECT_EQ(p.FrameCount(), 0);
    EXPECT_EQ(p.CurrentFrame(), 0);
    EXPECT_EQ(p.ActualWidth(), 0);
    EXPECT_EQ(p.ActualHeight(), 0);
    EXPECT_EQ(p.Loops(), 0);
    p.setAction(1);  // does nothing while nothing is loaded
    EXPECT_FALSE(p.timerRunning());
}

TEST(GifReader, AGifWithNoFramesLeavesThePlayerEmpty) {
    const fs::path dir = freshFolder("noframes");
    const std::vector<uint8_t> whole = readBytes(threeFrames(dir));
    const GifFile full = ReadGifBytes(whole);
    ASSERT_FALSE(full.Frames.empty());
    // Everything up to the first block, then the trailer.
    std::vector<uint8_t> empty(whole.begin(), whole.begin() + 13 + 3 * full.Tables[0].Count);
    empty.push_back(0x3B);
    writeBytes(dir / "empty.gif", empty);
    AniGifPlayer p;
    EXPECT_FALSE(p.LoadAnimatedGIF_File((dir / "empty.gif").string()));
    EXPECT_EQ(p.FrameCount(), 0);
    EXPECT_EQ(p.ActualWidth(), 0);
}

TEST(GifReader, ImagesWithoutAnyColourTableStopTheReading) {
    // A header without a global table, then an image without a local one.
    std::vector<uint8_t> b{'G', 'I', 'F', '8', '9', 'a', 4, 0, 4, 0, 0, 0, 0};
    const std::vector<uint8_t> image{',', 0, 0, 0, 0, 4, 0, 4, 0, 0, 2, 2, 0x4C, 0x01, 0, 0x3B};
    b.insert(b.end(), image.begin(), image.end());
    EXPECT_TRUE(ReadGifBytes(b).Frames.empty());
}

TEST(GifPlayer, ActionsStepPauseAndLoopAsTheTableSays) {
    AniGifPlayer p;
    std::vector<int> events;
    p.onFrame = [&](int n) { events.push_back(n); };
    ASSERT_TRUE(p.LoadAnimatedGIF_File(threeFrames(freshFolder("player")).string()));
    EXPECT_EQ(events, (std::vector<int>{1}));
    p.setAction(5);
    EXPECT_EQ(p.CurrentFrame(), 3);
    EXPECT_EQ(p.state(), PlayState::Paused);
    p.setAction(3);
    EXPECT_EQ(p.CurrentFrame(), 1);
    p.setAction(3);
    EXPECT_EQ(p.CurrentFrame(), 2);
    p.setAction(1);
    EXPECT_EQ(p.state(), PlayState::Playing);
    EXPECT_EQ(p.timerInterval(), 70);
    p.setMinFrameDelay(100);
    p.setAction(2);
    EXPECT_FALSE(p.timerRunning());
    p.setAction(1);
    EXPECT_EQ(p.timerInterval(), 100);
    p.setSteppedDelay(40);
    EXPECT_EQ(p.timerInterval(), 40);
    // Two plays: frames 2, 3, then 1, 2, 3 again, then it stops.
    p.setLoops(2);
    std::vector<int> shown;
    for (int k = 0; k < 10 && p.timerRunning(); ++k) {
        p.tick();
        shown.push_back(p.CurrentFrame());
    }
    EXPECT_EQ(shown, (std::vector<int>{3, 1, 2, 3, 3}));
    EXPECT_EQ(p.state(), PlayState::Stopped);
    // Play at the last frame restarts from the first.
    p.setAction(1);
    EXPECT_EQ(p.CurrentFrame(), 1);
    EXPECT_TRUE(p.timerRunning());
    p.setAction(0);
    EXPECT_EQ(p.CurrentFrame(), 1);
    EXPECT_EQ(p.LoopsRemaining(), 2);
    EXPECT_FALSE(p.timerRunning());
}

TEST(GifPlayer, EndlessLoopsNeverStopAndOneFrameNeverRuns) {
    AniGifPlayer p;
    ASSERT_TRUE(p.LoadAnimatedGIF_File(threeFrames(freshFolder("player-endless")).string()));
    p.setLoops(0);
    p.setAction(1);
    for (int k = 0; k < 30; ++k) p.tick();
    EXPECT_TRUE(p.timerRunning());
    const fs::path one = freshFolder("player-one") / "one.gif";
    run("convert -size 5x5 xc:red '" + one.string() + "'");
    ASSERT_TRUE(p.LoadAnimatedGIF_File(one.string()));
    p.setAction(1);
    EXPECT_FALSE(p.timerRunning());
}

TEST(GifPlayer, ADelayedStartWaitsTwentyMillisecondsAndKeepsTheState) {
    AniGifPlayer p;
    ASSERT_TRUE(p.LoadAnimatedGIF_File(threeFrames(freshFolder("player-delay")).string()));
    p.setDelayAnimation(true);
    p.setAction(4);
    EXPECT_EQ(p.timerInterval(), 20);
    EXPECT_EQ(p.state(), PlayState::Stopped);
    p.tick();
    EXPECT_EQ(p.state(), PlayState::Playing);
    EXPECT_EQ(p.timerInterval(), 70);
}

}  // namespace
}  // namespace quillane
