#include "app/pythagorean_commands.h"

#include <gtest/gtest.h>

#include "app/binary_tree_drawing.h"
#include "app/pythagorean_drawing.h"
#include "core/initial_polygons.h"
#include "tree_fixture.h"

namespace quillane::testing {
namespace {

class PythagoreanCommands : public TreeState {
  protected:
    void SetUp() override {
        TreeState::SetUp();
        ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, PythagoreanTreesExample));
        flags = InstallPythagoreanDrawing(s.pics);
    }
    std::shared_ptr<PythagoreanRecursion> flags;
};

TEST_F(PythagoreanCommands, OneAndEightyNineAreAcceptedThoughTheMessageSaysZeroAndNinety) {
    EXPECT_EQ(PythCheckTheta("1", host), 1.0f);
    EXPECT_EQ(PythCheckTheta("89", host), 89.0f);
    EXPECT_TRUE(host.shown().empty());
    for (const char* t : {"0", "0.5", "89.5", "90", "abc"}) {
        EXPECT_FALSE(PythCheckTheta(t, host)) << t;
        ASSERT_EQ(host.shown().size(), 1u);
        EXPECT_EQ(host.shown()[0].title, "Error");
        EXPECT_EQ(host.shown()[0].text, "Must have 0 < angle < 90 degrees");
        host.clear();
    }
}

TEST_F(PythagoreanCommands, AFractionalAngleIsAcceptedAndTheSliderRoundsIt) {
    EXPECT_EQ(PythCheckTheta("45.5", host), 45.5f);
    EXPECT_TRUE(host.shown().empty());
    // Rounded half to even, as every float to integer conversion.
    EXPECT_EQ(PythSliderValue(45.5f), 46);
    EXPECT_EQ(PythSliderValue(44.5f), 44);
    EXPECT_EQ(PythSliderValue(30.2f), 30);
    ASSERT_TRUE(PythagoreanSetup(s, host, "45.5"));
    EXPECT_EQ(s.wb.CurrentIFS.Name, "Pythagorean Tree (45.5)");
    EXPECT_EQ(s.wb.CurrentIFS.Comment[2], "; Angle: 45.5 degrees");
}

TEST_F(PythagoreanCommands, CreateIFSTakesTheUnitSquareAndTheTreesDesignView) {
    ASSERT_TRUE(s.wb.RandomMode);
    ASSERT_TRUE(PythagoreanSetup(s, host, "45"));
    EXPECT_EQ(s.wb.InitialPolygon, BuiltInPolygon(7));
    for (int k = 0; k <= UserPolygonItem; ++k)
        EXPECT_EQ(s.wb.menu(MenuTable::key("mnupoly", k)).checked, k == 7) << k;
    EXPECT_FALSE(s.wb.RandomMode);  // switched to Deterministic
    EXPECT_EQ(s.wb.DesignWindow, PythDesignWindow);
    EXPECT_EQ(s.wb.txtDesign, (std::array<std::string, 4>{"2.210", "-0.210", "-0.710", "1.710"}));
    EXPECT_EQ(s.wb.FunctionsCaption, "IFS [Pythagorean Tree (45)]");
    EXPECT_EQ(s.wb.lblComment, "; Pythagorean Tree");
    EXPECT_TRUE(s.wb.menu("mnuRun").enabled);
    EXPECT_TRUE(s.Generator.SetupDone);
    EXPECT_TRUE(CheckPythTree(s.wb.CurrentIFS));
}

TEST_F(PythagoreanCommands, RefusedAngleChangesNothing) {
    const IFSEntry before = s.wb.CurrentIFS;
    EXPECT_FALSE(PythagoreanSetup(s, host, "90"));
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_FALSE(s.Generator.SetupDone);
}

TEST_F(PythagoreanCommands, OutlineRecursionDrawsWhatTheDeterministicLevelsDraw) {
    ASSERT_TRUE(PythagoreanSetup(s, host, "40"));
    s.pics.Det.RecursiveDrawings = {};
    for (int k = 0; k < 4; ++k) level();
    const RasterSurface plain = s.pics.picfractal;
    EXPECT_EQ(s.pics.picCount, "4");

    InstallPythagoreanDrawing(s.pics);
    ResetDeterministic(s.wb, s.pics, host);
    for (int k = 0; k < 4; ++k) level();
    EXPECT_EQ(s.pics.picCount, "4 w/Rec");
    const RasterSurface recursive = s.pics.picfractal;
    EXPECT_GT(coveredBy(recursive, plain, 2), 0.95);
    EXPECT_GT(coveredBy(plain, recursive, 2), 0.95);
}

TEST_F(PythagoreanCommands, FilledModeFillsTheBoxes) {
    ASSERT_TRUE(PythagoreanSetup(s, host, "45"));
    ResetDetFigure(s.wb, 1);
    ResetDeterministic(s.wb, s.pics, host);
    EXPECT_EQ(PythTreeMode(s.wb), 2);
    level();
    EXPECT_EQ(s.pics.picCount, "1 w/Rec");
    EXPECT_NE(s.pics.picfractal.point(0.5, 0.5) & 0xFFFFFF, White);
    EXPECT_NE(s.pics.picfractal.point(0.1, 1.3) & 0xFFFFFF, White);

    ResetDetFigure(s.wb, 0);
    ResetDeterministic(s.wb, s.pics, host);
    EXPECT_EQ(PythTreeMode(s.wb), 1);
    level();
    EXPECT_EQ(s.pics.picfractal.point(0.5, 0.5) & 0xFFFFFF, White);
}

TEST_F(PythagoreanCommands, NoRecursionForAnotherFigure) {
    ASSERT_TRUE(PythagoreanSetup(s, host, "45"));
    ResetDetFigure(s.wb, 4);
    EXPECT_EQ(PythTreeMode(s.wb), 0);
    EXPECT_FALSE(PythagoreanTree(*flags, s.wb, s.pics, host));
}

TEST_F(PythagoreanCommands, BeyondLevelFifteenTheRecursionGivesWay) {
    ASSERT_TRUE(PythagoreanSetup(s, host, "45"));
    // A picture fine enough that level 16 is still above a pixel.
    s.pics.resize(4000, White);
    ApplyWindow(s.pics, s.wb.Window);
    s.wb.IterationNumber = 16;
    s.wb.DrawingActive = true;
    EXPECT_FALSE(PythagoreanTree(*flags, s.wb, s.pics, host));
    EXPECT_TRUE(s.wb.RecursionOff[PythagoreanSlot]);
}

TEST_F(PythagoreanCommands, TheImageShowsTheSquareAndItsRedAndBlueChildren) {
    const RasterSurface pic = PythagoreanImage(45, 120);
    EXPECT_EQ(pic.point(0, 0.5) & 0xFFFFFF, Black);
    EXPECT_EQ(pic.point(-0.25, 1.25) & 0xFFFFFF, RGB(255, 0, 0));
    EXPECT_EQ(pic.point(1.25, 1.25) & 0xFFFFFF, RGB(0, 0, 255));
}

}  // namespace
}  // namespace quillane::testing
