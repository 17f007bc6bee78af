#include "app/chaos_design.h"

#include "core/chaos_game.h"
#include "core/function_table.h"
#include "core/numbers.h"
#include "app/chaos_moves.h"
#include "app/design_view.h"
#include "app/transform_commands.h"
#include "app/transform_count_commands.h"
#include "tests/app/chaos_fixture.h"

namespace quillane::testing {
namespace {

using ChaosDesign = ChaosTest;

TEST_F(ChaosDesign, ANewChaosGameShowsOneFixedPointAndTheReferencePointInTheMiddle) {
    RedrawCGDesign(wb, d);
    EXPECT_EQ(wb.CurrentIFS.nMaps, 1);
    EXPECT_EQ(wb.ReferencePoint, (Workbench::RefPoint{0.5f, 0.5f, True16}));
    EXPECT_EQ(cg(0.5, 0.5), Black);
    EXPECT_EQ(cg(0.0, 0.0), colour(0));
    // The one path: "S" 0.5 from the middle to half way to the origin, ending in a dot.
    EXPECT_EQ(cg(0.375, 0.375), colour(0));
    EXPECT_EQ(cg(0.25, 0.25), colour(0));
    EXPECT_EQ(cg(0.75, 0.75), White);
    EXPECT_EQ(wb.DesignMode, 1);
    EXPECT_EQ(wb.CodeForm, 2);
    EXPECT_EQ(wb.DesignCaption, "Design (Chaos Game)");
}

TEST_F(ChaosDesign, ANewChaosGameDropsTheFormerComment) {
    SetupIFSDesign(wb);
    wb.lblComment = "three half-size copies of itself";
    ASSERT_TRUE(mnuNewChaosGame_Click(wb, host));
    EXPECT_EQ(wb.lblComment, "");
    EXPECT_EQ(wb.CurrentIFS.nComments, 0);
}

TEST_F(ChaosDesign, NewChaosGameSetsItsCaptionsAsWritten) {
    EXPECT_EQ(wb.menu("mnuSaveCurrent").caption, "Save &Current Chaos Game to File..");
    EXPECT_EQ(wb.menu("mnuSaveIFS").caption, "&Save Chaos Game Fractals List");
    EXPECT_EQ(wb.menu("mnuSaveIFSas").caption, "Save Chaso Game Fractals List &As...");
    EXPECT_EQ(wb.menu("mnuOpen").caption, "&Open Chaos Game File...");
    EXPECT_EQ(wb.menu("mnuFileAppend").caption, "Appen&d Chaos Game File...");
    EXPECT_EQ(wb.menu(FrameButtonKey(1)).caption, "New Chaos Game");
    EXPECT_EQ(wb.menu(FrameButtonKey(2)).caption, "Open Chaos Game file");
}

TEST_F(ChaosDesign, NewChaosGameSetsTheMenus) {
    EXPECT_TRUE(wb.menu("mnuCodeFP").checked);
    EXPECT_FALSE(wb.menu("mnuMatrix").checked);
    EXPECT_FALSE(wb.menu("mnuRotation").checked);
    EXPECT_TRUE(wb.menu("mnuCodeArrangeFP").enabled);
    EXPECT_TRUE(wb.menu(FrameButtonKey(12)).enabled);
    EXPECT_FALSE(wb.menu("mnuDesignExamples").enabled);
    EXPECT_FALSE(wb.menu("mnuDesignLoadPicture").enabled);
    EXPECT_FALSE(wb.menu("mnuDesignScale").visible);
    EXPECT_FALSE(wb.menu("mnuDesignStretch").visible);
    EXPECT_TRUE(wb.menu("mnuDesignCGMoves").visible);
    EXPECT_FALSE(wb.menu("mnuUndo").enabled);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo");
    EXPECT_EQ(wb.ChangeCount, 0);
    EXPECT_FALSE(wb.CGMapSelected);
    EXPECT_EQ(wb.Table.text(1, 0), "S");
}

TEST_F(ChaosDesign, NewChaosGameIsCancelledByCheckSave) {
    SetupIFSDesign(wb);
    wb.IFSModified = true;
    wb.ChangeCount = 2;
    host.answers.push_back(Answer::Cancel);
    EXPECT_FALSE(mnuNewChaosGame_Click(wb, host));
    EXPECT_EQ(wb.DesignMode, 0);
    EXPECT_EQ(host.shown().size(), 1u);
}

TEST_F(ChaosDesign, SetupIFSDesignGoesBackToIFSMode) {
    wb.IFSModified = true;
    SetupIFSDesign(wb);
    EXPECT_EQ(wb.DesignMode, 0);
    EXPECT_EQ(wb.DesignCaption, "Design (IFS)");
    EXPECT_FALSE(wb.menu("mnuCodeFP").enabled);
    EXPECT_FALSE(wb.menu("mnuCodeFP").checked);
    EXPECT_FALSE(wb.menu("mnuCodeArrangeFP").enabled);
    EXPECT_FALSE(wb.menu(FrameButtonKey(12)).enabled);
    EXPECT_FALSE(wb.IFSModified);
}

TEST_F(ChaosDesign, OnlyThePolygonAndFixedPointButtonsAreOffForFixedPoints) {
    for (int b = 8; b <= 11; ++b)
        EXPECT_EQ(wb.menu(DesignToolbarKey(b)).enabled, b == 9 || b == 11) << "button " << b;
    EXPECT_TRUE(wb.menu(DesignToolbarKey(1)).enabled) << "new";
    EXPECT_TRUE(wb.menu(DesignToolbarKey(12)).enabled) << "lines";
    SetupIFSDesign(wb);
    for (int b = 8; b <= 11; ++b) EXPECT_TRUE(wb.menu(DesignToolbarKey(b)).enabled) << "button " << b;
}

TEST_F(ChaosDesign, TheWayBackPutsTheIFSCaptionsBack) {
    ASSERT_EQ(wb.menu("mnuOpen").caption, "&Open Chaos Game File...");
    SetupIFSDesign(wb);
    for (const char* key : {"mnuDesignScale", "mnuDesignRotate", "mnuDesignFlipHor", "mnuDesignFlipVert",
                            "mnuDesignStretch"})
        EXPECT_TRUE(wb.menu(key).visible) << key;
    EXPECT_FALSE(wb.menu("mnuDesignCGMoves").visible);
    EXPECT_EQ(wb.menu("mnuSaveCurrent").caption, "Save &Current IFS to File...");
    EXPECT_EQ(wb.menu("mnuSaveIFS").caption, "&Save IFS Fractals List");
    EXPECT_EQ(wb.menu("mnuSaveIFSas").caption, "Save IFS Fractals List &As...");
    EXPECT_EQ(wb.menu("mnuOpen").caption, "&Open IFS File...");
    EXPECT_EQ(wb.menu("mnuFileAppend").caption, "Appen&d IFS File...");
    EXPECT_EQ(wb.menu(FrameButtonKey(1)).caption, "New IFS");
    EXPECT_EQ(wb.menu(FrameButtonKey(2)).caption, "Open IFS File");
}

TEST_F(ChaosDesign, NewFixedPointAtAPositionHasTheRecipeS) {
    newCGFixedPoint(wb, host, false, 0.8f, 0.2f);
    ASSERT_EQ(wb.CurrentIFS.nMaps, 2);
    EXPECT_EQ(steps(1), "S...");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.a[1], 0.5f);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.e[1], 0.4f);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.f[1], 0.1f);
    EXPECT_EQ(wb.Table.text(1, 1), "S");
    EXPECT_EQ(wb.Table.text(2, 1), "");
    EXPECT_EQ(wb.Table.text(5, 1), "0.500");
    EXPECT_EQ(wb.Table.text(6, 1), "0.00");
    EXPECT_EQ(wb.Table.text(8, 1), "0.800");
    EXPECT_EQ(wb.Table.text(9, 1), "0.200");
    EXPECT_EQ(wb.SelectedMap, 1);
    EXPECT_TRUE(wb.CGMapSelected);
    EXPECT_FALSE(wb.CGBusy);
}

TEST_F(ChaosDesign, NewFixedPointWithoutAPositionTakesTheKeptOne) {
    wb.OriginalMap.e = 0.3f;
    wb.OriginalMap.f = 0.7f;
    newCGFixedPoint(wb, host, false, 20000, 20000);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[1], 0.3f);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPy[1], 0.7f);
}

TEST_F(ChaosDesign, ClearMovesTheLaterFunctionsDownWithTheirColours) {
    setPoint(1, 0.5f, 0.5f, "SR", 0.4f, 30);
    setPoint(2, 1, 0, "H");
    const Color c1 = colour(1), c2 = colour(2);
    CGClearMap(wb, host, 1);
    ASSERT_EQ(wb.CurrentIFS.nMaps, 2);
    EXPECT_EQ(steps(1), "H...");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[1], 1);
    EXPECT_EQ(colour(1), c2);
    EXPECT_EQ(colour(2), c1);
    EXPECT_EQ(wb.ClearedMap, 1);
    EXPECT_EQ(wb.SavedIFS.nMaps, 3);
    EXPECT_FALSE(wb.CGMapSelected);
}

TEST_F(ChaosDesign, DuplicateCopiesTheRecipeInPlace) {
    setPoint(0, 0.2f, 0.3f, "SR", 0.4f, 30);
    CGMatrix(wb, 0);
    wb.CGMapSelected = true;
    CGDesignDuplicate(wb, host);
    ASSERT_EQ(wb.CurrentIFS.nMaps, 2);
    EXPECT_EQ(steps(1), "SR..");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.FPx[1], 0.2f);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[1], 30);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.a[1], wb.CurrentIFS.a[0]);
    EXPECT_EQ(wb.SelectedMap, 1);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo Duplicate");
}

TEST_F(ChaosDesign, RotationPutsAnRInTheFirstBlank) {
    wb.CGMapSelected = true;
    RotateIFSDesign(wb, 90);
    EXPECT_EQ(steps(0), "SR..");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], 90);
    EXPECT_EQ(wb.Table.text(6, 0), "90.00");
    EXPECT_NEAR(wb.CurrentIFS.c[0], 0.5f, 1e-6);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo Rotation");
    EXPECT_EQ(wb.OriginalSteps[2], "");
    EXPECT_EQ(wb.ResultSteps[2], "R");
}

TEST_F(ChaosDesign, RotationAddsToAnRAndComesBackBelow360) {
    setPoint(0, 0, 0, "RS", 0.5f, 300);
    wb.CGMapSelected = true;
    RotateCGDesign(wb, 90);
    EXPECT_EQ(steps(0), "RS..");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], 30);
    RotateCGDesign(wb, -400);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], -10);
}

TEST_F(ChaosDesign, RotationWithFourOtherLettersDoesNothing) {
    setPoint(0, 0, 0, "SHVS");
    wb.CGMapSelected = true;
    RotateCGDesign(wb, 90);
    EXPECT_EQ(steps(0), "SHVS");
    EXPECT_FALSE(wb.menu("mnuUndo").enabled);
}

TEST_F(ChaosDesign, ReflectionTwiceWithTheMovesWindowClosedAddsThenRemovesTheLetter) {
    setPoint(0, 0, 0, "SV");
    wb.CGMapSelected = true;
    mnuDesignFlipHor_Click(wb);
    EXPECT_EQ(steps(0), "SVH.");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.a[0], -0.5f);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo Reflection");
    EXPECT_EQ(wb.ChangeCount, 1);
    mnuDesignFlipHor_Click(wb);
    EXPECT_EQ(steps(0), "SV..");
    EXPECT_EQ(wb.Table.text(3, 0), "");
    EXPECT_FLOAT_EQ(wb.CurrentIFS.a[0], 0.5f);
    EXPECT_FALSE(wb.menu("mnuUndo").enabled);
    EXPECT_EQ(wb.ChangeCount, 2);
    EXPECT_TRUE(wb.IFSModified);
}

TEST_F(ChaosDesign, ReflectionRemovesTheLetterAndPacksTheLaterOnesUp) {
    setPoint(0, 0, 0, "VSR", 0.5f, 45);
    wb.CGMapSelected = true;
    mnuDesignFlipVert_Click(wb);
    EXPECT_EQ(steps(0), "SR..");
}

TEST_F(ChaosDesign, ReflectionWithTheMovesWindowOpenUnchecksItsBox) {
    setPoint(0, 0, 0, "SH");
    wb.CGMapSelected = true;
    OpenScaleCG(wb);
    EXPECT_TRUE(wb.ScaleCG.chkStep[3]);
    mnuDesignFlipHor_Click(wb);
    EXPECT_EQ(steps(0), "S...");
    EXPECT_FALSE(wb.ScaleCG.chkStep[3]);
    EXPECT_EQ(wb.ScaleCG.txtStep[2], "");
    EXPECT_TRUE(wb.ScaleCG.Changed);
}

TEST_F(ChaosDesign, ScaleFollowsThePathsAndTheCircles) {
    wb.ReferencePoint = {0.5f, 0.52f, True16};
    setPoint(0, 0.5f, 0.2f, "R", 0.5f, 90);  // circle of radius 0.32 about (0.5, 0.2)
    float xmax = -100, xmin = 100, ymax = -100, ymin = 100;
    CGDesignScale(wb, xmax, xmin, ymax, ymin);
    EXPECT_FLOAT_EQ(xmax, 0.9f);
    EXPECT_FLOAT_EQ(xmin, 0.1f);
    EXPECT_FLOAT_EQ(ymax, 0.6f);
    EXPECT_FLOAT_EQ(ymin, -0.2f);
}

TEST_F(ChaosDesign, ScaleCountsSOnlyStrictlyBetweenZeroAndOne) {
    wb.ReferencePoint = {3.1f, 3.1f, True16};
    setPoint(0, 0, 0, "S", 1.0f);
    float xmax = -100, xmin = 100, ymax = -100, ymin = 100;
    CGDesignScale(wb, xmax, xmin, ymax, ymin);
    EXPECT_FLOAT_EQ(xmax, 0.05f);  // only F counts, and a span of 0 is widened
    setPoint(0, 0, 0, "S", 0.5f);
    xmax = -100, xmin = 100, ymax = -100, ymin = 100;
    CGDesignScale(wb, xmax, xmin, ymax, ymin);
    EXPECT_FLOAT_EQ(xmax, 1.6f);
}

TEST_F(ChaosDesign, ScaleWithTheReferencePointHiddenLeavesTheBounds) {
    wb.ReferencePoint.shown = 0;
    float xmax = 1, xmin = 0, ymax = 1, ymin = 0;
    CGDesignScale(wb, xmax, xmin, ymax, ymin);
    EXPECT_EQ(xmax, 1);
    EXPECT_EQ(ymin, 0);
}

TEST_F(ChaosDesign, DesignScaleTakesInTheReferencePath) {
    wb.ReferencePoint = {3.1f, 3.1f, True16};
    DesignScale(wb, d);
    EXPECT_GT(wb.DesignWindow.xmax, 1.6f);
    EXPECT_GT(wb.DesignWindow.ymax, 1.6f);
    EXPECT_EQ(wb.txtDesign[3], Format(wb.DesignWindow.xmax, "0.000"));
}

}  // namespace
}  // namespace quillane::testing
