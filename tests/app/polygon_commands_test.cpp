#include "app/polygon_commands.h"

#include <gtest/gtest.h>

#include "core/initial_polygons.h"
#include "core/scripted_host.h"
#include "core/table_editing.h"
#include "design/design_drawing.h"
#include "tests/core/list_file_fixture.h"
#include "tests/app/design_fixture.h"

namespace quillane::testing {
namespace {

class PolygonCommands : public DesignTest {
  protected:
    // The pixel width of the close tolerance in world units.
    float px() const { return static_cast<float>(d.picdesign.pixelsToWorldX(1)); }
    ScriptedHost host;
    FractalPictures pics;
    TempDir dir;
};

TEST_F(PolygonCommands, ChoosingAPolygonChecksItsItemAndFitsTheWindow) {
    mnupoly_Click(wb, d, pics, host, 7);
    EXPECT_EQ(wb.InitialPolygon, BuiltInPolygon(7));
    EXPECT_TRUE(wb.menu("mnupoly(7)").checked);
    EXPECT_FALSE(wb.menu("mnupoly(0)").checked);
    EXPECT_TRUE(wb.menu("mnuFileSavePolygon").enabled);
    EXPECT_EQ(wb.txtDesign, WindowTexts(wb.DesignWindow));
    // The unit square under a = d = 0.5: 0 .. 1 rounded outward stays 0 .. 1, with a 5% margin.
    EXPECT_NEAR(wb.DesignWindow.xmin, -0.05f, 1e-6);
    EXPECT_NEAR(wb.DesignWindow.xmax, 1.05f, 1e-6);
}

TEST_F(PolygonCommands, APolygonWithAPenLiftSavedAndLoadedHasTheSameEntries) {
    wb.InitialPolygon = BuiltInPolygon(1);
    host.fileNames.push_back("  " + dir.path("tri") + "  ");
    mnuFileSavePolygon_Click(wb, host);
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "IFS Polygon files (*.gon)");
    const std::string text = TempDir::read(dir.path("tri.gon"));
    EXPECT_EQ(text.substr(0, 23), " 0 , 0 \r\n 1 , 0 \r\n .5 ,");
    EXPECT_NE(text.find("\r\n 1000 , 1000 \r\n .7 , .1 \r\n"), std::string::npos);
    wb.InitialPolygon = BuiltInPolygon(4);
    wb.UserPolygon = {};
    host.fileNames.push_back(dir.path("tri.gon"));
    mnuDesignLoadPoly_Click(wb, d, pics, host);
    EXPECT_EQ(host.dialogs()[1].filters[0].description, "Polygon Files (*.gon)");
    EXPECT_EQ(wb.InitialPolygon.nPoints, 8);
    for (int k = 1; k <= 8; ++k) {
        EXPECT_EQ(wb.InitialPolygon.x[k], BuiltInPolygon(1).x[k]) << k;
        EXPECT_EQ(wb.InitialPolygon.y[k], BuiltInPolygon(1).y[k]) << k;
    }
    EXPECT_TRUE(wb.menu("mnupoly(13)").checked);
    EXPECT_TRUE(wb.menu("mnupoly(13)").enabled);
    EXPECT_FALSE(wb.menu("mnupoly(0)").checked);
}

TEST_F(PolygonCommands, AGonNameKeepsItsExtensionInAnyCase) {
    host.fileNames.push_back(dir.path("square.GON"));
    mnuFileSavePolygon_Click(wb, host);
    EXPECT_FALSE(TempDir::read(dir.path("square.GON")).empty());
}

TEST_F(PolygonCommands, BracketsAndBlankLinesAreIgnoredWhenLoading) {
    host.fileNames.push_back(dir.write("b.gon", "(0.5, 1)\r\n\r\n   \n0.5,1\n(2 , -1)\n"));
    mnuDesignLoadPoly_Click(wb, d, pics, host);
    EXPECT_EQ(wb.UserPolygon.nPoints, 3);
    EXPECT_EQ(wb.UserPolygon.x[1], wb.UserPolygon.x[2]);
    EXPECT_EQ(wb.UserPolygon.y[1], wb.UserPolygon.y[2]);
    EXPECT_FLOAT_EQ(wb.UserPolygon.y[2], 1.0f);
    EXPECT_FLOAT_EQ(wb.UserPolygon.y[3], -1.0f);
}

TEST_F(PolygonCommands, AFileOfMoreThan110LinesKeepsTheFirst110) {
    std::string text;
    for (int k = 1; k <= 115; ++k) text += std::to_string(k) + ", 0\r\n";
    wb.UserPolygon.Kind = 2;
    host.fileNames.push_back(dir.write("long.gon", text));
    mnuDesignLoadPoly_Click(wb, d, pics, host);
    EXPECT_EQ(wb.UserPolygon.nPoints, 110);
    EXPECT_FLOAT_EQ(wb.UserPolygon.x[110], 110.0f);
    EXPECT_EQ(wb.UserPolygon.Kind, 2);
    EXPECT_EQ(wb.InitialPolygon, wb.UserPolygon);
}

TEST_F(PolygonCommands, ACancelledLoadChangesNothing) {
    const DesignPolygon before = wb.InitialPolygon;
    mnuDesignLoadPoly_Click(wb, d, pics, host);
    EXPECT_EQ(wb.InitialPolygon, before);
    EXPECT_FALSE(wb.menu("mnupoly(13)").checked);
}

TEST_F(PolygonCommands, PolygonModeKeepsTheToolbarAndMenusAside) {
    mnuDrawPoly_Click(wb, d, PolygonHintText(500, 10));
    EXPECT_TRUE(d.Poly.PolygonMode);
    EXPECT_EQ(d.HintText, " D:delete L:lift Q:done Shift:snap");
    for (int b = 1; b <= 15; ++b) EXPECT_EQ(wb.menu(DesignToolbarKey(b)).enabled, b >= 9 && b <= 11) << b;
    EXPECT_FALSE(wb.menu("mnuPickPoly").enabled);
    EXPECT_FALSE(wb.menu("mnuDesignFitWin").enabled);
    EXPECT_FALSE(wb.menu("mnuFileSavePolygon").enabled);
    PolygonModeFinish(wb, d);
    // Saved after the selection was dropped: the buttons of a selected function stay off.
    for (int b = 1; b <= 15; ++b) EXPECT_EQ(wb.menu(DesignToolbarKey(b)).enabled, b < 2 || b > 7) << b;
    EXPECT_TRUE(wb.menu("mnuPickPoly").enabled);
    EXPECT_TRUE(wb.menu("mnuFileSavePolygon").enabled);
    EXPECT_EQ(d.HintText, "");
}

TEST_F(PolygonCommands, TheHintFollowsTheWidthOfTheStatusLine) {
    EXPECT_EQ(PolygonHintText(481, 10), " D:delete L:lift Q:done Shift:snap");
    EXPECT_EQ(PolygonHintText(480, 10), " D L Q Shift");
    EXPECT_EQ(PolygonHintText(261, 10), " D L Q Shift");
    EXPECT_EQ(PolygonHintText(260, 10), " DLQSh");
    EXPECT_EQ(PolygonHintText(210, 10), "");
}

TEST_F(PolygonCommands, ClicksDrawThePathAndAClickNearTheStartClosesIt) {
    wb.Menu.setChecked("mnuDesignAxes", false);
    mnuDrawPoly_Click(wb, d, "");
    PolygonModeClick(wb, d, 0.1f, 0.1f, false);
    PolygonModeMove(wb, d, 0.9f, 0.1f);
    // The rubber band is drawn inverted over white.
    EXPECT_EQ(at(0.5, 0.1), Black);
    PolygonModeClick(wb, d, 0.9f, 0.1f, false);
    EXPECT_EQ(at(0.5, 0.1), Black);
    PolygonModeMove(wb, d, 0.9f, 0.9f);
    PolygonModeClick(wb, d, 0.9f, 0.9f, false);
    EXPECT_EQ(at(0.9, 0.5), Black);
    EXPECT_EQ(d.picImage.point(0.9, 0.5), Black);
    // Near the start: within 5 pixels the cursor offers to close, and the click closes.
    EXPECT_TRUE(PolygonModeMove(wb, d, 0.1f + 2 * px(), 0.1f));
    EXPECT_FALSE(PolygonModeMove(wb, d, 0.1f + 6 * px(), 0.1f));
    PolygonModeClick(wb, d, 0.1f + 2 * px(), 0.1f, false);
    EXPECT_EQ(wb.InitialPolygon.nPoints, 4);
    EXPECT_FLOAT_EQ(wb.InitialPolygon.x[4], 0.1f);
    EXPECT_FLOAT_EQ(wb.InitialPolygon.y[4], 0.1f);
    EXPECT_EQ(at(0.5, 0.5), Black);  // the closing edge
    EXPECT_EQ(at(0.5, 0.3), White);
    PolygonModeFinish(wb, d);
    EXPECT_TRUE(wb.menu("mnupoly(13)").checked);
    EXPECT_TRUE(wb.menu("mnuDesignPoly").checked);
    EXPECT_EQ(wb.UserPolygon.nPoints, 4);
}

TEST_F(PolygonCommands, TheAxesStayThroughEveryClick) {
    ASSERT_TRUE(wb.menu("mnuDesignAxes").checked);
    mnuDrawPoly_Click(wb, d, "");
    ASSERT_EQ(at(0.6, 0), wb.DesignAxisColor);
    const std::pair<float, float> vertices[] = {{0.2f, 0.2f}, {0.8f, 0.3f}, {0.5f, 0.8f}, {0.3f, 0.6f}};
    for (const auto& [x, y] : vertices) {
        PolygonModeMove(wb, d, x, y);
        PolygonModeClick(wb, d, x, y, false);
        EXPECT_EQ(at(0.6, 0), wb.DesignAxisColor) << "after the vertex " << x << ", " << y;
        EXPECT_EQ(at(0, 0.6), wb.DesignAxisColor) << "after the vertex " << x << ", " << y;
    }
    // The band still inverts: moving it away leaves the edge between the vertices alone.
    PolygonModeMove(wb, d, 0.9f, 0.9f);
    EXPECT_EQ(at(0.65, 0.55), Black);
}

TEST_F(PolygonCommands, MovingTheRubberBandLeavesNoTrace) {
    wb.Menu.setChecked("mnuDesignAxes", false);
    mnuDrawPoly_Click(wb, d, "");
    const RasterSurface before = d.picdesign;
    PolygonModeClick(wb, d, 0.2f, 0.2f, false);
    PolygonModeMove(wb, d, 0.8f, 0.3f);
    PolygonModeMove(wb, d, 0.2f, 0.8f);
    EXPECT_EQ(at(0.2, 0.5), Black);
    EXPECT_EQ(at(0.5, 0.25), White);
    PolygonModeKey(wb, d, 'L', false);  // the lift erases the band
    int differing = 0;
    for (int i = 0; i < 240 * 240; ++i) differing += before.data()[i] != d.picdesign.data()[i];
    EXPECT_EQ(differing, 0);
}

TEST_F(PolygonCommands, TheSnappedFirstVertexTakesItsYFromGridX) {
    wb.GridX = 0.25f;
    wb.GridY = 0.125f;
    mnuDrawPoly_Click(wb, d, "");
    PolygonModeClick(wb, d, 0.3f, 0.3f, true);
    EXPECT_FLOAT_EQ(d.Poly.PathStartX, 0.25f);
    EXPECT_FLOAT_EQ(d.Poly.PathStartY, 0.5f);  // Round(2.4) * 0.25
    EXPECT_FLOAT_EQ(wb.UserPolygon.y[1], 0.25f);  // the stored entry uses GridY
}

TEST_F(PolygonCommands, DeleteDirectlyAfterLiftReturnsToTheEarlierPath) {
    wb.Menu.setChecked("mnuDesignAxes", false);
    mnuDrawPoly_Click(wb, d, "");
    PolygonModeClick(wb, d, 0.1f, 0.1f, false);
    PolygonModeClick(wb, d, 0.9f, 0.1f, false);
    PolygonModeKey(wb, d, 'l', false);
    EXPECT_TRUE(d.Poly.PathStartPending);
    PolygonModeClick(wb, d, 0.5f, 0.5f, false);
    PolygonModeClick(wb, d, 0.5f, 0.9f, false);
    EXPECT_TRUE(PolygonModeKey(wb, d, 'D', false));
    EXPECT_TRUE(PolygonModeKey(wb, d, 'D', false));
    // Back on the first path: its end is the last vertex and its start the start.
    EXPECT_EQ(d.Poly.PolygonPointCount, 2);
    EXPECT_FLOAT_EQ(d.Poly.LastVertexX, 0.9f);
    EXPECT_FLOAT_EQ(d.Poly.PathStartX, 0.1f);
    EXPECT_EQ(at(0.5, 0.1), Black);  // the earlier path is drawn again
    EXPECT_EQ(at(0.5, 0.7), White);  // the deleted one is gone
}

TEST_F(PolygonCommands, QWithNoPointKeepsTheFormerPolygon) {
    wb.InitialPolygon = BuiltInPolygon(6);
    mnuDrawPoly_Click(wb, d, "");
    EXPECT_TRUE(PolygonModeKey(wb, d, 'Q', false));
    EXPECT_FALSE(d.Poly.PolygonMode);
    EXPECT_EQ(wb.InitialPolygon, BuiltInPolygon(6));
    EXPECT_FALSE(wb.menu("mnupoly(13)").checked);
}

TEST_F(PolygonCommands, ATrailingLiftIsDroppedAtTheFinish) {
    mnuDrawPoly_Click(wb, d, "");
    PolygonModeClick(wb, d, 0.1f, 0.1f, false);
    PolygonModeClick(wb, d, 0.9f, 0.1f, false);
    PolygonModeKey(wb, d, 'L', false);
    PolygonModeKey(wb, d, 'q', false);
    EXPECT_EQ(wb.InitialPolygon.nPoints, 2);
    EXPECT_EQ(wb.UserPolygon.nPoints, 2);
}

TEST_F(PolygonCommands, ShowInitialPolygonTogglesTheDashedOutline) {
    wb.Menu.setChecked("mnuDesignAxes", false);
    wb.CurrentIFS.nMaps = 0;
    DrawDesign(wb, d, false);
    const int dashed = countColour(Black);
    EXPECT_GT(dashed, 100);
    mnuDesignPoly_Click(wb, d);
    EXPECT_FALSE(wb.menu("mnuDesignPoly").checked);
    EXPECT_EQ(countColour(Black), 0);
}

}  // namespace
}  // namespace quillane::testing
