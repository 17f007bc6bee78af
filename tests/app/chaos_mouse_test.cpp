#include "app/chaos_mouse.h"

#include "core/chaos_game.h"
#include "app/undo.h"
#include "render/fractal_pictures.h"
#include "app/fractal_view.h"
#include "tests/app/chaos_fixture.h"

namespace quillane::testing {
namespace {

class ChaosMouse : public ChaosTest {
  protected:
    void SetUp() override {
        ChaosTest::SetUp();
        RedrawCGDesign(wb, d);
    }
    void press(float x, float y, int shift = 0, int button = CGButtonLeft) {
        picCGDesign_MouseDown(wb, host, d, button, shift, x, y);
    }
    void move(float x, float y, int shift = 0, int button = CGButtonLeft) {
        picCGDesign_MouseMove(wb, d, button, shift, x, y);
    }
    bool release(float x, float y, int shift = 0, int button = CGButtonLeft) {
        return picCGDesign_MouseUp(wb, d, button, shift, x, y);
    }
    UndoKind undo() {
        FractalPictures pics;
        return mnuUndo_Click(wb, host, pics, DesignHooks{}).kind;
    }
};

TEST_F(ChaosMouse, TwoFixedPointsOfOneColourCannotBeToldApartByColourSoTheDistanceDecides) {
    setPoint(1, 0.8f, 0.3f, "S");
    setPoint(2, 0.2f, 0.3f, "S");
    wb.FunctionColor[2] = wb.FunctionColor[1];
    RedrawCGDesign(wb, d);
    press(0.2f, 0.3f);
    EXPECT_EQ(wb.SelectedMap, 2);
    EXPECT_TRUE(wb.CGMapSelected);
    EXPECT_TRUE(wb.CGDragging);
    release(0.2f, 0.3f);
    press(0.8f, 0.3f);
    EXPECT_EQ(wb.SelectedMap, 1);
}

TEST_F(ChaosMouse, NearAFixedPointButOffItsColourDoesNotPick) {
    setPoint(1, 0.8f, 0.3f, "");
    RedrawCGDesign(wb, d);
    press(0.8f + 0.03f, 0.3f);  // 6 pixels away: inside the distance, outside the box
    EXPECT_FALSE(wb.CGMapSelected);
    EXPECT_FALSE(wb.CGDragging);
}

TEST_F(ChaosMouse, CtrlClickMakesANewFixedPoint) {
    press(0.43f, 0.57f, ShiftMaskCtrl);
    ASSERT_EQ(wb.CurrentIFS.nMaps, 2);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[1], 0.43f);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo New Transformation");
    EXPECT_EQ(wb.ChangeCount, 1);
    EXPECT_TRUE(wb.IFSModified);
    EXPECT_EQ(cg(0.43, 0.57), colour(1));
    release(0.43f, 0.57f, ShiftMaskCtrl);
    EXPECT_EQ(wb.ChangeCount, 1);
    undo();
    EXPECT_EQ(wb.CurrentIFS.nMaps, 1);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Redo New Transformation");
}

TEST_F(ChaosMouse, ShiftClickSnapsToTheGridWhenItShows) {
    wb.Menu.setChecked("mnuDesignGrid", true);
    wb.GridX = 0.1f;
    wb.GridY = 0.25f;  // the new point snaps with GridX in both directions
    press(0.43f, 0.57f, ShiftMaskShift);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[1], 0.4f);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPy[1], 0.6f);
}

TEST_F(ChaosMouse, ShiftClickWithoutGridStaysWhereItIs) {
    press(0.43f, 0.57f, ShiftMaskShift);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[1], 0.43f);
}

TEST_F(ChaosMouse, DraggingAFixedPointMovesItAndIsOneUndoStep) {
    press(0, 0);
    ASSERT_TRUE(wb.CGDragging);
    move(0.01f, 0);  // 2 pixels: not yet
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[0], 0);
    move(0.1f, 0.2f);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[0], 0.1f);
    EXPECT_EQ(wb.Table.text(8, 0), "0.100");
    EXPECT_EQ(wb.Table.text(9, 0), "0.200");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.e[0], 0.05f);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo Move");
    release(0.1f, 0.2f);
    EXPECT_TRUE(wb.menu("mnuUndo").enabled);
    EXPECT_EQ(wb.ChangeCount, 1);
    undo();
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[0], 0);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.e[0], 0);
    EXPECT_EQ(wb.ChangeCount, 0);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Redo Move");
    undo();
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPy[0], 0.2f);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo Move");
}

TEST_F(ChaosMouse, ShiftReleaseSnapsTheDraggedPoint) {
    wb.Menu.setChecked("mnuDesignGrid", true);
    wb.GridX = wb.GridY = 0.25f;
    RedrawCGDesign(wb, d);
    press(0, 0);
    move(0.3f, 0.3f);
    release(0.3f, 0.3f, ShiftMaskShift);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[0], 0.25f);
    EXPECT_EQ(wb.Table.text(8, 0), "0.250");
    EXPECT_FLOAT_EQ(wb.ResultFP.y, 0.25f);
}

TEST_F(ChaosMouse, DraggingTheReferencePointIsUndoneWithoutCounting) {
    press(0.505f, 0.5f);
    EXPECT_TRUE(wb.MoveRefPending);
    move(0.7f, 0.6f);
    EXPECT_FLOAT_EQ(wb.ReferencePoint.x, 0.7f);
    EXPECT_EQ(cg(0.7, 0.6), Black);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo Move Reference Point");
    release(0.7f, 0.6f);
    EXPECT_FALSE(wb.MoveRefPending);
    EXPECT_EQ(wb.NewReferencePoint, (Workbench::RefPoint{0.7f, 0.6f, True16}));
    EXPECT_EQ(wb.ChangeCount, 0);
    undo();
    EXPECT_EQ(wb.ReferencePoint, (Workbench::RefPoint{0.5f, 0.5f, True16}));
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Redo Move Reference Point");
    EXPECT_EQ(wb.ChangeCount, 0);
    undo();
    EXPECT_FLOAT_EQ(wb.ReferencePoint.y, 0.6f);
}

TEST_F(ChaosMouse, CtrlRightClickPutsTheReferencePointThere) {
    press(0.9f, 0.9f, ShiftMaskCtrl, CGButtonRight);
    EXPECT_FALSE(release(0.9f, 0.9f, ShiftMaskCtrl, CGButtonRight));
    EXPECT_FLOAT_EQ(wb.ReferencePoint.x, 0.9f);
    EXPECT_EQ(cg(0.9, 0.9), Black);
    EXPECT_FALSE(wb.CGMapSelected);
}

TEST_F(ChaosMouse, RightClickAloneAsksForThePopup) {
    EXPECT_TRUE(release(0.9f, 0.9f, 0, CGButtonRight));
    EXPECT_FLOAT_EQ(wb.ReferencePoint.x, 0.5f);
}

TEST_F(ChaosMouse, ClickOnNothingDeselects) {
    press(0, 0);
    release(0, 0);
    press(0.9f, 0.1f);
    EXPECT_FALSE(wb.CGMapSelected);
    EXPECT_EQ(d.picTrans, "");
    EXPECT_FALSE(wb.menu("mnuDesignFlipHor").enabled);
}

TEST_F(ChaosMouse, MovePrintsTheCoordinates) {
    move(0.25f, -0.05f, 0, 0);
    EXPECT_EQ(d.picCoord, "(0.250,-0.050)");
}

TEST_F(ChaosMouse, ArrowsMoveOnePixelAndMakeOneUndoStep) {
    DrawSelectedCGFixedPoint(wb, d, 0);
    for (int k = 0; k < 3; ++k) EXPECT_TRUE(picCGDesign_KeyDown(wb, d, KeyRight, 0));
    EXPECT_TRUE(picCGDesign_KeyDown(wb, d, KeyUp, 0));
    picCGDesign_KeyUp(wb, d, KeyUp, 0);
    EXPECT_NEAR(wb.CurrentIFS.FPx[0], 0.015f, 1e-6);
    EXPECT_NEAR(wb.CurrentIFS.FPy[0], 0.005f, 1e-6);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo Move");
    EXPECT_EQ(wb.ChangeCount, 1);
    undo();
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[0], 0);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPy[0], 0);
}

TEST_F(ChaosMouse, DigitsSelectAFixedPoint) {
    for (int i = 1; i < 12; ++i) setPoint(i, 0.05f * i, 0.9f, "S");
    EXPECT_TRUE(picCGDesign_KeyDown(wb, d, '3', 0));
    EXPECT_EQ(wb.SelectedMap, 2);
    EXPECT_EQ(d.picTrans, "Tran.#3");
    EXPECT_TRUE(picCGDesign_KeyDown(wb, d, '1', ShiftMaskShift));
    EXPECT_TRUE(picCGDesign_KeyDown(wb, d, '2', ShiftMaskShift));
    EXPECT_EQ(wb.SelectedMap, 11);
}

TEST_F(ChaosMouse, KeysNeedTheFixedPointForm) {
    wb.Menu.setChecked("mnuCodeFP", false);
    EXPECT_FALSE(picCGDesign_KeyDown(wb, d, '1', 0));
}

TEST_F(ChaosMouse, HelpCardHasItsLines) {
    EXPECT_STREQ(CGHelpCard[0].first, "Left mouse click on FP");
    EXPECT_STREQ(CGHelpCard[0].second, "  select that fixed point");
    EXPECT_STREQ(CGHelpCard[3].first, "Ctrl-Right mouse click");
    EXPECT_STREQ(CGHelpCard[3].second, "  change reference point");
    EXPECT_STREQ(CGHelpCard[5].first, "shift-10,shift-11,...");
}

}  // namespace
}  // namespace quillane::testing
