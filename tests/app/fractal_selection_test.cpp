#include <gtest/gtest.h>

#include "app/fractal_view.h"
#include "tests/app/fractal_view_fixture.h"

namespace quillane {
namespace {

// A bench whose picture holds a drawing, so that erasing back to picImage2 can be seen.
struct SelectionBench : ViewBench {
    SelectionBench() {
        stopRunsAfter(5);
        mnuRun_Click(wb, pics, host);
    }
    void drag(double x1, double y1, double x2, double y2, int mask = 0) {
        FractalMouseDown(wb, pics, x1, y1, mask);
        FractalMouseMove(wb, pics, (x1 + x2) / 2, (y1 + y2) / 2);
        FractalMouseMove(wb, pics, x2, y2);
        FractalMouseUp(wb, pics, x2, y2);
    }
    int differences() const {
        int n = 0;
        for (int r = 0; r < pics.picfractal.height(); ++r)
            for (int c = 0; c < pics.picfractal.width(); ++c)
                n += pics.picfractal.pixel(c, r) != pics.picImage2.pixel(c, r);
        return n;
    }
};

TEST(CoordinateText, ShowsThreeDecimalsInParentheses) {
    const WorldWindow w{-1, 1, -1, 1};
    EXPECT_EQ(CoordinateText(w, 0.5, -0.25), "(0.500,-0.250)");
    EXPECT_EQ(CoordinateText(w, 0.12345, 0.98765), "(0.123,0.988)");
}

TEST(CoordinateText, NeverShowsValuesOutsideTheWindow) {
    const WorldWindow w{-1, 2, -3, 4};
    EXPECT_EQ(CoordinateText(w, -7, 0), "(-1.000,0.000)");
    EXPECT_EQ(CoordinateText(w, 9, 0), "(2.000,0.000)");
    EXPECT_EQ(CoordinateText(w, 0, -3.5), "(0.000,-3.000)");
    EXPECT_EQ(CoordinateText(w, 0, 4.0001), "(0.000,4.000)");
    EXPECT_EQ(CoordinateText(w, 100, -100), "(2.000,-3.000)");
}

TEST(FractalMouseMove, PrintsTheClampedPositionInPicCoord) {
    ViewBench b;
    FractalMouseMove(b.wb, b.pics, 0.25, 0.75);
    EXPECT_EQ(b.pics.picCoord, "(0.250,0.750)");
    FractalMouseMove(b.wb, b.pics, 1.02, -1.5);
    EXPECT_EQ(b.pics.picCoord, "(1.000,-1.000)");
}

TEST(Selection, ADragDrawsAnInvertedDottedBoxAndPrintsItsSize) {
    SelectionBench b;
    FractalMouseDown(b.wb, b.pics, -0.5, -0.5, 0);
    EXPECT_TRUE(b.pics.Selection.SelectionDragging);
    EXPECT_EQ(b.pics.picfractal.drawMode(), DrawMode::Invert);
    EXPECT_EQ(b.pics.picfractal.drawStyle(), DrawStyle::Dot);
    FractalMouseMove(b.wb, b.pics, 0.25, 0.5);
    EXPECT_EQ(b.pics.picCoord, "(0.750,1.000)");
    // Only pixels of the box's sides change, each to the inverse of the drawing, every other one.
    int64_t c1, r1, c2, r2;
    ASSERT_TRUE(b.pics.picfractal.toPixel(-0.5, 0.5, c1, r1));
    ASSERT_TRUE(b.pics.picfractal.toPixel(0.25, -0.5, c2, r2));
    for (int r = 0; r < 64; ++r)
        for (int c = 0; c < 64; ++c) {
            const Color shown = b.pics.picfractal.pixel(c, r), under = b.pics.picImage2.pixel(c, r);
            if (shown == under) continue;
            ASSERT_TRUE(c == c1 || c == c2 || r == r1 || r == r2) << c << "," << r;
            ASSERT_EQ(shown, ~under & 0xFFFFFFu);
        }
    const int perimeter = static_cast<int>(2 * ((c2 - c1) + (r2 - r1)));
    EXPECT_GE(b.differences(), perimeter / 2 - 2);
    EXPECT_LE(b.differences(), perimeter / 2 + 4);
    FractalMouseUp(b.wb, b.pics, 0.25, 0.5);
    EXPECT_TRUE(b.pics.Selection.SelectionActive);
    EXPECT_FALSE(b.pics.Selection.SelectionDragging);
    EXPECT_EQ(b.wb.menu("mnuZoom").caption, "Zoom Selection\tPage Up");
    EXPECT_EQ(b.pics.picfractal.drawMode(), DrawMode::CopyPen);
    EXPECT_EQ(b.pics.picfractal.drawStyle(), DrawStyle::Solid);
    // picImage2 never shows the rectangle.
    EXPECT_EQ(paintedOutside(b.pics.picImage2, 32, 64, 0, 32), 0);
}

TEST(Selection, MovingTheMouseBackAndForthLeavesOnlyTheLastBox) {
    SelectionBench a, b;
    a.drag(-0.5, -0.5, 0.5, 0.25);
    FractalMouseDown(b.wb, b.pics, -0.5, -0.5, 0);
    for (double x : {0.9, -0.9, 0.1, 0.7}) FractalMouseMove(b.wb, b.pics, x, -x);
    FractalMouseUp(b.wb, b.pics, 0.5, 0.25);
    EXPECT_EQ(pixelsOf(b.pics.picfractal), pixelsOf(a.pics.picfractal));
}

TEST(Selection, WithShiftTheDragsExtentsAreMadeEqual) {
    ViewBench b;
    FractalMouseDown(b.wb, b.pics, 0, 0, ShiftMaskShift);
    EXPECT_EQ(b.pics.Selection.SelectionAspect, 1);
    FractalMouseMove(b.wb, b.pics, 0.5, -0.25);
    EXPECT_DOUBLE_EQ(b.pics.Selection.SelX2, 0.5);
    EXPECT_DOUBLE_EQ(b.pics.Selection.SelY2, -0.5);
    EXPECT_EQ(b.pics.picCoord, "(0.500,0.500)");
    FractalMouseUp(b.wb, b.pics, -0.125, 0.75);
    EXPECT_DOUBLE_EQ(b.pics.Selection.SelX2, -0.75);
    EXPECT_DOUBLE_EQ(b.pics.Selection.SelY2, 0.75);
    EXPECT_TRUE(b.pics.Selection.SelectionActive);
    // Without Shift the selection is free again.
    FractalMouseDown(b.wb, b.pics, 0, 0, 0);
    EXPECT_EQ(b.pics.Selection.SelectionAspect, 0);
    FractalMouseUp(b.wb, b.pics, 0.5, -0.25);
    EXPECT_DOUBLE_EQ(b.pics.Selection.SelY2, -0.25);
}

TEST(Selection, IsDroppedByANewLeftClick) {
    SelectionBench b;
    b.drag(-0.5, -0.5, 0.5, 0.5);
    ASSERT_TRUE(b.pics.Selection.SelectionActive);
    ASSERT_GT(b.differences(), 0);
    FractalMouseDown(b.wb, b.pics, 0.1, 0.1, 0);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.wb.menu("mnuZoom").caption, "Zoom In\tPage Up");
    FractalMouseUp(b.wb, b.pics, 0.1, 0.1);
    // A click without a drag leaves no selection and no trace of a box.
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.differences(), 0);
    EXPECT_EQ(b.pics.picfractal.drawMode(), DrawMode::CopyPen);
    // Page Up now zooms by the step, not to the old rectangle.
    b.stopRunsAfter(1);
    FractalKeyDown(b.wb, b.pics, b.host, KeyPageUp, 0);
    EXPECT_FLOAT_EQ(b.wb.Window.xmax, 0.95f);
}

TEST(Selection, AFlatRectangleIsNoSelection) {
    SelectionBench b;
    b.drag(-0.5, 0.2, 0.5, 0.2);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.wb.menu("mnuZoom").caption, ZoomInCaption);
    EXPECT_EQ(b.differences(), 0);
}

TEST(Selection, ClearSelectionRectRepaintsFromPicImage2) {
    SelectionBench b;
    b.drag(-0.5, -0.5, 0.5, 0.5);
    ClearSelectionRect(b.wb, b.pics);
    EXPECT_EQ(b.differences(), 0);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.wb.menu("mnuZoom").caption, ZoomInCaption);
}

TEST(Selection, ThereIsNoneInDeterministicMode) {
    ViewBench b;
    b.wb.RandomMode = false;
    FractalMouseDown(b.wb, b.pics, 0, 0, 0);
    FractalMouseUp(b.wb, b.pics, 0.5, 0.5);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 0);
}

TEST(Selection, TheMouseIsIgnoredDuringADrawing) {
    ViewBench b;
    b.wb.DrawingActive = true;
    FractalMouseDown(b.wb, b.pics, 0, 0, 0);
    FractalMouseUp(b.wb, b.pics, 0.5, 0.5);
    EXPECT_FALSE(b.pics.Selection.SelectionDragging);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(paintedPixels(b.pics.picfractal), 0);
}

TEST(RulerLine, WithCtrlALineFollowsTheMouseAndGoesAwayOnRelease) {
    SelectionBench b;
    FractalMouseDown(b.wb, b.pics, -0.5, -0.5, ShiftMaskCtrl);
    EXPECT_TRUE(b.pics.Selection.DrawingLine);
    EXPECT_FALSE(b.pics.Selection.SelectionDragging);
    EXPECT_EQ(b.pics.picfractal.drawWidth(), 2);
    FractalMouseMove(b.wb, b.pics, 0.5, 0.25);
    EXPECT_EQ(b.pics.picCoord, "(1.000,0.750)");
    EXPECT_GT(b.differences(), 2 * 24);  // two pixels wide over more than 24 columns
    FractalMouseUp(b.wb, b.pics, 0.5, 0.25);
    EXPECT_FALSE(b.pics.Selection.DrawingLine);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
    EXPECT_EQ(b.differences(), 0);
    EXPECT_EQ(b.pics.picfractal.drawWidth(), 1);
    EXPECT_EQ(b.pics.picfractal.drawMode(), DrawMode::CopyPen);
}

TEST(Selection, AZoomDuringADragEndsTheDrag) {
    SelectionBench b;
    FractalMouseDown(b.wb, b.pics, -0.5, -0.5, 0);
    FractalMouseMove(b.wb, b.pics, 0.5, 0.5);
    b.wb.DrawingStarted = false;
    FractalKeyDown(b.wb, b.pics, b.host, KeyPageDown, 0);
    EXPECT_FALSE(b.pics.Selection.SelectionDragging);
    EXPECT_EQ(b.pics.picfractal.drawMode(), DrawMode::CopyPen);
    FractalMouseMove(b.wb, b.pics, 0.25, 0.25);
    FractalMouseUp(b.wb, b.pics, 0.25, 0.25);
    EXPECT_EQ(b.differences(), 0);
    EXPECT_FALSE(b.pics.Selection.SelectionActive);
}

}  // namespace
}  // namespace quillane
