#include <gtest/gtest.h>

#include "app/fractal_view.h"
#include "render/scale.h"
#include "tests/app/fractal_view_fixture.h"

namespace quillane {
namespace {

TEST(mnuRun, DrawsInRandomModeUnderTheRandomCaption) {
    ViewBench b;
    b.wb.FractalCaption = "Fractal";
    b.stopRunsAfter(5);
    mnuRun_Click(b.wb, b.pics, b.host);
    EXPECT_EQ(b.wb.FractalCaption, "Fractal (Random)");
    EXPECT_EQ(b.wb.FractalWindowCaption, "Fractal (Random)");
    EXPECT_TRUE(b.wb.DrawingStarted);
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_EQ(b.wb.PointCount, 450);
    EXPECT_GT(paintedPixels(b.pics.picfractal), 100);
}

TEST(mnuRun, DoesNothingWhileADrawingIsActive) {
    ViewBench b;
    b.wb.DrawingActive = true;
    b.wb.FractalCaption = "Fractal";
    mnuRun_Click(b.wb, b.pics, b.host);
    EXPECT_EQ(b.host.yields(), 0);
    EXPECT_EQ(b.wb.PointCount, 0);
    EXPECT_EQ(b.wb.FractalCaption, "Fractal");
    EXPECT_EQ(b.pics.RunNumber, 0u);
}

TEST(mnuRun, ATypedWindowWiderThanTheAttractorStaysUntilScaleToFit) {
    ViewBench b(SierpinskiTriangleIFS(), {-5, 5, -5, 5});
    b.stopRunsAfter(3);
    mnuRun_Click(b.wb, b.pics, b.host);
    EXPECT_EQ(b.wb.Window, (WorldWindow{-5, 5, -5, 5}));
    EXPECT_EQ(b.wb.txtWin[2], "-5.000");

    mnuCalcScale_Click(b.wb, b.pics, b.host);
    ViewBench fit;
    ASSERT_TRUE(setscale(fit.wb, fit.host));
    EXPECT_EQ(b.wb.Window, fit.wb.Window);
    EXPECT_NE(b.wb.Window, (WorldWindow{-5, 5, -5, 5}));
    EXPECT_FALSE(b.wb.DrawingStarted);
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 0);
    EXPECT_DOUBLE_EQ(b.pics.picfractal.scaleLeft(), fit.wb.Window.xmin);
}

TEST(mnuCalcScale, IsIgnoredDuringADrawing) {
    ViewBench b(SierpinskiTriangleIFS(), {-5, 5, -5, 5});
    b.wb.DrawingActive = true;
    b.wb.DrawingStarted = true;
    mnuCalcScale_Click(b.wb, b.pics, b.host);
    EXPECT_EQ(b.wb.Window, (WorldWindow{-5, 5, -5, 5}));
    EXPECT_TRUE(b.wb.DrawingStarted);
}

TEST(mnuStop, OnlyClearsDrawingActive) {
    ViewBench b;
    b.host.onYield = [&](int n) {
        if (n == 4) mnuStop_Click(b.wb);
    };
    mnuRun_Click(b.wb, b.pics, b.host);
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_TRUE(b.wb.DrawingStarted);
    EXPECT_EQ(b.wb.PointCount, 250);
}

TEST(mnuClear, ClearsThePictureAndStartsTheOrbitAfresh) {
    ViewBench b;
    b.stopRunsAfter(5);
    mnuRun_Click(b.wb, b.pics, b.host);
    ASSERT_GT(paintedPixels(b.pics.picfractal), 0);
    mnuClear_Click(b.wb, b.pics);
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 0);
    EXPECT_EQ(paintedPixels(b.pics.picImage2), 0);
    EXPECT_EQ(paintedPixels(b.pics.picImageShift), 0);
    EXPECT_EQ(b.wb.PointCount, 0);
    EXPECT_EQ(b.pics.picCount, "");
    EXPECT_FALSE(b.wb.DrawingStarted);
    EXPECT_FALSE(b.wb.DrawingActive);
}

TEST(ClearImage, DropsTheSelectionAndResetsTheZoomCaption) {
    ViewBench b;
    b.pics.Selection.SelectionActive = true;
    b.wb.Menu.setCaption("mnuZoom", ZoomSelectionCaption);
    b.pics.PictureOverlaid = true;
    ClearImage(b.wb, b.pics, true);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.wb.menu("mnuZoom").caption, "Zoom In\tPage Up");
    // The kept picture floats again, to be placed anew.
    EXPECT_TRUE(b.pics.Floating.Visible);
    EXPECT_FALSE(b.pics.PictureOverlaid);
    ClearImage(b.wb, b.pics, false);
    EXPECT_FALSE(b.pics.Floating.Visible);
    EXPECT_TRUE(b.pics.PictureOverlaid);
    ClearImage(b.wb, b.pics, false);
    EXPECT_FALSE(b.pics.PictureOverlaid);
}

TEST(DrawFixedNumber, DrawsTheCountAndCtrlAltDRepeatsIt) {
    ViewBench b;
    DrawFixedNumber(b.wb, b.pics, b.host, 1000);
    EXPECT_EQ(b.wb.PointCount, 1050);
    EXPECT_EQ(b.pics.LastFixedCount, 1000);
    EXPECT_FALSE(FractalKeyDown(b.wb, b.pics, b.host, KeyD, ShiftMaskCtrl));
    EXPECT_EQ(b.wb.PointCount, 1050);
    EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, KeyD, ShiftMaskCtrl | ShiftMaskAlt));
    EXPECT_EQ(b.wb.PointCount, 2050);
    // "Draw until" a number already passed stops at once.
    DrawFixedNumber(b.wb, b.pics, b.host, -500);
    EXPECT_EQ(b.wb.PointCount, 2050);
    EXPECT_EQ(b.pics.LastFixedCount, -500);
}

TEST(FractalKeyDown, QStopsARunningDrawing) {
    ViewBench b;
    bool handled = false;
    b.host.onYield = [&](int n) {
        if (n == 3) handled = FractalKeyDown(b.wb, b.pics, b.host, KeyQ, 0);
    };
    mnuRun_Click(b.wb, b.pics, b.host);
    EXPECT_TRUE(handled);
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_EQ(b.wb.PointCount, 150);
}

TEST(FractalKeyDown, PageDownZoomsOutByFivePercentWithUndo) {
    ViewBench b;
    EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, KeyPageDown, 0));
    EXPECT_FLOAT_EQ(b.wb.Window.xmax, 1.05f);
    EXPECT_FLOAT_EQ(b.wb.Window.ymin, -1.05f);
    EXPECT_EQ(b.wb.menu("mnuUndo").caption, "&Undo Zoom");
}

TEST(FractalKeyDown, DeleteClearsAndKeepsAPlacedPictureOnlyWithCtrl) {
    ViewBench b;
    b.stopRunsAfter(3);
    mnuRun_Click(b.wb, b.pics, b.host);
    b.pics.PictureOverlaid = true;
    EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, KeyDelete, ShiftMaskCtrl));
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 0);
    EXPECT_FALSE(b.wb.DrawingStarted);
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_EQ(b.wb.PointCount, 0);
    EXPECT_TRUE(b.pics.Floating.Visible);
    EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, KeyDelete, 0));
    EXPECT_TRUE(b.pics.PictureOverlaid);
    EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, KeyDelete, 0));
    EXPECT_FALSE(b.pics.PictureOverlaid);
}

TEST(FractalKeyDown, ArrowsAndDeleteAreNotForADeterministicDrawing) {
    ViewBench b;
    b.wb.RandomMode = false;
    b.wb.DrawingActive = true;
    b.wb.PointCount = 9;
    EXPECT_FALSE(FractalKeyDown(b.wb, b.pics, b.host, KeyLeft, 0));
    EXPECT_FALSE(FractalKeyDown(b.wb, b.pics, b.host, KeyDelete, 0));
    EXPECT_EQ(b.wb.Window, (WorldWindow{-1, 1, -1, 1}));
    EXPECT_EQ(b.wb.PointCount, 9);
    EXPECT_FALSE(FractalKeyDown(b.wb, b.pics, b.host, 'X', 0));
}

TEST(ZoomOut, DuringARunRestartsTheDrawingAndTheInterruptedRunEndsWithIt) {
    ViewBench b;
    uint32_t outerRun = 0;
    int32_t countAtStop = -1;
    b.host.onYield = [&](int n) {
        if (n == 3) {
            outerRun = b.pics.RunNumber;
            EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, KeyPageDown, 0));
        } else if (n == 10) {
            b.wb.DrawingActive = false;
            countAtStop = b.wb.PointCount;
        }
    };
    mnuRun_Click(b.wb, b.pics, b.host);  // yield 1 is the one before the run
    EXPECT_EQ(b.pics.RunNumber, outerRun + 1);
    // The interrupted run did not go on after the inner one ended: no more yields, no more points.
    EXPECT_EQ(b.host.yields(), 10);
    EXPECT_EQ(b.wb.PointCount, countAtStop);
    EXPECT_EQ(b.wb.PointCount, 50 + 6 * 100);
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_EQ(b.wb.FractalWindowCaption, "Fractal (Random)");
    EXPECT_EQ(b.wb.menu("mnuUndo").caption, "&Undo Zoom");
    EXPECT_FLOAT_EQ(b.wb.Window.xmax, 1.05f);
    EXPECT_EQ(pixelsOf(b.pics.picImage2), pixelsOf(b.pics.picfractal));
    EXPECT_EQ(pixelsOf(b.pics.picImageShift), pixelsOf(b.pics.picfractal));
    // Every dot of the picture lies where the new view puts the unit square.
    int64_t c0, r0, c1, r1;
    ASSERT_TRUE(b.pics.picfractal.toPixel(0, 1, c0, r0));
    ASSERT_TRUE(b.pics.picfractal.toPixel(1, 0, c1, r1));
    EXPECT_EQ(paintedOutside(b.pics.picfractal, c0, c1, r0, r1), 0);
    EXPECT_GT(paintedPixels(b.pics.picfractal), 100);
    // The drawing of the old view is kept for Undo Zoom.
    EXPECT_GT(paintedPixels(b.pics.picImage3), 50);
}

TEST(ShiftDrawWin, DuringARunTheDrawingGoesOnInTheShiftedView) {
    // Every plotted point is the fixed point (0.5, 0.5); one unit is 100 pixels.
    ViewBench b(contractionTo(0.5f, 0.5f), {-1, 1, -1, 1}, 200);
    int64_t oldCol = 0, oldRow = 0;
    ASSERT_TRUE(b.pics.picfractal.toPixel(0.5, 0.5, oldCol, oldRow));
    b.host.onYield = [&](int n) {
        if (n == 3) {
            EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, KeyRight, 0));
        }
        if (n == 7) b.wb.DrawingActive = false;
    };
    mnuRun_Click(b.wb, b.pics, b.host);
    EXPECT_FLOAT_EQ(b.wb.Window.xmin, -0.98f);
    int64_t newCol = 0, newRow = 0;
    ASSERT_TRUE(b.pics.picfractal.toPixel(0.5, 0.5, newCol, newRow));
    ASSERT_LT(newCol, oldCol);
    EXPECT_EQ(b.pics.picfractal.pixel(static_cast<int>(newCol), static_cast<int>(newRow)), RGB(255, 0, 0));
    EXPECT_EQ(b.pics.picfractal.pixel(static_cast<int>(oldCol), static_cast<int>(oldRow)), White);
    // The count started again at the shift (whose own yield is the 4th): yields at 50, 150 and 250.
    EXPECT_EQ(b.wb.PointCount, 250);
}

TEST(PlayGame, ARunRemovesAStandingSelection) {
    ViewBench b;
    FractalMouseDown(b.wb, b.pics, -0.5, -0.5, 0);
    FractalMouseUp(b.wb, b.pics, 0.5, 0.5);
    ASSERT_TRUE(b.pics.Selection.SelectionActive);
    ASSERT_NE(pixelsOf(b.pics.picfractal), pixelsOf(b.pics.picImage2));
    b.stopRunsAfter(3);
    mnuRun_Click(b.wb, b.pics, b.host);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.wb.menu("mnuZoom").caption, ZoomInCaption);
    EXPECT_EQ(pixelsOf(b.pics.picfractal), pixelsOf(b.pics.picImage2));
}

TEST(ResizeFractalWin, GivesEveryPictureTheNewSideAndErasesTheDrawing) {
    ViewBench b;
    b.stopRunsAfter(3);
    mnuRun_Click(b.wb, b.pics, b.host);
    ResizeFractalWin(b.wb, b.pics, 80);
    for (const RasterSurface* s :
         {&b.pics.picfractal, &b.pics.picImage2, &b.pics.picImage3, &b.pics.picImageShift, &b.pics.picImage,
          &b.pics.picMask, &b.pics.picImage4}) {
        EXPECT_EQ(s->width(), 80);
        EXPECT_EQ(s->height(), 80);
        EXPECT_EQ(paintedPixels(*s), 0);
        EXPECT_DOUBLE_EQ(s->scaleLeft(), -1);
        EXPECT_DOUBLE_EQ(s->scaleBottom(), -1);
    }
    EXPECT_FALSE(b.wb.DrawingStarted);
    EXPECT_EQ(b.wb.PointCount, 0);
    EXPECT_EQ(b.wb.Window, (WorldWindow{-1, 1, -1, 1}));
}

TEST(ResizeFractalWin, DuringARunEndsIt) {
    ViewBench b;
    b.host.onYield = [&](int n) {
        if (n == 3) ResizeFractalWin(b.wb, b.pics, 100);
    };
    mnuRun_Click(b.wb, b.pics, b.host);
    EXPECT_EQ(b.host.yields(), 3);
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_EQ(b.pics.picfractal.width(), 100);
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 0);
}

TEST(FractalSizeText, ShowsWidthByHeight) {
    EXPECT_EQ(FractalSizeText(400, 400), "400 x 400");
    EXPECT_EQ(FractalSizeText(1, 2112), "1 x 2112");
}

}  // namespace
}  // namespace quillane
