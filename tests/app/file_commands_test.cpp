#include "app/file_commands.h"

#include <gtest/gtest.h>

#include "app/design_mode.h"
#include "app/ifs_file_reader.h"
#include "core/menu_tree.h"
#include "core/recent_files.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::listNames;
using testing::Messages;
using testing::numberedEntry;
using testing::setList;
using testing::TempDir;
using Names = std::vector<std::string>;

const std::string TwoBlocks =
    "Fern {\n0.5 0 0 0.5 0 0 0.5\n0.5 0 0 0.5 0.5 0 0.5\n}\n\nTree {\n0.4 0 0 0.4 0 0 1\n}\n";
const std::string OneChaosBlock = "Spiral {\nSR 0.5 30 1 0 0\n}\n";

class FileCommands : public ::testing::Test {
  protected:
    FileCommands() { InitializeMenuState(wb.Menu); }
    Workbench wb;
    ScriptedHost host;
    TempDir dir;
};

TEST_F(FileCommands, OpenWithNothingModifiedAsksNothingAndTakesEntryOne) {
    host.fileNames = {dir.write("two.ifs", TwoBlocks)};
    EXPECT_TRUE(mnuOpen_Click(wb, host));
    EXPECT_EQ(host.shown(), Messages{});
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "Iterated Function Systems (*.ifs)");
    EXPECT_EQ(listNames(wb), (Names{"Fern", "Tree"}));
    EXPECT_EQ(wb.CurrentIFS.Name, "Fern");
    EXPECT_EQ(wb.SelectedIFS, 1);
    EXPECT_EQ(wb.FrameCaption, "Quillane - two.ifs");
}

TEST_F(FileCommands, OpenWithAModifiedListAsksAndCancelKeepsEverything) {
    setList(wb, {numberedEntry("Old", 1)});
    wb.ListModified = true;
    host.answers = {Answer::Cancel};
    host.fileNames = {dir.write("two.ifs", TwoBlocks)};
    EXPECT_FALSE(mnuOpen_Click(wb, host));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Continue without saving?");
    EXPECT_EQ(
        host.shown()[0].text,
        "The fractals list has been modified.\n\nClick Cancel to return and save.\nClick Ok to continue "
        "without saving.");
    EXPECT_TRUE(host.dialogs().empty());
    EXPECT_EQ(listNames(wb), Names{"Old"});
}

TEST_F(FileCommands, OpenWithAModifiedIFSAsksAndOKOpens) {
    setList(wb, {numberedEntry("Old", 1)});
    TakeListEntry(wb, 1);
    CountEdit(wb);
    host.answers = {Answer::OK};
    host.fileNames = {dir.write("two.ifs", TwoBlocks)};
    EXPECT_TRUE(mnuOpen_Click(wb, host));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Continue without saving?");
    EXPECT_EQ(listNames(wb), (Names{"Fern", "Tree"}));
}

TEST_F(FileCommands, OpenInChaosGameModeReadsChaosGameFiles) {
    wb.DesignMode = 1;
    wb.CodeForm = 2;
    host.fileNames = {dir.write("one.chg", OneChaosBlock)};
    EXPECT_TRUE(mnuOpen_Click(wb, host));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "Chaos Game Files (*.chg)");
    EXPECT_EQ(wb.CurrentIFS.Name, "Spiral");
    EXPECT_EQ(wb.CurrentIFS.HasChaosGame, True16);
    EXPECT_EQ(wb.CurrentIFS.Step[2][0], "R");
}

// The menus of chaos game mode, as a new chaos game leaves them.
void enterChaosGameMenus(Workbench& wb) {
    wb.DesignMode = 1;
    wb.CodeForm = 2;
    wb.Menu.setEnabled("mnuCodeFP", true);
    wb.Menu.setChecked("mnuCodeFP", true);
    wb.Menu.setEnabled("mnuCodeArrangeFP", true);
    wb.Menu.setEnabled(FrameButtonKey(12), true);
    wb.Menu.setEnabled(DesignToolbarKey(PolygonButton), false);
    CGDesignMenus(wb, false);
    ModeFileCaptions(wb, true);
}

void expectIFSMode(const Workbench& wb) {
    EXPECT_EQ(wb.DesignMode, 0);
    EXPECT_EQ(wb.DesignCaption, "Design (IFS)");
    EXPECT_FALSE(wb.menu("mnuCodeFP").enabled);
    EXPECT_FALSE(wb.menu("mnuCodeFP").checked);
    EXPECT_FALSE(wb.menu("mnuCodeArrangeFP").enabled);
    EXPECT_FALSE(wb.menu(FrameButtonKey(12)).enabled);
    EXPECT_TRUE(wb.menu(DesignToolbarKey(PolygonButton)).enabled);
    EXPECT_TRUE(wb.menu("mnuDesignScale").visible);
    EXPECT_FALSE(wb.menu("mnuDesignCGMoves").visible);
    EXPECT_EQ(wb.menu("mnuOpen").caption, "&Open IFS File...");
    EXPECT_EQ(wb.menu(FrameButtonKey(1)).caption, "New IFS");
}

TEST_F(FileCommands, OpeningAnIFSListSetsTheDesignUpForIFS) {
    enterChaosGameMenus(wb);
    wb.DesignMode = 0;  // an IFS file is asked for in IFS mode; the menus still show the chaos game
    ASSERT_TRUE(OpenIFSFile(wb, host, 0, dir.write("two.ifs", TwoBlocks)));
    expectIFSMode(wb);
}

TEST_F(FileCommands, OpeningAChaosGameListSetsTheDesignUpForChaosGames) {
    ASSERT_TRUE(OpenChaosFile(wb, host, 0, dir.write("one.chg", OneChaosBlock)));
    EXPECT_EQ(wb.DesignMode, 1);
    EXPECT_EQ(wb.CodeForm, 2);
    EXPECT_EQ(wb.DesignCaption, "Design (Chaos Game)");
    EXPECT_TRUE(wb.menu("mnuCodeFP").enabled);
    EXPECT_TRUE(wb.menu("mnuCodeFP").checked);
    EXPECT_FALSE(wb.menu("mnuMatrix").checked);
    EXPECT_TRUE(wb.menu(FrameButtonKey(12)).enabled);
    EXPECT_FALSE(wb.menu(DesignToolbarKey(PolygonButton)).enabled);
    EXPECT_FALSE(wb.menu("mnuDesignScale").visible);
    EXPECT_TRUE(wb.menu("mnuDesignCGMoves").visible);
    EXPECT_EQ(wb.menu("mnuOpen").caption, "&Open Chaos Game File...");
    // and an IFS list afterwards goes back
    ASSERT_TRUE(OpenIFSFile(wb, host, 0, dir.write("two.ifs", TwoBlocks)));
    expectIFSMode(wb);
}

TEST_F(FileCommands, NewIFSComesBackFromChaosGameMode) {
    enterChaosGameMenus(wb);
    ASSERT_TRUE(NewIFS(wb, host));
    expectIFSMode(wb);
    EXPECT_EQ(wb.CodeForm, 0);
}

TEST_F(FileCommands, CancelInTheOpenDialogChangesNothing) {
    setList(wb, {numberedEntry("Old", 1)});
    host.fileNames = {std::nullopt};
    EXPECT_FALSE(mnuOpen_Click(wb, host));
    EXPECT_EQ(listNames(wb), Names{"Old"});
}

TEST_F(FileCommands, ARecentFileInSlotThreeOpensAndGoesOnTop) {
    std::vector<std::string> paths;
    for (const char* name : {"d.ifs", "c.ifs", "b.ifs", "a.ifs"}) {
        paths.push_back(dir.write(name, TwoBlocks));
        AddRecentFile(wb, paths.back());
    }
    // a, b, c, d from slot 0: d is in slot 3.
    EXPECT_EQ(mnuMRU_Click(wb, host, 3), RecentOpen::Opened);
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(wb.RecentFiles[0], paths[0]);
    EXPECT_EQ(wb.RecentFiles[1], paths[3]);
    EXPECT_EQ(wb.RecentFiles[2], paths[2]);
    EXPECT_EQ(wb.RecentFiles[3], paths[1]);
    EXPECT_EQ(wb.RecentFileCount, 4);
    EXPECT_EQ(wb.IFSFileName, paths[0]);
    EXPECT_EQ(wb.CurrentIFS.Name, "Fern");
}

TEST_F(FileCommands, AnEmptyRecentSlotDoesNothing) {
    AddRecentFile(wb, dir.write("a.ifs", TwoBlocks));
    EXPECT_EQ(mnuMRU_Click(wb, host, 1), RecentOpen::Nothing);
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_TRUE(wb.IFSFileName.empty());
}

TEST_F(FileCommands, AGoneRecentFileKeptOnNo) {
    AddRecentFile(wb, dir.path("gone.ifs"));
    host.answers = {Answer::No};
    EXPECT_EQ(mnuMRU_Click(wb, host, 0), RecentOpen::Kept);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "File Not Found");
    EXPECT_EQ(wb.RecentFileCount, 1);
}

TEST_F(FileCommands, ARecentFileAsksBeforeReplacingAnEditedIFSAndCancelKeepsIt) {
    AddRecentFile(wb, dir.write("a.ifs", TwoBlocks));
    CountEdit(wb);
    host.answers = {Answer::Cancel};
    EXPECT_EQ(mnuMRU_Click(wb, host, 0), RecentOpen::Nothing);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_TRUE(wb.IFSModified);
    EXPECT_TRUE(wb.IFSFileName.empty());
}

TEST_F(FileCommands, ARecentChaosGameFileEntersChaosGameModeAndBackAgain) {
    const std::string chg = dir.write("spiral.chg", OneChaosBlock);
    const std::string ifs = dir.write("two.ifs", TwoBlocks);
    AddRecentFile(wb, ifs);
    AddRecentFile(wb, chg);
    EXPECT_EQ(mnuMRU_Click(wb, host, 0), RecentOpen::Opened);
    EXPECT_EQ(wb.DesignMode, 1);
    EXPECT_EQ(wb.CurrentIFS.Name, "Spiral");
    EXPECT_EQ(mnuMRU_Click(wb, host, 1), RecentOpen::Opened);
    EXPECT_EQ(wb.DesignMode, 0);
    EXPECT_EQ(wb.CurrentIFS.Name, "Fern");
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(FileCommands, SavingAListUnderANameMakesItARecentFile) {
    host.fileNames = {dir.write("two.ifs", TwoBlocks)};
    ASSERT_TRUE(mnuOpen_Click(wb, host));
    const std::string saved = dir.path("saved.ifs");
    host.fileNames = {saved};
    ASSERT_TRUE(mnuSaveIFSas_Click(wb, host));
    EXPECT_EQ(wb.RecentFiles[0], saved);
    EXPECT_TRUE(wb.SettingsChanged);
}

TEST_F(FileCommands, ClearingTheRecentFilesHidesEveryItem) {
    AddRecentFile(wb, "/x/a.ifs");
    AddRecentFile(wb, "/x/b.ifs");
    wb.SettingsChanged = false;
    mnuFileClearMRU_Click(wb);
    EXPECT_EQ(wb.RecentFileCount, 0);
    EXPECT_FALSE(wb.menu("mnuMRU(0)").visible);
    EXPECT_FALSE(wb.menu("mnuMRU(1)").visible);
    EXPECT_TRUE(wb.SettingsChanged);
}

TEST_F(FileCommands, AppendToAFullListIsRefused) {
    std::vector<IFSEntry> thirty;
    for (int n = 1; n <= 30; ++n) thirty.push_back(numberedEntry("E" + std::to_string(n), 1));
    setList(wb, thirty);
    EXPECT_FALSE(mnuFileAppend_Click(wb, host));
    EXPECT_EQ(host.shown(),
              (Messages{{"Warning",
                         "The current fractal list already has 30 entries.\nThere is no room to "
                         "append additional items.     "}}));
    EXPECT_TRUE(host.dialogs().empty());
}

TEST_F(FileCommands, AppendAddsAfterTheListAndKeepsTheWorkingIFS) {
    setList(wb, {numberedEntry("Old", 1)});
    TakeListEntry(wb, 1);
    host.fileNames = {dir.write("two.ifs", TwoBlocks)};
    EXPECT_TRUE(mnuFileAppend_Click(wb, host));
    EXPECT_EQ(listNames(wb), (Names{"Old", "Fern", "Tree"}));
    EXPECT_EQ(wb.CurrentIFS.Name, "Old");
    EXPECT_EQ(wb.SelectedIFS, 1);
    EXPECT_TRUE(wb.ListModified);
}

TEST_F(FileCommands, SaveWritesTheListToItsOwnFileAndClearsListModified) {
    const std::string path = dir.write("two.ifs", TwoBlocks);
    ASSERT_TRUE(OpenIFSFile(wb, host, 0, path));
    wb.FractalList[2].a[0] = 0.25f;
    wb.ListModified = true;
    EXPECT_TRUE(mnuSaveIFS_Click(wb, host));
    EXPECT_TRUE(host.dialogs().empty());
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_FALSE(wb.ListModified);
    EXPECT_NE(TempDir::read(path).find("Tree {\n   0.250000 "), std::string::npos);
}

TEST_F(FileCommands, SaveWithoutAFileNameAsksForOne) {
    setList(wb, {numberedEntry("A", 1)});
    wb.ListModified = true;
    host.fileNames = {dir.path("named")};
    EXPECT_TRUE(mnuSaveIFS_Click(wb, host));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Save IFS file");
    EXPECT_EQ(wb.IFSFileName, dir.path("named.ifs"));
    EXPECT_FALSE(wb.ListModified);
}

TEST_F(FileCommands, SaveWithAnUnsavedIFSAsksAndCancelWritesNothing) {
    const std::string path = dir.write("two.ifs", TwoBlocks);
    ASSERT_TRUE(OpenIFSFile(wb, host, 0, path));
    CountEdit(wb);
    wb.ListModified = true;
    host.answers = {Answer::Cancel};
    EXPECT_FALSE(mnuSaveIFS_Click(wb, host));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].text.rfind("The current IFS code has not been saved.   \n", 0), 0u);
    EXPECT_TRUE(wb.ListModified);
    EXPECT_EQ(TempDir::read(path), TwoBlocks);
}

TEST_F(FileCommands, SaveAsAlwaysAsksForTheName) {
    const std::string path = dir.write("two.ifs", TwoBlocks);
    ASSERT_TRUE(OpenIFSFile(wb, host, 0, path));
    wb.ListModified = true;
    host.fileNames = {dir.path("copy.ifs")};
    EXPECT_TRUE(mnuSaveIFSas_Click(wb, host));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(wb.IFSFileName, dir.path("copy.ifs"));
    EXPECT_EQ(wb.FrameCaption, "Quillane - copy.ifs");
    EXPECT_FALSE(wb.ListModified);
    EXPECT_EQ(TempDir::read(path), TwoBlocks);
}

TEST_F(FileCommands, SaveAsInChaosGameModeHasTheIFSFilterAndWritesAChaosGameFile) {
    wb.DesignMode = 1;
    ASSERT_TRUE(OpenChaosFile(wb, host, 0, dir.write("one.chg", OneChaosBlock)));
    host.fileNames = {dir.path("again")};
    EXPECT_TRUE(mnuSaveIFSas_Click(wb, host));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "IFS text files (*.ifs)");
    EXPECT_EQ(wb.IFSFileName, dir.path("again.chg"));
    EXPECT_NE(TempDir::read(dir.path("again.chg")).find("  SR  0.500000  30.000000 "), std::string::npos);
}

TEST_F(FileCommands, SaveCurrentClearsTheEditsOnSuccessOnly) {
    setList(wb, {numberedEntry("Fern", 2)});
    TakeListEntry(wb, 1);
    CountEdit(wb);
    host.fileNames = {std::nullopt};
    EXPECT_FALSE(mnuSaveCurrent_Click(wb, host));
    EXPECT_EQ(wb.ChangeCount, 1);
    EXPECT_TRUE(wb.IFSModified);
    host.fileNames = {dir.path("fern")};
    EXPECT_TRUE(mnuSaveCurrent_Click(wb, host));
    EXPECT_EQ(host.dialogs().back().initialName, "Fern.ifs");
    EXPECT_EQ(wb.ChangeCount, 0);
    EXPECT_FALSE(wb.IFSModified);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern]");
    EXPECT_EQ(TempDir::read(dir.path("fern.ifs")).rfind("Fern {\n 0.500000 ", 0), 0u);
}

TEST_F(FileCommands, NewIFSReplacesAnUntitledSingleFunctionWithoutAQuestion) {
    wb.CurrentIFS.a[0] = 0.7f;
    wb.IFSModified = true;  // modified, but never counted as an edit of a named IFS
    EXPECT_TRUE(NewIFS(wb, host));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(wb.CurrentIFS, DefaultIFS());
}

TEST_F(FileCommands, NewIFSAsksForAnEditedNamedIFSAndCancelKeepsIt) {
    setList(wb, {numberedEntry("Fern", 2)});
    TakeListEntry(wb, 1);
    CountEdit(wb);
    host.answers = {Answer::Cancel};
    EXPECT_FALSE(NewIFS(wb, host));
    EXPECT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(wb.CurrentIFS.Name, "Fern");
    EXPECT_EQ(wb.SelectedIFS, 1);
}

TEST_F(FileCommands, NewIFSStartsOverInTheMatrixFormThatWasInUse) {
    IFSEntry chaos = numberedEntry("Chaos", 2);
    chaos.HasChaosGame = True16;
    setList(wb, {numberedEntry("Plain", 1), chaos});
    AdjustIFSMenu(wb, false);
    TakeListEntry(wb, 2);
    wb.DesignMode = 1;
    wb.CodeForm = 2;
    wb.MatrixFunctionForm = 1;
    wb.lblComment = "; old";
    EXPECT_TRUE(NewIFS(wb, host));
    EXPECT_EQ(wb.DesignMode, 0);
    EXPECT_EQ(wb.CodeForm, 0);
    EXPECT_TRUE(wb.menu("mnuCodeMatrixFormat").checked);
    EXPECT_FALSE(wb.menu("mnuCodeFP").checked);
    EXPECT_TRUE(wb.menu(EntryKey(1)).enabled);
    EXPECT_EQ(wb.SelectedIFS, 0);
    EXPECT_FALSE(wb.menu(EntryKey(2)).checked);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Untitled]");
    EXPECT_EQ(wb.txtMaps, "1");
    EXPECT_EQ(wb.lblComment, "");
    const Names row{wb.Table.text(1, 0), wb.Table.text(2, 0), wb.Table.text(3, 0), wb.Table.text(4, 0),
                    wb.Table.text(5, 0), wb.Table.text(6, 0), wb.Table.text(7, 0)};
    EXPECT_EQ(row, (Names{"0.500", "0.000", "0.000", "0.500", "0.000", "0.000", "1.000"}));
}

TEST_F(FileCommands, NewIFSInTheScaleAndRotationFormShowsRAndS) {
    wb.CodeForm = 1;
    EXPECT_TRUE(NewIFS(wb, host));
    EXPECT_EQ(wb.CodeForm, 1);
    const Names row{wb.Table.text(1, 0), wb.Table.text(2, 0), wb.Table.text(3, 0), wb.Table.text(4, 0),
                    wb.Table.text(5, 0), wb.Table.text(6, 0), wb.Table.text(7, 0)};
    EXPECT_EQ(row, (Names{"0.500", "0.500", "0.00", "0.00", "0.000", "0.000", "1.000"}));
}

}  // namespace
}  // namespace quillane
