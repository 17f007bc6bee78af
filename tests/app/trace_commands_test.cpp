#include "app/trace_commands.h"

#include <gtest/gtest.h>

#include "app/deterministic_commands.h"
#include "app/fractal_view.h"
#include "app/overlay_commands.h"
#include "core/function_table.h"
#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "render/fractal_overlays.h"
#include "render/play_game.h"
#include "tests/render/trace_bench.h"

namespace quillane::testing {
namespace {

// Twelve maps, each a shrink by half toward its own corner of a row of points, so every map sends the
// origin to a point of its own: map k to (k / 24, 0).
IFSEntry twelveMaps() {
    IFSEntry ifs = SierpinskiTriangleIFS();
    ifs.nMaps = 12;
    for (int i = 0; i < 12; ++i) {
        ifs.a[i] = ifs.d[i] = 0.5f;
        ifs.b[i] = ifs.c[i] = 0;
        ifs.e[i] = static_cast<float>(i + 1) / 24;
        ifs.f[i] = 0;
        ifs.p[i] = i < 11 ? 0.083f : 0.087f;
    }
    return ifs;
}

struct TraceBench : OverlayBench {
    explicit TraceBench(const IFSEntry& ifs = SierpinskiTriangleIFS()) : OverlayBench(ifs) {}
    // A key down and up, as the window gives it.
    bool key(int code, int mask = 0) {
        const bool handled = FractalKeyDown(wb, pics, host, code, mask);
        FractalKeyUp(wb, pics);
        return handled;
    }
    void traceFromOrigin() {
        mnuTrace_Click(wb, pics);
        SetTracePointAt(wb, pics, 0, 0);
    }
};

TEST(TraceCommands, TheMenuTogglesBothCaptionsAndTheDisplay) {
    TraceBench b;
    ResetTraceMenu(b.wb, b.pics);
    EXPECT_EQ(b.wb.menu("mnuTrace").caption, "&Turn Trace On");
    EXPECT_EQ(b.pics.Det.picTrace, " Trace Off");
    EXPECT_FALSE(b.wb.menu("mnuDrawTraceSetPoint").enabled);
    mnuTrace_Click(b.wb, b.pics);
    EXPECT_TRUE(b.wb.TraceEnabled);
    EXPECT_EQ(b.wb.menu("mnuTrace").caption, "&Turn Trace Off");
    EXPECT_EQ(b.pics.Det.picTrace, " Trace On");
    EXPECT_TRUE(b.wb.menu("mnuDrawTraceSetPoint").enabled);
    mnuTrace_Click(b.wb, b.pics);
    EXPECT_FALSE(b.wb.TraceEnabled);
    EXPECT_EQ(b.wb.menu("mnuTrace").caption, "&Turn Trace On");
    EXPECT_EQ(b.pics.Det.picTrace, " Trace Off");
}

TEST(TraceCommands, TheDisplayStaysEmptyWhenTheTextDoesNotFit) {
    TraceBench b;
    b.pics.picTraceFits = [](const std::string& t) { return t.size() <= 9; };
    mnuTrace_Click(b.wb, b.pics);
    EXPECT_EQ(b.pics.Det.picTrace, " Trace On");
    mnuTrace_Click(b.wb, b.pics);
    EXPECT_EQ(b.pics.Det.picTrace, "");  // " Trace Off" is 10 wide
}

TEST(TraceCommands, TraceDoesNotToggleWhileADrawingRuns) {
    TraceBench b;
    b.wb.DrawingActive = true;
    mnuTrace_Click(b.wb, b.pics);
    EXPECT_FALSE(b.wb.TraceEnabled);
}

TEST(TraceCommands, WithTwelveMapsALoneOneTakesMapOneButShiftOneTwoTakesMapTwelve) {
    TraceBench b(twelveMaps());
    b.traceFromOrigin();
    EXPECT_TRUE(b.key('1'));
    EXPECT_FLOAT_EQ(b.wb.TraceCurX, 1.0f / 24);
    SetTracePointAt(b.wb, b.pics, 0, 0);
    EXPECT_FALSE(b.key(0, ShiftMaskShift));  // the Shift key itself
    EXPECT_FALSE(b.key('1', ShiftMaskShift));
    EXPECT_EQ(b.wb.TraceCurX, 0);  // waiting for the second digit
    EXPECT_TRUE(b.key('2', ShiftMaskShift));
    EXPECT_FLOAT_EQ(b.wb.TraceCurX, 12.0f / 24);
    // A number beyond the maps takes nothing, and the pending digit is gone.
    SetTracePointAt(b.wb, b.pics, 0, 0);
    b.key('1', ShiftMaskShift);
    EXPECT_FALSE(b.key('5', ShiftMaskShift));
    EXPECT_FALSE(b.wb.TraceDigitPending);
    EXPECT_EQ(b.wb.TraceCurX, 0);
    // A non-digit with Shift clears a pending tens digit.
    b.key('1', ShiftMaskShift);
    b.key('Q' + 100, ShiftMaskShift);
    EXPECT_FALSE(b.wb.TraceDigitPending);
}

TEST(TraceCommands, DigitsBeyondTheMapsAndZeroDoNothing) {
    TraceBench b;
    b.traceFromOrigin();
    EXPECT_FALSE(b.key('4'));
    EXPECT_FALSE(b.key('0'));
    EXPECT_EQ(b.wb.TraceCurX, 0);
}

TEST(TraceCommands, TraceKeysWaitForAPointAndRestWhileDrawing) {
    TraceBench b;
    mnuTrace_Click(b.wb, b.pics);
    EXPECT_FALSE(b.key('2'));
    SetTracePointAt(b.wb, b.pics, 0, 0);
    b.wb.DrawingActive = true;
    EXPECT_FALSE(b.key('2'));
    EXPECT_FALSE(b.key(KeySpace));
    b.wb.DrawingActive = false;
    EXPECT_TRUE(b.key('2'));
    EXPECT_FLOAT_EQ(b.wb.TraceCurX, 0.5f);
}

TEST(TraceCommands, TheSpacebarTakesARandomStep) {
    TraceBench b;
    b.traceFromOrigin();
    EXPECT_TRUE(b.key(KeySpace));
    const float x = b.wb.TraceCurX, y = b.wb.TraceCurY;
    // One of the three images of the origin.
    EXPECT_TRUE((x == 0 && y == 0) || (x == 0.5f && y == 0) || (x == 0.25f && y == 0.5f)) << x << "," << y;
}

TEST(TraceCommands, CtrlRightClickSetsThePointOnlyWhileTraceIsOn) {
    TraceBench b;
    EXPECT_FALSE(TraceRightClick(b.wb, b.pics, 0.5, 0.5, ShiftMaskCtrl));
    EXPECT_FALSE(b.wb.TracePointSet);
    mnuTrace_Click(b.wb, b.pics);
    EXPECT_FALSE(TraceRightClick(b.wb, b.pics, 0.5, 0.5, 0));
    EXPECT_TRUE(TraceRightClick(b.wb, b.pics, 0.5, 0.5, ShiftMaskCtrl));
    EXPECT_TRUE(b.wb.TracePointSet);
    EXPECT_EQ(b.wb.TraceX, 0.5f);
    EXPECT_EQ(b.pics.picfractal.point(0.5, 0.5), Black);
}

TEST(TraceCommands, TheInitialPointIsEvaluatedAndABadExpressionIsRefused) {
    TraceBench b;
    const auto p = EvaluateTracePoint("1/4", "sqrt(4)/4", b.host);
    ASSERT_TRUE(p);
    EXPECT_FLOAT_EQ(p->first, 0.25f);
    EXPECT_FLOAT_EQ(p->second, 0.5f);
    EXPECT_FALSE(EvaluateTracePoint("1/", "0", b.host));
    EXPECT_EQ(b.host.shown(), (std::vector<ShownMessage>{{"Error", TracePointErrorText}}));
}

TEST(TraceCommands, CtrlAltPAsksForTheInitialPointOnlyWhileTraceIsOn) {
    TraceBench b;
    EXPECT_FALSE(b.key('P', ShiftMaskCtrl | ShiftMaskAlt));
    EXPECT_EQ(b.pics.KeyDialog, "");
    mnuTrace_Click(b.wb, b.pics);
    EXPECT_TRUE(b.key('P', ShiftMaskCtrl | ShiftMaskAlt));
    EXPECT_EQ(b.pics.KeyDialog, "frmTracePoint");
}

TEST(TraceCommands, DeterministicModeTurnsTraceOffAndDisablesItsMenu) {
    TraceBench b;
    b.traceFromOrigin();
    mnuDrawType_Click(b.wb, b.pics, b.host, 1);
    EXPECT_FALSE(b.wb.TraceEnabled);
    EXPECT_FALSE(b.wb.menu("mnuTracing").enabled);
    EXPECT_EQ(b.wb.menu("mnuTrace").caption, "&Turn Trace On");
    EXPECT_FALSE(b.key(KeySpace));
    mnuDrawType_Click(b.wb, b.pics, b.host, 0);
    EXPECT_TRUE(b.wb.menu("mnuTracing").enabled);
    EXPECT_EQ(b.pics.Det.picTrace, " Trace Off");
}

TEST(TraceCommands, TurningTraceOffLeavesTheDrawingAsItWas) {
    TraceBench b;
    b.wb.Rng.unpin();
    PlayGame(b.wb, b.pics, b.host, 1, -2000);
    const RasterSurface drawing = b.pics.picfractal;
    b.traceFromOrigin();
    for (int k = 0; k < 1000; ++k) b.key(KeySpace);
    EXPECT_GT(b.differingPixels(drawing, b.pics.picfractal), 20);
    mnuTrace_Click(b.wb, b.pics);
    EXPECT_EQ(b.differingPixels(drawing, b.pics.picfractal), 0);
}

TEST(TraceCommands, AHandledKeyIsMarkedUntilItsKeyUpAndEachStrokeActs) {
    TraceBench b;
    b.traceFromOrigin();
    EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, '2', 0));
    EXPECT_TRUE(b.wb.KeyHandled);
    // A held key repeats its key-down: each one is a step.
    EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, '2', 0));
    EXPECT_FLOAT_EQ(b.wb.TraceCurX, 0.75f);
    FractalKeyUp(b.wb, b.pics);
    EXPECT_FALSE(b.wb.KeyHandled);
    EXPECT_FALSE(FractalKeyDown(b.wb, b.pics, b.host, '7', 0));
    EXPECT_FALSE(b.wb.KeyHandled);
}

TEST(TraceCommands, CtrlShiftKeepsTheFirstColourUntilKeyUp) {
    TraceBench b;
    FractalKeyDown(b.wb, b.pics, b.host, 0, ShiftMaskCtrl | ShiftMaskShift);
    EXPECT_TRUE(b.pics.Det.KeepFirstColor);
    FractalKeyUp(b.wb, b.pics);
    EXPECT_FALSE(b.pics.Det.KeepFirstColor);
}

TEST(TraceCommands, TheDotSizeComesFromTheListAndTheDotFollowsIt) {
    TraceBench b;
    SetTraceDotSize(b.wb, 6);
    EXPECT_EQ(b.wb.TraceDotSize, 6);
    SetTraceDotSize(b.wb, 0);
    EXPECT_EQ(b.wb.TraceDotSize, 6);
    b.traceFromOrigin();
    const double five = b.pics.picfractal.pixelsToWorldX(5);
    EXPECT_EQ(b.pics.picfractal.point(five, 0), Black);
    EXPECT_EQ(b.pics.picfractal.point(b.pics.picfractal.pixelsToWorldX(9), 0), White);
}

}  // namespace
}  // namespace quillane::testing
