#include "app/generator_run.h"

#include <gtest/gtest.h>

#include "app/app_state.h"
#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "app/polygon_commands.h"
#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane::testing {
namespace {

// A generator as small as can be: it builds a 4-map grid into CurrentIFS, on the unit square, in the
// deterministic drawing from figure 3, as the real generator windows build theirs.
void buildStandIn(AppState& s, Host& host) {
    Workbench& wb = s.wb;
    wb.CurrentIFS = GridIFS(2);
    wb.CurrentIFS.Name = "Stand-in";
    wb.CurrentIFS.nComments = 1;
    wb.CurrentIFS.Comment[1] = "; built by the stand-in";
    wb.txtMaps = "4";
    wb.lblComment = "; built by the stand-in";
    mnupoly_Click(wb, s.design, s.pics, host, 7);
    ResetDetFigure(wb, 3);
    mnuDrawType_Click(wb, s.pics, host, 1);
    wb.IFSModified = true;
    wb.ChangeCount = 1;
    wb.TableRecursionFlags[0] = true;
    WriteTableRows(wb);
    GeneratorBuilt(s.Generator);
}

class GeneratorRunTest : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(s.wb.Menu);
        s.wb.Rng.pin(5);
        s.pics.resize(64, White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        s.wb.CurrentIFS = SierpinskiTriangleIFS();
        s.wb.CurrentIFS.Name = "Triangle";
        s.wb.txtMaps = "3";
        mnupoly_Click(s.wb, s.design, s.pics, host, 1);
        s.wb.SelectedMap = 2;
        s.wb.MapSelected = true;
        s.wb.FunctionsCaption = "IFS [Triangle]";
        setscale(s.wb, host, true, &s.pics);
    }
    bool open(int index = LineFractalsExample, bool lock = false) {
        return mnuDesignExample_Click(s.wb, s.Generator, host, index, lock);
    }
    bool exampleEnabled(int i) const { return s.wb.menu(MenuTable::key("mnuDesignExample", i)).enabled; }
    const MenuItemState& windowItem(int example) const {
        return s.wb.menu(MenuTable::key("mnuWin", GeneratorWindowItem[static_cast<size_t>(example)]));
    }

    AppState s;
    ScriptedHost host;
};

TEST_F(GeneratorRunTest, OpeningDisablesEveryExampleAndListsTheWindow) {
    ASSERT_FALSE(windowItem(KochCurvesExample).visible);
    ASSERT_TRUE(open(KochCurvesExample));
    for (int i = 0; i < GeneratorCount; ++i) EXPECT_FALSE(exampleEnabled(i)) << i;
    EXPECT_TRUE(windowItem(KochCurvesExample).visible);
    EXPECT_TRUE(windowItem(KochCurvesExample).checked);
    EXPECT_FALSE(s.wb.menu("mnuWin(1)").checked);
    EXPECT_EQ(s.Generator.Index, KochCurvesExample);
    EXPECT_EQ(s.wb.SavedIFS, s.wb.CurrentIFS);
}

TEST_F(GeneratorRunTest, OpeningClearsTheRecursionFlags) {
    s.wb.TableRecursionFlags = {true, true, true, true, true};
    s.wb.RecursionOff = {true, true, true, true};
    ASSERT_TRUE(open());
    EXPECT_EQ(s.wb.TableRecursionFlags, (std::array<bool, 5>{}));
    EXPECT_EQ(s.wb.RecursionOff, (std::array<bool, 4>{}));
}

TEST_F(GeneratorRunTest, CancelAtTheSaveQuestionOpensNothing) {
    s.wb.IFSModified = true;
    s.wb.ChangeCount = 2;
    host.answers.push_back(Answer::Cancel);
    EXPECT_FALSE(open());
    EXPECT_EQ(s.Generator.Index, -1);
    EXPECT_FALSE(windowItem(LineFractalsExample).visible);
    ASSERT_EQ(host.shown().size(), 1u);
}

TEST_F(GeneratorRunTest, CancelRestoresTheIFSTheFigureAndThePolygonItemToTheByte) {
    const IFSEntry before = s.wb.CurrentIFS;
    const DesignPolygon polygon = s.wb.InitialPolygon;
    const int16_t figure = s.wb.DetFigure;
    const std::string caption = s.wb.FunctionsCaption;
    ASSERT_TRUE(open());
    buildStandIn(s, host);
    ASSERT_NE(s.wb.CurrentIFS, before);
    ASSERT_FALSE(s.wb.RandomMode);
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_EQ(s.wb.InitialPolygon, polygon);
    EXPECT_EQ(s.wb.DetFigure, figure);
    for (int k = 0; k <= UserPolygonItem; ++k)
        EXPECT_EQ(s.wb.menu(MenuTable::key("mnupoly", k)).checked, k == 1) << k;
    EXPECT_TRUE(s.wb.RandomMode);
    EXPECT_TRUE(s.wb.menu("mnuDrawType(0)").checked);
    EXPECT_FALSE(s.wb.IFSModified);
    EXPECT_EQ(s.wb.ChangeCount, 0);
    EXPECT_EQ(s.wb.FunctionsCaption, caption);
    EXPECT_EQ(s.wb.txtMaps, "3");
    EXPECT_EQ(s.wb.lblComment, "");
    EXPECT_TRUE(s.wb.MapSelected);
    EXPECT_EQ(s.wb.SelectedMap, 2);
    EXPECT_EQ(s.Generator.Index, -1);
    for (int i = 0; i < GeneratorCount; ++i) EXPECT_TRUE(exampleEnabled(i)) << i;
    EXPECT_FALSE(windowItem(LineFractalsExample).visible);
}

TEST_F(GeneratorRunTest, CancelBeforeAnyBuildChangesNothing) {
    ASSERT_TRUE(open());
    s.wb.CurrentIFS.Name = "edited meanwhile";  // not a build: Cancel has nothing to undo
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_EQ(s.wb.CurrentIFS.Name, "edited meanwhile");
    EXPECT_EQ(s.Generator.Index, -1);
    EXPECT_TRUE(exampleEnabled(3));
}

TEST_F(GeneratorRunTest, CloseKeepsTheBuild) {
    ASSERT_TRUE(open(TilingsExample));
    buildStandIn(s, host);
    const IFSEntry built = s.wb.CurrentIFS;
    GeneratorClose(s.wb, s.Generator);
    EXPECT_EQ(s.wb.CurrentIFS, built);
    EXPECT_FALSE(s.wb.RandomMode);
    EXPECT_TRUE(s.wb.IFSModified);
    for (int i = 0; i < GeneratorCount; ++i) EXPECT_TRUE(exampleEnabled(i)) << i;
    EXPECT_FALSE(windowItem(TilingsExample).visible);
    EXPECT_FALSE(windowItem(TilingsExample).checked);
}

TEST_F(GeneratorRunTest, ABuildStoredInTheListIsKeptByCancel) {
    ASSERT_TRUE(open());
    buildStandIn(s, host);
    KeepGeneratorBuild(s.Generator);
    const IFSEntry built = s.wb.CurrentIFS;
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_EQ(s.wb.CurrentIFS, built);
    EXPECT_EQ(s.Generator.Index, -1);
}

TEST_F(GeneratorRunTest, OpeningAnotherClosesTheFirstWithoutRestoring) {
    ASSERT_TRUE(open(BoxFractalsExample));
    buildStandIn(s, host);
    const IFSEntry built = s.wb.CurrentIFS;
    ASSERT_TRUE(open(TriangleFractalsExample));
    EXPECT_FALSE(windowItem(BoxFractalsExample).visible);
    EXPECT_TRUE(windowItem(TriangleFractalsExample).visible);
    EXPECT_EQ(s.wb.CurrentIFS, built);
    // The second run saves the first one's build: its Cancel goes back to that.
    EXPECT_EQ(s.Generator.SavedIFS, built);
}

TEST_F(GeneratorRunTest, ALockedDrawingTypeIsFreedByClose) {
    ASSERT_TRUE(open(ComplexBasesExample, true));
    EXPECT_FALSE(s.wb.menu("mnuDrawType(0)").enabled);
    EXPECT_FALSE(s.wb.menu("mnuDrawType(1)").enabled);
    GeneratorClose(s.wb, s.Generator);
    EXPECT_TRUE(s.wb.menu("mnuDrawType(0)").enabled);
    EXPECT_TRUE(s.wb.menu("mnuDrawType(1)").enabled);
}

TEST_F(GeneratorRunTest, CancelRestoresTheDrawingTypeItWasOpenedIn) {
    mnuDrawType_Click(s.wb, s.pics, host, 1);
    ASSERT_FALSE(s.wb.RandomMode);
    ASSERT_TRUE(open());
    buildStandIn(s, host);
    mnuDrawType_Click(s.wb, s.pics, host, 0);
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_FALSE(s.wb.RandomMode);
    EXPECT_TRUE(s.wb.menu("mnuDrawType(1)").checked);
}

}  // namespace
}  // namespace quillane::testing
