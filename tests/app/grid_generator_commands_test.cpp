#include "app/grid_generator_commands.h"

#include <gtest/gtest.h>

#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "app/polygon_commands.h"
#include "core/fractal_list.h"
#include "core/initial_polygons.h"
#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/scale.h"

namespace quillane::testing {
namespace {

class GridGeneratorTest : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(s.wb.Menu);
        s.wb.Rng.pin(3);
        s.pics.resize(64, White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        s.wb.CurrentIFS = SierpinskiTriangleIFS();
        s.wb.CurrentIFS.Name = "Triangle";
        s.wb.CurrentIFS.nComments = 1;
        s.wb.CurrentIFS.Comment[1] = "; the old one";
        s.wb.lblComment = "; the old one";
        s.wb.txtMaps = "3";
        s.wb.FunctionsCaption = "IFS [Triangle]";
        mnupoly_Click(s.wb, s.design, s.pics, host, 5);
        setscale(s.wb, host, true, &s.pics);
        ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, BoxFractalsExample));
        DrawBoxes2(box, boxPicture, 3);
        DrawTriangles(tri, triPicture, 2);
    }
    void expectBuilt(int maps, int polyItem) {
        EXPECT_EQ(s.wb.CurrentIFS.nMaps, maps);
        EXPECT_EQ(s.wb.txtMaps, std::to_string(maps));
        EXPECT_EQ(s.wb.CurrentIFS.nComments, 0);
        EXPECT_EQ(s.wb.lblComment, "");
        EXPECT_EQ(s.wb.FunctionsCaption, "IFS [Untitled]");
        EXPECT_EQ(s.wb.InitialPolygon, BuiltInPolygon(polyItem));
        for (int k = 0; k <= UserPolygonItem; ++k)
            EXPECT_EQ(s.wb.menu(MenuTable::key("mnupoly", k)).checked, k == polyItem) << k;
        EXPECT_TRUE(s.wb.IFSModified);
        EXPECT_EQ(s.wb.ChangeCount, 0);
        EXPECT_FALSE(s.wb.DrawingStarted);
        EXPECT_TRUE(s.wb.menu("mnuRun").enabled);
        EXPECT_TRUE(s.wb.menu("mnuTrace").enabled);
        EXPECT_TRUE(s.wb.menu(NamesKey(0)).enabled);
        EXPECT_EQ(s.wb.SelectedIFS, 0);
        EXPECT_TRUE(s.Generator.SetupDone);
        EXPECT_EQ(s.wb.UndoWindow, s.wb.Window);
    }
    AppState s;
    ScriptedHost host;
    BoxFractal box;
    TriangleFractal tri;
    RasterSurface boxPicture{150, 150};
    RasterSurface triPicture{200, 200};
};

TEST_F(GridGeneratorTest, TheCarpetFillsTheTable) {
    ClickBox(box, boxPicture, 1500, 1500);
    ASSERT_TRUE(BoxFractalSetup(s, host, box));
    expectBuilt(8, 0);
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(s.wb.Table.text(7, 0), "0.125");
    EXPECT_EQ(s.wb.Table.text(7, 7), "0.125");
    EXPECT_EQ(s.wb.Table.text(1, 3), "0.333");
    // The carpet's window: the unit square with its margins.
    EXPECT_NEAR(s.wb.Window.xmin, -0.05, 0.02);
    EXPECT_NEAR(s.wb.Window.xmax, 1.05, 0.02);
}

TEST_F(GridGeneratorTest, NoBoxLeftIsRefused) {
    DrawBoxes2(box, boxPicture, 2);
    for (int row = 0; row < 2; ++row)
        for (int col = 0; col < 2; ++col) ClickBox(box, boxPicture, col * 1500 + 700, row * 1500 + 700);
    ASSERT_EQ(box.BoxCount, 0);
    const IFSEntry before = s.wb.CurrentIFS;
    EXPECT_FALSE(BoxFractalSetup(s, host, box));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].text, "You cannot remove all the boxes");
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_FALSE(s.Generator.SetupDone);
    EXPECT_TRUE(s.wb.menu("mnupoly(5)").checked);
}

TEST_F(GridGeneratorTest, NineBoxesLeaveTheirProbabilitiesAlone) {
    ASSERT_TRUE(BoxFractalSetup(s, host, box));
    for (int i = 0; i < 9; ++i) EXPECT_EQ(s.wb.CurrentIFS.p[static_cast<size_t>(i)], 0.111111f) << i;
}

TEST_F(GridGeneratorTest, TheSierpinskiTriangleFromTheTriangleGrid) {
    const double h = std::sqrt(3.0) / 2;
    ASSERT_TRUE(ClickTriangle(tri, triPicture, 0.5, h / 3));
    ASSERT_TRUE(TriangleFractalCreate(s, host, tri));
    expectBuilt(3, 1);
    EXPECT_EQ(s.wb.Table.text(1, 0), "0.500");
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.e[2], 0.25f);
    EXPECT_FLOAT_EQ(s.wb.CurrentIFS.f[2], static_cast<float>(h / 2));
}

TEST_F(GridGeneratorTest, NoTriangleLeftIsRefused) {
    const double h = std::sqrt(3.0) / 2;
    const double xs[] = {0.25, 0.5, 0.75, 0.5};
    const double ys[] = {h / 6, h / 3, h / 6, 2 * h / 3};
    for (int k = 0; k < 4; ++k) ClickTriangle(tri, triPicture, xs[k], ys[k]);
    ASSERT_EQ(tri.TriangleCount, 0);
    EXPECT_FALSE(TriangleFractalCreate(s, host, tri));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].text, "You cannot remove all the triangles");
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(s.wb.CurrentIFS.Name, "Triangle");
}

TEST_F(GridGeneratorTest, CancelAfterABuildBringsTheOldIFSBack) {
    const IFSEntry before = s.wb.CurrentIFS;
    ASSERT_TRUE(BoxFractalSetup(s, host, box));
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_TRUE(s.wb.menu("mnupoly(5)").checked);
    EXPECT_FALSE(s.wb.menu("mnupoly(0)").checked);
}

TEST_F(GridGeneratorTest, InTheDeterministicModeTheDrawingStartsAgain) {
    mnuDrawType_Click(s.wb, s.pics, host, 1);
    s.wb.IterationNumber = 4;
    ASSERT_TRUE(BoxFractalSetup(s, host, box));
    EXPECT_EQ(s.wb.IterationNumber, 0);
}

}  // namespace
}  // namespace quillane::testing
