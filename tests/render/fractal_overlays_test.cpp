#include "render/fractal_overlays.h"

#include <gtest/gtest.h>

#include "core/sample_systems.h"
#include "render/play_game.h"
#include "render/trace.h"
#include "tests/render/trace_bench.h"

namespace quillane::testing {
namespace {

// Columns of picfractal that hold at least one pixel of colour c.
int columnsWith(const RasterSurface& s, Color c) {
    int n = 0;
    for (int col = 0; col < s.width(); ++col) {
        bool any = false;
        for (int r = 0; r < s.height(); ++r) any = any || s.pixel(col, r) == c;
        n += any;
    }
    return n;
}

// Red pixels of picfractal that lie on neither axis: only ticks away from the origin make those.
int offAxisPixels(float half) {
    OverlayBench b(SierpinskiTriangleIFS(), {-half, half, -half, half}, 101);
    b.wb.Menu.setChecked("mnuAxes", true);
    b.wb.FractalAxisColor = RGB(255, 0, 0);
    FractalGridAxesFP(b.wb, b.pics);
    const RasterSurface& p = b.pics.picfractal;
    int64_t axisRow = 0, axisCol = 0;
    EXPECT_TRUE(p.toPixel(0, 0, axisCol, axisRow));
    EXPECT_EQ(columnsWith(p, RGB(255, 0, 0)), p.width());  // the x axis crosses the picture
    int n = 0;
    for (int r = 0; r < p.height(); ++r)
        for (int c = 0; c < p.width(); ++c)
            n += p.pixel(c, r) == RGB(255, 0, 0) && r != axisRow && c != axisCol;
    return n;
}

TEST(FractalOverlays, AWindowFromMinusPointFourToPointFourShowsOnlyTheOriginsTicks) {
    EXPECT_EQ(offAxisPixels(0.4f), 0);
    // The same window grown past 1 shows the ticks of -1 and 1 beside the axes.
    EXPECT_GT(offAxisPixels(1.4f), 8);
}

TEST(FractalOverlays, UnitTicksStandAtEveryWholeNumberAndAreATenthOfAnInchLong) {
    OverlayBench b(SierpinskiTriangleIFS(), {-3.0f, 3.0f, -3.0f, 3.0f}, 192);
    b.wb.Menu.setChecked("mnuAxes", true);
    FractalGridAxesFP(b.wb, b.pics);
    const RasterSurface& p = b.pics.picfractal;
    // A tick at x = 2 crosses the x axis: black a few pixels above the axis at x = 2, white at x = 2.5.
    const double above = p.pixelsToWorldY(3);
    EXPECT_EQ(p.point(2, above), Black);
    EXPECT_EQ(p.point(-2, above), Black);
    EXPECT_EQ(p.point(2.5, above), White);
    // 9.6 pixels long: nothing 8 pixels above the axis.
    EXPECT_EQ(p.point(2, p.pixelsToWorldY(8)), White);
}

TEST(FractalOverlays, AMapWithDetZeroHasNoDotAndDoesNotStopTheOthers) {
    IFSEntry ifs = SierpinskiTriangleIFS();
    // Map 1 becomes a + d - ad + bc = 1 ... det = a d + (1 - d - a) - b c = 0 with a = d = 1, b = c = 0.
    ifs.a[0] = 1, ifs.d[0] = 1, ifs.b[0] = 0, ifs.c[0] = 0, ifs.e[0] = 0.2f, ifs.f[0] = 0.2f;
    OverlayBench b(ifs);
    b.wb.Menu.setChecked("mnuFixedPoints", true);
    b.wb.Menu.setChecked("mnuColorFP", false);
    float x = 0, y = 0;
    EXPECT_FALSE(MapFixedPoint(ifs.a[0], ifs.b[0], ifs.c[0], ifs.d[0], ifs.e[0], ifs.f[0], x, y));
    FractalGridAxesFP(b.wb, b.pics);
    const RasterSurface& p = b.pics.picfractal;
    // The other two maps keep their fixed points (1, 0) and (0.5, 1) as dots of radius 4.
    for (int i = 1; i < 3; ++i) {
        ASSERT_TRUE(MapFixedPoint(ifs.a[i], ifs.b[i], ifs.c[i], ifs.d[i], ifs.e[i], ifs.f[i], x, y));
        EXPECT_EQ(p.point(x, y), Black) << i;
    }
    const int dots = b.pixelsOf(p, Black);
    EXPECT_GT(dots, 2 * 30);
    EXPECT_LT(dots, 2 * 81 + 1);
}

TEST(FractalOverlays, FixedPointsTakeTheMapColoursWithColorDots) {
    OverlayBench b(SierpinskiTriangleIFS());
    b.wb.Menu.setChecked("mnuFixedPoints", true);
    FractalGridAxesFP(b.wb, b.pics);
    EXPECT_EQ(b.pics.picfractal.point(0, 0), b.wb.FunctionColor[0]);
    EXPECT_EQ(b.pics.picfractal.point(1, 0), b.wb.FunctionColor[1]);
}

TEST(FractalOverlays, TheGridIsDottedLightGreyAtItsSpacingAndNeverInPicImage2) {
    OverlayBench b(SierpinskiTriangleIFS(), {-0.05f, 1.05f, -0.05f, 1.05f}, 111);
    b.wb.Menu.setChecked("mnudrawFractalGrid", true);
    b.wb.GridSpacingX = b.wb.GridSpacingY = 0.25f;
    FractalGridAxesFP(b.wb, b.pics);
    const RasterSurface& p = b.pics.picfractal;
    EXPECT_GT(b.pixelsOf(p, FractalGridColor), 0);
    EXPECT_EQ(b.pixelsOf(b.pics.picImage2, FractalGridColor), 0);
    // Five lines each way (0, 0.25 ... 1), dotted: about half of each line's pixels.
    int64_t col = 0, row = 0;
    ASSERT_TRUE(p.toPixel(0.5, 0.5, col, row));
    int onLine = 0;
    for (int r = 0; r < p.height(); ++r) onLine += p.pixel(static_cast<int>(col), r) == FractalGridColor;
    EXPECT_GT(onLine, p.height() / 4);
    EXPECT_LT(onLine, p.height());
    EXPECT_EQ(p.drawStyle(), DrawStyle::Solid);
}

TEST(FractalOverlays, AGridFinerThanThePixelsIsLeftOutRatherThanDrawnForever) {
    OverlayBench b(SierpinskiTriangleIFS(), {-1e6f, 1e6f, -1e6f, 1e6f}, 50);
    b.wb.Menu.setChecked("mnudrawFractalGrid", true);
    b.wb.GridSpacingX = b.wb.GridSpacingY = 0.001f;
    b.wb.Menu.setChecked("mnuAxes", true);
    FractalGridAxesFP(b.wb, b.pics);
    EXPECT_EQ(b.pixelsOf(b.pics.picfractal, FractalGridColor), 0);
    EXPECT_GT(b.pixelsOf(b.pics.picfractal, Black), 0);  // the axes still come
}

TEST(FractalOverlays, TheSpacingRingStepsBothWaysAndOddValuesGoToATenth) {
    float x = 0.05f, y = 0.05f;
    StepGridSpacing(x, y, true);
    EXPECT_EQ(x, 0.1f);
    StepGridSpacing(x, y, true);
    EXPECT_EQ(x, 0.125f);
    StepGridSpacing(x, y, true);
    EXPECT_EQ(x, 0.25f);
    StepGridSpacing(x, y, true);
    EXPECT_EQ(x, 0.05f);
    StepGridSpacing(x, y, false);
    EXPECT_EQ(x, 0.25f);
    EXPECT_EQ(y, 0.25f);
    x = y = 0.3f;
    StepGridSpacing(x, y, false);
    EXPECT_EQ(x, 0.1f);
    x = 0.2f, y = 0.5f;
    StepGridSpacing(x, y, true);
    EXPECT_EQ(x, 0.5f);
    EXPECT_EQ(y, 0.5f);
    x = 0.2f, y = 0.5f;
    StepGridSpacing(x, y, false);
    EXPECT_EQ(x, 0.2f);
    EXPECT_EQ(y, 0.2f);
}

TEST(FractalOverlays, RemovingOverlaysLeavesTheTraceDots) {
    OverlayBench b(SierpinskiTriangleIFS());
    b.wb.TraceEnabled = true;
    float x = 0.5f, y = 0.5f;
    SetTracePoint(b.wb, b.pics, x, y);
    for (int k = 1; k <= 3; ++k) TraceStep(b.wb, b.pics, k);
    const RasterSurface withDots = b.pics.picfractal;
    b.wb.Menu.setChecked("mnuAxes", true);
    DrawAxesFPs(b.wb, b.pics);
    EXPECT_GT(b.differingPixels(withDots, b.pics.picfractal), 0);
    b.wb.Menu.setChecked("mnuAxes", false);
    RedrawOverlays(b.wb, b.pics);
    EXPECT_EQ(b.differingPixels(withDots, b.pics.picfractal), 0);
}

TEST(FractalOverlays, ARestartOfTheDrawingDrawsTheOverlaysAgain) {
    OverlayBench b(SierpinskiTriangleIFS());
    b.wb.Menu.setChecked("mnuAxes", true);
    b.wb.Menu.setChecked("mnuFixedPoints", true);
    b.wb.Menu.setChecked("mnuColorFP", false);
    PlayGame(b.wb, b.pics, b.host, 1, -500);
    EXPECT_EQ(b.pics.picfractal.point(0.5, 0), Black);  // the x axis
    EXPECT_EQ(b.pics.picfractal.point(0.5, 1), Black);  // the top map's fixed point
    EXPECT_NE(b.pics.picImage2.point(0.5, 1), Black);   // never in the shadow picture
}

}  // namespace
}  // namespace quillane::testing
