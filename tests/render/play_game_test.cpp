#include "render/play_game.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/numbers.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/map_choice.h"

namespace quillane {
namespace {

// A workbench with `ifs` as the current IFS, a 64-pixel picture on the unit square and a pinned seed.
struct Bench {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;

    explicit Bench(const IFSEntry& ifs, int side = 64) {
        wb.CurrentIFS = ifs;
        wb.txtMaps = std::to_string(ifs.nMaps);
        wb.Window = {-0.05f, 1.05f, -0.05f, 1.05f};
        WriteWindowText(wb);
        wb.Rng.pin(7);
        pics.resize(side, White);
        ApplyWindow(pics, wb.Window);
    }
    void play(int32_t count, int16_t restart = 0) { PlayGame(wb, pics, host, restart, count); }
    int paintedPixels() const {
        int n = 0;
        for (int r = 0; r < pics.picfractal.height(); ++r)
            for (int c = 0; c < pics.picfractal.width(); ++c) n += pics.picfractal.pixel(c, r) != White;
        return n;
    }
};

IFSEntry twoMaps(float p0, float p1) {
    IFSEntry ifs = SierpinskiTriangleIFS();
    ifs.nMaps = 2;
    ifs.p[0] = p0;
    ifs.p[1] = p1;
    return ifs;
}

IFSEntry oneMap(float a, float e) {
    IFSEntry ifs = DefaultIFS();
    ifs.a[0] = ifs.d[0] = a;
    ifs.e[0] = ifs.f[0] = e;
    return ifs;
}

TEST(MapChoice, OneMapHasTheSingleEntryOneAndAlwaysWins) {
    const float p[] = {0.3f};
    const auto cum = MapChoice::CumProb(p, 1);
    ASSERT_EQ(cum.size(), 1u);
    EXPECT_EQ(cum[0], 1.0f);
    const MapChoice choice(cum);
    for (int k = 0; k <= MapChoice::Steps; ++k) ASSERT_EQ(choice.forStep(k), 0);
}

TEST(MapChoice, LastEntryIsForcedToOneAndTakesTheRemainder) {
    const float p[] = {0.5f, 0.4996f};
    const auto cum = MapChoice::CumProb(p, 2);
    EXPECT_EQ(cum[0], 0.5f);
    EXPECT_EQ(cum[1], 1.0f);
    const MapChoice choice(cum);
    EXPECT_EQ(choice.forStep(0), 0);  // r = 0 selects map 0
    EXPECT_EQ(choice.forStep(5000), 0);
    EXPECT_EQ(choice.forStep(5001), 1);
    EXPECT_EQ(choice.forStep(9999), 1);
    EXPECT_EQ(choice.forStep(10000), 1);
}

TEST(MapChoice, CumulativeEntriesAreRoundedToSixDecimals) {
    const float p[] = {0.1234567f, 0.2000004f, 0.5f, 0.2f};
    const auto cum = MapChoice::CumProb(p, 4);
    EXPECT_EQ(cum[0], 0.123457f);
    EXPECT_EQ(cum[1], static_cast<float>(0.323457));
    EXPECT_EQ(cum[2], static_cast<float>(0.823457));
    EXPECT_EQ(cum[3], 1.0f);
}

TEST(MapChoice, TableAgreesWithTheScanForEveryDraw) {
    Random rng;
    rng.pin(99);
    for (int trial = 0; trial < 20; ++trial) {
        const int n = 1 + static_cast<int>(rng.Rnd() * 100);
        std::vector<float> p(static_cast<size_t>(n));
        for (auto& v : p) v = static_cast<float>(rng.Rnd() / n * 1.2);
        const auto cum = MapChoice::CumProb(p.data(), n);
        const MapChoice choice(cum);
        for (int draw = 0; draw < 2000; ++draw) {
            const double u = rng.Rnd();
            const float r = static_cast<float>(Round(u, 4));
            int i = 0;
            while (cum[static_cast<size_t>(i)] < r) ++i;
            ASSERT_EQ(choice.forDraw(u), i) << "u = " << u;
        }
    }
}

TEST(MapChoice, IntegerPathsAgreeWithRoundingTheDraw) {
    Random rng;
    rng.pin(5);
    for (int trial = 0; trial < 20; ++trial) {
        const int n = 1 + static_cast<int>(rng.Rnd() * 100);
        std::vector<float> p(static_cast<size_t>(n), 1.0f / static_cast<float>(n));
        if (trial % 2) p[0] = 0.00004f;  // a map that only a sliver of draws selects
        const MapChoice choice(MapChoice::CumProb(p.data(), n));
        for (int draw = 0; draw < 5000; ++draw) {
            const uint32_t bits = rng.next32();
            const int expected = choice.forDraw(static_cast<double>(bits) * 0x1.0p-32);
            ASSERT_EQ(choice.forBits(bits), expected);
            ASSERT_EQ(choice.fast(bits), expected);
        }
        // Around every change of map, and at both ends.
        for (uint64_t k = 0; k <= MapChoice::Steps; ++k) {
            const uint64_t edge = (2 * k + 1) * (uint64_t{1} << 32) / (2 * MapChoice::Steps);
            for (int64_t d = -2; d <= 2; ++d) {
                const int64_t b = static_cast<int64_t>(edge) + d;
                if (b < 0 || b > 0xFFFFFFFFLL) continue;
                const uint32_t bits = static_cast<uint32_t>(b);
                ASSERT_EQ(choice.fast(bits), choice.forDraw(static_cast<double>(bits) * 0x1.0p-32)) << bits;
            }
        }
        ASSERT_EQ(choice.fast(0xFFFFFFFFu), n - 1);
        ASSERT_EQ(choice.fast(0), 0);
    }
}

TEST(PlayGameLimit, FollowsTheCountTable) {
    EXPECT_EQ(PlayGameLimit(0, 0), 1000000000);
    EXPECT_EQ(PlayGameLimit(0, 500), 1000000000);
    EXPECT_EQ(PlayGameLimit(-10000, 3050), 10050);
    EXPECT_EQ(PlayGameLimit(10000, 3050), 13050);
    EXPECT_EQ(PlayGameLimit(10000, 0), 10050);
}

TEST(PlayGame, PositiveCountFromZeroPlotsExactlyThatManyAfterTheWarmUp) {
    Bench b(SierpinskiTriangleIFS());
    b.play(10000);
    EXPECT_EQ(b.wb.PointCount, 10050);
    EXPECT_EQ(b.pics.picCount, "10000");
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_TRUE(b.wb.DrawingStarted);
    EXPECT_TRUE(b.host.shown().empty());
}

TEST(PlayGame, NegativeCountDrawsUntilThatManyAreShown) {
    Bench b(SierpinskiTriangleIFS());
    b.play(3000);
    ASSERT_EQ(b.wb.PointCount, 3050);
    b.play(-10000);
    EXPECT_EQ(b.wb.PointCount, 10050);  // 7,000 more
}

TEST(PlayGame, NegativeCountBelowTheShownCountStopsAtOnce) {
    Bench b(SierpinskiTriangleIFS());
    b.play(20000);
    const float x = b.wb.PlotX, y = b.wb.PlotY;
    b.play(-10000);
    EXPECT_EQ(b.wb.PointCount, 20050);
    EXPECT_EQ(b.wb.PlotX, x);
    EXPECT_EQ(b.wb.PlotY, y);
}

TEST(PlayGame, YieldsFallAtFiftyThenEveryHundred) {
    Bench b(SierpinskiTriangleIFS());
    std::vector<int32_t> at;
    std::vector<std::string> shown;
    b.host.onYield = [&](int) {
        at.push_back(b.wb.PointCount);
        shown.push_back(b.pics.picCount);
    };
    b.play(400);  // limit 450
    EXPECT_EQ(at, (std::vector<int32_t>{50, 150, 250, 350, 450}));
    // The number on screen is current at every yield.
    EXPECT_EQ(shown, (std::vector<std::string>{"", "100", "200", "300", "400"}));
}

TEST(PlayGame, ClearingDrawingActiveAtAYieldStopsAndFinishes) {
    Bench b(SierpinskiTriangleIFS());
    b.host.onYield = [&](int n) {
        EXPECT_TRUE(b.wb.DrawingActive);
        EXPECT_EQ(b.wb.FractalWindowCaption, PressQCaption);
        EXPECT_EQ(b.wb.menu("Toolbar1(1)").caption, "Stop");
        EXPECT_FALSE(b.wb.menu("mnuClear").enabled);
        if (n == 3) b.wb.DrawingActive = false;
    };
    b.play(0);
    EXPECT_EQ(b.wb.PointCount, 250);
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_EQ(b.wb.FractalWindowCaption, "Fractal (Random)");
    EXPECT_EQ(b.wb.menu("Toolbar1(1)").caption, "Draw");
    EXPECT_TRUE(b.wb.menu("mnuClear").enabled);
    EXPECT_TRUE(b.wb.menu("mnuSaveFractal").enabled);
    EXPECT_FALSE(b.wb.menu("tbrMain(15)").enabled);
}

TEST(PlayGame, ANewDrawingStartsAtTheLowerLeftCorner) {
    Bench b(oneMap(0.5f, 0.0f));
    b.wb.Window = {-8.0f, 8.0f, -4.0f, 12.0f};
    ApplyWindow(b.pics, b.wb.Window);
    b.play(1);  // 51 iterations of x -> x / 2
    float x = -8.0f, y = -4.0f;
    for (int k = 0; k < 51; ++k) {
        const float nx = 0.5f * x + 0.0f * y + 0.0f;
        y = 0.0f * x + 0.5f * y + 0.0f;
        x = nx;
    }
    EXPECT_EQ(b.wb.PlotX, x);
    EXPECT_EQ(b.wb.PlotY, y);
}

TEST(PlayGame, StoppingAndContinuingGoesOnFromTheStoredPoint) {
    Bench b(oneMap(0.5f, 0.25f));
    b.host.onYield = [&](int n) {
        if (n == 2) b.wb.DrawingActive = false;
    };
    b.play(0);
    ASSERT_EQ(b.wb.PointCount, 150);
    float x = b.wb.PlotX, y = b.wb.PlotY;
    b.host.onYield = nullptr;
    b.play(100);
    EXPECT_EQ(b.wb.PointCount, 250);
    for (int k = 0; k < 100; ++k) {
        const float nx = 0.5f * x + 0.0f * y + 0.25f;
        y = 0.0f * x + 0.5f * y + 0.25f;
        x = nx;
    }
    EXPECT_EQ(b.wb.PlotX, x);
    EXPECT_EQ(b.wb.PlotY, y);
}

TEST(PlayGame, ProbabilitiesJustUnderOneStillPass) {
    Bench b(twoMaps(0.5f, 0.4996f));
    b.play(1000);
    EXPECT_TRUE(b.host.shown().empty());
    EXPECT_EQ(b.wb.PointCount, 1050);
}

TEST(PlayGame, RefusesProbabilitiesThatDoNotAddToOne) {
    Bench b(twoMaps(0.5f, 0.4994f));
    b.play(1000);
    EXPECT_EQ(b.host.shown(), (std::vector<ShownMessage>{{"Error", "Probabilities do not add to 1"}}));
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_FALSE(b.wb.DrawingStarted);
    EXPECT_EQ(b.wb.PointCount, 0);
    EXPECT_FALSE(b.wb.Menu.contains("mnuStop"));
    EXPECT_EQ(b.paintedPixels(), 0);
}

TEST(PlayGame, AMapColouredLikeTheBackgroundLeavesNoDots) {
    Bench b(SierpinskiTriangleIFS(), 100);
    b.wb.FunctionColor[1] = White;  // map 1 makes the lower right corner
    b.play(50000);
    EXPECT_EQ(b.wb.PointCount, 50050);
    EXPECT_EQ(b.pics.picCount, "50000");
    int rightCorner = 0, leftCorner = 0;
    // Pixels well inside the images of map 1 (x 0.55..0.95) and of map 0 (x 0.05..0.45), y 0.02..0.2.
    for (double x = 0.55; x < 0.95; x += 0.01)
        for (double y = 0.02; y < 0.2; y += 0.01) rightCorner += b.pics.picfractal.point(x, y) != White;
    for (double x = 0.05; x < 0.45; x += 0.01)
        for (double y = 0.02; y < 0.2; y += 0.01) leftCorner += b.pics.picfractal.point(x, y) != White;
    EXPECT_EQ(rightCorner, 0);
    EXPECT_GT(leftCorner, 100);
}

TEST(PlayGame, PlotsInTheFunctionColoursInBothPictures) {
    Bench b(SierpinskiTriangleIFS(), 100);
    b.play(20000);
    EXPECT_EQ(b.pics.picfractal.point(0.1, 0.02), b.wb.FunctionColor[0]);
    int differ = 0;
    for (int r = 0; r < 100; ++r)
        for (int c = 0; c < 100; ++c) differ += b.pics.picfractal.pixel(c, r) != b.pics.picImage2.pixel(c, r);
    EXPECT_EQ(differ, 0);
}

TEST(PlayGame, SierpinskiTriangleHasAnEmptyMiddleAndFilledCorners) {
    Bench b(SierpinskiTriangleIFS(), 64);
    b.play(100000);
    auto filled = [&](double x, double y) { return b.pics.picfractal.point(x, y) != White; };
    // The middle triangle, with corners (0.25, 0.5), (0.75, 0.5), (0.5, 0): its centre and around.
    EXPECT_FALSE(filled(0.5, 0.2));
    EXPECT_FALSE(filled(0.45, 0.25));
    EXPECT_FALSE(filled(0.55, 0.25));
    // Outside the big triangle.
    EXPECT_FALSE(filled(0.05, 0.9));
    EXPECT_FALSE(filled(0.95, 0.9));
    // Near each corner.
    EXPECT_TRUE(filled(0.01, 0.0));
    EXPECT_TRUE(filled(0.99, 0.0));
    EXPECT_TRUE(filled(0.5, 0.99));
}

TEST(PlayGame, PinnedSeedRepeatsThePicturePixelForPixel) {
    Bench one(SierpinskiTriangleIFS(), 64), two(SierpinskiTriangleIFS(), 64);
    one.play(30000);
    two.play(30000);
    for (int r = 0; r < 64; ++r)
        for (int c = 0; c < 64; ++c)
            ASSERT_EQ(one.pics.picfractal.pixel(c, r), two.pics.picfractal.pixel(c, r));
    EXPECT_GT(one.paintedPixels(), 300);
}

TEST(PlayGame, AnExpandingIFSEndsInTheOverflowMessageWithoutACrash) {
    Bench b(oneMap(3.0f, 1.0f));
    b.play(0);
    EXPECT_EQ(b.host.shown(),
              (std::vector<ShownMessage>{{"Problem in Drawing", "Overflow error.\nIFS may be expanding."}}));
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_EQ(b.wb.FractalWindowCaption, "Fractal (Random)");
    EXPECT_EQ(b.wb.menu("Toolbar1(1)").caption, "Draw");
    // The orbit escapes during the warm-up; the first plotted point (count 51) fails and is not kept.
    EXPECT_EQ(b.wb.PointCount, 51);
    float x = b.wb.Window.xmin, y = b.wb.Window.ymin;
    for (int k = 0; k < 50; ++k) {
        const float nx = 3.0f * x + 0.0f * y + 1.0f;
        y = 0.0f * x + 3.0f * y + 1.0f;
        x = nx;
    }
    EXPECT_EQ(b.wb.PlotX, x);
    EXPECT_EQ(b.wb.PlotY, y);
    EXPECT_EQ(b.paintedPixels(), 0);
}

TEST(PlayGame, RestartClearsThePictureAndTheCount) {
    Bench b(SierpinskiTriangleIFS());
    b.play(5000);
    ASSERT_GT(b.paintedPixels(), 100);
    b.wb.Window = {10.0f, 11.0f, 10.0f, 11.0f};  // a view far from the attractor
    ApplyWindow(b.pics, b.wb.Window);
    b.host.onYield = [&](int) { b.wb.DrawingActive = false; };
    b.play(0, 1);
    EXPECT_EQ(b.paintedPixels(), 0);
    EXPECT_EQ(b.wb.PointCount, 50);
    // The picture of the former view went to picImage3.
    int before = 0;
    for (int r = 0; r < 64; ++r)
        for (int c = 0; c < 64; ++c) before += b.pics.picImage3.pixel(c, r) != White;
    EXPECT_GT(before, 100);
}

}  // namespace
}  // namespace quillane
