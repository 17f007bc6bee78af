#include "app/design_toolbar.h"

#include <gtest/gtest.h>

#include "app/transform_commands.h"
#include "tests/core/list_file_fixture.h"
#include "tests/app/chaos_fixture.h"

namespace quillane::testing {
namespace {

std::vector<std::string> captions(const std::vector<ToolbarDropItem>& items) {
    std::vector<std::string> c;
    for (const ToolbarDropItem& item : items) c.push_back(item.caption);
    return c;
}

std::vector<std::string> keys(const std::vector<ToolbarDropItem>& items) {
    std::vector<std::string> k;
    for (const ToolbarDropItem& item : items) k.push_back(item.key);
    return k;
}

TEST(DesignToolbarItems, LeftCaptionsAreTheAngleWithADegreeSignAndCcw) {
    const auto items = RotateDropItems(true);
    EXPECT_EQ(keys(items), (std::vector<std::string>{"30 left", "45 left", "60 left", "90 left", "120 left",
                                                      "180 left", "Other"}));
    EXPECT_EQ(captions(items),
              (std::vector<std::string>{"30\xC2\xB0 ccw", "45\xC2\xB0 ccw", "60\xC2\xB0 ccw", "90\xC2\xB0 ccw",
                                        "120\xC2\xB0 ccw", "180\xC2\xB0 ccw", "Other"}));
}

TEST(DesignToolbarItems, RightCaptionsAreTheAngleWithADegreeSignAndCw) {
    const auto items = RotateDropItems(false);
    EXPECT_EQ(keys(items), (std::vector<std::string>{"30 right", "45 right", "60 right", "90 right", "120 right",
                                                      "180 right", "Other"}));
    EXPECT_EQ(captions(items),
              (std::vector<std::string>{"30\xC2\xB0 cw", "45\xC2\xB0 cw", "60\xC2\xB0 cw", "90\xC2\xB0 cw",
                                        "120\xC2\xB0 cw", "180\xC2\xB0 cw", "Other"}));
}

TEST(DesignToolbarItems, LineStylesInTheOrderOfTheirIndex) {
    EXPECT_EQ(captions(LineDropItems()), (std::vector<std::string>{"thin", "medium", "thick"}));
}

TEST(DesignToolbarItems, LeftTurnsPositiveAndRightNegative) {
    EXPECT_EQ(RotateItemAngle(0, true), 30);
    EXPECT_EQ(RotateItemAngle(4, true), 120);
    EXPECT_EQ(RotateItemAngle(1, false), -45);
    EXPECT_EQ(RotateItemAngle(5, false), -180);
}

class DesignToolbarRotation : public DesignTest {
  protected:
    void SetUp() override {
        DesignTest::SetUp();
        setMap(0, 0.5f, 0, 0, 0.5f, 0, 0);
        setMap(1, 0.5f, 0, 0, 0.5f, 0.5f, 0);
        wb.txtMaps = "2";
    }
};

TEST_F(DesignToolbarRotation, InIFSModeTheSelectedMapTurnsAsRotateIFSDesign) {
    wb.SelectedMap = 1;
    wb.MapSelected = true;
    const IFSFunction before = wb.CurrentIFS.function(1);
    Workbench expected = wb;
    RotateIFSDesign(expected, 45);
    ToolbarRotate(wb, 45);
    EXPECT_EQ(wb.CurrentIFS.function(1), expected.CurrentIFS.function(1));
    EXPECT_NE(wb.CurrentIFS.function(1), before);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo Rotation");
}

TEST_F(DesignToolbarRotation, NothingWithoutASelectionOrWhileDrawing) {
    const IFSEntry before = wb.CurrentIFS;
    EXPECT_FALSE(ToolbarCanRotate(wb));
    ToolbarRotate(wb, 45);
    EXPECT_EQ(wb.CurrentIFS.function(0), before.function(0));
    wb.MapSelected = true;
    wb.DrawingActive = true;
    EXPECT_FALSE(ToolbarCanRotate(wb));
    ToolbarRotate(wb, 45);
    EXPECT_EQ(wb.CurrentIFS.function(0), before.function(0));
    EXPECT_FALSE(wb.menu("mnuUndo").enabled);
}

class DesignToolbarChaos : public ChaosTest {};

TEST_F(DesignToolbarChaos, InChaosGameModeTheRecipeTurnsAsRotateCGDesign) {
    setPoint(0, 0.2f, 0.2f, "SR", 0.5f, 10);
    EXPECT_FALSE(ToolbarCanRotate(wb));
    ToolbarRotate(wb, -120);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], 10);
    wb.CGMapSelected = true;
    wb.SelectedMap = 0;
    wb.MapSelected = false;  // the chaos game keeps its own selection
    ASSERT_TRUE(ToolbarCanRotate(wb));
    ToolbarRotate(wb, -120);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.Angle[0], -110);
    EXPECT_EQ(wb.menu("mnuUndo").caption, "&Undo Rotation");
}

// The design window's button is GetHelpFile at the design window's page.
TEST(DesignHelp, AMissingHelpFolderSaysSoInTheHelpErrorBox) {
    TempDir dir;
    ScriptedHost host;
    int opened = 0;
    EXPECT_FALSE(DesignHelp(host, dir.path(""), [&](const std::string&) { return ++opened > 0; }));
    EXPECT_EQ(opened, 0);
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{
                                {"Help Error", "The help file could not be loaded.\n\nMake sure that the help "
                                               "folder is in the same\n" + dir.path("")}}));
}

TEST(DesignHelp, TheDesignPageIsOpenedAndAFailedOpeningIsReported) {
    TempDir dir;
    std::filesystem::create_directories(dir.path("help"));
    const std::string page = dir.write("help/designWindow.html", "<html></html>");
    ScriptedHost host;
    std::string asked;
    EXPECT_TRUE(DesignHelp(host, dir.path(""), [&](const std::string& path) {
        asked = path;
        return true;
    }));
    EXPECT_EQ(asked, page);
    EXPECT_TRUE(host.shown().empty());
    EXPECT_FALSE(DesignHelp(host, dir.path(""), [](const std::string&) { return false; }));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Help Error");
}

}  // namespace
}  // namespace quillane::testing
