#include "app/design_keys.h"

#include <gtest/gtest.h>

#include "core/numbers.h"
#include "core/table_editing.h"
#include "app/polygon_commands.h"
#include "app/fractal_view.h"
#include "tests/app/design_fixture.h"

namespace quillane::testing {
namespace {

class DesignKeys : public DesignTest {
  protected:
    void SetUp() override {
        DesignTest::SetUp();
        for (int i = 0; i < 14; ++i) setMap(i, 0.1f, 0, 0, 0.1f, 0.05f * i, 0);
    }
    bool key(int code, int shift = 0) { return DesignKeyDown(wb, d, code, shift, false); }
};

TEST_F(DesignKeys, ShiftOneThenShiftTwoSelectsFunctionTwelve) {
    EXPECT_TRUE(key('1', ShiftMaskShift));
    EXPECT_FALSE(wb.MapSelected);
    EXPECT_TRUE(key('2', ShiftMaskShift));
    EXPECT_TRUE(wb.MapSelected);
    EXPECT_EQ(wb.SelectedMap, 11);
    EXPECT_EQ(d.picTrans, "Tran.# 12");
}

TEST_F(DesignKeys, ShiftOneThenALetterWithShiftClearsTheStoredDigit) {
    key('1', ShiftMaskShift);
    EXPECT_FALSE(key('K', ShiftMaskShift));
    key('2', ShiftMaskShift);  // now a first digit again
    EXPECT_FALSE(wb.MapSelected);
    key('3', ShiftMaskShift);
    EXPECT_FALSE(wb.MapSelected);  // 23 is above nMaps: nothing selected
}

TEST_F(DesignKeys, ADigitAloneSelectsOneToNine) {
    key('3');
    EXPECT_TRUE(wb.MapSelected);
    EXPECT_EQ(wb.SelectedMap, 2);
    wb.CurrentIFS.nMaps = 4;
    key('5');
    EXPECT_EQ(wb.SelectedMap, 2);
    key('0');
    EXPECT_EQ(wb.SelectedMap, 2);
}

TEST_F(DesignKeys, EscapeDeselects) {
    key('3');
    d.picCoord = "(0.100,0.200)";
    EXPECT_TRUE(key(27));
    EXPECT_FALSE(wb.MapSelected);
    EXPECT_EQ(d.picCoord, "");
    EXPECT_FALSE(wb.menu("mnuDesignRotate").enabled);
}

TEST_F(DesignKeys, PlusAndMinusWalkTheGridRing) {
    wb.Menu.setChecked("mnuDesignGrid", false);
    EXPECT_FALSE(key(KeyPadAdd));
    wb.Menu.setChecked("mnuDesignGrid", true);
    key(KeyPadAdd);
    EXPECT_FLOAT_EQ(wb.GridX, 0.125f);
    key(KeyPlusMain);
    EXPECT_FLOAT_EQ(wb.GridX, 0.25f);
    key(KeyPadAdd);
    EXPECT_FLOAT_EQ(wb.GridX, 0.05f);
    key(KeyMinusMain);
    EXPECT_FLOAT_EQ(wb.GridX, 0.25f);
    EXPECT_FLOAT_EQ(wb.GridY, 0.25f);
    EXPECT_EQ(d.picTrans, Str(0.25f));
}

TEST_F(DesignKeys, AGridOutsideTheRingBecomesATenth) {
    wb.GridX = wb.GridY = 0.3f;
    StepDesignGrid(wb, false);
    EXPECT_FLOAT_EQ(wb.GridX, 0.1f);
    wb.GridX = 0.2f;
    wb.GridY = 0.5f;
    StepDesignGrid(wb, true);
    EXPECT_FLOAT_EQ(wb.GridX, 0.5f);
    EXPECT_FLOAT_EQ(wb.GridY, 0.5f);
    wb.GridX = 0.2f;
    StepDesignGrid(wb, false);
    EXPECT_FLOAT_EQ(wb.GridY, 0.2f);
}

TEST_F(DesignKeys, CtrlKeysToggleAxesGridAndFixedPoints) {
    const bool axes = wb.menu("mnuDesignAxes").checked;
    key(KeyA, ShiftMaskCtrl);
    EXPECT_NE(wb.menu("mnuDesignAxes").checked, axes);
    key(KeyG, ShiftMaskCtrl);
    EXPECT_TRUE(wb.menu("mnuDesignGrid").checked);
    key(KeyF, ShiftMaskCtrl);
    EXPECT_TRUE(wb.menu("mnuDesignFP").checked);
    wb.Menu.setChecked("mnuCodeFP", true);
    EXPECT_FALSE(key(KeyF, ShiftMaskCtrl));
    EXPECT_TRUE(wb.menu("mnuDesignFP").checked);
}

TEST_F(DesignKeys, ZoomAndShiftKeysWorkInPolygonModeOnlyBeforeTheFirstPoint) {
    mnuDrawPoly_Click(wb, d, "");
    key(KeyPageDown);
    const WorldWindow zoomed = wb.DesignWindow;
    EXPECT_NE(zoomed, (WorldWindow{-0.1f, 1.1f, -0.1f, 1.1f}));
    EXPECT_FALSE(key(KeyHome));
    PolygonModeClick(wb, d, 0.2f, 0.2f, false);
    EXPECT_FALSE(key(KeyPageUp));
    EXPECT_FALSE(key(KeyLeft));
    EXPECT_EQ(wb.DesignWindow, zoomed);
    EXPECT_TRUE(key('L'));
}

TEST_F(DesignKeys, HomeScalesToFitAndArrowsShift) {
    key(KeyHome);
    EXPECT_EQ(wb.txtDesign, WindowTexts(wb.DesignWindow));
    const WorldWindow fitted = wb.DesignWindow;
    key(KeyRight);
    EXPECT_GT(wb.DesignWindow.xmin, fitted.xmin);
    EXPECT_FALSE(key(KeyRight, ShiftMaskShift));  // a gesture key, not ours
}

TEST_F(DesignKeys, TheHelpCardHasItsTwelvePairs) {
    EXPECT_STREQ(DesignHelpCard[0].first, "Left click Boundary");
    EXPECT_STREQ(DesignHelpCard[0].second, "  select polygon");
    EXPECT_STREQ(DesignHelpCard[3].first, "Shift-Click corner square");
    EXPECT_STREQ(DesignHelpCard[3].second, "  resize x,y equally");
    EXPECT_STREQ(DesignHelpCard[6].first, "Ctrl-Click middle square");
    EXPECT_STREQ(DesignHelpCard[6].second, "  skew polygon");
    EXPECT_STREQ(DesignHelpCard[8].first, "Ctrl-arrow key (up/down)");
    EXPECT_STREQ(DesignHelpCard[11].first, "shift-10,shift-11,...");
    EXPECT_STREQ(DesignHelpCard[11].second, "  select that polygon");
    EXPECT_EQ(HelpCardBlankAfter, 7);
}

}  // namespace
}  // namespace quillane::testing
