#include "app/design_view.h"

#include <gtest/gtest.h>

#include "core/initial_polygons.h"
#include "design/design_drawing.h"
#include "app/fractal_view.h"
#include "tests/app/design_fixture.h"

namespace quillane::testing {
namespace {

using DesignView = DesignTest;

TEST_F(DesignView, ScaleToFitOfAZeroMatrixStillGivesAPositiveWindow) {
    DesignPolygon point;
    point.add(0, 0);
    wb.InitialPolygon = point;
    setMap(0, 0, 0, 0, 0, 0, 0);
    const WorldWindow w = DesignWinScale(wb, d);
    // All bounds 0: rounding gives 0 and -0, equal, so each side gets 0.05, then the 5% margin.
    EXPECT_FLOAT_EQ(w.xmin, -0.055f);
    EXPECT_FLOAT_EQ(w.xmax, 0.055f);
    EXPECT_FLOAT_EQ(w.ymin, -0.055f);
    EXPECT_FLOAT_EQ(w.ymax, 0.055f);
}

TEST_F(DesignView, ScaleToFitIsSquareWithAMarginAndIgnoresPenLifts) {
    setMap(0, 2, 0, 0, 0.5f, 0, 0);  // the oriented square stretched to 2 wide
    DesignScale(wb, d);
    const WorldWindow& w = wb.DesignWindow;
    // x 0 .. 2: 2 + 0.05 rounds half to even back to 2, so x stays 0 .. 2 and y 0 .. 1 widens to
    // -0.5 .. 1.5; then 5% of 2 on each side. The mark behind the pen lift adds nothing.
    EXPECT_NEAR(w.xmin, -0.1f, 1e-6);
    EXPECT_NEAR(w.xmax, 2.1f, 1e-6);
    EXPECT_NEAR(w.ymin, -0.6f, 1e-6);
    EXPECT_NEAR(w.ymax, 1.6f, 1e-6);
    EXPECT_EQ(wb.txtDesign, (std::array<std::string, 4>{"1.600", "-0.600", "-0.100", "2.100"}));
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo");
    EXPECT_FALSE(wb.menu("mnuUndo").enabled);
    EXPECT_DOUBLE_EQ(d.picdesign.scaleLeft(), w.xmin);
    EXPECT_DOUBLE_EQ(d.picCGDesign.scaleTop(), w.ymax);
}

TEST_F(DesignView, ScaleToFitIsIgnoredInPolygonMode) {
    d.Poly.PolygonMode = true;
    const WorldWindow before = wb.DesignWindow;
    setMap(0, 3, 0, 0, 3, 0, 0);
    DesignScale(wb, d);
    EXPECT_EQ(wb.DesignWindow, before);
}

TEST_F(DesignView, ZoomOutThenInDoesNotReturnTheFormerWindow) {
    DesignWinZoom(wb, d, 1);
    // Each second step sees the span the first one widened: 1.1 + 0.05 * 1.26.
    EXPECT_NEAR(wb.DesignWindow.xmin, -0.16, 1e-6);
    EXPECT_NEAR(wb.DesignWindow.xmax, 1.163, 1e-6);
    EXPECT_NEAR(wb.DesignWindow.ymax, 1.16, 1e-6);
    EXPECT_NEAR(wb.DesignWindow.ymin, -0.163, 1e-6);
    EXPECT_EQ(d.DesignUndoWindow, (WorldWindow{-0.1f, 1.1f, -0.1f, 1.1f}));
    EXPECT_EQ(wb.menu("mnuUndo").caption, UndoZoomCaption);
    EXPECT_TRUE(wb.menu("mnuUndo").enabled);
    EXPECT_EQ(wb.ZoomUndoSource, 0);
    DesignWinZoom(wb, d, -1);
    // -0.16 + 0.05 * 1.323 = -0.09385; 1.163 - 0.05 * 1.25685 = 1.1001575; the window comes back
    // through txtDesign's three decimals.
    EXPECT_NEAR(wb.DesignWindow.xmin, -0.094, 1e-6);
    EXPECT_NEAR(wb.DesignWindow.xmax, 1.1, 1e-6);
    EXPECT_NEAR(wb.DesignWindow.ymax, 1.094, 1e-6);
    EXPECT_NEAR(wb.DesignWindow.ymin, -0.1, 1e-6);
    EXPECT_NE(wb.DesignWindow, (WorldWindow{-0.1f, 1.1f, -0.1f, 1.1f}));
    EXPECT_EQ(wb.txtDesign[2], "-0.094");
}

TEST_F(DesignView, ShiftMovesBothBoundsByOnePercent) {
    ShiftDesignWin(wb, d, KeyLeft);
    EXPECT_NEAR(wb.DesignWindow.xmin, -0.112, 1e-6);
    EXPECT_NEAR(wb.DesignWindow.xmax, 1.088, 1e-6);
    EXPECT_EQ(d.ShiftUndoWindow, (WorldWindow{-0.1f, 1.1f, -0.1f, 1.1f}));
    MnuDesignShiftDir_Click(wb, d, 3);  // up
    EXPECT_NEAR(wb.DesignWindow.ymin, -0.088, 1e-6);
    EXPECT_NEAR(wb.DesignWindow.ymax, 1.112, 1e-6);
    EXPECT_EQ(wb.txtDesign[0], "1.112");
    wb.DrawingActive = true;
    ShiftDesignWin(wb, d, KeyRight);
    EXPECT_NEAR(wb.DesignWindow.xmin, -0.112, 1e-6);
}

TEST_F(DesignView, MatchTakesTheFractalWindowAndPadsTheArea) {
    FractalPictures pics;
    pics.resize(102, White);
    wb.Window = {0, 1, 0, 1};
    WriteWindowText(wb);
    ApplyWindow(pics, wb.Window);
    mnuDesignMatch_Click(wb, d, pics);
    EXPECT_EQ(wb.DesignWindow, wb.Window);
    EXPECT_EQ(wb.txtDesign, wb.txtWin);
    const double r = pics.picfractal.pixelsToWorldX(2);
    EXPECT_DOUBLE_EQ(d.picdesign.scaleRight(), 1 + r);
    EXPECT_DOUBLE_EQ(d.picdesign.scaleBottom(), 0 - r);
}

TEST_F(DesignView, ResizeKeepsTheWindowFromTheTextBoxes) {
    wb.txtDesign = {"2.000", "-2.000", "-1.000", "3.000"};
    const std::string text = ResizeDesignWin(wb, d, 300, 200);
    EXPECT_EQ(text, "300 x 200");
    EXPECT_EQ(wb.DesignWindow, (WorldWindow{-1, 3, -2, 2}));
    EXPECT_EQ(d.picdesign.width(), 300);
    EXPECT_EQ(d.picImage.height(), 200);
    EXPECT_DOUBLE_EQ(d.picCGDesign.scaleRight(), 3);
}

TEST_F(DesignView, LineStyleSetsTheThicknessAndTheRadioItems) {
    mnuDesignLine_Click(wb, d, 2);
    EXPECT_EQ(wb.LineThickness, 4);
    EXPECT_TRUE(wb.menu("mnuDesignLine(2)").checked);
    EXPECT_FALSE(wb.menu("mnuDesignLine(0)").checked);
}

TEST_F(DesignView, GridAndFixedPointTogglesInvertTheirChecks) {
    DesignGrid(wb, d);
    EXPECT_TRUE(wb.menu("mnuDesignGrid").checked);
    DesignGrid(wb, d);
    EXPECT_FALSE(wb.menu("mnuDesignGrid").checked);
    DesignFixedPoints(wb, d);
    EXPECT_TRUE(wb.menu("mnuDesignFP").checked);
}

}  // namespace
}  // namespace quillane::testing
