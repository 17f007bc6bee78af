#include <gtest/gtest.h>

#include "app/figure_commands.h"
#include "tests/app/fractal_view_fixture.h"

namespace quillane {
namespace {

// 400 pixels over 4 world units: a pen of 10 pixels is 0.1 world units wide.
struct FigureWindow : ::testing::Test, ViewBench {
    FigureWindow() : ViewBench(SierpinskiTriangleIFS(), {0, 4, 0, 4}, 400) {
        wb.RandomMode = false;
        // A typed window inside the figure's box, so the box alone decides.
        wb.txtWin = {"0.05", "-0.05", "0.4", "0.5"};
    }
};

TEST_F(FigureWindow, TheBoxIsExtendedByThePenWidthAndSquaredWithNoMargin) {
    LineFigure line;
    line.penWidth = 10;
    FitFigureWindow(wb, pics, line);
    EXPECT_FLOAT_EQ(wb.Window.xmin, -0.1f);
    EXPECT_FLOAT_EQ(wb.Window.xmax, 1.1f);
    EXPECT_FLOAT_EQ(wb.Window.ymin, -0.6f);
    EXPECT_FLOAT_EQ(wb.Window.ymax, 0.6f);
}

TEST_F(FigureWindow, APenOfOnePixelAddsOneHundredthHere) {
    RectangleFigure r;
    r.x = 0;
    r.y = 0;
    r.width = 2;
    r.height = 2;
    r.penWidth = 1;
    wb.txtWin = {"1", "0.5", "0.5", "1"};
    FitFigureWindow(wb, pics, r);
    EXPECT_FLOAT_EQ(wb.Window.xmin, -0.01f);
    EXPECT_FLOAT_EQ(wb.Window.xmax, 2.01f);
    EXPECT_FLOAT_EQ(wb.Window.ymin, -0.01f);
    EXPECT_FLOAT_EQ(wb.Window.ymax, 2.01f);
}

}  // namespace
}  // namespace quillane
