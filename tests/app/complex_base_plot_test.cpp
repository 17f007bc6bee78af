// The base method's drawing as PlayGame runs it once the complex bases window has taken the loop over.
#include "generators/complex_base_plot.h"

#include <algorithm>

#include "app/fractal_view.h"
#include "render/color_modes.h"
#include "render/play_game.h"
#include "tests/app/complex_base_fixture.h"

namespace quillane::testing {
namespace {

class ComplexPlotTest : public ComplexBaseTest {
  protected:
    void view(float xmin, float xmax, float ymin, float ymax) {
        s.wb.Window = {xmin, xmax, ymin, ymax};
        ApplyWindow(s.pics, s.wb.Window);
    }
    int paintedIn(int c0, int r0, int c1, int r1) const {
        int n = 0;
        for (int r = r0; r < r1; ++r)
            for (int c = c0; c < c1; ++c) n += s.pics.picfractal.pixel(c, r) != White;
        return n;
    }
};

TEST_F(ComplexPlotTest, TheFirstPointsFollowTheDigitCounter) {
    create("0.5", "0.5", false, true);
    view(-0.5f, 2, -0.5f, 2);
    s.wb.FunctionColor[0] = RGB(200, 0, 0);
    PlayGame(s.wb, s.pics, host, 0, 3);
    EXPECT_EQ(s.Complex.ComplexPointCount, 3);
    EXPECT_EQ(s.pics.picCount, "3");
    // Rows 1, 10, 11: the points 1, base, 1 + base.
    EXPECT_EQ(at(1, 0), RGB(200, 0, 0));
    EXPECT_EQ(at(0.5, 0.5), RGB(200, 0, 0));
    EXPECT_EQ(at(1.5, 0.5), RGB(200, 0, 0));
    EXPECT_EQ(paintedIn(0, 0, 100, 100), 3);
    // PlayGame's own count stays untouched: the loop was not run.
    EXPECT_EQ(s.wb.PointCount, 0);
    EXPECT_FALSE(s.wb.DrawingActive);
}

TEST_F(ComplexPlotTest, APositiveCountGoesOnANegativeCountDrawsNothingMore) {
    create("0.65", "-0.3", false, true);
    PlayGame(s.wb, s.pics, host, 0, 250);
    EXPECT_EQ(s.Complex.ComplexPointCount, 250);
    PlayGame(s.wb, s.pics, host, 0, 100);
    EXPECT_EQ(s.Complex.ComplexPointCount, 350);
    EXPECT_EQ(s.pics.picCount, "350");
    PlayGame(s.wb, s.pics, host, 0, -100);
    EXPECT_EQ(s.Complex.ComplexPointCount, 350);
}

TEST_F(ComplexPlotTest, AFullRunVisitsEveryNonZeroRowOnceAndThenStops) {
    create("0.65", "-0.3", false, true);
    mnuRun_Click(s.wb, s.pics, host);
    EXPECT_EQ(s.Complex.ComplexPointCount, (1 << 22) - 1);
    for (int i = 1; i <= ComplexDigitCount; ++i)
        EXPECT_TRUE(s.Complex.ComplexDigits[static_cast<size_t>(i)]) << i;
    EXPECT_EQ(s.wb.FractalCaption, "Fractal");
    // The counter has run out: a further run plots nothing.
    PlayGame(s.wb, s.pics, host, 0, 0);
    EXPECT_EQ(s.Complex.ComplexPointCount, (1 << 22) - 1);
}

TEST_F(ComplexPlotTest, TheTwinDragonTilesWithoutHolesInTheMiddle) {
    create("-0.5", "-0.5", false, true);
    s.pics.resize(200, White);
    ApplyWindow(s.pics, s.wb.Window);
    mnuRun_Click(s.wb, s.pics, host);
    ASSERT_EQ(s.Complex.ComplexPointCount, (1 << 22) - 1);
    // The tile is the set of all sums of the powers: about the middle of the view every pixel is hit.
    const WorldWindow w = s.wb.Window;
    const double cx = 0.5 * (static_cast<double>(w.xmin) + w.xmax);
    const double cy = 0.5 * (static_cast<double>(w.ymin) + w.ymax);
    int holes = 0;
    for (int dy = -10; dy <= 10; ++dy)
        for (int dx = -10; dx <= 10; ++dx) {
            const double px = (w.xmax - w.xmin) / 200.0, py = (w.ymax - w.ymin) / 200.0;
            holes += at(cx + dx * px, cy + dy * py) == White;
        }
    EXPECT_EQ(holes, 0);
}

TEST_F(ComplexPlotTest, PixelCountsTakeTheGradientThresholds) {
    // A zero base puts every row on 0 or on 1, in turn: each cell counts one point in two.
    form.optPixelColor = true;
    create("0", "0", false, true);
    view(-0.5f, 1.5f, -1, 1);
    GradientColors& g = s.wb.Gradient;
    g.GradientColorCount = 7;
    for (int k = 0; k < 7; ++k) {
        g.picColors[static_cast<size_t>(k)] = RGB(k * 30, 0, 255 - k * 30);
        g.txtCount[static_cast<size_t>(k)] = std::to_string(5 * k);
    }
    PlayGame(s.wb, s.pics, host, 0, 10);  // 5 hits each
    EXPECT_EQ(at(1, 0), g.picColors[1]);
    EXPECT_EQ(at(0, 0), g.picColors[1]);
    PlayGame(s.wb, s.pics, host, 0, 2);  // 6 hits: a fifth of the way to colour 2
    EXPECT_EQ(at(1, 0), MixColors(g.picColors[1], g.picColors[2], 0.2));
    PlayGame(s.wb, s.pics, host, 0, 100);  // 56 hits: past the last threshold
    EXPECT_EQ(at(1, 0), g.picColors[6]);
}

TEST_F(ComplexPlotTest, TheHitCountersAreSixteenBitsWide) {
    form.optPixelColor = true;
    create("0", "0", false, true);
    view(-0.5f, 1.5f, -1, 1);
    PlayGame(s.wb, s.pics, host, 0, 65536);
    const int res = 100;
    const size_t u = static_cast<size_t>((1 + 0.5) * res / 2.0), v = static_cast<size_t>(1 * res / 2.0);
    EXPECT_EQ(s.Complex.ComplexHitCount[u + ComplexHitSide * v], -32768);
}

TEST_F(ComplexPlotTest, TheIFSColourOptionColoursEveryPointLikeMapOne) {
    create("0.65", "-0.3", false, true);
    s.wb.FunctionColor[0] = RGB(0, 120, 0);
    PlayGame(s.wb, s.pics, host, 0, 2000);
    int other = 0, painted = 0;
    for (int r = 0; r < 100; ++r)
        for (int c = 0; c < 100; ++c) {
            const Color p = s.pics.picfractal.pixel(c, r);
            painted += p == RGB(0, 120, 0);
            other += p != RGB(0, 120, 0) && p != White;
        }
    EXPECT_GT(painted, 100);
    EXPECT_EQ(other, 0);
    EXPECT_TRUE(s.Complex.ComplexHitCount.empty() ||
                std::all_of(s.Complex.ComplexHitCount.begin(), s.Complex.ComplexHitCount.end(),
                            [](int16_t h) { return h == 0; }));
}

TEST_F(ComplexPlotTest, ARegularBuildLeavesPlayGameItsOwnLoop) {
    create("0.65", "-0.3", false, false);
    PlayGame(s.wb, s.pics, host, 0, 500);
    EXPECT_EQ(s.wb.PointCount, 550);
    EXPECT_EQ(s.Complex.ComplexPointCount, 0);
}

TEST_F(ComplexPlotTest, AReleasedLoopGoesBackToPlayGame) {
    create("0.65", "-0.3", false, true);
    PlayGame(s.wb, s.pics, host, 0, 100);
    EXPECT_EQ(s.Complex.ComplexPointCount, 100);
    ComplexRelease(s);
    GeneratorClose(s.wb, s.Generator);
    PlayGame(s.wb, s.pics, host, 0, 300);
    EXPECT_EQ(s.Complex.ComplexPointCount, 100);
    EXPECT_GT(s.wb.PointCount, 300);
}

TEST_F(ComplexPlotTest, AnotherGeneratorOpeningTakesTheLoopBack) {
    create("0.65", "-0.3", false, true);
    ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, SymmetricFractalsExample));
    EXPECT_TRUE(s.wb.menu("mnuDrawType(1)").enabled);
    PlayGame(s.wb, s.pics, host, 0, 300);
    EXPECT_EQ(s.Complex.ComplexPointCount, 0);
    EXPECT_EQ(s.wb.PointCount, 350);
    EXPECT_FALSE(static_cast<bool>(s.pics.PlotSource));
}

TEST_F(ComplexPlotTest, StopAtAYieldEndsTheRun) {
    create("0.65", "-0.3", false, true);
    const int first = host.yields();
    host.onYield = [&](int n) {
        if (n == first + 3) s.wb.DrawingActive = false;
    };
    PlayGame(s.wb, s.pics, host, 0, 0);
    EXPECT_EQ(s.Complex.ComplexPointCount, 3 * ComplexYieldPoints);
}

TEST_F(ComplexPlotTest, AClearedPictureStartsTheCounterAgain) {
    create("0.65", "-0.3", false, true);
    PlayGame(s.wb, s.pics, host, 0, 500);
    mnuClear_Click(s.wb, s.pics);
    PlayGame(s.wb, s.pics, host, 0, 20);
    EXPECT_EQ(s.Complex.ComplexPointCount, 20);
}

}  // namespace
}  // namespace quillane::testing
