#include "app/fractal_view.h"

#include <gtest/gtest.h>

#include "core/numbers.h"
#include "render/scale.h"
#include "tests/app/fractal_view_fixture.h"

namespace quillane {
namespace {

using Messages = std::vector<ShownMessage>;

void expectWindow(const Workbench& wb, float xmin, float xmax, float ymin, float ymax) {
    EXPECT_FLOAT_EQ(wb.Window.xmin, xmin);
    EXPECT_FLOAT_EQ(wb.Window.xmax, xmax);
    EXPECT_FLOAT_EQ(wb.Window.ymin, ymin);
    EXPECT_FLOAT_EQ(wb.Window.ymax, ymax);
}

TEST(ZoomOut, EachMenuPercentageWidensTheSideAboutTheCentre) {
    const struct {
        int percent;
        float half;
    } cases[] = {{5, 1.05f}, {25, 1.25f}, {50, 1.5f}, {100, 2.0f}};
    for (const auto& c : cases) {
        ViewBench b;
        ZoomOut(b.wb, b.pics, b.host, c.percent, true);
        expectWindow(b.wb, -c.half, c.half, -c.half, c.half);
        EXPECT_EQ(b.wb.txtWin[0], Format(c.half, "0.000"));
        EXPECT_EQ(b.wb.txtWin[2], Format(-c.half, "0.000"));
        EXPECT_EQ(b.wb.UndoWindow, (WorldWindow{-1, 1, -1, 1}));
        EXPECT_DOUBLE_EQ(b.pics.picfractal.scaleRight(), c.half);
        EXPECT_TRUE(b.pics.LastChangeWasZoom);
    }
}

TEST(ZoomOut, TheZoomInStepShrinksTheSideByFivePercent) {
    ViewBench b;
    ZoomOut(b.wb, b.pics, b.host, -5, true);
    expectWindow(b.wb, -0.95f, 0.95f, -0.95f, 0.95f);
    EXPECT_FLOAT_EQ(sideOf(b.wb.Window), 2 * 0.95f);
    EXPECT_EQ(b.wb.txtWin[3], "0.950");
    // Page Up without a selection is the same step.
    ViewBench k;
    EXPECT_TRUE(FractalKeyDown(k.wb, k.pics, k.host, KeyPageUp, 0));
    EXPECT_EQ(k.wb.Window, b.wb.Window);
}

TEST(ZoomOut, OffersUndoZoomOnlyWhenAsked) {
    ViewBench b;
    ZoomOut(b.wb, b.pics, b.host, 25, false);
    EXPECT_FALSE(b.wb.menu("mnuUndo").caption == UndoZoomCaption);
    ZoomOut(b.wb, b.pics, b.host, 25, true);
    EXPECT_EQ(b.wb.menu("mnuUndo").caption, "&Undo Zoom");
    EXPECT_TRUE(b.wb.menu("mnuUndo").enabled);
    EXPECT_TRUE(b.wb.menu("tbrMain(8)").enabled);
    EXPECT_EQ(b.wb.ZoomUndoSource, 1);
}

TEST(ZoomOut, WithoutAStartedDrawingOnlyClearsTheView) {
    ViewBench b;
    b.pics.picfractal.pset(0.5, 0.5, Black);
    b.pics.picImage2.pset(0.5, 0.5, Black);
    ZoomOut(b.wb, b.pics, b.host, 50, true);
    EXPECT_EQ(b.host.yields(), 0);
    EXPECT_FALSE(b.wb.DrawingActive);
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 0);
    EXPECT_EQ(paintedPixels(b.pics.picImage2), 0);
    // The old view waits in picImage3 for Undo Zoom.
    EXPECT_EQ(paintedPixels(b.pics.picImage3), 1);
}

TEST(ZoomOut, AfterADrawingHasStartedRedrawsTheNewView) {
    ViewBench b;
    b.stopRunsAfter(20);
    mnuRun_Click(b.wb, b.pics, b.host);
    ASSERT_TRUE(b.wb.DrawingStarted);
    const int yieldsBefore = b.host.yields();
    ZoomOut(b.wb, b.pics, b.host, 100, true);
    EXPECT_EQ(b.host.yields() - yieldsBefore, 20);
    EXPECT_EQ(b.wb.PointCount, 50 + 19 * 100);
    // The triangle on the unit square lies in the upper right quarter of -2..2.
    EXPECT_EQ(paintedOutside(b.pics.picfractal, 32, 48, 16, 32), 0);
    EXPECT_GT(paintedPixels(b.pics.picfractal), 50);
}

TEST(ZoomOut, InDeterministicModeDuringADrawingDoesNothing) {
    ViewBench b;
    b.wb.RandomMode = false;
    b.wb.DrawingActive = true;
    ZoomOut(b.wb, b.pics, b.host, 100, true);
    expectWindow(b.wb, -1, 1, -1, 1);
    EXPECT_TRUE(b.host.shown().empty());
}

TEST(ZoomOut, APlacedPictureIsPaintedBackIntoTheNewView) {
    ViewBench b;
    b.pics.picPaste = RasterSurface(4, 4, Black);
    b.pics.PictureOverlaid = true;
    b.pics.PasteX = 0;
    b.pics.PasteY = 0;
    ZoomOut(b.wb, b.pics, b.host, 100, true);
    EXPECT_TRUE(b.pics.PictureOverlaid);
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 16);
    EXPECT_EQ(b.pics.picfractal.point(0.01, -0.01), Black);
    EXPECT_EQ(pixelsOf(b.pics.picImage2), pixelsOf(b.pics.picfractal));
    EXPECT_EQ(pixelsOf(b.pics.picImageShift), pixelsOf(b.pics.picfractal));
}

TEST(UndoZoom, TwoZoomOutsBy200PercentMultiplyTheSideByFourAndOneUndoGoesBackOneStep) {
    ViewBench b;
    b.stopRunsAfter(30);
    mnuRun_Click(b.wb, b.pics, b.host);
    const std::vector<Color> first = pixelsOf(b.pics.picImage2);

    ZoomOut(b.wb, b.pics, b.host, 100, true);
    EXPECT_FLOAT_EQ(sideOf(b.wb.Window), 4);
    EXPECT_EQ(pixelsOf(b.pics.picImage3), first);
    const std::vector<Color> second = pixelsOf(b.pics.picImage2);
    const int32_t secondCount = b.wb.PointCount;
    ASSERT_NE(second, first);

    ZoomOut(b.wb, b.pics, b.host, 100, true);
    expectWindow(b.wb, -4, 4, -4, 4);
    EXPECT_FLOAT_EQ(sideOf(b.wb.Window), 4 * 2);
    ASSERT_NE(pixelsOf(b.pics.picfractal), second);

    b.wb.PointCount = 77;  // the third drawing's count, which the undo must replace
    UndoZoom(b.wb, b.pics, b.host);
    expectWindow(b.wb, -2, 2, -2, 2);
    EXPECT_EQ(b.wb.txtWin, (std::array<std::string, 4>{"2.000", "-2.000", "-2.000", "2.000"}));
    EXPECT_EQ(pixelsOf(b.pics.picfractal), second);
    EXPECT_EQ(pixelsOf(b.pics.picImage2), second);
    EXPECT_EQ(pixelsOf(b.pics.picImageShift), second);
    EXPECT_EQ(b.wb.PointCount, secondCount);
    EXPECT_EQ(b.pics.picCount, std::to_string(secondCount - 50));
    EXPECT_DOUBLE_EQ(b.pics.picfractal.scaleLeft(), -2);
    EXPECT_EQ(b.wb.menu("mnuUndo").caption, "&Undo");
    EXPECT_FALSE(b.wb.menu("mnuUndo").enabled);
    EXPECT_FALSE(b.wb.menu("tbrMain(8)").enabled);

    // Only one step: a second undo finds nothing to undo.
    UndoZoom(b.wb, b.pics, b.host);
    expectWindow(b.wb, -2, 2, -2, 2);
    EXPECT_EQ(pixelsOf(b.pics.picfractal), second);
}

TEST(UndoZoom, IsIgnoredWhileDrawingAndForTheDesignWindowsZoom) {
    ViewBench b;
    ZoomOut(b.wb, b.pics, b.host, 100, true);
    b.wb.DrawingActive = true;
    UndoZoom(b.wb, b.pics, b.host);
    expectWindow(b.wb, -2, 2, -2, 2);
    b.wb.DrawingActive = false;
    b.wb.ZoomUndoSource = 0;
    UndoZoom(b.wb, b.pics, b.host);
    expectWindow(b.wb, -2, 2, -2, 2);
    b.wb.ZoomUndoSource = 1;
    UndoZoom(b.wb, b.pics, b.host);
    expectWindow(b.wb, -1, 1, -1, 1);
}

TEST(ResetUndoMenu, LeavesAPlainDisabledUndo) {
    ViewBench b;
    ZoomOut(b.wb, b.pics, b.host, 5, true);
    ResetUndoMenu(b.wb);
    EXPECT_EQ(b.wb.menu("mnuUndo").caption, "&Undo");
    EXPECT_FALSE(b.wb.menu("mnuUndo").enabled);
    EXPECT_FALSE(b.wb.menu("tbrMain(8)").enabled);
}

TEST(Restore, FitsTheAttractorAndLeavesTheDrawingToBeStartedAgain) {
    ViewBench b;
    b.stopRunsAfter(10);
    mnuRun_Click(b.wb, b.pics, b.host);
    const std::vector<Color> drawn = pixelsOf(b.pics.picImage2);
    const int32_t count = b.wb.PointCount;
    const int yields = b.host.yields();

    EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, KeyHome, 0));
    ViewBench fit;
    ASSERT_TRUE(setscale(fit.wb, fit.host));
    EXPECT_EQ(b.wb.Window, fit.wb.Window);
    EXPECT_NE(b.wb.Window, (WorldWindow{-1, 1, -1, 1}));
    EXPECT_FALSE(b.wb.DrawingStarted);
    EXPECT_EQ(b.host.yields(), yields);  // no new run
    EXPECT_EQ(b.wb.PointCount, 0);
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 0);

    UndoZoom(b.wb, b.pics, b.host);
    expectWindow(b.wb, -1, 1, -1, 1);
    EXPECT_EQ(pixelsOf(b.pics.picfractal), drawn);
    EXPECT_EQ(b.wb.PointCount, count);
}

TEST(RestoreFractalScale, PutsTheUndoWindowBackIntoTheBoxes) {
    ViewBench b;
    b.wb.UndoWindow = {-3, 3, -2, 4};
    RestoreFractalScale(b.wb, b.pics);
    EXPECT_EQ(b.wb.Window, (WorldWindow{-3, 3, -2, 4}));
    EXPECT_EQ(b.wb.txtWin, (std::array<std::string, 4>{"4.000", "-2.000", "-3.000", "3.000"}));
}

TEST(FreezeScale, DisablesTheSixCommandsAndItsReleaseEnablesThem) {
    ViewBench b;
    const char* six[] = {"mnuCalcScale", "mnuDrawScaleDesign", "mnuDrawShift", "mnuDrawZoom",
                         "mnuZoom",      "mnuDrawRestore"};
    mnuDrawFreezeScale_Click(b.wb);
    EXPECT_TRUE(b.wb.menu("mnuDrawFreezeScale").checked);
    for (const char* k : six) EXPECT_FALSE(b.wb.menu(k).enabled) << k;
    mnuDrawFreezeScale_Click(b.wb);
    EXPECT_FALSE(b.wb.menu("mnuDrawFreezeScale").checked);
    for (const char* k : six) EXPECT_TRUE(b.wb.menu(k).enabled) << k;
}

TEST(FreezeScale, ZoomAndShiftKeysShowTheMessageAndLeaveTheWindow) {
    ViewBench b;
    mnuDrawFreezeScale_Click(b.wb);
    for (int key : {KeyPageUp, KeyPageDown, KeyHome, KeyLeft, KeyUp, KeyRight, KeyDown})
        EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, key, 0));
    ZoomOut(b.wb, b.pics, b.host, 100, true);
    ZoomIn(b.wb, b.pics, b.host);
    ShiftDrawWin(b.wb, b.pics, b.host, KeyLeft);
    EXPECT_EQ(b.host.shown(), Messages(10, ShownMessage{"Not permitted", "Scale is frozen"}));
    EXPECT_EQ(b.host.shown()[0].icon, MessageIcon::Warning);
    expectWindow(b.wb, -1, 1, -1, 1);
    EXPECT_NE(b.wb.menu("mnuUndo").caption, UndoZoomCaption);
}

TEST(ShiftDrawWin, MovesTheWindowByOnePercentInEachDirection) {
    const struct {
        int key;
        WorldWindow expected;
    } cases[] = {{KeyLeft, {-1, 99, 0, 100}},
                 {KeyUp, {0, 100, 1, 101}},
                 {KeyRight, {1, 101, 0, 100}},
                 {KeyDown, {0, 100, -1, 99}}};
    for (const auto& c : cases) {
        ViewBench b(SierpinskiTriangleIFS(), {0, 100, 0, 100}, 100);
        EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, c.key, 0));
        EXPECT_EQ(b.wb.Window, c.expected) << c.key;
        EXPECT_EQ(b.wb.UndoWindow, (WorldWindow{0, 100, 0, 100}));
        EXPECT_EQ(b.host.yields(), 1);
    }
}

TEST(ShiftDrawWin, SlidesTheOldPictureAndLeavesTheUncoveredStripEmpty) {
    const struct {
        int key, dc, dr;
    } cases[] = {{KeyLeft, 1, 0}, {KeyUp, 0, 1}, {KeyRight, -1, 0}, {KeyDown, 0, -1}};
    for (const auto& c : cases) {
        // One unit a pixel, so 1% of the side is exactly one pixel.
        ViewBench b(SierpinskiTriangleIFS(), {0, 100, 0, 100}, 100);
        b.pics.picImage2.box(0, 0, 100, 100, Black, true);
        b.pics.picImage2.setPixel(50, 40, RGB(255, 0, 0));
        FinishPlayGame(b.wb, b.pics);  // picImageShift takes the drawing, as at the end of a run
        ShiftDrawWin(b.wb, b.pics, b.host, c.key);
        const RasterSurface& f = b.pics.picfractal;
        EXPECT_EQ(f.pixel(50 + c.dc, 40 + c.dr), RGB(255, 0, 0)) << c.key;
        EXPECT_EQ(f.pixel(50, 40), Black) << c.key;
        // The strip that came into view is empty.
        for (int k = 0; k < 100; ++k) {
            const int col = c.dc > 0 ? 0 : (c.dc < 0 ? 99 : k);
            const int row = c.dr > 0 ? 0 : (c.dr < 0 ? 99 : k);
            ASSERT_EQ(f.pixel(col, row), White) << c.key;
        }
        EXPECT_EQ(pixelsOf(b.pics.picImage2), pixelsOf(f));
    }
}

TEST(ShiftDrawWin, TwoShiftsKeepTheOldPictureInItsPlaceOfThePlane) {
    ViewBench b(SierpinskiTriangleIFS(), {0, 100, 0, 100}, 100);
    b.pics.picImage2.setPixel(50, 40, Black);
    FinishPlayGame(b.wb, b.pics);
    ShiftDrawWin(b.wb, b.pics, b.host, KeyLeft);
    ShiftDrawWin(b.wb, b.pics, b.host, KeyLeft);
    EXPECT_EQ(b.pics.picfractal.pixel(52, 40), Black);
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 1);
}

TEST(ShiftDrawWin, ResetsTheCountTheSelectionAndTheUndoMenu) {
    ViewBench b;
    ZoomOut(b.wb, b.pics, b.host, 5, true);
    b.wb.PointCount = 1234;
    b.pics.Selection.SelectionActive = true;
    b.wb.Menu.setCaption("mnuZoom", ZoomSelectionCaption);
    ShiftDrawWin(b.wb, b.pics, b.host, KeyUp);
    EXPECT_EQ(b.wb.PointCount, 0);
    EXPECT_EQ(b.pics.SavedPointCount, 1234);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.wb.menu("mnuZoom").caption, ZoomInCaption);
    EXPECT_EQ(b.wb.menu("mnuUndo").caption, "&Undo");
    EXPECT_FALSE(b.wb.menu("mnuUndo").enabled);
    EXPECT_FALSE(b.pics.LastChangeWasZoom);
}

TEST(ZoomIn, ZoomsToTheSelectionWithEachPairOrdered) {
    ViewBench b;
    b.stopRunsAfter(8);
    mnuRun_Click(b.wb, b.pics, b.host);
    b.stopRunsAfter(5);
    const std::vector<Color> drawn = pixelsOf(b.pics.picImage2);
    const int32_t count = b.wb.PointCount;
    ASSERT_EQ(count, 750);
    // Dragged from the lower right to the upper left.
    FractalMouseDown(b.wb, b.pics, 0.5, -0.25, 0);
    FractalMouseMove(b.wb, b.pics, -0.25, 0.5);
    FractalMouseUp(b.wb, b.pics, -0.25, 0.5);
    ASSERT_TRUE(b.pics.Selection.SelectionActive);
    EXPECT_TRUE(FractalKeyDown(b.wb, b.pics, b.host, KeyPageUp, 0));
    expectWindow(b.wb, -0.25f, 0.5f, -0.25f, 0.5f);
    EXPECT_EQ(b.wb.txtWin, (std::array<std::string, 4>{"0.500", "-0.250", "-0.250", "0.500"}));
    EXPECT_EQ(b.wb.UndoWindow, (WorldWindow{-1, 1, -1, 1}));
    EXPECT_EQ(b.pics.SavedPointCount, count);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.wb.menu("mnuZoom").caption, ZoomInCaption);
    EXPECT_EQ(b.wb.menu("mnuUndo").caption, "&Undo Zoom");
    EXPECT_TRUE(b.pics.LastChangeWasZoom);
    // The selection zoom always draws the new view.
    EXPECT_EQ(b.wb.PointCount, 450);
    EXPECT_NE(pixelsOf(b.pics.picfractal), drawn);
    UndoZoom(b.wb, b.pics, b.host);
    expectWindow(b.wb, -1, 1, -1, 1);
    EXPECT_EQ(b.wb.PointCount, count);
    EXPECT_EQ(pixelsOf(b.pics.picfractal), drawn);
}

// Page Up with no selection: every press takes 5% off the side about the centre and writes the boxes.
TEST(ZoomIn, TenPressesWithoutASelectionShrinkFivePercentEachAboutTheCentre) {
    ViewBench v(SierpinskiTriangleIFS(), {-0.05f, 1.05f, -0.05f, 1.05f});
    double side = 1.1;
    for (int press = 1; press <= 10; ++press) {
        ZoomIn(v.wb, v.pics, v.host);
        side *= 0.95;
        const WorldWindow& w = v.wb.Window;
        // The boxes hold three decimals and the window is read back from them, so each step may round.
        EXPECT_NEAR(w.xmax - w.xmin, side, 0.001 * press) << press;
        EXPECT_NEAR(w.ymax - w.ymin, side, 0.001 * press) << press;
        EXPECT_NEAR((w.xmin + w.xmax) / 2, 0.5, 0.001) << press;
        EXPECT_NEAR((w.ymin + w.ymax) / 2, 0.5, 0.001) << press;
        EXPECT_EQ(v.wb.txtWin, (std::array<std::string, 4>{Format(w.ymax, "0.000"), Format(w.ymin, "0.000"),
                                                          Format(w.xmin, "0.000"), Format(w.xmax, "0.000")}))
            << press;
    }
}

TEST(mnuZoom, DoesNothingOnceADeterministicDrawingHasLevels) {
    ViewBench b;
    b.wb.RandomMode = false;
    b.wb.IterationNumber = 2;
    mnuZoom_Click(b.wb, b.pics, b.host);
    expectWindow(b.wb, -1, 1, -1, 1);
    b.wb.RandomMode = true;
    mnuZoom_Click(b.wb, b.pics, b.host);
    expectWindow(b.wb, -0.95f, 0.95f, -0.95f, 0.95f);
}

}  // namespace
}  // namespace quillane
