#include "app/overlay_commands.h"

#include <gtest/gtest.h>

#include "app/deterministic_commands.h"
#include "app/fractal_view.h"
#include "app/trace_commands.h"
#include "core/sample_systems.h"
#include "render/deterministic.h"
#include "render/fractal_overlays.h"
#include "render/play_game.h"
#include "tests/render/trace_bench.h"

namespace quillane::testing {
namespace {

struct Bench : OverlayBench {
    Bench() : OverlayBench(SierpinskiTriangleIFS()) {}
    bool key(int code, int mask = 0) {
        const bool handled = FractalKeyDown(wb, pics, host, code, mask);
        FractalKeyUp(wb, pics);
        return handled;
    }
};

TEST(OverlayCommands, RemovingAxesWhileTraceDotsShowLeavesTheDots) {
    // Many orbits, so that dots fall on drawn points and on axis pixels too.
    for (uint64_t seed = 1; seed <= 40; ++seed) {
        Bench b;
        b.wb.Rng.pin(seed);
        PlayGame(b.wb, b.pics, b.host, 1, -1000);
        mnuTrace_Click(b.wb, b.pics);
        SetTracePointAt(b.wb, b.pics, 0.5f, 0.5f);
        for (int k = 0; k < 50; ++k) b.key(KeySpace);
        const RasterSurface withDots = b.pics.picfractal;
        EXPECT_TRUE(b.key('A', ShiftMaskCtrl));
        EXPECT_TRUE(b.wb.menu("mnuAxes").checked);
        EXPECT_GT(b.differingPixels(withDots, b.pics.picfractal), 50) << "seed " << seed;
        EXPECT_TRUE(b.key('A', ShiftMaskCtrl));
        EXPECT_FALSE(b.wb.menu("mnuAxes").checked);
        EXPECT_EQ(b.differingPixels(withDots, b.pics.picfractal), 0) << "seed " << seed;
    }
}

TEST(OverlayCommands, ColouredDotsOverPointsOfAnotherMapKeepTheirColourWhenTheAxesGo) {
    // Map 1 walks to the corner (0, 0); map 2 then takes the dot to (0.5, 0), where the parts drawn by
    // maps 1 and 2 meet: the green dot lies over red points too. ANDing the mask back alone would
    // leave those pixels black.
    Bench b;
    PlayGame(b.wb, b.pics, b.host, 1, -5000);
    mnuColorTrace_Click(b.wb);
    mnuTrace_Click(b.wb, b.pics);
    SetTracePointAt(b.wb, b.pics, 0.3f, 0.3f);
    for (int k = 0; k < 20; ++k) b.key('1');
    b.key('2');
    const RasterSurface withDots = b.pics.picfractal;
    EXPECT_TRUE(b.key('A', ShiftMaskCtrl));
    EXPECT_TRUE(b.key('A', ShiftMaskCtrl));
    EXPECT_EQ(b.differingPixels(withDots, b.pics.picfractal), 0);
}

TEST(OverlayCommands, EachOverlayComesAndGoesWithItsKey) {
    Bench b;
    const RasterSurface empty = b.pics.picfractal;
    EXPECT_TRUE(b.key('F', ShiftMaskCtrl));
    EXPECT_TRUE(b.wb.menu("mnuFixedPoints").checked);
    EXPECT_NE(b.pics.picfractal.point(0, 0), White);
    EXPECT_TRUE(b.key('G', ShiftMaskCtrl));
    EXPECT_TRUE(b.wb.menu("mnudrawFractalGrid").checked);
    EXPECT_GT(b.pixelsOf(b.pics.picfractal, FractalGridColor), 0);
    EXPECT_TRUE(b.key('F', ShiftMaskCtrl));
    EXPECT_TRUE(b.key('G', ShiftMaskCtrl));
    EXPECT_EQ(b.differingPixels(empty, b.pics.picfractal), 0);
}

TEST(OverlayCommands, ThePlusAndMinusKeysStepTheGridOnlyWhileItShows) {
    Bench b;
    EXPECT_FALSE(b.key(KeyPlus));
    EXPECT_EQ(b.wb.GridSpacingX, 0.1f);
    b.key('G', ShiftMaskCtrl);
    EXPECT_TRUE(b.key(KeyPlus));
    EXPECT_EQ(b.wb.GridSpacingX, 0.125f);
    EXPECT_TRUE(b.key(KeyAdd));
    EXPECT_EQ(b.wb.GridSpacingY, 0.25f);
    const int coarse = b.pixelsOf(b.pics.picfractal, FractalGridColor);
    EXPECT_TRUE(b.key(KeyMinus));
    EXPECT_TRUE(b.key(KeySubtract));
    EXPECT_EQ(b.wb.GridSpacingX, 0.1f);
    // Finer: more grid pixels, and none of the coarse grid's left between its lines.
    EXPECT_GT(b.pixelsOf(b.pics.picfractal, FractalGridColor), coarse);
}

TEST(OverlayCommands, TheGridSizeDialogChecksItsRangeAndShowsTheGrid) {
    Bench b;
    EXPECT_FALSE(FractalGridSize(b.wb, b.pics, {0.0001f, 0.0001f}, b.host));
    EXPECT_FALSE(FractalGridSize(b.wb, b.pics, {0.5f, 5000.f}, b.host));
    EXPECT_EQ(b.host.shown(),
              (std::vector<ShownMessage>{{"Error", GridSizeRangeText}, {"Error", GridSizeRangeText}}));
    EXPECT_FALSE(b.wb.menu("mnudrawFractalGrid").checked);
    EXPECT_TRUE(FractalGridSize(b.wb, b.pics, {0.5f, 0.25f}, b.host));
    EXPECT_TRUE(b.wb.menu("mnudrawFractalGrid").checked);
    EXPECT_EQ(b.wb.GridSpacingX, 0.5f);
    EXPECT_EQ(b.wb.GridSpacingY, 0.25f);
}

TEST(OverlayCommands, CtrlAltKeysAskForTheirDialogsButNotDuringADeterministicLevel) {
    Bench b;
    EXPECT_TRUE(b.key('G', ShiftMaskCtrl | ShiftMaskAlt));
    EXPECT_EQ(b.pics.KeyDialog, "frmGridSize");
    EXPECT_TRUE(b.key('A', ShiftMaskCtrl | ShiftMaskAlt));
    EXPECT_EQ(b.pics.KeyDialog, "frmAxisSize");
    b.pics.KeyDialog.clear();
    b.wb.RandomMode = false;
    b.wb.DrawingActive = true;
    EXPECT_FALSE(b.key('A', ShiftMaskCtrl | ShiftMaskAlt));
    EXPECT_FALSE(b.key('G', ShiftMaskCtrl | ShiftMaskAlt));
    EXPECT_EQ(b.pics.KeyDialog, "");
}

TEST(OverlayCommands, AThickerAxisRedrawsTheAxesShown) {
    Bench b;
    b.key('A', ShiftMaskCtrl);
    const int thin = b.pixelsOf(b.pics.picfractal, Black);
    SetAxisThickness(b.wb, b.pics, 2);
    EXPECT_EQ(b.wb.AxisThickness, 3);
    EXPECT_TRUE(b.wb.menu("mnuAxes").checked);
    EXPECT_GT(b.pixelsOf(b.pics.picfractal, Black), thin * 2);
    SetAxisThickness(b.wb, b.pics, 0);
    EXPECT_EQ(b.pixelsOf(b.pics.picfractal, Black), thin);
}

TEST(OverlayCommands, ANewAxisColourRedrawsAndTheBackgroundIsStored) {
    Bench b;
    b.key('A', ShiftMaskCtrl);
    b.host.colors.push_back(RGB(0, 128, 0));
    mnuDrawAxisColor_Click(b.wb, b.pics, b.host);
    EXPECT_EQ(b.wb.FractalAxisColor, RGB(0, 128, 0));
    EXPECT_EQ(b.pixelsOf(b.pics.picfractal, Black), 0);
    EXPECT_GT(b.pixelsOf(b.pics.picfractal, RGB(0, 128, 0)), 0);
    b.host.colors.push_back(RGB(1, 2, 3));
    mnuDrawBackColor_Click(b.wb, b.host);
    EXPECT_EQ(b.wb.FractalBackColor, RGB(1, 2, 3));
}

TEST(OverlayCommands, TheOverlaysComeBackAfterAZoomAShiftAndAClear) {
    Bench b;
    b.key('A', ShiftMaskCtrl);
    auto axisShown = [&] { return b.pics.picfractal.point(b.wb.Window.xmin + 0.01, 0) == Black; };
    ZoomOut(b.wb, b.pics, b.host, 25, true);
    EXPECT_TRUE(axisShown());
    ShiftDrawWin(b.wb, b.pics, b.host, KeyLeft);
    EXPECT_TRUE(axisShown());
    mnuClear_Click(b.wb, b.pics);
    EXPECT_TRUE(axisShown());
    ResizeFractalWin(b.wb, b.pics, 80);
    EXPECT_TRUE(axisShown());
    mnuDrawType_Click(b.wb, b.pics, b.host, 1);
    EXPECT_TRUE(axisShown());
    Iterate(b.wb, b.pics, b.host, -1);
    EXPECT_TRUE(axisShown());
}

TEST(OverlayCommands, AClickThatDropsASelectionKeepsTheOverlays) {
    Bench b;
    b.key('A', ShiftMaskCtrl);
    FractalMouseDown(b.wb, b.pics, 0.1, 0.1, 0);
    FractalMouseMove(b.wb, b.pics, 0.6, 0.6);
    FractalMouseUp(b.wb, b.pics, 0.6, 0.6);
    EXPECT_TRUE(b.pics.Selection.SelectionActive);
    FractalMouseDown(b.wb, b.pics, 0.3, 0.3, 0);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.pics.picfractal.point(0.9, 0), Black);
}

}  // namespace
}  // namespace quillane::testing
