// The gradient window's controls and the colour items of the Code menu.
#include "app/gradient_commands.h"

#include <gtest/gtest.h>

#include <fstream>

#include "core/menu_tree.h"
#include "core/scripted_host.h"
#include "tests/core/list_file_fixture.h"

namespace quillane::testing {
namespace {

bool checked(const Workbench& wb, int k) { return wb.menu(MenuTable::key("mnuColors", k)).checked; }

TEST(ColorItems, OneItemAloneIsChecked) {
    Workbench wb;
    mnuColors_Click(wb, 2);
    EXPECT_TRUE(checked(wb, 2));
    mnuColors_Click(wb, 0);
    EXPECT_TRUE(checked(wb, 0));
    EXPECT_FALSE(checked(wb, 1));
    EXPECT_FALSE(checked(wb, 2));
}

TEST(ColorItems, GradientOptionsCheckTheGradientItem) {
    Workbench wb;
    mnuColors_Click(wb, 2);
    mnuColorsGradient_Click(wb);
    EXPECT_FALSE(checked(wb, 0));
    EXPECT_TRUE(checked(wb, 1));
    EXPECT_FALSE(checked(wb, 2));
}

TEST(OptColoring, VisitCountsStartCleanAndShowTheCountRows) {
    AppState s;
    mnuColors_Click(s.wb, 0);
    s.wb.PointCount = 1234;
    optColoring_Click(s, 6);
    EXPECT_EQ(s.pics.Det.optColoring, 6);
    EXPECT_EQ(s.wb.PointCount, 0);
    EXPECT_TRUE(checked(s.wb, 1));
    EXPECT_FALSE(checked(s.wb, 0));
    EXPECT_TRUE(CountRowsVisible(s));
}

TEST(OptColoring, OtherModesHideTheCountRowsAndKeepThePointCount) {
    AppState s;
    s.wb.PointCount = 99;
    optColoring_Click(s, 3);
    EXPECT_EQ(s.pics.Det.optColoring, 3);
    EXPECT_EQ(s.wb.PointCount, 99);
    EXPECT_FALSE(CountRowsVisible(s));
}

TEST(OptColoring, VisitCountsAreDisabledInDeterministicMode) {
    Workbench wb;
    wb.RandomMode = false;
    EXPECT_FALSE(optColoringEnabled(wb, 6));
    EXPECT_TRUE(optColoringEnabled(wb, 5));
    wb.RandomMode = true;
    EXPECT_TRUE(optColoringEnabled(wb, 6));
}

TEST(CmbColors, ListIndexPlusTwoIsTheCountAndHiddenRowsKeepTheirThresholds) {
    Workbench wb;
    txtCount_Change(wb, 6, "77");
    cmbColors_Click(wb, 1);
    EXPECT_EQ(wb.Gradient.GradientColorCount, 3);
    EXPECT_EQ(cmbColorsIndex(wb), 1);
    EXPECT_TRUE(GradientRowVisible(wb, 2));
    EXPECT_FALSE(GradientRowVisible(wb, 3));
    EXPECT_EQ(wb.Gradient.txtCount[6], "77");
    cmbColors_Click(wb, 5);
    EXPECT_EQ(wb.Gradient.GradientColorCount, 7);
    EXPECT_EQ(wb.Gradient.txtCount[6], "77");
}

TEST(CountLabels, StandAtTheBandEdges) {
    Workbench wb;
    cmbColors_Click(wb, 0);
    EXPECT_EQ(lblCountStrip(wb, 1), 180);
    cmbColors_Click(wb, 5);
    EXPECT_EQ(lblCountStrip(wb, 1), 30);
    EXPECT_EQ(lblCountStrip(wb, 6), 180);
}

TEST(PicColors, TheDialogOpensOnThePresentColourAndANewChoiceIsKept) {
    Workbench wb;
    ScriptedHost host;
    host.colors = {RGB(1, 2, 3), std::nullopt};
    EXPECT_TRUE(picColors_Click(wb, host, 4));
    EXPECT_EQ(wb.Gradient.picColors[4], RGB(1, 2, 3));
    EXPECT_EQ(GradientStrips(wb.Gradient)[120], RGB(1, 2, 3));
    EXPECT_FALSE(picColors_Click(wb, host, 4));
    EXPECT_EQ(wb.Gradient.picColors[4], RGB(1, 2, 3));
}

TEST(CountKeys, OnlyDigitsAndBackspaceAndReturnMovesOnInARing) {
    EXPECT_TRUE(txtCountKeyAccepted('0'));
    EXPECT_TRUE(txtCountKeyAccepted('9'));
    EXPECT_TRUE(txtCountKeyAccepted('\b'));
    EXPECT_FALSE(txtCountKeyAccepted('-'));
    EXPECT_FALSE(txtCountKeyAccepted('.'));
    EXPECT_FALSE(txtCountKeyAccepted('a'));
    EXPECT_EQ(txtCountNextBox(2), 3);
    EXPECT_EQ(txtCountNextBox(6), 0);
}

TEST(CmdDefault, RestoresSevenColoursAndTheThresholds) {
    AppState s;
    cmbColors_Click(s.wb, 1);
    s.wb.Gradient.picColors[0] = RGB(9, 9, 9);
    txtCount_Change(s.wb, 2, "500");
    cmdDefault_Click(s);
    EXPECT_EQ(s.wb.Gradient, DefaultGradient());
    EXPECT_EQ(cmbColorsIndex(s.wb), 5);
}

TEST(GradientFile, SaveAppendsTxtAndLoadReadsAllSevenLinesWhateverTheCount) {
    TempDir dir;
    AppState s;
    ScriptedHost host;
    cmbColors_Click(s.wb, 1);
    s.wb.Gradient.picColors[5] = RGB(10, 20, 30);
    txtCount_Change(s.wb, 5, "42");
    host.fileNames = {dir.path("grad")};
    ASSERT_TRUE(cmdSaveGradient_Click(s.wb, host));
    EXPECT_EQ(host.dialogs().back().title, "Save Gradient Colors");
    EXPECT_EQ(host.dialogs().back().filters.front().description, "Gradient Text File (*.txt)");
    EXPECT_EQ(host.dialogs().back().filters.front().pattern, "*.txt");

    AppState other;
    host.fileNames = {dir.path("grad.txt")};
    ASSERT_TRUE(cmdLoadGradient_Click(other, host));
    EXPECT_EQ(host.dialogs().back().title, "Load Gradient Colors");
    EXPECT_EQ(other.wb.Gradient.GradientColorCount, 3);
    EXPECT_EQ(cmbColorsIndex(other.wb), 1);
    EXPECT_EQ(other.wb.Gradient.picColors[5], RGB(10, 20, 30));
    EXPECT_EQ(other.wb.Gradient.txtCount[5], "42");
    // The loaded colours become the defaults.
    other.wb.Gradient.picColors[5] = Black;
    cmdDefault_Click(other);
    EXPECT_EQ(other.wb.Gradient.picColors[5], RGB(10, 20, 30));
    EXPECT_EQ(other.wb.Gradient.GradientColorCount, 7);
}

TEST(GradientFile, AShortFileLeavesColoursAndCountsAsTheyWere) {
    TempDir dir;
    AppState s;
    ScriptedHost host;
    {
        std::ofstream f(dir.path("short.txt"));
        f << "3\n1,2,3,4\n";
    }
    s.wb.Gradient.picColors[0] = RGB(7, 7, 7);
    const GradientColors before = s.wb.Gradient;
    host.fileNames = {dir.path("short.txt")};
    EXPECT_FALSE(cmdLoadGradient_Click(s, host));
    EXPECT_EQ(s.wb.Gradient, before);
    EXPECT_TRUE(host.shown().empty());
}

}  // namespace
}  // namespace quillane::testing
