#include "app/chaos_moves.h"

#include "tests/app/chaos_fixture.h"

namespace quillane::testing {
namespace {

class ChaosMoves : public ChaosTest {
  protected:
    void SetUp() override {
        ChaosTest::SetUp();
        setPoint(0, 0.2f, 0.4f, "SR", 0.25f, 30);
        wb.SavedIFS = wb.CurrentIFS;
        OpenScaleCG(wb);
    }
};

TEST_F(ChaosMoves, OpeningShowsTheSelectedFunctionAndLocksTheTable) {
    EXPECT_TRUE(wb.CGMapSelected);
    EXPECT_EQ(wb.SelectedMap, 0);
    EXPECT_TRUE(wb.Table.Locked);
    EXPECT_TRUE(wb.ScaleCG.chkStep[1]);
    EXPECT_TRUE(wb.ScaleCG.chkStep[2]);
    EXPECT_FALSE(wb.ScaleCG.chkStep[3]);
    EXPECT_EQ(wb.ScaleCG.txtStep[1], "S");
    EXPECT_EQ(wb.ScaleCG.txtStep[2], "R");
    EXPECT_EQ(wb.ScaleCG.sliScale, 250);
    EXPECT_EQ(wb.ScaleCG.sliRotate, 30);
    EXPECT_EQ(wb.ScaleCG.txtS, "0.250");
    EXPECT_TRUE(wb.ScaleCG.ScaleEnabled);
}

TEST_F(ChaosMoves, CheckingPutsTheLetterInTheFirstBlankAndUncheckingPacksUp) {
    chkStep_Click(wb, 4, true);
    EXPECT_EQ(steps(0), "SRV.");
    EXPECT_EQ(wb.Table.text(3, 0), "V");
    chkStep_Click(wb, 1, false);
    EXPECT_EQ(steps(0), "RV..");
    EXPECT_FALSE(wb.ScaleCG.ScaleEnabled);
    EXPECT_EQ(wb.ScaleCG.txtStep[3], "");
    EXPECT_TRUE(wb.ScaleCG.Changed);
}

TEST_F(ChaosMoves, TwoClickedBoxesSwapTheirLetters) {
    picStep_Click(wb, 1);
    EXPECT_EQ(wb.ScaleCG.BoldStep, 1);
    picStep_Click(wb, 1);
    EXPECT_EQ(wb.ScaleCG.BoldStep, 0);
    EXPECT_EQ(steps(0), "SR..");
    picStep_Click(wb, 3);  // blank: nothing
    EXPECT_EQ(wb.ScaleCG.BoldStep, 0);
    picStep_Click(wb, 2);
    picStep_Click(wb, 1);
    EXPECT_EQ(steps(0), "RS..");
    EXPECT_EQ(wb.ScaleCG.BoldStep, 0);
    EXPECT_EQ(wb.Table.text(1, 0), "R");
}

TEST_F(ChaosMoves, ScaleSliderKeysStopAtTheEnds) {
    EXPECT_TRUE(sliScale_KeyDown(wb, 33));
    EXPECT_EQ(wb.ScaleCG.sliScale, 255);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Scale[0], 0.255f);
    EXPECT_EQ(wb.ScaleCG.txtS, "0.255");
    sliScale_Change(wb, 996);
    EXPECT_FALSE(sliScale_KeyDown(wb, 33));
    EXPECT_TRUE(sliScale_KeyDown(wb, 39));
    EXPECT_EQ(wb.ScaleCG.sliScale, 997);
    sliScale_Change(wb, 4);
    EXPECT_FALSE(sliScale_KeyDown(wb, 34));
    sliScale_Change(wb, 0);
    EXPECT_FALSE(sliScale_KeyDown(wb, 37));
    EXPECT_EQ(wb.Table.text(5, 0), "0.000");
}

TEST_F(ChaosMoves, RotateSliderKeysStopAtTheEnds) {
    EXPECT_TRUE(sliRotate_KeyDown(wb, 34));
    EXPECT_EQ(wb.ScaleCG.sliRotate, 25);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], 25);
    sliRotate_Change(wb, 356);
    EXPECT_FALSE(sliRotate_KeyDown(wb, 33));
    sliRotate_Change(wb, -356);
    EXPECT_FALSE(sliRotate_KeyDown(wb, 34));
    EXPECT_TRUE(sliRotate_KeyDown(wb, 37));
    EXPECT_EQ(wb.ScaleCG.sliRotate, -357);
    sliRotate_Change(wb, 360);
    EXPECT_FALSE(sliRotate_KeyDown(wb, 39));
}

TEST_F(ChaosMoves, ScaleBoxMessages) {
    wb.ScaleCG.txtS = "2*(";
    EXPECT_FALSE(txtS_Commit(wb, host, false));
    wb.ScaleCG.txtS = "-0.5";
    EXPECT_FALSE(txtS_Commit(wb, host, false));
    EXPECT_EQ(host.shown(),
              (std::vector<ShownMessage>{{"Error", "Cannot evaluate expression for the scaling factor.   "},
                                         {"Error", "Scaling factor must be positive.  "}}));
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Scale[0], 0.25f);
    wb.ScaleCG.txtS = "3/2";
    EXPECT_TRUE(txtS_Commit(wb, host, false));
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Scale[0], 1);
    EXPECT_EQ(wb.ScaleCG.txtS, "1.000");
    EXPECT_EQ(wb.ScaleCG.sliScale, 1000);
}

TEST_F(ChaosMoves, LeavingTheScaleBoxQuietlyRestoresOnFailure) {
    wb.ScaleCG.txtS = "x+";
    EXPECT_FALSE(txtS_Commit(wb, host, true));
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(wb.ScaleCG.txtS, "0.250");
}

TEST_F(ChaosMoves, RotationBoxTakesTheWholePart) {
    wb.ScaleCG.txtRotate = "(";
    EXPECT_FALSE(txtRotate_Commit(wb, host, false));
    EXPECT_EQ(host.shown(),
              (std::vector<ShownMessage>{{"Error", "Cannot evaluate expression for rotation angle. "}}));
    wb.ScaleCG.txtRotate = "45.8";
    EXPECT_TRUE(txtRotate_Commit(wb, host, false));
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], 45);
    EXPECT_EQ(wb.ScaleCG.sliRotate, 45);
    wb.ScaleCG.txtRotate = "-400";
    EXPECT_TRUE(txtRotate_Commit(wb, host, false));
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], -40);
}

TEST_F(ChaosMoves, CancelGoesBackToTheLastApply) {
    chkStep_Click(wb, 3, true);
    cmdApply_Click(wb);
    sliScale_Change(wb, 900);
    cmdCancel_Click(wb, host);
    EXPECT_EQ(steps(0), "SRH.");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Scale[0], 0.25f);
    EXPECT_EQ(wb.Table.text(5, 0), "0.250");
    EXPECT_FALSE(wb.Table.Locked);
    EXPECT_FALSE(wb.ScaleCG.Showing);
}

TEST_F(ChaosMoves, OkCountsAChangeOnlyWhenThereWasOne) {
    cmdOk_Click(wb);
    EXPECT_EQ(wb.ChangeCount, 0);
    OpenScaleCG(wb);
    sliRotate_Change(wb, 10);
    cmdOk_Click(wb);
    EXPECT_EQ(wb.ChangeCount, 1);
    EXPECT_TRUE(wb.IFSModified);
    EXPECT_FALSE(wb.Table.Locked);
}

TEST_F(ChaosMoves, ChoosingAnotherFixedPointShowsItsRecipe) {
    setPoint(1, 0.8f, 0.1f, "HV", 0.6f, 0);
    cmbFP_Click(wb, 1);
    EXPECT_EQ(wb.SelectedMap, 1);
    EXPECT_TRUE(wb.ScaleCG.chkStep[3]);
    EXPECT_TRUE(wb.ScaleCG.chkStep[4]);
    EXPECT_FALSE(wb.ScaleCG.chkStep[1]);
    EXPECT_EQ(wb.ScaleCG.sliScale, 600);
}

}  // namespace
}  // namespace quillane::testing
