#include <gtest/gtest.h>

#include "app/design_keys.h"
#include "app/design_picture_commands.h"
#include "app/design_view.h"
#include "app/fractal_view.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"

namespace quillane::testing {
namespace {

constexpr Color Orange = 0x0080FF;

RasterSurface filled(int w, int h, Color c) {
    RasterSurface s(w, h, c);
    s.clear();
    return s;
}

// A design area 200 x 100 pixels showing x 0..2, y 0..1: 100 pixels a unit both ways.
class DesignPictureTest : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(wb.Menu);
        d.resize(200, 100, White);
        wb.DesignWindow = {0, 2, 0, 1};
        ApplyDesignWindow(d, wb.DesignWindow);
    }
    FloatingPicture pasted(int w, int h) {
        const RasterSurface picture = filled(w, h, Orange);
        EXPECT_TRUE(PasteDesignPicture(wb, d, &picture));
        return d.Floating;
    }
    int countIn(int left, int top, int right, int bottom, Color c) const {
        int n = 0;
        for (int r = top; r < bottom; ++r)
            for (int k = left; k < right; ++k) n += d.picdesign.pixel(k, r) == c;
        return n;
    }
    Workbench wb;
    DesignPictures d;
    ScriptedHost host;
};

TEST_F(DesignPictureTest, APictureThatFitsKeepsItsSizeCentred) {
    const FloatingPicture f = pasted(50, 40);
    EXPECT_EQ(f.Width, 50);
    EXPECT_EQ(f.Height, 40);
    EXPECT_EQ(f.Left, 75);
    EXPECT_EQ(f.Top, 30);
    EXPECT_TRUE(f.Visible);
    EXPECT_TRUE(wb.menu("mnuDesignClearPict").enabled);
}

TEST_F(DesignPictureTest, AWiderPictureTakesTheWidthAndItsOwnRatioOfTheHeight) {
    // w = 4, h = 1: width W = 2, height (h / w) H = 0.25; a fit by proportions would give 0.5.
    const FloatingPicture f = pasted(400, 100);
    EXPECT_EQ(f.Width, 200);
    EXPECT_EQ(f.Height, 25);
    EXPECT_EQ(f.Left, 0);
    EXPECT_EQ(f.Top, 37);
}

TEST_F(DesignPictureTest, ATallerPictureTakesTheHeightAndItsOwnRatioOfTheWidth) {
    // w = 1, h = 3: height H = 1, width (w / h) W = 2/3; a fit by proportions would give 1/3.
    const FloatingPicture f = pasted(100, 300);
    EXPECT_EQ(f.Height, 100);
    EXPECT_EQ(f.Width, 67);
    EXPECT_EQ(f.Top, 0);
    EXPECT_EQ(f.Left, 66);
}

TEST_F(DesignPictureTest, ALargerSquarePictureFillsTheArea) {
    const FloatingPicture f = pasted(300, 300);
    EXPECT_EQ(f.Width, 200);
    EXPECT_EQ(f.Height, 100);
}

TEST_F(DesignPictureTest, TheCornersArePrintedInPicCoord) {
    pasted(50, 40);
    EXPECT_EQ(d.picCoord, "(0.750,0.700) (1.250,0.300)");
}

TEST_F(DesignPictureTest, PasteIsRefusedInPolygonModeOrWithASelectionShowing) {
    const RasterSurface picture = filled(10, 10, Orange);
    d.Poly.PolygonMode = true;
    EXPECT_FALSE(PasteDesignPicture(wb, d, &picture));
    d.Poly.PolygonMode = false;
    EXPECT_FALSE(PasteDesignPicture(wb, d, nullptr));
    ASSERT_TRUE(PasteDesignPicture(wb, d, &picture));
    EXPECT_FALSE(PasteDesignPicture(wb, d, &picture));
}

TEST_F(DesignPictureTest, PasteDeselectsTheMap) {
    wb.MapSelected = true;
    pasted(10, 10);
    EXPECT_FALSE(wb.MapSelected);
}

TEST_F(DesignPictureTest, LoadingIsRefusedWhilePolygonPointsExist) {
    d.Poly.PolygonMode = true;
    d.Poly.PolygonPointCount = 2;
    host.fileNames.push_back(std::string("never asked.png"));
    EXPECT_FALSE(mnuDesignLoadPicture_Click(wb, d, host));
    EXPECT_TRUE(host.dialogs().empty());
}

TEST_F(DesignPictureTest, LoadingOffersThePictureFilters) {
    host.fileNames.push_back(std::nullopt);
    EXPECT_FALSE(mnuDesignLoadPicture_Click(wb, d, host));
    ASSERT_EQ(host.dialogs().size(), 1u);
    const auto& filters = host.dialogs()[0].filters;
    ASSERT_EQ(filters.size(), 5u);
    EXPECT_EQ(filters[0].description, "Images (*.gif; *.png; *.jpg; *.jpeg; *.bmp)");
    EXPECT_EQ(filters[1].description, "GIF images (*.gif)");
    EXPECT_EQ(filters[2].description, "PNG images (*.png)");
    EXPECT_EQ(filters[3].description, "JPG images (*.jpg, *.jpeg)");
    EXPECT_EQ(filters[4].description, "bitmap images (*.bmp)");
    EXPECT_FALSE(d.Floating.Visible);
}

TEST_F(DesignPictureTest, APlacedPictureStaysBehindEveryRedraw) {
    pasted(50, 40);
    PlaceDesignSelection(wb, d);
    EXPECT_FALSE(d.Floating.Visible);
    EXPECT_TRUE(d.PictureInPlace);
    EXPECT_TRUE(d.PastePlaced);
    // The design is drawn over the picture: most of its 50 x 40 pixels show, none outside it.
    auto orangeInside = [this] { return countIn(75, 30, 125, 70, Orange); };
    EXPECT_GT(orangeInside(), 1800);
    EXPECT_EQ(countIn(0, 0, 200, 100, Orange), orangeInside());
    RedrawDesignView(wb, d);
    EXPECT_GT(orangeInside(), 1800);
    d.picdesign.clear();
    EXPECT_EQ(orangeInside(), 2000);
}

TEST_F(DesignPictureTest, EscPlacesThenLiftsThePictureAgain) {
    pasted(50, 40);
    ASSERT_TRUE(DesignKeyDown(wb, d, KeyEscape27, 0, false));
    EXPECT_TRUE(d.PictureInPlace);
    ASSERT_TRUE(DesignKeyDown(wb, d, KeyEscape27, 0, false));
    EXPECT_FALSE(d.PictureInPlace);
    EXPECT_TRUE(d.Floating.Visible);
    EXPECT_EQ(d.Floating.Left, 75);
    EXPECT_EQ(d.picPaste.width(), 50);
    d.picdesign.clear();
    EXPECT_EQ(countIn(0, 0, 200, 100, Orange), 0);
}

TEST_F(DesignPictureTest, DeleteDropsASelectionThenClearsAPlacedPicture) {
    pasted(50, 40);
    ASSERT_TRUE(DesignKeyDown(wb, d, 46, 0, false));
    EXPECT_FALSE(d.Floating.Visible);
    EXPECT_TRUE(d.picCoord.empty());
    EXPECT_FALSE(wb.menu("mnuDesignClearPict").enabled);
    pasted(50, 40);
    PlaceDesignSelection(wb, d);
    ASSERT_TRUE(DesignKeyDown(wb, d, 8, 0, false));
    EXPECT_FALSE(d.PictureInPlace);
    d.picdesign.clear();
    EXPECT_EQ(countIn(0, 0, 200, 100, Orange), 0);
}

TEST_F(DesignPictureTest, CtrlAltRTogglesTheGrabHandles) {
    pasted(50, 40);
    ASSERT_TRUE(d.Floating.ResizeHandles);
    ASSERT_TRUE(DesignKeyDown(wb, d, 'R', ShiftMaskCtrl | ShiftMaskAlt, false));
    EXPECT_FALSE(d.Floating.ResizeHandles);
    EXPECT_FALSE(wb.menu("mnuPicPastePopUpResize").checked);
}

TEST_F(DesignPictureTest, PasteDataPlacesThePictureByItsCorner) {
    pasted(50, 40);
    PasteDataText t{"0.5", "0.9", "1", "0.5", 0};
    ASSERT_EQ(CheckPasteData(t), "");
    ApplyPasteData(DesignPasteArea(d), t);
    EXPECT_EQ(d.Floating.Left, 50);
    EXPECT_EQ(d.Floating.Top, 10);
    EXPECT_EQ(d.Floating.Width, 100);
    EXPECT_EQ(d.Floating.Height, 50);
    EXPECT_EQ(d.picPaste.width(), 100);
    EXPECT_EQ(CheckPasteData({"0.5", "0.9", "0", "0.5", 0}), "Cannot evaluate expression for weight  ");
    EXPECT_EQ(CheckPasteData({"x+", "0.9", "1", "0.5", 0}), "Cannot evaluate expression for x  ");
}

}  // namespace
}  // namespace quillane::testing
