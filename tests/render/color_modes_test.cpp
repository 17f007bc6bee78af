// The colour modes 1 to 7 of the random drawing: every pixel checked against the formula, worked out
// here from the orbit replayed with the same seed.
#include "render/color_modes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "core/numbers.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "core/unit_square_ifs.h"
#include "render/color_stealing.h"
#include "render/play_game.h"
#include "tests/render/gradient_formula.h"

namespace quillane {
namespace {

using testing::FormulaGradientColor;
using testing::FormulaGradientMix;

constexpr uint64_t Seed = 11;

void useMode(Workbench& wb, FractalPictures& pics, int mode) {
    for (int k = 0; k < 3; ++k) wb.Menu.setChecked(MenuTable::key("mnuColors", k), false);
    if (mode == 7) {
        wb.Menu.setChecked(MenuTable::key("mnuColors", 2), true);
    } else if (mode > 0) {
        wb.Menu.setChecked(MenuTable::key("mnuColors", 1), true);
        pics.Det.optColoring = mode;
    } else {
        wb.Menu.setChecked(MenuTable::key("mnuColors", 0), true);
    }
}

struct Game {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;

    Game(const IFSEntry& ifs, int mode, int side = 32) {
        wb.CurrentIFS = ifs;
        wb.txtMaps = std::to_string(ifs.nMaps);
        wb.Window = {-0.05f, 1.05f, -0.05f, 1.05f};
        WriteWindowText(wb);
        wb.AttractorXMin = 0;
        wb.AttractorXMax = 1;
        wb.AttractorYMin = 0;
        wb.AttractorYMax = 1;
        wb.Rng.pin(Seed);
        pics.resize(side, White);
        ApplyWindow(pics, wb.Window);
        useMode(wb, pics, mode);
    }
    void play(int32_t count) { PlayGame(wb, pics, host, 0, count); }
};

// One plotted point as the loop makes it, with the extra draw of the random mode.
struct Plotted {
    int map;
    float x, y;
    double draw;
};

// The orbit from the lower left corner of the window: r rounded to 4 decimals, the first map whose
// cumulative probability is not below r, 50 warm-up iterations.
std::vector<Plotted> replay(const Game& g, int points, bool extraDraw) {
    const IFSEntry& ifs = g.wb.CurrentIFS;
    const int n = ifs.nMaps;
    std::vector<float> cum(static_cast<size_t>(n));
    cum[0] = static_cast<float>(Round(ifs.p[0], 6));
    for (int i = 1; i <= n - 2; ++i) cum[i] = static_cast<float>(Round(cum[i - 1] + ifs.p[i], 6));
    cum[n - 1] = 1.0f;
    Random rng;
    rng.pin(Seed);
    float x = g.wb.Window.xmin, y = g.wb.Window.ymin;
    std::vector<Plotted> out;
    for (int count = 1; count <= 50 + points; ++count) {
        const float r = static_cast<float>(Round(rng.Rnd(), 4));
        int i = 0;
        while (cum[i] < r) ++i;
        const float nx = ifs.a[i] * x + ifs.b[i] * y + ifs.e[i];
        const float ny = ifs.c[i] * x + ifs.d[i] * y + ifs.f[i];
        if (count > 50) out.push_back({i, nx, ny, extraDraw ? rng.Rnd() : 0.0});
        x = nx;
        y = ny;
    }
    return out;
}

// Replays the points into a picture of the game's size and compares every pixel. `colorOf` gives
// nothing where a point leaves the pixel as it is.
void expectPicture(const Game& g, const std::vector<Plotted>& pts,
                   const std::function<std::optional<Color>(const Plotted&)>& colorOf) {
    const RasterSurface& s = g.pics.picfractal;
    std::vector<Color> expected(static_cast<size_t>(s.width()) * s.height(), White);
    for (const Plotted& p : pts) {
        const std::optional<Color> c = colorOf(p);
        if (!c) continue;
        const double col = std::floor((static_cast<double>(p.x) - s.scaleLeft()) * s.pixelScaleX());
        const double row = std::floor((static_cast<double>(p.y) - s.scaleTop()) * s.pixelScaleY());
        if (col < 0 || row < 0 || col >= s.width() || row >= s.height()) continue;
        expected[static_cast<size_t>(row) * s.width() + static_cast<size_t>(col)] = *c;
    }
    int wrong = 0, painted = 0;
    std::set<Color> colours;
    for (int r = 0; r < s.height(); ++r)
        for (int c = 0; c < s.width(); ++c) {
            const Color want = expected[static_cast<size_t>(r) * s.width() + c];
            wrong += s.pixel(c, r) != want;
            wrong += g.pics.picImage2.pixel(c, r) != want;
            painted += want != White;
            colours.insert(want);
        }
    EXPECT_EQ(wrong, 0);
    EXPECT_GT(painted, 100);
    EXPECT_GT(colours.size(), 3u);  // more than one colour besides the background
}

TEST(ColorModes, HeightPixelsFollowTheGradientOfY) {
    Game g(SierpinskiTriangleIFS(), HeightColorMode);
    g.play(20000);
    const GradientColors grad = DefaultGradient();
    expectPicture(g, replay(g, 20000, false), [&](const Plotted& p) {
        return FormulaGradientColor(grad, std::min(std::fabs((p.y - 0.0) / 1.0), 1.0));
    });
}

TEST(ColorModes, WidthPixelsFollowTheGradientOfXWithinTheAttractorBounds) {
    Game g(SierpinskiTriangleIFS(), WidthColorMode);
    g.wb.AttractorXMin = 0.25f;
    g.wb.AttractorXMax = 0.75f;
    g.play(20000);
    const GradientColors grad = DefaultGradient();
    expectPicture(g, replay(g, 20000, false), [&](const Plotted& p) {
        return FormulaGradientColor(grad, std::min(std::fabs((p.x - 0.25) / 0.5), 1.0));
    });
}

TEST(ColorModes, RadialPixelsUseTheLargerHalfSide) {
    Game g(SierpinskiTriangleIFS(), RadialColorMode);
    g.wb.AttractorYMax = 0.8f;  // half-width 0.5 beats half-height 0.4
    g.wb.Gradient.GradientColorCount = 3;
    g.play(20000);
    const GradientColors grad = g.wb.Gradient;
    expectPicture(g, replay(g, 20000, false), [&](const Plotted& p) {
        const double dx = p.x - 0.5, dy = p.y - 0.4;
        return FormulaGradientColor(grad, std::min(std::sqrt(dx * dx + dy * dy) / 0.5, 1.0));
    });
}

TEST(ColorModes, FixedPointPixelsCompareNearestAndFarthestFixedPoint) {
    Game g(SierpinskiTriangleIFS(), FixedPointColorMode);
    g.play(20000);
    // The fixed points of the three maps: the corners (0,0), (1,0), (0.5,1).
    const double fx[3] = {0, 1, 0.5}, fy[3] = {0, 0, 1};
    const GradientColors grad = DefaultGradient();
    expectPicture(g, replay(g, 20000, false), [&](const Plotted& p) {
        double lo = 1000, hi = 0;
        for (int k = 0; k < 3; ++k) {
            const double d = (p.x - fx[k]) * (p.x - fx[k]) + (p.y - fy[k]) * (p.y - fy[k]);
            lo = std::min(lo, d);
            hi = std::max(hi, d);
        }
        return FormulaGradientColor(grad, std::sqrt(lo) / std::sqrt(hi));
    });
}

TEST(ColorModes, RandomPixelsTakeAStripByOneFurtherDrawAPoint) {
    Game g(SierpinskiTriangleIFS(), RandomColorMode);
    g.play(20000);
    const auto strips = GradientStrips(DefaultGradient());
    // With a pinned seed the second reseed starts the sequence over, so the replay starts there too.
    expectPicture(g, replay(g, 20000, true),
                  [&](const Plotted& p) { return strips[static_cast<size_t>(std::floor(p.draw * 180))]; });
}

TEST(ColorModes, VisitPixelsFollowTheCountOfTheirCell) {
    Game g(SierpinskiTriangleIFS(), VisitCountColorMode);
    g.play(20000);
    const GradientColors grad = DefaultGradient();
    const double T[7] = {0, 5, 10, 15, 20, 25, 30};
    const double sx = 32 / (static_cast<double>(1.05f) - static_cast<double>(-0.05f)), sy = sx;
    std::map<std::pair<long, long>, int> counts;
    int highest = 0;
    expectPicture(g, replay(g, 20000, false), [&](const Plotted& p) -> std::optional<Color> {
        if (p.x < -0.05f || p.x > 1.05f || p.y < -0.05f || p.y > 1.05f) return Black;
        const int h = ++counts[{static_cast<long>(std::floor((p.x - static_cast<double>(-0.05f)) * sx)),
                                static_cast<long>(std::floor((p.y - static_cast<double>(-0.05f)) * sy))}];
        highest = std::max(highest, h);
        for (int k = 1; k <= 6; ++k)
            if (h <= T[k])
                return FormulaGradientMix(grad.picColors[k - 1], grad.picColors[k], (h - T[k - 1]) / (T[k] - T[k - 1]));
        return grad.picColors[6];
    });
    EXPECT_GT(highest, 30);  // the last colour is reached
}

// A 40 x 30 picture whose every pixel has its own colour, on the unit square.
RasterSurface stealPicture() {
    RasterSurface s;
    s.resize(40, 30);
    for (int r = 0; r < 30; ++r)
        for (int c = 0; c < 40; ++c) s.setPixel(c, r, RGB(c * 6, r * 8, 77));
    s.setScale(0, 1, 1, 0);
    return s;
}

TEST(ColorModes, StealingPixelsTakeThePictureUnderTheColouringOrbit) {
    Game g(SierpinskiTriangleIFS(), StealingColorMode);
    ColorStealingState& cs = g.pics.Stealing;
    cs.ColoringIFS = UnitSquareIFS(g.wb.CurrentIFS, 3);
    cs.picImage = stealPicture();
    cs.CSWindow = {0, 1, 0, 1};
    g.play(20000);
    EXPECT_TRUE(g.host.shown().empty());
    const IFSEntry& m = cs.ColoringIFS;
    float cx = 0, cy = 0;
    for (int j = 1; j <= 50; ++j) {
        const float nx = m.a[j] * cx + m.b[j] * cy + m.e[j];
        cy = m.c[j] * cx + m.d[j] * cy + m.f[j];
        cx = nx;
    }
    const RasterSurface picture = stealPicture();
    expectPicture(g, replay(g, 20000, false), [&](const Plotted& p) -> std::optional<Color> {
        const float nx = m.a[p.map] * cx + m.b[p.map] * cy + m.e[p.map];
        cy = m.c[p.map] * cx + m.d[p.map] * cy + m.f[p.map];
        cx = nx;
        const double col = std::floor(cx * 40.0), row = std::floor((cy - 1.0) * -30.0);
        if (col < 0 || row < 0 || col >= 40 || row >= 30) return std::nullopt;
        return picture.pixel(static_cast<int>(col), static_cast<int>(row));
    });
}

TEST(ColorModes, AnOrbitOffThePictureChangesNothing) {
    Game g(SierpinskiTriangleIFS(), StealingColorMode);
    ColorStealingState& cs = g.pics.Stealing;
    cs.ColoringIFS = UnitSquareIFS(g.wb.CurrentIFS, 3);
    for (int i = 0; i < 3; ++i) cs.ColoringIFS.e[i] += 5;  // the orbit runs far right of the picture
    cs.picImage = stealPicture();
    g.play(5000);
    EXPECT_EQ(g.wb.PointCount, 5050);
    for (int r = 0; r < 32; ++r)
        for (int c = 0; c < 32; ++c) ASSERT_EQ(g.pics.picfractal.pixel(c, r), White);
}

TEST(ColorModes, TheTraceMarksTheColouringOrbit) {
    Game g(SierpinskiTriangleIFS(), StealingColorMode);
    ColorStealingState& cs = g.pics.Stealing;
    cs.ColoringIFS = UnitSquareIFS(g.wb.CurrentIFS, 3);
    cs.picImage = stealPicture();
    cs.picTrace = stealPicture();
    cs.chkTrace = true;
    cs.picTraceColor = RGB(1, 2, 3);
    g.play(5000);
    int dots = 0;
    for (int r = 0; r < 30; ++r)
        for (int c = 0; c < 40; ++c) dots += cs.picTrace.pixel(c, r) == RGB(1, 2, 3);
    EXPECT_GT(dots, 100);
}

TEST(ColorModes, AMismatchedColouringIFSStopsTheRunWhileTheWindowIsShown) {
    Game g(SierpinskiTriangleIFS(), StealingColorMode);
    g.pics.Stealing.ColoringIFS = UnitSquareIFS(g.wb.CurrentIFS, 2);
    g.pics.Stealing.Visible = true;
    const MenuTable before = g.wb.Menu;
    g.play(1000);
    ASSERT_EQ(g.host.shown().size(), 1u);
    EXPECT_EQ(g.host.shown()[0].title, "Error");
    EXPECT_EQ(g.host.shown()[0].text,
              "The coloring IFS and drawing IFS do not\nhave the same number of functions.\n\n"
              "Refresh the list and select a new coloring IFS.");
    EXPECT_EQ(g.wb.PointCount, 0);
    EXPECT_FALSE(g.wb.DrawingActive);
    // Menus untouched, the title not switched to the quit hint.
    for (const char* key : {"mnuStop", "mnuClear", "mnuSaveFractal", "Toolbar1(1)"}) {
        EXPECT_EQ(g.wb.menu(key).enabled, before(key).enabled) << key;
        EXPECT_EQ(g.wb.menu(key).caption, before(key).caption) << key;
    }
    EXPECT_NE(g.wb.FractalWindowCaption, "Press Q to quit");
}

TEST(ColorModes, AMismatchedColouringIFSIsReplacedWhileTheWindowIsHidden) {
    Game g(SierpinskiTriangleIFS(), StealingColorMode);
    g.pics.Stealing.ColoringIFS = UnitSquareIFS(g.wb.CurrentIFS, 2);
    g.pics.Stealing.picImage = stealPicture();
    g.play(1000);
    EXPECT_TRUE(g.host.shown().empty());
    EXPECT_EQ(g.wb.PointCount, 1050);
    EXPECT_EQ(g.pics.Stealing.ColoringIFS.nMaps, 3);
    EXPECT_EQ(g.pics.Stealing.ColoringIFS.Name, "Unit Square  ");
}

// The visit counts.

TEST(VisitCounts, PlainLoopCountsExactlyThePlottedPoints) {
    Game g(SierpinskiTriangleIFS(), VisitCountColorMode);
    g.play(10000);
    long sum = 0;
    for (int16_t h : g.wb.HitCount) sum += h;
    EXPECT_EQ(sum, 10000);  // the 50 warm-up points are not counted in the plain loop
    EXPECT_EQ(g.wb.HitCount.size(), 1000000u);
}

TEST(VisitCounts, AreClearedOnlyWhenTheCountIsZero) {
    Game g(SierpinskiTriangleIFS(), VisitCountColorMode);
    g.play(1000);
    g.play(1000);  // goes on: the table keeps counting
    long sum = 0;
    for (int16_t h : g.wb.HitCount) sum += h;
    EXPECT_EQ(sum, 2000);
    g.wb.PointCount = 0;
    g.play(500);
    sum = 0;
    for (int16_t h : g.wb.HitCount) sum += h;
    EXPECT_EQ(sum, 500);
}

TEST(VisitCounts, TheOptionButtonAloneClearsTheTable) {
    Game g(SierpinskiTriangleIFS(), IFSColorMode);
    g.pics.Det.optColoring = VisitCountColorMode;  // selected, but IFS colours in force
    g.wb.HitCount.assign(1000000, 3);
    g.play(100);
    for (int16_t h : g.wb.HitCount) ASSERT_EQ(h, 0);
}

TEST(VisitCounts, SixteenBitCounterWrapsAt32767) {
    std::vector<int16_t> table;
    const GradientColors grad = DefaultGradient();
    VisitCounter v(table, {0, 1, 0, 1}, 10, grad);
    ASSERT_EQ(table.size(), 1000000u);
    table[3 + 1000 * 4] = 32766;
    // (0.35, 0.45) lies in cell (3, 4) at resolution 10.
    EXPECT_EQ(v.plainColor(0.35f, 0.45f), grad.picColors[6]);
    EXPECT_EQ(table[3 + 1000 * 4], 32767);
    const Color wrapped = v.plainColor(0.35f, 0.45f);
    EXPECT_EQ(table[3 + 1000 * 4], -32768);
    // h = -32768 <= T(1) = 5: between colours 0 and 1 at f = -32768 / 5, channels held to 0..255.
    EXPECT_EQ(wrapped, FormulaGradientMix(grad.picColors[0], grad.picColors[1], -32768.0 / 5));
    EXPECT_EQ(wrapped, RGB(255, 0, 0));
}

TEST(VisitCounts, OutsideTheWindowIsColourZeroAndUncountedOnTheBoundIsInside) {
    std::vector<int16_t> table;
    const GradientColors grad = DefaultGradient();
    VisitCounter v(table, {0, 1, 0, 1}, 10, grad);
    EXPECT_EQ(v.plainColor(1.01f, 0.5f), Black);
    EXPECT_EQ(v.plainColor(0.5f, -0.01f), Black);
    long sum = 0;
    for (int16_t h : table) sum += h;
    EXPECT_EQ(sum, 0);
    v.plainColor(1.0f, 1.0f);  // on the bound: cell (10, 10), still inside the table
    EXPECT_EQ(table[10 + 1000 * 10], 1);
    EXPECT_EQ(v.plainColor(0.0f, 0.0f), FormulaGradientMix(grad.picColors[0], grad.picColors[1], 1.0 / 5));
}

TEST(VisitCounts, TheTileLoopIgnoresPointsOutsideTheTable) {
    std::vector<int16_t> table;
    VisitCounter v(table, {0, 1, 0, 1}, 2000, DefaultGradient());
    EXPECT_EQ(v.resolution(), 1000);
    EXPECT_EQ(v.tileColor(1.5f, 0.5f), Black);   // u = 1500
    EXPECT_EQ(v.tileColor(-0.5f, 0.5f), Black);  // u < 0
    EXPECT_EQ(v.tileColor(1.0f, 0.5f), Black);   // u = 1000 is one past the table
    long sum = 0;
    for (int16_t h : table) sum += h;
    EXPECT_EQ(sum, 0);
    v.tileColor(0.9995f, 0.0f);
    EXPECT_EQ(table[999], 1);
}

TEST(VisitCounts, ThreeColoursUseTheirOwnThresholdsAndKeepTheHiddenOnes) {
    std::vector<int16_t> table;
    GradientColors grad = DefaultGradient();
    grad.GradientColorCount = 3;
    VisitCounter v(table, {0, 1, 0, 1}, 10, grad);
    EXPECT_EQ(v.colorOfCount(7), FormulaGradientMix(grad.picColors[1], grad.picColors[2], 2.0 / 5));
    EXPECT_EQ(v.colorOfCount(11), grad.picColors[2]);  // past T(2): the last colour in use
    EXPECT_EQ(grad.txtCount[5], "25");
}

// Modes 1 to 4.

TEST(GradientModes, TEqualToOneGivesTheLastColour) {
    const GradientColors g = DefaultGradient();
    EXPECT_EQ(GradientLookup(g, 1.0), g.picColors[6]);
    EXPECT_EQ(GradientLookup(g, 0.0), g.picColors[0]);
    GradientColors two = g;
    two.GradientColorCount = 2;
    EXPECT_EQ(GradientLookup(two, 0.5), FormulaGradientMix(g.picColors[0], g.picColors[1], 0.5));
}

TEST(GradientModes, ACountOfZeroIsTakenAsSeven) {
    GradientColors g = DefaultGradient();
    g.GradientColorCount = 0;
    EXPECT_EQ(GradientCount(g), 7);
    EXPECT_EQ(GradientLookup(g, 1.0), g.picColors[6]);
}

TEST(GradientModes, AFlatAttractorTakesARangeOfOne) {
    Workbench wb;
    wb.AttractorYMin = wb.AttractorYMax = 2;
    const GradientPosition pos(HeightColorMode, wb, wb.CurrentIFS, 0);
    EXPECT_DOUBLE_EQ(pos.t(0, 2.5f), 0.5);
    EXPECT_DOUBLE_EQ(pos.t(0, 1.5f), 0.5);  // the absolute value
    EXPECT_DOUBLE_EQ(pos.t(0, 9), 1.0);     // capped
}

TEST(GradientModes, WithoutFixedPointsEveryPointTakesTheLastColour) {
    Workbench wb;
    IFSEntry ifs = DefaultIFS();
    ifs.a[0] = 1;  // det = a d + (1 - d - a) - b c = 0
    ifs.d[0] = 0;
    const GradientPosition pos(FixedPointColorMode, wb, ifs, 1);
    EXPECT_TRUE(pos.fixedPoints().empty());
    EXPECT_EQ(pos.color(wb.Gradient, 0.3f, 0.2f), wb.Gradient.picColors[6]);
}

TEST(GradientModes, FixedPointsFollowTheFormula) {
    Workbench wb;
    IFSEntry ifs = SierpinskiTriangleIFS();
    const GradientPosition pos(FixedPointColorMode, wb, ifs, 3);
    ASSERT_EQ(pos.fixedPoints().size(), 3u);
    EXPECT_NEAR(pos.fixedPoints()[1][0], 1.0, 1e-6);
    EXPECT_NEAR(pos.fixedPoints()[2][1], 1.0, 1e-6);
}

// The choice of mode.

TEST(ColorModeChoice, StealingWinsThenTheGradientOption) {
    Workbench wb;
    FractalPictures pics;
    useMode(wb, pics, 0);
    EXPECT_EQ(PlayGameColorMode(wb, pics), 0);
    useMode(wb, pics, 4);
    EXPECT_EQ(PlayGameColorMode(wb, pics), 4);
    useMode(wb, pics, 7);
    EXPECT_EQ(PlayGameColorMode(wb, pics), 7);
}

// Edge cases of the drawing in a colour mode.

TEST(ColorModes, PositiveCountPlotsExactlyThatManyInEveryMode) {
    for (int mode = 1; mode <= 7; ++mode) {
        Game g(SierpinskiTriangleIFS(), mode);
        g.pics.Stealing.ColoringIFS = UnitSquareIFS(g.wb.CurrentIFS, 3);
        g.pics.Stealing.picImage = stealPicture();
        g.play(10000);
        EXPECT_EQ(g.wb.PointCount, 10050) << mode;
        EXPECT_EQ(g.pics.picCount, "10000") << mode;
    }
}

TEST(ColorModes, AnExpandingIFSEndsInTheOverflowMessageInAGradientMode) {
    IFSEntry ifs = DefaultIFS();
    ifs.a[0] = ifs.d[0] = 2;
    ifs.e[0] = ifs.f[0] = 1;
    Game g(ifs, HeightColorMode);
    g.play(0);
    ASSERT_EQ(g.host.shown().size(), 1u);
    EXPECT_EQ(g.host.shown()[0].text, "Overflow error.\nIFS may be expanding.");
    EXPECT_FALSE(g.wb.DrawingActive);
}

}  // namespace
}  // namespace quillane
