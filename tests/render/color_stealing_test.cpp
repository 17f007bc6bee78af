// Colour stealing's logic: the list of colouring IFS, and the picture's world window.
#include "render/color_stealing.h"

#include <gtest/gtest.h>

#include "core/sample_systems.h"
#include "core/unit_square_ifs.h"

namespace quillane {
namespace {

Workbench withCurrent(const IFSEntry& ifs) {
    Workbench wb;
    wb.CurrentIFS = ifs;
    wb.txtMaps = std::to_string(ifs.nMaps);
    wb.Rng.pin(3);
    return wb;
}

TEST(ColoringIFSList, UnitSquareThenEntriesOfTheSameSizeThenTheModifiedCurrentIFS) {
    Workbench wb = withCurrent(SierpinskiTriangleIFS());
    wb.FractalList[1] = SierpinskiTriangleIFS();
    wb.FractalList[1].Name = "Sierpinski  ";
    wb.FractalList[2] = GridIFS(4);
    wb.FractalList[2].Name = "Grid";
    wb.FractalList[3] = SierpinskiTriangleIFS();
    wb.FractalList[3].Name = "Other";
    wb.NamesItemCount = 5 + 3;
    wb.SelectedIFS = 1;
    wb.IFSModified = true;
    wb.FunctionsCaption = "IFS [Sierpinski]*";
    const std::vector<ColoringCandidate> list = ColoringIFSCandidates(wb);
    ASSERT_EQ(list.size(), 4u);
    EXPECT_TRUE(list[0].unitSquare);
    EXPECT_EQ(list[0].title, "Unit Square  ");
    EXPECT_EQ(list[1].title, "Sierpinski");
    EXPECT_EQ(list[1].place, 1);
    EXPECT_EQ(list[2].place, 3);
    EXPECT_EQ(list[3].title, "IFS [Sierpinski]");
    EXPECT_EQ(list[3].place, 0);
    wb.IFSModified = false;
    EXPECT_EQ(ColoringIFSCandidates(wb).size(), 3u);  // the current IFS stands in the list as it is
}

TEST(ColoringIFSList, OneMapOffersNoUnitSquare) {
    Workbench wb = withCurrent(DefaultIFS());
    const std::vector<ColoringCandidate> list = ColoringIFSCandidates(wb);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_FALSE(list[0].unitSquare);
    EXPECT_EQ(list[0].place, 0);
}

TEST(ColoringIFSList, ConfigureTakesTheUnitSquareOfTheCurrentProbabilities) {
    Workbench wb = withCurrent(SierpinskiTriangleIFS());
    ColorStealingState cs;
    ConfigureComboList(wb, cs);
    EXPECT_EQ(cs.ColoringIFS, UnitSquareIFS(wb.CurrentIFS, 3));
}

TEST(CSScale, TheUnitSquareIFSStretchesThePictureOverTheSquare) {
    Workbench wb = withCurrent(SierpinskiTriangleIFS());
    ColorStealingState cs;
    cs.ColoringIFS = UnitSquareIFS(wb.CurrentIFS, 3);
    cs.picImage.resize(50, 40);
    setCSscale(wb, cs);
    // The attractor is the whole square; the window is its sampled box plus 0.001 each side.
    EXPECT_NEAR(cs.CSWindow.xmin, -0.001, 0.01);
    EXPECT_NEAR(cs.CSWindow.xmax, 1.001, 0.01);
    EXPECT_NEAR(cs.CSWindow.ymin, -0.001, 0.01);
    EXPECT_NEAR(cs.CSWindow.ymax, 1.001, 0.01);
    EXPECT_LT(cs.CSWindow.xmin, 0.0f);
    EXPECT_GT(cs.CSWindow.xmax, 1.0f);
    EXPECT_EQ(cs.picImage.scaleLeft(), cs.CSWindow.xmin);
    EXPECT_EQ(cs.picImage.scaleTop(), cs.CSWindow.ymax);
}

TEST(CSScale, AnAttractorAtTheOriginTakesTheLopsidedWindow) {
    Workbench wb = withCurrent(DefaultIFS());
    ColorStealingState cs;
    cs.ColoringIFS = DefaultIFS();
    cs.ColoringIFS.a[0] = cs.ColoringIFS.b[0] = cs.ColoringIFS.c[0] = cs.ColoringIFS.d[0] = 0;
    cs.ColoringIFS.e[0] = cs.ColoringIFS.f[0] = 0;
    cs.ColoringIFS.p[0] = 1;
    setCSscale(wb, cs);
    EXPECT_FLOAT_EQ(cs.CSWindow.xmin, -0.101f);
    EXPECT_FLOAT_EQ(cs.CSWindow.xmax, 1.001f);
    EXPECT_FLOAT_EQ(cs.CSWindow.ymin, -0.101f);
    EXPECT_FLOAT_EQ(cs.CSWindow.ymax, 1.001f);
}

TEST(CSScale, EqualScaleGivesTheWindowThePicturesProportions) {
    Workbench wb = withCurrent(SierpinskiTriangleIFS());
    ColorStealingState cs;
    cs.ColoringIFS = UnitSquareIFS(wb.CurrentIFS, 3);
    cs.chkMethod = true;
    cs.picImage.resize(200, 100);
    setCSscale(wb, cs);
    const double w = cs.CSWindow.xmax - cs.CSWindow.xmin, h = cs.CSWindow.ymax - cs.CSWindow.ymin;
    EXPECT_NEAR(h / w, 0.5, 1e-5);
    cs.picImage.resize(100, 200);
    setCSscale(wb, cs);
    EXPECT_NEAR((cs.CSWindow.ymax - cs.CSWindow.ymin) / (cs.CSWindow.xmax - cs.CSWindow.xmin), 2.0, 1e-5);
}

TEST(CSScale, ATracedPictureTakesTheWindowToo) {
    Workbench wb = withCurrent(SierpinskiTriangleIFS());
    ColorStealingState cs;
    cs.ColoringIFS = UnitSquareIFS(wb.CurrentIFS, 3);
    cs.chkTrace = true;
    RasterSurface picture;
    picture.resize(30, 30);
    SetColorStealingPicture(wb, cs, picture);
    EXPECT_EQ(cs.picTrace.width(), 30);
    EXPECT_EQ(cs.picTrace.scaleLeft(), cs.CSWindow.xmin);
    EXPECT_EQ(cs.picTrace.scaleBottom(), cs.CSWindow.ymin);
}

}  // namespace
}  // namespace quillane
