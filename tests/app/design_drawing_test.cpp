#include "design/design_drawing.h"

#include <gtest/gtest.h>

#include "core/initial_polygons.h"
#include "core/numbers.h"
#include "tests/app/design_fixture.h"
#include "app/design_selection.h"

namespace quillane::testing {
namespace {

using DesignDrawing = DesignTest;

TEST_F(DesignDrawing, APenLiftDrawsTwoSeparatePathsAndAddsNothingToTheBox) {
    wb.Menu.setChecked("mnuDesignPoly", false);
    wb.Menu.setChecked("mnuDesignAxes", false);
    setMap(0, 1, 0, 0, 1, 0, 0);
    wb.FunctionColor[0] = Red;
    DrawDesign(wb, d, false);
    // The square's edge and the mark behind the lift are drawn ...
    EXPECT_EQ(at(0.5, 0.0), Red);
    EXPECT_EQ(at(0.1, 0.5), Red);
    EXPECT_EQ(at(0.3, 0.1), Red);
    // ... but nothing joins the square's last corner (0, 0) to the mark's start (0.1, 0.9).
    EXPECT_EQ(at(0.05, 0.45), White);
    EXPECT_EQ(at(0.03, 0.27), White);
    const DesignPolygon& image = d.PolygonImage[0];
    EXPECT_EQ(image.nPoints, 9);
    EXPECT_EQ(image.x[6], PenLift);
    EXPECT_EQ(image.y[6], PenLift);
    EXPECT_FLOAT_EQ(image.x[7], 0.1f);
    BoundingBoxes(wb, d, 0);
    EXPECT_EQ(d.BoundingBox[0], (quillane::BoundingBox{0, 1, 0, 1}));
}

TEST_F(DesignDrawing, TheSelectedMapIsBoldWithEightHandlesInItsColour) {
    wb.Menu.setChecked("mnuDesignPoly", false);
    wb.Menu.setChecked("mnuDesignAxes", false);
    wb.InitialPolygon = BuiltInPolygon(7);
    setMap(0, 0.5f, 0, 0, 0.5f, 0.25f, 0.25f);
    wb.FunctionColor[0] = Blue;
    DrawSelectedIFS(wb, d, 0, false);
    EXPECT_TRUE(wb.MapSelected);
    EXPECT_EQ(wb.SelectedMap, 0);
    EXPECT_EQ(d.picTrans, "Tran.# 1");
    const double lo = 0.25, hi = 0.75, mid = 0.5;
    const double handles[8][2] = {{lo, lo}, {hi, lo}, {hi, hi}, {lo, hi}, {mid, lo}, {mid, hi}, {lo, mid}, {hi, mid}};
    const double px = d.picdesign.pixelsToWorldX(1);
    for (const auto& h : handles) {
        // A handle is a filled square some pixels across, so its corners off the edge line are painted.
        EXPECT_EQ(at(h[0] + 2 * px, h[1] + 2 * px), Blue) << h[0] << "," << h[1];
        EXPECT_EQ(at(h[0] - 2 * px, h[1] - 2 * px), Blue) << h[0] << "," << h[1];
        EXPECT_EQ(at(h[0] + 8 * px, h[1] + 8 * px), White) << h[0] << "," << h[1];
    }
    // Between handles only the bold edge: 1 + 3 pixels wide, not a handle.
    EXPECT_EQ(at(0.375, 0.25 + 4 * px), White);
    EXPECT_EQ(at(0.375, 0.25 + px), Blue);
    EXPECT_FALSE(wb.menu("mnuDesignClear").enabled);  // only one function
    EXPECT_TRUE(wb.menu("mnuDesignRotate").enabled);
    EXPECT_TRUE(wb.menu(DesignToolbarKey(4)).enabled);
}

TEST_F(DesignDrawing, SquareHandlesLookFlattenedWithUnequalScales) {
    size(240, 120);  // the same window on half the height: y has half the pixels per unit
    wb.Menu.setChecked("mnuDesignPoly", false);
    wb.Menu.setChecked("mnuDesignAxes", false);
    wb.InitialPolygon = BuiltInPolygon(7);
    setMap(0, 0.5f, 0, 0, 0.5f, 0.25f, 0.25f);
    wb.FunctionColor[0] = Blue;
    DrawSelectedIFS(wb, d, 0, false);
    // The handle's half size is counted in x units; a y unit has half the pixels, so the square is
    // half as tall as it is wide: its filled part reaches 1.5 px along y but 3 px along x in world terms.
    const double h = d.picdesign.pixelsToWorldX(HandleSize) / 2;
    EXPECT_NEAR(d.picdesign.worldToPixelsX(h), 1.5, 1e-9);
    EXPECT_NEAR(d.picdesign.worldToPixelsY(h), 0.75, 1e-9);
    // Off the edge line, above the top edge: the handle reaches further sideways than up.
    const double px = d.picdesign.pixelsToWorldX(1), py = d.picdesign.pixelsToWorldY(1);
    EXPECT_EQ(at(0.5 + 6 * px, 0.75), Blue);
    EXPECT_EQ(at(0.5, 0.75 + 6 * py), White);
}

TEST_F(DesignDrawing, AMapColouredLikeTheFractalBackgroundIsDrawnBlackOrWhite) {
    wb.Menu.setChecked("mnuDesignPoly", false);
    wb.Menu.setChecked("mnuDesignAxes", false);
    setMap(0, 1, 0, 0, 1, 0, 0);
    wb.FunctionColor[0] = wb.FractalBackColor;
    EXPECT_EQ(DesignColorOf(wb, 0), Black);
    DrawDesign(wb, d, false);
    EXPECT_EQ(at(0.5, 0.0), Black);
    wb.DesignBackColor = Black;
    EXPECT_EQ(DesignColorOf(wb, 0), White);
    EXPECT_EQ(DesignColorOf(wb, 0, true), Black);  // the handles keep black
    wb.FunctionColor[0] = Green;
    EXPECT_EQ(DesignColorOf(wb, 0), Green);
}

TEST_F(DesignDrawing, AnIdentityMapShowsNoFixedPoint) {
    wb.Menu.setChecked("mnuDesignPoly", false);
    wb.Menu.setChecked("mnuDesignAxes", false);
    setMap(0, 1, 0, 0, 1, 0, 0);
    float x = 0, y = 0;
    EXPECT_FALSE(FixedPointOf(wb, 0, x, y));
    DrawDesign(wb, d, false);
    const RasterSurface without = d.picdesign;
    wb.Menu.setChecked("mnuDesignFP", true);
    DrawDesign(wb, d, false);
    EXPECT_TRUE(std::equal(without.data(), without.data() + 240 * 240, d.picdesign.data()));
}

TEST_F(DesignDrawing, AContractionShowsItsFixedPointAsABox) {
    wb.Menu.setChecked("mnuDesignPoly", false);
    wb.Menu.setChecked("mnuDesignAxes", false);
    setMap(0, 0.5f, 0, 0, 0.5f, 0.5f, 0.25f);
    wb.FunctionColor[0] = Red;
    float x = 0, y = 0;
    ASSERT_TRUE(FixedPointOf(wb, 0, x, y));
    EXPECT_FLOAT_EQ(x, 1.0f);
    EXPECT_FLOAT_EQ(y, 0.5f);
    wb.Menu.setChecked("mnuDesignFP", true);
    DrawDesign(wb, d, false);
    const double px = d.picdesign.pixelsToWorldX(1);
    EXPECT_EQ(at(1.0 - 3 * px, 0.5 + 3 * px), Red);
}

TEST_F(DesignDrawing, TheGhostInSlot100IsDashedBlackAndThin) {
    wb.Menu.setChecked("mnuDesignPoly", false);
    wb.Menu.setChecked("mnuDesignAxes", false);
    wb.InitialPolygon = BuiltInPolygon(4);  // the unit line (0,0)-(1,0)
    wb.LineThickness = 4;
    setMap(GhostSlot, 1, 0, 0, 1, 0, 0.5f);
    wb.CurrentIFS.nMaps = 1;
    d.picdesign.clear();
    DrawIFS(wb, d, GhostSlot, 1 - wb.LineThickness);
    int64_t c0 = 0, c1 = 0, row = 0;
    ASSERT_TRUE(d.picdesign.toPixel(0.0, 0.5, c0, row));
    ASSERT_TRUE(d.picdesign.toPixel(1.0, 0.5, c1, row));
    int on = 0, off = 0;
    for (int64_t c = c0; c < c1; ++c) (d.picdesign.pixel(static_cast<int>(c), static_cast<int>(row)) == Black ? on : off)++;
    EXPECT_GT(on, off);
    EXPECT_GT(off, 20);
    // Width 1: the rows above and below stay empty.
    EXPECT_EQ(d.picdesign.pixel(static_cast<int>(c0 + 2), static_cast<int>(row - 1)), White);
    EXPECT_EQ(d.picdesign.pixel(static_cast<int>(c0 + 2), static_cast<int>(row + 1)), White);
    EXPECT_FALSE(wb.MapSelected);
}

TEST_F(DesignDrawing, AxesCarryTicksAtEveryInteger) {
    wb.Menu.setChecked("mnuDesignPoly", false);
    wb.DesignWindow = {-2.2f, 2.2f, -2.2f, 2.2f};
    ApplyDesignWindow(d, wb.DesignWindow);
    wb.CurrentIFS.nMaps = 0;
    DrawDesign(wb, d, false);
    const double tick = d.picdesign.pixelsToWorldX(9.6);
    for (double k : {-2.0, -1.0, 1.0, 2.0}) {
        EXPECT_EQ(at(k, tick * 0.4), Black) << k;
        EXPECT_EQ(at(tick * 0.4, k), Black) << k;
        EXPECT_EQ(at(k * 0.75, tick * 0.4), White) << k;
    }
}

TEST_F(DesignDrawing, TheGridIsDottedLightGreyAtMultiplesOfItsSize) {
    wb.Menu.setChecked("mnuDesignPoly", false);
    wb.Menu.setChecked("mnuDesignAxes", false);
    wb.Menu.setChecked("mnuDesignGrid", true);
    wb.GridX = wb.GridY = 0.25f;
    wb.CurrentIFS.nMaps = 0;
    DrawDesign(wb, d, false);
    EXPECT_EQ(d.picTrans, Str(0.25f));
    int64_t col = 0, row = 0;
    ASSERT_TRUE(d.picdesign.toPixel(0.5, 0.5, col, row));
    int grey = 0;
    for (int r = 0; r < 40; ++r) grey += d.picdesign.pixel(static_cast<int>(col), r) == GridColor;
    EXPECT_EQ(grey, 20);  // every other pixel
}

TEST_F(DesignDrawing, OnlyOneFunctionDisablesClearWhateverTheArgument) {
    AdjustDesignMenu(wb, true);
    EXPECT_FALSE(wb.menu("mnuDesignClear").enabled);
    EXPECT_FALSE(wb.menu(DesignToolbarKey(3)).enabled);
    setMap(1, 0.5f, 0, 0, 0.5f, 0.5f, 0);
    AdjustDesignMenu(wb, true);
    EXPECT_TRUE(wb.menu("mnuDesignClear").enabled);
    wb.DesignMode = 1;
    wb.CodeForm = 2;
    AdjustDesignMenu(wb, true);
    EXPECT_FALSE(wb.menu("mnuDesignStretch").enabled);
    EXPECT_TRUE(wb.menu("mnuDesignScale").enabled);
    wb.CodeForm = 0;
    AdjustDesignMenu(wb, true);
    EXPECT_FALSE(wb.menu("mnuDesignScale").enabled);
}

TEST_F(DesignDrawing, RefreshFunctionsWritesTheSelectedRow) {
    setMap(1, 0.5f, 0, 0, 0.5f, 0.5f, 0);
    wb.SelectedMap = 1;
    wb.CurrentIFS.e[1] = 0.75f;
    RefreshFunctions(wb);
    EXPECT_EQ(wb.Table.text(5, 1), "0.750");
}

}  // namespace
}  // namespace quillane::testing
