#include "app/movie_view.h"

#include <gtest/gtest.h>

#include "core/sample_systems.h"
#include "core/scripted_host.h"

namespace quillane {
namespace {

struct MovieBench {
    MovieBench() {
        s.wb.FractalList.resize(MaxFractals + 1);
        s.wb.FractalList[1] = SierpinskiTriangleIFS();
        s.wb.FractalList[2] = GridIFS(4);
        s.wb.NamesItemCount = 5 + 2;
        mc.List1 = 0;
        mc.List2 = 1;
        mc.txtSteps = "3";
        mc.txtIterations = "2000";
        mc.SizeDim = 80;
        MovieListClick(mc, s, host);
    }
    AppState s;
    ScriptedHost host;
    MovieCreator mc;
};

double width(const WorldWindow& w) {
    return static_cast<double>(w.xmax) - w.xmin;
}

TEST(MovieView, ZoomAndShiftActOnTheActiveViewOnlyAndRestoreGoesBack) {
    MovieBench b;
    const WorldWindow fitted = b.mc.FractalView;
    ASSERT_EQ(b.mc.FittedFractalView.xmin, fitted.xmin);
    mnuViewZoom_Click(b.mc, b.s, 0);
    EXPECT_NEAR(width(b.mc.FractalView), width(fitted) * 0.8, 1e-5);
    EXPECT_EQ(b.mc.DesignView.xmin, fitted.xmin);  // the design keeps its view
    EXPECT_EQ(b.mc.picCanvas.scaleLeft(), b.mc.FractalView.xmin);
    mnuShiftDir_Click(b.mc, b.s, 1);
    const double step = width(b.mc.FractalView) / 10;
    EXPECT_NEAR(b.mc.FractalView.xmin, (fitted.xmin + fitted.xmax) / 2 - width(fitted) * 0.4 + step, 1e-5);
    mnuViewRestore_Click(b.mc, b.s);
    EXPECT_EQ(b.mc.FractalView.xmin, fitted.xmin);
    EXPECT_EQ(b.mc.FractalView.xmax, fitted.xmax);

    SetActiveMovieView(b.mc, false);
    mnuViewZoom_Click(b.mc, b.s, 1);
    EXPECT_NEAR(width(b.mc.DesignView), width(fitted) * 1.25, 1e-5);
    EXPECT_EQ(b.mc.FractalView.xmin, fitted.xmin);
    mnuShiftDir_Click(b.mc, b.s, 2);
    EXPECT_GT(b.mc.DesignView.ymin, b.mc.FittedDesignView.ymin - width(fitted) * 0.125);
    mnuViewRestore_Click(b.mc, b.s);
    EXPECT_EQ(b.mc.DesignView.ymin, b.mc.FittedDesignView.ymin);
}

TEST(MovieView, AZoomRedrawsTheFrameShown) {
    MovieBench b;
    const RasterSurface before = b.mc.picCanvas;
    mnuViewZoom_Click(b.mc, b.s, 0);
    int changed = 0;
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 80; ++x) changed += before.pixel(x, y) != b.mc.picCanvas.pixel(x, y);
    EXPECT_GT(changed, 50);
    EXPECT_EQ(b.mc.txtFrame, "1");
}

TEST(MovieView, NothingMovesBeforeAMovieExists) {
    AppState s;
    MovieCreator mc;
    const WorldWindow before = mc.FractalView;
    mnuViewZoom_Click(mc, s, 0);
    mnuShiftDir_Click(mc, s, 0);
    EXPECT_EQ(mc.FractalView.xmin, before.xmin);
    EXPECT_EQ(mc.FractalView.xmax, before.xmax);
}

TEST(MovieView, AxesGoOverBothPictures) {
    MovieBench b;
    mnuOptionsAxes_Click(b.mc, b.s, true);
    // The y axis: the column of x = 0 holds axis pixels from top to bottom where the view spans it.
    int64_t col = 0, row = 0;
    ASSERT_TRUE(b.mc.picCanvas.toPixel(0, 0, col, row));
    ASSERT_TRUE(b.mc.picCanvas.inside(col, row));
    int black = 0;
    for (int y = 0; y < 80; ++y) black += b.mc.picCanvas.pixel(static_cast<int>(col), y) == Black;
    EXPECT_GT(black, 40);
    black = 0;
    for (int y = 0; y < 80; ++y) black += b.mc.picdesign.pixel(static_cast<int>(col), y) == Black;
    EXPECT_GT(black, 40);
    mnuOptionsAxes_Click(b.mc, b.s, false);
    black = 0;
    for (int y = 0; y < 80; ++y) black += b.mc.picCanvas.pixel(static_cast<int>(col), y) == Black;
    EXPECT_LT(black, 40);
}

TEST(MovieView, TheSizeDialogTakesFiftyToFourHundred) {
    ScriptedHost host;
    EXPECT_EQ(MovieSizeFromText("400", host), 400);
    EXPECT_EQ(MovieSizeFromText("50", host), 50);
    EXPECT_FALSE(MovieSizeFromText("49", host));
    EXPECT_FALSE(MovieSizeFromText("401", host));
    EXPECT_FALSE(MovieSizeFromText("1e9", host));
    EXPECT_FALSE(MovieSizeFromText("0/0", host));
    EXPECT_FALSE(MovieSizeFromText("", host));
    ASSERT_EQ(host.shown().size(), 5u);
    EXPECT_EQ(host.shown().front(), (ShownMessage{"Error", "Size must be between 50 and 400"}));
}

TEST(MovieView, ANewSizeResizesBothPicturesAndDrawsFrameOne) {
    MovieBench b;
    PlayMovie(b.mc, b.s, b.host, MovieMode::Forward);
    EXPECT_EQ(b.mc.txtFrame, "4");
    SetMovieSize(b.mc, b.s, 120);
    EXPECT_EQ(b.mc.picCanvas.width(), 120);
    EXPECT_EQ(b.mc.picdesign.height(), 120);
    EXPECT_EQ(b.mc.txtFrame, "1");
    EXPECT_EQ(b.mc.picCanvas.scaleLeft(), b.mc.FractalView.xmin);
}

TEST(MovieView, TheSizeMenuFollowsTheScreen) {
    EXPECT_EQ(MovieSizeChoices(1080), (std::array<int, 3>{216, 360, 400}));
    EXPECT_EQ(MovieSizeChoices(200), (std::array<int, 3>{50, 66, 100}));
    EXPECT_EQ(MovieSizeCaption(0, 216), "Small (216 pixels)");
    EXPECT_EQ(MovieSizeCaption(1, 360), "Medium (360 pixels)");
    EXPECT_EQ(MovieSizeCaption(2, 400), "Large (400 pixels)");
}

}  // namespace
}  // namespace quillane
