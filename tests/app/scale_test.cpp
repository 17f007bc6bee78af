#include "render/scale.h"

#include <gtest/gtest.h>

#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/floating_picture.h"
#include "render/fractal_pictures.h"

namespace quillane {
namespace {

struct ScaleBench {
    Workbench wb;
    ScriptedHost host;
    explicit ScaleBench(const IFSEntry& ifs) {
        wb.CurrentIFS = ifs;
        wb.txtMaps = std::to_string(ifs.nMaps);
        wb.Rng.pin(3);
    }
};

IFSEntry oneMap(float a, float e, float f) {
    IFSEntry ifs = DefaultIFS();
    ifs.a[0] = ifs.d[0] = a;
    ifs.e[0] = e;
    ifs.f[0] = f;
    return ifs;
}

TEST(setscale, AFixedPointAtTheOriginGivesTheLopsidedUnitWindow) {
    ScaleBench s(oneMap(0.5f, 0, 0));
    ASSERT_TRUE(s.wb.CurrentIFS.p[0] == 1.0f);
    EXPECT_TRUE(setscale(s.wb, s.host));
    EXPECT_EQ(s.wb.AttractorXMax, 0.0f);
    EXPECT_EQ(s.wb.AttractorXMin, 0.0f);
    // -0.1 .. 1 on both axes, then 5% of 1.1 on each edge.
    EXPECT_FLOAT_EQ(s.wb.Window.xmin, -0.155f);
    EXPECT_FLOAT_EQ(s.wb.Window.xmax, 1.055f);
    EXPECT_FLOAT_EQ(s.wb.Window.ymin, -0.155f);
    EXPECT_FLOAT_EQ(s.wb.Window.ymax, 1.055f);
    EXPECT_EQ(s.wb.txtWin[2], "-0.155");
    EXPECT_EQ(s.wb.txtWin[3], "1.055");
    EXPECT_TRUE(s.host.shown().empty());
}

TEST(setscale, AFixedPointAwayFromTheOriginIsWidenedByFiveHundredths) {
    ScaleBench s(oneMap(0.5f, 1.0f, 1.0f));  // fixed point (2, 2)
    EXPECT_TRUE(setscale(s.wb, s.host));
    EXPECT_EQ(s.wb.AttractorXMin, 2.0f);
    EXPECT_EQ(s.wb.AttractorXMax, 2.0f);
    // Rounded outward both bounds are 2.0; equal bounds get 0.05 each side, then the 5% margin.
    EXPECT_FLOAT_EQ(s.wb.Window.xmin, 1.945f);
    EXPECT_FLOAT_EQ(s.wb.Window.xmax, 2.055f);
    EXPECT_FLOAT_EQ(s.wb.Window.ymin, 1.945f);
    EXPECT_FLOAT_EQ(s.wb.Window.ymax, 2.055f);
}

TEST(setscale, SierpinskiWindowIsASquareAroundTheTriangleWithAMargin) {
    ScaleBench s(SierpinskiTriangleIFS());
    EXPECT_TRUE(setscale(s.wb, s.host));
    const WorldWindow w = s.wb.Window;
    // Sampled bounds 0..1 rounded outward to -0.1 (or 0) .. 1.1 (or 1), then 5%.
    EXPECT_LT(w.xmin, 0.0f);
    EXPECT_GT(w.xmax, 1.0f);
    EXPECT_LT(w.ymin, 0.0f);
    EXPECT_GT(w.ymax, 1.0f);
    EXPECT_FLOAT_EQ(w.xmax - w.xmin, w.ymax - w.ymin);
    EXPECT_GE(s.wb.AttractorXMin, 0.0f);
    EXPECT_LE(s.wb.AttractorXMax, 1.0f);
    EXPECT_GT(s.wb.AttractorXMax, 0.95f);
    EXPECT_EQ(s.wb.lblProbSum, "1.000");
}

TEST(setscale, ProbabilitiesBelowOneAreRefused) {
    ScaleBench s(SierpinskiTriangleIFS());
    s.wb.CurrentIFS.p[2] = 0.3f;
    const WorldWindow before = s.wb.Window;
    EXPECT_FALSE(setscale(s.wb, s.host));
    EXPECT_EQ(s.host.shown(), (std::vector<ShownMessage>{{"Error", "Probabilities do not add to 1"}}));
    EXPECT_EQ(s.wb.Window, before);
    EXPECT_EQ(s.wb.lblProbSum, "0.967");
}

TEST(setscale, ProbabilitiesAboveOneAreLetThrough) {
    ScaleBench s(SierpinskiTriangleIFS());
    s.wb.CurrentIFS.p[2] = 0.5f;
    EXPECT_TRUE(setscale(s.wb, s.host));
    EXPECT_TRUE(s.host.shown().empty());
}

TEST(setscale, AnExpandingIFSReportsOverflowAndKeepsTheWindow) {
    ScaleBench s(oneMap(3.0f, 1.0f, 1.0f));
    const WorldWindow before = s.wb.Window;
    EXPECT_FALSE(setscale(s.wb, s.host));
    EXPECT_EQ(s.host.shown(),
              (std::vector<ShownMessage>{{"Error", "Overflow error.\nIFS may be expanding."}}));
    EXPECT_EQ(s.wb.Window, before);
}

TEST(setscale, AFrozenScaleKeepsTheWindowButRefreshesTheAttractorBounds) {
    ScaleBench s(oneMap(0.5f, 1.0f, 1.0f));
    s.wb.Menu.setChecked("mnuDrawFreezeScale", true);
    const WorldWindow before = s.wb.Window;
    EXPECT_TRUE(setscale(s.wb, s.host));
    EXPECT_EQ(s.wb.Window, before);
    EXPECT_EQ(s.wb.AttractorXMax, 2.0f);
}

TEST(setscale, RedrawAppliesTheWindowToThePictures) {
    ScaleBench s(SierpinskiTriangleIFS());
    FractalPictures pics;
    pics.resize(50, White);
    pics.picfractal.pset(pics.picfractal.scaleLeft(), pics.picfractal.scaleTop(), Black);
    EXPECT_TRUE(setscale(s.wb, s.host, true, &pics));
    EXPECT_DOUBLE_EQ(pics.picfractal.scaleLeft(), s.wb.Window.xmin);
    EXPECT_DOUBLE_EQ(pics.picfractal.scaleTop(), s.wb.Window.ymax);
    EXPECT_DOUBLE_EQ(pics.picImage2.scaleBottom(), s.wb.Window.ymin);
    EXPECT_EQ(pics.picfractal.pixel(0, 0), White);
}

// The redraw keeps a placed picture, floating again at its place, only while picPaste is hidden: a
// picture that floats is placed by the clearing instead.
TEST(setscale, RedrawKeepsAPlacedPictureOnlyWhenPicPasteIsHidden) {
    ScaleBench s(SierpinskiTriangleIFS());
    FractalPictures pics;
    pics.resize(50, White);
    RasterSurface image(10, 10, 0x0000FF);
    FloatPicture(pics, image);
    PlaceFractalSelection(s.wb, pics);
    ASSERT_TRUE(pics.PictureOverlaid);
    EXPECT_TRUE(setscale(s.wb, s.host, true, &pics));
    EXPECT_TRUE(pics.Floating.Visible);
    EXPECT_FALSE(pics.PictureOverlaid);
    // Now it floats: the redraw does not keep it, it places it.
    EXPECT_TRUE(setscale(s.wb, s.host, true, &pics));
    EXPECT_FALSE(pics.Floating.Visible);
    EXPECT_TRUE(pics.PictureOverlaid);
}

TEST(SquareWindow, WidensTheShorterSide) {
    float xmin = 0, xmax = 2, ymin = 0, ymax = 1;
    SquareWindow(xmin, xmax, ymin, ymax);
    EXPECT_EQ(xmin, 0.0f);
    EXPECT_EQ(xmax, 2.0f);
    EXPECT_EQ(ymin, -0.5f);
    EXPECT_EQ(ymax, 1.5f);
}

}  // namespace
}  // namespace quillane

#include "core/fractal_list.h"
#include "app/list_entry_commands.h"

namespace quillane {
namespace {

// A list of the triangle and a single-map entry, the triangle taken.
struct ListBench {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;
    ListBench() {
        wb.FractalList[1] = SierpinskiTriangleIFS();
        wb.FractalList[2] = DefaultIFS();
        wb.FractalList[2].Name = "Half";
        wb.FractalList[2].e[0] = 1.0f;
        wb.FractalList[2].f[0] = 1.0f;
        SetIFSMenu(wb, 2, 0);
        TakeListEntry(wb, 1);
        pics.resize(40, White);
        wb.Rng.pin(4);
    }
};

TEST(ListEntry, TakingAnEntryScalesTheWindowToItsAttractor) {
    ListBench b;
    EXPECT_TRUE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 6));
    EXPECT_EQ(b.wb.SelectedIFS, 2);
    EXPECT_EQ(b.wb.FunctionsCaption, "IFS [Half]");
    EXPECT_TRUE(b.wb.menu(EntryKey(2)).checked);
    EXPECT_FALSE(b.wb.menu(EntryKey(1)).checked);
    // The fixed point (2, 2) alone: 1.95 .. 2.05 with the margin.
    EXPECT_FLOAT_EQ(b.wb.Window.xmin, 1.945f);
    EXPECT_DOUBLE_EQ(b.pics.picfractal.scaleLeft(), b.wb.Window.xmin);
    EXPECT_TRUE(b.host.shown().empty());
}

TEST(ListEntry, AnEditedNamedIFSAsksFirstAndCancelKeepsIt) {
    ListBench b;
    CountEdit(b.wb);
    b.host.answers.push_back(Answer::Cancel);
    EXPECT_FALSE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 6));
    ASSERT_EQ(b.host.shown().size(), 1u);
    EXPECT_EQ(b.host.shown()[0].title, "Continue without saving?");
    EXPECT_EQ(b.wb.SelectedIFS, 1);
    EXPECT_EQ(b.wb.CurrentIFS.nMaps, 3);
}

TEST(ListEntry, AnEntryWithoutFunctionsIsRefused) {
    ListBench b;
    b.wb.FractalList[2].nMaps = 0;
    EXPECT_FALSE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 6));
    EXPECT_EQ(b.host.shown(), (std::vector<ShownMessage>{{"Error", "This IFS has no functions.   "}}));
    EXPECT_EQ(b.wb.SelectedIFS, 1);
}

}  // namespace
}  // namespace quillane
