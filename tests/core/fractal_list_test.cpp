#include "core/fractal_list.h"

#include <gtest/gtest.h>

#include "core/function_table.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::menuNames;
using testing::Messages;
using testing::numberedEntry;
using testing::setList;
using Names = std::vector<std::string>;

TEST(SetIFSMenu, AddsTheSeparatorAndOneItemPerEntryWithTheTrimmedName) {
    Workbench wb;
    ClearIFSMenu(wb);
    wb.FractalList[1] = numberedEntry("  Fern ", 1);
    wb.FractalList[2] = numberedEntry("Tree", 1);
    SetIFSMenu(wb, 2, 0);
    EXPECT_EQ(wb.NamesItemCount, 7);
    EXPECT_EQ(wb.ListCount(), 2);
    EXPECT_EQ(wb.menu("mnuNames(4)").caption, "-");
    EXPECT_EQ(wb.menu("mnuNames(5)").caption, "Fern");
    EXPECT_EQ(wb.menu("mnuNames(6)").caption, "Tree");
    for (int k = 1; k <= 3; ++k) EXPECT_TRUE(wb.menu(NamesKey(k)).enabled) << k;
}

TEST(SetIFSMenu, AppendsAfterTheFirstStartEntries) {
    Workbench wb;
    setList(wb, {numberedEntry("A", 1), numberedEntry("B", 1)});
    wb.FractalList[3] = numberedEntry("C", 1);
    SetIFSMenu(wb, 1, 2);
    EXPECT_EQ(menuNames(wb), (Names{"A", "B", "C"}));
    EXPECT_EQ(wb.NamesItemCount, 8);
}

TEST(ClearIFSMenu, LeavesFourItemsWithOnlyAddUnderANewNameEnabled) {
    Workbench wb;
    setList(wb, {numberedEntry("A", 1), numberedEntry("B", 1)});
    ClearIFSMenu(wb);
    EXPECT_EQ(wb.NamesItemCount, 4);
    EXPECT_EQ(wb.ListCount(), 0);
    EXPECT_FALSE(wb.Menu.contains("mnuNames(4)"));
    EXPECT_FALSE(wb.Menu.contains("mnuNames(5)"));
    EXPECT_FALSE(wb.menu("mnuNames(0)").enabled);
    EXPECT_TRUE(wb.menu("mnuNames(1)").enabled);
    EXPECT_FALSE(wb.menu("mnuNames(2)").enabled);
    EXPECT_FALSE(wb.menu("mnuNames(3)").enabled);
}

TEST(AdjustIFSMenu, InChaosGameModeEntriesWithoutAChaosGameAreGreyed) {
    Workbench wb;
    IFSEntry chaos = numberedEntry("Chaos", 1);
    chaos.HasChaosGame = True16;
    setList(wb, {numberedEntry("Plain", 1), chaos});
    AdjustIFSMenu(wb, false);
    EXPECT_FALSE(wb.menu("mnuNames(5)").enabled);
    EXPECT_TRUE(wb.menu("mnuNames(6)").enabled);
    AdjustIFSMenu(wb, true);
    EXPECT_TRUE(wb.menu("mnuNames(5)").enabled);
    EXPECT_TRUE(wb.menu("mnuNames(6)").enabled);
}

TEST(AdjustNameMenu, ChecksTheFirstEntryNamedLikeTheCurrentIFS) {
    Workbench wb;
    setList(wb, {numberedEntry("A", 1), numberedEntry("B", 1), numberedEntry("B", 2)});
    wb.Menu.setChecked("mnuNames(5)", true);
    wb.CurrentIFS.Name = "B";
    AdjustNameMenu(wb);
    EXPECT_FALSE(wb.menu("mnuNames(5)").checked);
    EXPECT_TRUE(wb.menu("mnuNames(6)").checked);
    EXPECT_FALSE(wb.menu("mnuNames(7)").checked);
    EXPECT_EQ(wb.SelectedIFS, 2);
}

TEST(AdjustNameMenu, WithNoSuchNameNothingIsChecked) {
    Workbench wb;
    setList(wb, {numberedEntry("A", 1)});
    wb.Menu.setChecked("mnuNames(5)", true);
    wb.SelectedIFS = 1;
    wb.CurrentIFS.Name = "Other";
    AdjustNameMenu(wb);
    EXPECT_FALSE(wb.menu("mnuNames(5)").checked);
    EXPECT_EQ(wb.SelectedIFS, 1);
}

class TakeEntry : public ::testing::Test {
  protected:
    Workbench wb;
    ScriptedHost host;
};

TEST_F(TakeEntry, AnEntryWithoutFunctionsIsRefused) {
    IFSEntry empty = numberedEntry("Empty", 1);
    empty.nMaps = 0;
    setList(wb, {numberedEntry("A", 2), empty});
    const IFSEntry before = wb.CurrentIFS;
    EXPECT_FALSE(TakeListEntry(wb, host, 2));
    EXPECT_EQ(host.shown(), (Messages{{"Error", "This IFS has no functions.   "}}));
    EXPECT_EQ(wb.CurrentIFS, before);
    EXPECT_EQ(wb.SelectedIFS, 0);
}

TEST_F(TakeEntry, CopiesTheEntryAndSetsCaptionCountSelectionAndCheck) {
    setList(wb, {numberedEntry("A", 2), numberedEntry("  Fern  ", 4)});
    wb.Menu.setChecked("mnuNames(5)", true);
    EXPECT_TRUE(TakeListEntry(wb, host, 2));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(wb.CurrentIFS, wb.FractalList[2]);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern]");
    EXPECT_EQ(wb.txtMaps, "4");
    EXPECT_EQ(wb.SelectedIFS, 2);
    EXPECT_FALSE(wb.menu("mnuNames(5)").checked);
    EXPECT_TRUE(wb.menu("mnuNames(6)").checked);
}

TEST_F(TakeEntry, AllZeroProbabilitiesAreRepairedInTheEntry) {
    IFSEntry zero = numberedEntry("Zero", 3);
    for (int i = 0; i < 3; ++i) zero.p[i] = 0;
    setList(wb, {zero});
    ASSERT_TRUE(TakeListEntry(wb, host, 1));
    EXPECT_EQ(wb.FractalList[1].p[0], 0.333333f);
    EXPECT_EQ(wb.FractalList[1].p[1], 0.333333f);
    EXPECT_EQ(wb.FractalList[1].p[2], 0.333334f);
    EXPECT_EQ(wb.CurrentIFS.p[2], 0.333334f);
}

TEST_F(TakeEntry, ProbabilitiesThatAreNotAllZeroStay) {
    IFSEntry some = numberedEntry("Some", 2);
    some.p[0] = 0;
    some.p[1] = 0.3f;
    setList(wb, {some});
    ASSERT_TRUE(TakeListEntry(wb, host, 1));
    EXPECT_EQ(wb.CurrentIFS.p[0], 0.0f);
    EXPECT_EQ(wb.CurrentIFS.p[1], 0.3f);
}

TEST_F(TakeEntry, AnEntryBeyondTheListIsNotTaken) {
    setList(wb, {numberedEntry("A", 2)});
    wb.FractalList[2] = numberedEntry("Stale", 2);
    EXPECT_FALSE(TakeListEntry(wb, host, 2));
    EXPECT_FALSE(TakeListEntry(wb, host, 0));
    EXPECT_EQ(wb.CurrentIFS.Name, "Untitled");
}

}  // namespace
}  // namespace quillane

namespace quillane {
namespace {

using testing::numberedEntry;
using testing::setList;
using Texts = std::vector<std::string>;

Texts rowText(const Workbench& wb, int row) {
    Texts t;
    for (int k = 1; k <= 7; ++k) t.push_back(wb.Table.text(k, row));
    return t;
}

Texts rowOldText(Workbench& wb, int row) {
    Texts t;
    for (int k = 1; k <= 7; ++k) t.push_back(wb.Table.old(k, row));
    return t;
}

// One map with d = 0 and b < 0: a quarter turn.
IFSEntry quarterTurn() {
    IFSEntry e = numberedEntry("Turn", 1);
    e.a[0] = 0;
    e.b[0] = -0.5f;
    e.c[0] = 0.5f;
    e.d[0] = 0;
    e.e[0] = 0.25f;
    e.f[0] = 0;
    e.p[0] = 1;
    return e;
}

TEST(TakenEntryTexts, InTheMatrixFormTheTableShowsTheCoefficients) {
    Workbench wb;
    setList(wb, {quarterTurn()});
    ASSERT_TRUE(TakeListEntry(wb, 1));
    EXPECT_EQ(rowText(wb, 0), (Texts{"0.000", "-0.500", "0.500", "0.000", "0.250", "0.000", "1.000"}));
    EXPECT_EQ(rowOldText(wb, 0), rowText(wb, 0));
}

TEST(TakenEntryTexts, WithDZeroAndBNegativePhiIsMinus90RightAfterTakingTheEntry) {
    Workbench wb;
    wb.CodeForm = 1;
    setList(wb, {quarterTurn()});
    ASSERT_TRUE(TakeListEntry(wb, 1));
    EXPECT_EQ(rowText(wb, 0), (Texts{"0.500", "0.500", "90.00", "-90.00", "0.250", "0.000", "1.000"}));
    EXPECT_EQ(rowOldText(wb, 0), rowText(wb, 0));
    // The table's own rule, used at the next edit of the row, gives 90.
    EXPECT_EQ(RowTexts(wb, 0)[3], "90.00");
}

TEST(TakenEntryTexts, WithDZeroAndBPositivePhiIs90RightAfterTakingTheEntry) {
    Workbench wb;
    wb.CodeForm = 1;
    IFSEntry e = quarterTurn();
    e.b[0] = 0.5f;
    setList(wb, {e});
    ASSERT_TRUE(TakeListEntry(wb, 1));
    EXPECT_EQ(wb.Table.text(4, 0), "90.00");
    EXPECT_EQ(RowTexts(wb, 0)[3], "-90.00");
}

TEST(TakenEntryTexts, RAndSAreRoundedToFourDecimalsBeforeTheyAreShown) {
    Workbench wb;
    wb.CodeForm = 1;
    IFSEntry e = numberedEntry("Thin", 1);
    e.a[0] = 0.0004999f;
    e.c[0] = 0;
    e.b[0] = 0;
    e.d[0] = 0.0004999f;
    setList(wb, {e});
    ASSERT_TRUE(TakeListEntry(wb, 1));
    EXPECT_EQ(wb.Table.text(1, 0), "0.001");
    EXPECT_EQ(wb.Table.text(2, 0), "0.001");
    EXPECT_EQ(RowTexts(wb, 0)[0], "0.000");
    EXPECT_EQ(wb.Table.text(4, 0), "0.00");  // d is not 0: phi by the usual rule
}

TEST(TakenEntryTexts, EveryRowIsWrittenAndTheFirstCommentIsShown) {
    Workbench wb;
    IFSEntry e = numberedEntry("Three", 3);
    e.nComments = 2;
    e.Comment[1] = "the first line   ";
    e.Comment[2] = "; the second";
    setList(wb, {e, numberedEntry("Plain", 1)});
    ASSERT_TRUE(TakeListEntry(wb, 1));
    EXPECT_EQ(wb.lblComment, "the first line");
    EXPECT_EQ(wb.Table.text(5, 2), "2.000");
    EXPECT_EQ(wb.Table.text(6, 2), "-2.000");
    ASSERT_TRUE(TakeListEntry(wb, 2));
    EXPECT_EQ(wb.lblComment, "");
}

}  // namespace
}  // namespace quillane
