// The tile mode of both drawings: copies at i u + j v for i, j from -R to R, in tile colours or the
// fractal's own.
#include "render/tile_loop.h"

#include <gtest/gtest.h>

#include <set>

#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/deterministic.h"
#include "render/play_game.h"

namespace quillane {
namespace {

constexpr int Side = 60;  // pixels; the window -2.5 .. 3.5 gives 10 pixels a unit

// One map that sends every point to (0.5, 0.5): each plotted point and each copy is a known pixel.
IFSEntry pointMap() {
    IFSEntry ifs = DefaultIFS();
    ifs.a[0] = ifs.b[0] = ifs.c[0] = ifs.d[0] = 0;
    ifs.e[0] = ifs.f[0] = 0.5f;
    ifs.p[0] = 1;
    return ifs;
}

struct TileBench {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;

    TileBench() {
        wb.CurrentIFS = pointMap();
        wb.txtMaps = "1";
        wb.Window = {-2.5f, 3.5f, -2.5f, 3.5f};
        WriteWindowText(wb);
        wb.Rng.pin(5);
        pics.resize(Side, White);
        ApplyWindow(pics, wb.Window);
        pics.Tiling.SettingsVisible = true;
        pics.Tiling.txtT = {"1", "0", "0", "1"};
        pics.Tiling.cmbRadius = 1;
        pics.Tiling.optColor2 = true;
    }
    Color at(double x, double y) const { return pics.picfractal.point(x, y); }
    int painted() const {
        int n = 0;
        for (int r = 0; r < Side; ++r)
            for (int c = 0; c < Side; ++c) n += pics.picfractal.pixel(c, r) != White;
        return n;
    }
};

TEST(TileColors, TheIndexRunsOverThreeByThreeTiles) {
    EXPECT_EQ(TileColorIndex(0, 0), 4);
    EXPECT_EQ(TileColorIndex(-1, -1), 0);
    EXPECT_EQ(TileColorIndex(1, 1), 8);
    EXPECT_EQ(TileColorIndex(-7, 2), 0 * 3 + 0);
    EXPECT_EQ(TileColorIndex(2, -1), 0 * 3 + 0);
    EXPECT_EQ(TileColorIndex(3, 0), TileColorIndex(0, 0));
}

TEST(TileCopiesSetUp, TheVectorsAreTheBasisAppliedToTheBoxes) {
    TilingState t;
    t.txtT = {"1", "-1", "1", "1"};  // M's columns (1, 1) and (-1, 1)
    t.cmbRadius = 2;
    t.chkbasis = true;
    t.A = 2;
    t.B = 0;
    t.C = 0;
    t.D = 0.5f;
    const TileCopies k = PrepareTileCopies(t, TilingColorDefaults());
    ASSERT_EQ(k.side, 5);
    // u = B (t0, t2) = (2, 0.5), v = B (t1, t3) = (-2, 0.5); index 3 is i = 1.
    EXPECT_FLOAT_EQ(k.ix[3], 2);
    EXPECT_FLOAT_EQ(k.iy[3], 0.5f);
    EXPECT_FLOAT_EQ(k.jx[0], 4);
    EXPECT_FLOAT_EQ(k.jy[0], -1);
    t.chkbasis = false;
    EXPECT_FLOAT_EQ(PrepareTileCopies(t, TilingColorDefaults()).ix[3], 1);
    // Text that does not evaluate counts as 0; radii stay within 0 .. 7.
    t.txtT = {"(", "0", "0", "1"};
    t.cmbRadius = 40;
    const TileCopies bad = PrepareTileCopies(t, TilingColorDefaults());
    EXPECT_EQ(bad.side, 15);
    EXPECT_EQ(bad.ix[14], 0);
}

TEST(TileLoop, EveryTileTakesItsOwnColour) {
    TileBench b;
    PlayGame(b.wb, b.pics, b.host, 0, 100);
    EXPECT_EQ(b.wb.PointCount, 150);
    for (int i = -1; i <= 1; ++i)
        for (int j = -1; j <= 1; ++j)
            EXPECT_EQ(b.at(0.5 + i, 0.5 + j), b.wb.TilingColor[static_cast<size_t>(TileColorIndex(i, j))])
                << i << "," << j;
    EXPECT_EQ(b.painted(), 9);
}

TEST(TileLoop, TheFractalsColoursWithTheFirstOption) {
    TileBench b;
    b.pics.Tiling.optColor2 = false;
    b.pics.Tiling.cmbRadius = 2;
    // A map coloured like the background is plotted in the tile loop, so use a visible one here and
    // check that the background one still counts.
    b.wb.FunctionColor[0] = RGB(10, 20, 30);
    PlayGame(b.wb, b.pics, b.host, 0, 100);
    EXPECT_EQ(b.at(-1.5, 2.5), RGB(10, 20, 30));
    EXPECT_EQ(b.at(2.5, -1.5), RGB(10, 20, 30));
    EXPECT_EQ(b.painted(), 25);
}

TEST(TileLoop, ClosedSettingsWindowMeansThePlainLoop) {
    TileBench b;
    b.pics.Tiling.SettingsVisible = false;
    b.wb.FunctionColor[0] = RGB(10, 20, 30);
    PlayGame(b.wb, b.pics, b.host, 0, 100);
    EXPECT_EQ(b.painted(), 1);
}

TEST(TileLoop, CopiesFollowTheTileVectorsAndTheShadowPicture) {
    TileBench b;
    b.pics.Tiling.txtT = {"2", "0", "1", "1"};  // u = (2, 1), v = (0, 1)
    PlayGame(b.wb, b.pics, b.host, 0, 100);
    EXPECT_EQ(b.at(2.5, 1.5), b.wb.TilingColor[static_cast<size_t>(TileColorIndex(1, 0))]);
    EXPECT_EQ(b.at(-1.5, -1.5), b.wb.TilingColor[static_cast<size_t>(TileColorIndex(-1, -1))]);
    EXPECT_EQ(b.at(0.5, 1.5), b.wb.TilingColor[static_cast<size_t>(TileColorIndex(0, 1))]);
    EXPECT_EQ(b.pics.picImage2.point(2.5, 1.5), b.at(2.5, 1.5));
}

TEST(TileLoop, ACopyBeyondAnyPixelEndsTheRunWithTheOverflowMessage) {
    TileBench b;
    b.pics.Tiling.txtT = {"10^30", "0", "0", "1"};
    PlayGame(b.wb, b.pics, b.host, 0, 100);
    ASSERT_EQ(b.host.shown().size(), 1u);
    EXPECT_EQ(b.host.shown()[0].title, DrawingProblemTitle);
    EXPECT_EQ(b.host.shown()[0].text, DrawingOverflowMessage);
    EXPECT_FALSE(b.wb.DrawingActive);
}

TEST(TileLoop, TheWarmUpIsColouredButNotPlotted) {
    TileBench b;
    PlayGame(b.wb, b.pics, b.host, 0, -1);  // until one point is plotted: 51 iterations
    EXPECT_EQ(b.wb.PointCount, 51);
    EXPECT_EQ(b.painted(), 9);
}

// A deterministic level over a source of a few pixels: the one map puts each at (0.5, 0.5), and the
// tiled scan gives every copy its tile's colour.
struct TiledLevel : TileBench {
    TiledLevel() {
        wb.RandomMode = false;
        wb.IterationNumber = 0;
        wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), true);
        for (int k = 0; k < 3; ++k) wb.Menu.setChecked(MenuTable::key("mnuColors", k), k == 0);
        pics.picImage3.clear();
        pics.picImage3.setPixel(20, 20, Black);
        pics.picImage3.setPixel(30, 31, Black);
        pics.picfractal.takeImage(pics.picImage3);
    }
};

TEST(TiledScan, EachCopyTakesItsTileColour) {
    TiledLevel l;
    Iterate(l.wb, l.pics, l.host, -1);
    std::set<Color> colours;
    for (int i = -1; i <= 1; ++i)
        for (int j = -1; j <= 1; ++j) {
            const Color c = l.at(0.5 + i, 0.5 + j);
            EXPECT_EQ(c, l.wb.TilingColor[static_cast<size_t>(TileColorIndex(i, j))]) << i << "," << j;
            EXPECT_EQ(l.pics.picImage.point(0.5 + i, 0.5 + j), c);
            colours.insert(c);
        }
    EXPECT_EQ(colours.size(), 9u);
    EXPECT_EQ(l.painted(), 9);
    EXPECT_EQ(l.wb.IterationNumber, 1);
}

TEST(TiledScan, TheFirstOptionKeepsTheMapsColour) {
    TiledLevel l;
    l.pics.Tiling.optColor2 = false;
    l.wb.FunctionColor[0] = RGB(200, 0, 100);
    Iterate(l.wb, l.pics, l.host, -1);
    for (int i = -1; i <= 1; ++i)
        for (int j = -1; j <= 1; ++j) EXPECT_EQ(l.at(0.5 + i, 0.5 + j), RGB(200, 0, 100)) << i << "," << j;
    EXPECT_EQ(l.painted(), 9);
}

TEST(TiledScan, TheTiledScanRunsEvenWithImageColours) {
    TiledLevel l;
    l.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), false);
    l.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), true);
    Iterate(l.wb, l.pics, l.host, -1);
    EXPECT_EQ(l.at(1.5, 1.5), l.wb.TilingColor[8]);
    EXPECT_EQ(l.painted(), 9);
}

}  // namespace
}  // namespace quillane
