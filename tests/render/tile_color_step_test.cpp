// The colour step the tile loop takes at every iteration, and how it differs from the plain loop's.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "core/unit_square_ifs.h"
#include "render/color_modes.h"
#include "render/fractal_pictures.h"
#include "tests/render/gradient_formula.h"

namespace quillane {
namespace {

struct ColorRun {
    Workbench wb;
    FractalPictures pics;
    RunColoring rc;

    explicit ColorRun(int mode) {
        wb.CurrentIFS = SierpinskiTriangleIFS();
        wb.txtMaps = "3";
        wb.Window = {0, 1, 0, 1};
        wb.AttractorYMin = 0;
        wb.AttractorYMax = 2;
        wb.Rng.pin(4);
        pics.resize(500, White);
        for (int k = 0; k < 3; ++k) wb.Menu.setChecked(MenuTable::key("mnuColors", k), false);
        if (mode == StealingColorMode) {
            wb.Menu.setChecked(MenuTable::key("mnuColors", 2), true);
        } else if (mode > 0) {
            wb.Menu.setChecked(MenuTable::key("mnuColors", 1), true);
            pics.Det.optColoring = mode;
        } else {
            wb.Menu.setChecked(MenuTable::key("mnuColors", 0), true);
        }
    }
    void prepare() { PrepareRunColoring(wb, pics, 3, rc); }
};

long total(const std::vector<int16_t>& table) {
    long sum = 0;
    for (int16_t h : table) sum += h;
    return sum;
}

TEST(TileColorStep, ModeZeroKeepsTheBackgroundColourOfAMap) {
    ColorRun run(IFSColorMode);
    run.prepare();
    EXPECT_EQ(run.rc.mode, IFSColorMode);
    Random rng;
    // The plain loop leaves such a point out; the tile loop plots it.
    EXPECT_EQ(run.rc.tileColor(rng, 1, 0.5f, 0.5f, White), White);
    EXPECT_EQ(run.rc.tileColor(rng, 1, 0.5f, 0.5f, RGB(1, 2, 3)), RGB(1, 2, 3));
}

TEST(TileColorStep, HeightTakesTheGradientOfTheAttractorBounds) {
    ColorRun run(HeightColorMode);
    run.prepare();
    Random rng;
    GradientColors g = run.wb.Gradient;
    g.GradientColorCount = GradientCount(g);
    EXPECT_EQ(run.rc.tileColor(rng, 0, 0.3f, 0.5f, Black), testing::FormulaGradientColor(g, 0.25));
    EXPECT_EQ(run.rc.tileColor(rng, 0, 0.3f, 9.0f, Black), testing::FormulaGradientColor(g, 1.0));
}

TEST(TileColorStep, VisitCountsTestNoWindowAndIgnorePointsBeyondTheTable) {
    ColorRun run(VisitCountColorMode);
    ClearHitCount(run.wb.HitCount);
    run.prepare();
    VisitCounter plain(run.wb.HitCount, run.wb.Window, 500, run.wb.Gradient);
    // Outside the window but inside the table (500 cells a unit): the plain loop skips it uncounted ...
    EXPECT_EQ(plain.plainColor(1.5f, 0.5f), Black);
    EXPECT_EQ(total(run.wb.HitCount), 0);
    // ... the tile loop counts it at cell (750, 250).
    Random rng;
    run.rc.tileColor(rng, 0, 1.5f, 0.5f, Black);
    EXPECT_EQ(total(run.wb.HitCount), 1);
    EXPECT_EQ(run.wb.HitCount[750 + 1000 * 250], 1);
    // Beyond the table: colour 0, nothing counted, no crash.
    EXPECT_EQ(run.rc.tileColor(rng, 0, 5.0f, 0.5f, White), Black);
    EXPECT_EQ(run.rc.tileColor(rng, 0, -0.5f, 0.5f, White), Black);
    EXPECT_EQ(run.rc.tileColor(rng, 0, 0.5f, 1e30f, White), Black);
    EXPECT_EQ(total(run.wb.HitCount), 1);
}

TEST(TileColorStep, StealingMovesTheColouringOrbitAtEveryStep) {
    ColorRun run(StealingColorMode);
    ColorStealingState& cs = run.pics.Stealing;
    cs.ColoringIFS = UnitSquareIFS(run.wb.CurrentIFS, 3);
    cs.picImage = RasterSurface(10, 10, RGB(7, 8, 9));
    cs.picImage.setScale(-1, 2, 2, -1);  // the orbit lies on the bottom edge of the unit square
    run.prepare();
    Random rng;
    const float x0 = run.rc.orbit->x(), y0 = run.rc.orbit->y();
    EXPECT_EQ(run.rc.tileColor(rng, 2, 0, 0, Black), RGB(7, 8, 9));
    const IFSEntry& m = cs.ColoringIFS;
    EXPECT_FLOAT_EQ(run.rc.orbit->x(), m.a[2] * x0 + m.b[2] * y0 + m.e[2]);
    EXPECT_FLOAT_EQ(run.rc.orbit->y(), m.c[2] * x0 + m.d[2] * y0 + m.f[2]);
}

TEST(TileColorStep, RandomTakesOneDrawAPoint) {
    ColorRun run(RandomColorMode);
    run.prepare();
    Random a = run.wb.Rng, b = run.wb.Rng;
    const auto strips = GradientStrips(run.rc.gradient);
    for (int k = 0; k < 50; ++k) {
        const Color expected = strips[static_cast<size_t>(b.Rnd() * 180)];
        EXPECT_EQ(run.rc.tileColor(a, 0, 0, 0, Black), expected);
    }
}

// The distance loop of mode 4 runs in lanes; for many maps it must give the single loop's t exactly.
TEST(FixedPointColoring, ManyMapsGiveTheSingleLoopsPositionExactly) {
    Workbench wb;
    const IFSEntry ifs = GridIFS(99);  // lanes of four and a tail of three
    const int n = ifs.nMaps;
    ASSERT_GE(n, 9);
    const GradientPosition position(FixedPointColorMode, wb, ifs, n);
    const auto& fixed = position.fixedPoints();
    ASSERT_EQ(static_cast<int>(fixed.size()), n);
    Random rng;
    rng.pin(9);
    for (int k = 0; k < 20000; ++k) {
        const float x = static_cast<float>(rng.Rnd() * 3 - 1), y = static_cast<float>(rng.Rnd() * 3 - 1);
        double smallest = 1000, largest = 0;
        for (const auto& p : fixed) {
            const double dx = x - p[0], dy = y - p[1];
            const double d2 = dx * dx + dy * dy;
            smallest = std::min(smallest, d2);
            largest = std::max(largest, d2);
        }
        const double t = std::min(std::sqrt(smallest) / std::sqrt(largest), 1.0);
        ASSERT_EQ(position.t(x, y), t) << x << " " << y;
    }
}

}  // namespace
}  // namespace quillane
