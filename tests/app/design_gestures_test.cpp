#include "app/design_gestures.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "core/scripted_host.h"
#include "design/design_drawing.h"
#include "app/design_keys.h"
#include "app/undo.h"
#include "design_fixture.h"
#include "app/fractal_view.h"

namespace quillane {
namespace {

using testing::DesignTest;

// 240 pixels over 1.2 world units: one pixel is 0.005.
class Gestures : public DesignTest {
  protected:
    void SetUp() override {
        DesignTest::SetUp();
        wb.InitialPolygon = BuiltInPolygon(7);    // unit square
        setMap(0, 0.5f, 0, 0, 0.5f, 0, 0);        // [0, 0.5] x [0, 0.5]
        setMap(1, 0.5f, 0, 0, 0.5f, 0.5f, 0.5f);  // [0.5, 1] x [0.5, 1]
        WriteTableRows(wb);
        DrawDesign(wb, d, false);
    }
    DesignCursor press(float x, float y, int shift = 0) { return DesignMouseDown(wb, d, g, x, y, shift); }
    DesignCursor drag(float x, float y) { return DesignMouseMove(wb, d, g, x, y, 0, true); }
    DesignCursor hover(float x, float y, int shift = 0) {
        return DesignMouseMove(wb, d, g, x, y, shift, false);
    }
    DesignCursor release() { return DesignMouseUp(wb, d, g); }
    void click(float x, float y) {
        press(x, y);
        release();
    }
    const std::string& caption() const { return wb.menu("mnuUndo").caption; }
    bool undoEnabled() const { return wb.menu("mnuUndo").enabled; }
    IFSFunction map(int i) const { return wb.CurrentIFS.function(i); }

    DesignGesture g;
};

TEST_F(Gestures, PressOnTheBoundarySelectsAndDragMovesLiveThenReleaseCommitsOneMove) {
    EXPECT_EQ(press(0.25f, 0), DesignCursor::Move);
    EXPECT_TRUE(wb.MapSelected);
    EXPECT_EQ(wb.SelectedMap, 0);
    drag(0.35f, 0.1f);
    EXPECT_FLOAT_EQ(map(0).e, 0.1f);
    EXPECT_FLOAT_EQ(map(0).f, 0.1f);
    EXPECT_EQ(d.picCoord, "dx:0.100; dy:0.100");
    EXPECT_EQ(wb.Table.text(5, 0), "0.100");
    EXPECT_EQ(caption(), "&Undo Move");
    EXPECT_FALSE(undoEnabled());
    EXPECT_EQ(release(), DesignCursor::Normal);
    EXPECT_TRUE(undoEnabled());
    EXPECT_EQ(wb.ChangeCount, 1);
    EXPECT_FALSE(wb.GestureSaved);
}

TEST_F(Gestures, APressThatMovesLessThanTheDragThresholdChangesAndCommitsNothing) {
    press(0.25f, 0);
    drag(0.26f, 0.005f);  // about 2.2 pixels
    EXPECT_FLOAT_EQ(map(0).e, 0);
    EXPECT_FLOAT_EQ(map(0).f, 0);
    release();
    EXPECT_FALSE(undoEnabled());
    EXPECT_EQ(wb.ChangeCount, 0);
}

TEST_F(Gestures, ADragOnceBegunIsNotStoppedByComingBack) {
    press(0.25f, 0);
    drag(0.35f, 0);
    drag(0.255f, 0);
    EXPECT_NEAR(map(0).e, 0.005f, 1e-6);
}

TEST_F(Gestures, CtrlPressOnACornerAndReleaseWithoutMovingCommitsTheUnchangedMap) {
    click(0.25f, 0);
    const IFSFunction before = map(0);
    EXPECT_EQ(press(0.5f, 0.5f, ShiftMaskCtrl), DesignCursor::Rotate);
    EXPECT_TRUE(g.Rotating);
    release();
    EXPECT_EQ(map(0), before);
    EXPECT_EQ(caption(), "&Undo Rotation");
    EXPECT_TRUE(undoEnabled());
    EXPECT_EQ(wb.ChangeCount, 1);
}

TEST_F(Gestures, DragACornerPastTheOppositeCornerMirrorsTheMap) {
    click(0.25f, 0);
    EXPECT_EQ(press(0.5f, 0.5f), DesignCursor::SizeNESW);
    drag(-0.5f, 0.5f);
    EXPECT_FLOAT_EQ(map(0).a, -0.5f);
    EXPECT_FLOAT_EQ(map(0).d, 0.5f);
    EXPECT_EQ(d.picCoord, "sx:-1.000; sy:1.000");
    release();
    EXPECT_EQ(caption(), "&Undo Resize");
}

TEST_F(Gestures, ShiftDragOfACornerOfAHorizontalLineKeepsSyAtZeroAndUsesSx) {
    wb.InitialPolygon = BuiltInPolygon(4);  // horizontal unit line: ymin = ymax
    DrawDesign(wb, d, false);
    click(0.25f, 0);
    ASSERT_TRUE(wb.MapSelected);
    press(0.5f, 0, ShiftMaskShift);  // handle 3, (xmax, ymin)
    EXPECT_TRUE(g.EqualResize);
    drag(0.25f, 0.3f);
    EXPECT_EQ(d.picCoord, "sx:0.500; sy:0.500");
    EXPECT_FLOAT_EQ(map(0).a, 0.25f);
    EXPECT_FLOAT_EQ(map(0).d, 0.25f);
}

TEST_F(Gestures, OverlappingFunctionsGiveTheLowerNumberUnlessTheOtherIsSelected) {
    setMap(1, 0.5f, 0, 0, 0.5f, 0.25f, 0);  // [0.25, 0.75] x [0, 0.5]
    DrawDesign(wb, d, false);
    click(0.35f, 0);
    EXPECT_EQ(wb.SelectedMap, 0);
    click(0.75f, 0.25f);  // right edge of function 2 only
    EXPECT_EQ(wb.SelectedMap, 1);
    click(0.35f, 0);
    EXPECT_EQ(wb.SelectedMap, 1);
}

TEST_F(Gestures, PressInEmptySpaceClearsTheSelectionAndTheNextCtrlPressHasNoHandle) {
    wb.LineThickness = 4;  // handles reach beyond the boundary's tolerance
    click(0.25f, 0);
    EXPECT_EQ(hover(-0.03f, 0.53f), DesignCursor::SizeNWSE);  // handle 2 while selected
    click(0.25f, 0.25f);
    EXPECT_FALSE(wb.MapSelected);
    EXPECT_FALSE(wb.menu("mnuDesignClear").enabled);
    press(-0.03f, 0.53f, ShiftMaskCtrl);
    EXPECT_FALSE(g.Rotating);
    EXPECT_FALSE(wb.MapSelected);
}

TEST_F(Gestures, SelectingAnotherFunctionTurnsUndoOffAndItsFirstGestureStartsANewStep) {
    press(0.25f, 0);
    drag(0.35f, 0);
    release();
    ASSERT_TRUE(undoEnabled());
    click(0.75f, 1.0f);
    EXPECT_EQ(wb.SelectedMap, 1);
    EXPECT_FALSE(undoEnabled());
    EXPECT_EQ(caption(), "&Undo");
    press(1.0f, 0.75f);  // handle 8 of function 2
    drag(1.25f, 0.75f);
    release();
    EXPECT_EQ(caption(), "&Undo Resize");
    EXPECT_FLOAT_EQ(wb.OriginalMap.e, 0.5f);
    EXPECT_FLOAT_EQ(map(1).a, 0.75f);
}

TEST_F(Gestures, MouseRotationMovesInTenthsOfADegreeWithUndoThenRedo) {
    click(0.25f, 0);
    const IFSFunction before = map(0);
    press(0.5f, 0.5f, ShiftMaskCtrl);  // centre (0.25, 0.25), start vector at 45 degrees
    const double turn = (45 + 30.12) * DegToRad;
    drag(static_cast<float>(0.25 + 0.3 * std::cos(turn)), static_cast<float>(0.25 + 0.3 * std::sin(turn)));
    EXPECT_EQ(d.picCoord, " 30.0\xC2\xB0 ");
    release();
    const IFSFunction after = map(0);
    EXPECT_NEAR(after.a, 0.5 * std::cos(30 * DegToRad), 1e-5);
    ScriptedHost host;
    FractalPictures pics;
    DesignHooks hooks;
    mnuUndo_Click(wb, host, pics, hooks);
    EXPECT_EQ(map(0), before);
    EXPECT_EQ(caption(), "&Redo Rotation");
    mnuUndo_Click(wb, host, pics, hooks);
    EXPECT_EQ(map(0), after);
    EXPECT_EQ(caption(), "&Undo Rotation");
}

TEST_F(Gestures, CtrlOnAMiddleHandleShearsInHalfDegreeSteps) {
    click(0.25f, 0);
    EXPECT_EQ(press(0.5f, 0.25f, ShiftMaskCtrl), DesignCursor::SizeVertical);  // handle 8
    EXPECT_TRUE(g.Shearing);
    drag(0.5f, static_cast<float>(0.25 + 0.25 * std::tan(10.1 * DegToRad)));
    EXPECT_EQ(d.picCoord, " 10.0\xC2\xB0 ");
    EXPECT_NEAR(map(0).c, 0.5 * std::tan(10 * DegToRad), 1e-6);
    release();
    EXPECT_EQ(caption(), "&Undo Shear");
    EXPECT_EQ(wb.ChangeCount, 1);
}

TEST_F(Gestures, ShiftArrowsMoveByOnePixelAndOneHeldShiftIsOneUndoStep) {
    click(0.25f, 0);
    for (int k = 0; k < 3; ++k) EXPECT_TRUE(GestureKeyDown(wb, d, g, KeyRight, ShiftMaskShift));
    EXPECT_NEAR(map(0).e, 0.015f, 1e-6);
    EXPECT_EQ(d.picCoord, "dx:0.015; dy:0.000");
    EXPECT_EQ(caption(), "&Undo Move");
    EXPECT_FALSE(undoEnabled());
    EXPECT_TRUE(GestureKeyUp(wb, d, g, KeyShift16, 0));
    EXPECT_TRUE(undoEnabled());
    EXPECT_EQ(wb.ChangeCount, 1);
    EXPECT_FLOAT_EQ(wb.OriginalMap.e, 0);
    EXPECT_FALSE(GestureKeyUp(wb, d, g, KeyShift16, 0));
    EXPECT_EQ(wb.ChangeCount, 1);
}

TEST_F(Gestures, CtrlUpDownRotateByHalfDegreesAndCtrlUpCommitsAndZeroesTheAngle) {
    click(0.25f, 0);
    GestureKeyDown(wb, d, g, KeyUp, ShiftMaskCtrl);
    GestureKeyDown(wb, d, g, KeyUp, ShiftMaskCtrl);
    EXPECT_EQ(d.picCoord, " 1.0\xC2\xB0 ");
    EXPECT_FALSE(GestureKeyDown(wb, d, g, KeyLeft, ShiftMaskCtrl));
    EXPECT_TRUE(GestureKeyUp(wb, d, g, KeyCtrl17, 0));
    EXPECT_EQ(caption(), "&Undo Rotation");
    EXPECT_EQ(g.KeyRotation, 0);
    EXPECT_EQ(wb.ChangeCount, 1);
}

TEST_F(Gestures, AltArrowsShearTheOriginalMapAndAltUpCommitsOnce) {
    click(0.25f, 0);
    GestureKeyDown(wb, d, g, KeyRight, ShiftMaskAlt);
    GestureKeyDown(wb, d, g, KeyRight, ShiftMaskAlt);
    EXPECT_EQ(d.picCoord, "-1.0\xC2\xB0 ");
    EXPECT_NEAR(map(0).b, 0.5 * std::tan(1 * DegToRad), 1e-6);
    GestureKeyUp(wb, d, g, KeyAlt18, 0);
    EXPECT_EQ(caption(), "&Undo Shear");
    EXPECT_EQ(g.KeyShearH, 0);
    EXPECT_EQ(wb.ChangeCount, 1);
}

TEST_F(Gestures, CtrlExchangesTheCursorsOfTheHandleUnderTheRestingMouse) {
    click(0.25f, 0);
    EXPECT_EQ(hover(0.25f, 0), DesignCursor::SizeVertical);  // handle 5
    EXPECT_EQ(CtrlCursor(wb, d, g, true), DesignCursor::SizeHorizontal);
    EXPECT_EQ(CtrlCursor(wb, d, g, false), DesignCursor::SizeVertical);
    EXPECT_EQ(hover(0, 0), DesignCursor::SizeNESW);
    EXPECT_EQ(CtrlCursor(wb, d, g, true), DesignCursor::Rotate);
    EXPECT_EQ(CtrlCursor(wb, d, g, false), DesignCursor::SizeNESW);
    EXPECT_EQ(hover(0.1f, 0), DesignCursor::Move);
    EXPECT_EQ(hover(0.25f, 0.25f), DesignCursor::Normal);
}

TEST_F(Gestures, MouseMoveWithoutAGestureShowsThePosition) {
    hover(0.25f, 0.5f);
    EXPECT_EQ(d.picCoord, "(0.250,0.500)");
}

}  // namespace
}  // namespace quillane
