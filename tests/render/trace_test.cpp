#include "render/trace.h"

#include <gtest/gtest.h>

#include "core/sample_systems.h"
#include "render/play_game.h"
#include "tests/render/trace_bench.h"

namespace quillane::testing {
namespace {

TEST(Trace, TheStartDotIsBlackInThreePicturesAndNotInPicImage2) {
    OverlayBench b(SierpinskiTriangleIFS());
    float x = 0.3f, y = 0.4f;
    SetTracePoint(b.wb, b.pics, x, y);
    EXPECT_TRUE(b.wb.TracePointSet);
    EXPECT_EQ(b.wb.TraceCurX, 0.3f);
    EXPECT_EQ(b.wb.TraceY, 0.4f);
    for (const RasterSurface* s :
         {&b.pics.picfractal, &b.pics.picMask, &b.pics.picImage, &b.pics.picMaskShift})
        EXPECT_EQ(s->point(0.3, 0.4), Black);
    EXPECT_EQ(b.pics.picImage2.point(0.3, 0.4), White);
}

TEST(Trace, AStepByNumberAppliesThatMapAndPaintsItsColour) {
    OverlayBench b(SierpinskiTriangleIFS());
    float x = 0, y = 0;
    SetTracePoint(b.wb, b.pics, x, y);
    TraceStep(b.wb, b.pics, 2);  // (x/2 + 0.5, y/2)
    EXPECT_FLOAT_EQ(b.wb.TraceCurX, 0.5f);
    EXPECT_FLOAT_EQ(b.wb.TraceCurY, 0);
    EXPECT_EQ(b.pics.picfractal.point(0.5, 0), b.wb.FunctionColor[1]);
    b.wb.Menu.setChecked("mnuColorTrace", false);
    TraceStep(b.wb, b.pics, 3);
    EXPECT_EQ(b.pics.picfractal.point(b.wb.TraceCurX, b.wb.TraceCurY), Black);
}

TEST(Trace, NothingHappensWhileTheFirstProbabilityBoxIsEmpty) {
    OverlayBench b(SierpinskiTriangleIFS());
    float x = 0, y = 0;
    SetTracePoint(b.wb, b.pics, x, y);
    b.wb.Table.text(7, 0).clear();
    TraceStep(b.wb, b.pics, 2);
    EXPECT_EQ(b.wb.TraceCurX, 0);
}

TEST(Trace, ARandomStepUsesTheUnroundedRAndNoForcedLastEntry) {
    const float p[] = {0.3333f, 0.3333f, 0.3333f};
    EXPECT_EQ(TraceRandomMap(p, 3, 0.2), 0);
    EXPECT_EQ(TraceRandomMap(p, 3, 0.5), 1);
    EXPECT_EQ(TraceRandomMap(p, 3, 0.9), 2);
    // The sum is 0.9999: an r above it takes no map, where the drawing's last entry of 1.0 would.
    EXPECT_EQ(TraceRandomMap(p, 3, 0.99995), -1);
    // Unrounded: 0.33331 is past the first entry although it rounds to 0.3333.
    EXPECT_EQ(TraceRandomMap(p, 3, 0.33331), 1);
}

TEST(Trace, ThousandStepsThenTheDrawingComesBackUntouchedFromPicImage2) {
    OverlayBench b(SierpinskiTriangleIFS());
    b.wb.Rng.unpin();
    PlayGame(b.wb, b.pics, b.host, 1, -3000);
    const RasterSurface drawing = b.pics.picfractal;
    b.wb.TraceEnabled = true;
    float x = 0.2f, y = 0.7f;
    SetTracePoint(b.wb, b.pics, x, y);
    for (int k = 0; k < 1000; ++k) TraceStep(b.wb, b.pics, -1);
    EXPECT_GT(b.differingPixels(drawing, b.pics.picfractal), 50);
    EXPECT_EQ(b.differingPixels(drawing, b.pics.picImage2), 0);
    b.pics.picfractal.takeImage(b.pics.picImage2);
    EXPECT_EQ(b.differingPixels(drawing, b.pics.picfractal), 0);
}

TEST(Trace, ARestartSetsThePointAgainSoTheDotSurvivesAndTheWalkStartsOver) {
    OverlayBench b(SierpinskiTriangleIFS());
    b.wb.TraceEnabled = true;
    float x = 0.25f, y = 0.75f;
    SetTracePoint(b.wb, b.pics, x, y);
    TraceStep(b.wb, b.pics, 1);
    PlayGame(b.wb, b.pics, b.host, 1, -200);
    EXPECT_EQ(b.wb.TraceCurX, 0.25f);
    EXPECT_EQ(b.wb.TraceCurY, 0.75f);
    EXPECT_EQ(b.pics.picfractal.point(0.25, 0.75), Black);
}

TEST(Trace, StolenColoursAdvanceTheColouringOrbitAndDotPicTrace) {
    OverlayBench b(SierpinskiTriangleIFS());
    b.wb.Menu.setChecked(MenuTable::key("mnuColors", 0), false);
    b.wb.Menu.setChecked(MenuTable::key("mnuColors", 2), true);
    ColorStealingState& cs = b.pics.Stealing;
    cs.ColoringIFS = SierpinskiTriangleIFS();
    cs.picImage = RasterSurface(50, 50, RGB(0, 0, 200));
    cs.picImage.setScale(-0.5, 1.5, 1.5, -0.5);
    cs.picTrace = RasterSurface(50, 50, White);
    cs.picTrace.setScale(-0.5, 1.5, 1.5, -0.5);
    cs.chkTrace = true;
    cs.picTraceColor = RGB(0, 200, 0);
    float x = 0, y = 0;
    SetTracePoint(b.wb, b.pics, x, y);
    TraceStep(b.wb, b.pics, 2);
    EXPECT_FLOAT_EQ(b.wb.TraceColorX, 0.5f);
    EXPECT_EQ(b.pics.picfractal.point(b.wb.TraceCurX, b.wb.TraceCurY), RGB(0, 0, 200));
    EXPECT_EQ(cs.picTrace.point(0.5, 0), RGB(0, 200, 0));
    // An orbit point off the picture gives the fractal window's colour.
    cs.ColoringIFS.e[0] = 5;
    TraceStep(b.wb, b.pics, 1);
    EXPECT_EQ(b.pics.picfractal.point(b.wb.TraceCurX, b.wb.TraceCurY), b.pics.picfractal.backColor());
}

TEST(Trace, AHugeOrbitLeavesNoDotAndDoesNotFail) {
    IFSEntry ifs = SierpinskiTriangleIFS();
    ifs.a[0] = ifs.d[0] = 1e30f;
    OverlayBench b(ifs);
    float x = 1, y = 1;
    SetTracePoint(b.wb, b.pics, x, y);
    for (int k = 0; k < 10; ++k) TraceStep(b.wb, b.pics, 1);
    EXPECT_FALSE(std::isfinite(b.wb.TraceCurX) && std::fabs(b.wb.TraceCurX) < 1e6f);
}

}  // namespace
}  // namespace quillane::testing
