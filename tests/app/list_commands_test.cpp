#include "app/list_commands.h"

#include <gtest/gtest.h>

#include "core/menu_tree.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::listNames;
using testing::menuNames;
using testing::Messages;
using testing::numberedEntry;
using testing::setList;
using testing::TempDir;
using Names = std::vector<std::string>;

// A list with a scripted frmSaveIFSAs and frmDeleteIFS that remember what they were shown.
class ListCommands : public ::testing::Test {
  protected:
    ListCommands() {
        dialogs.frmSaveIFSAs = [this](const ListNameRequest& r) {
            requests.push_back(r);
            return typedName;
        };
        dialogs.frmDeleteIFS = [this](const std::vector<std::string>& names) {
            deleteShown.push_back(names);
            return chosenEntry;
        };
    }

    // CurrentIFS taken from entry n, as a click on it leaves it.
    void take(int n) { ASSERT_TRUE(TakeListEntry(wb, n)); }

    Workbench wb;
    ScriptedHost host;
    ListDialogs dialogs;
    std::optional<std::string> typedName;
    std::optional<int> chosenEntry;
    std::vector<ListNameRequest> requests;
    std::vector<Names> deleteShown;
};

std::vector<bool> checks(const Workbench& wb) {
    std::vector<bool> c;
    for (int n = 1; n <= wb.ListCount(); ++n) c.push_back(wb.menu(EntryKey(n)).checked);
    return c;
}

TEST_F(ListCommands, AddingUnderTheNameOfAnEntryInAnyCaseReplacesItSilently) {
    setList(wb, {numberedEntry("A", 1), numberedEntry("Fern", 4), numberedEntry("B", 2)});
    take(1);
    wb.CurrentIFS.a[0] = 0.125f;
    CountEdit(wb);
    typedName = "  fERN ";
    EXPECT_TRUE(mnuNames_Click(wb, host, dialogs, 1));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(wb.ListCount(), 3);
    EXPECT_EQ(listNames(wb), (Names{"A", "fERN", "B"}));
    EXPECT_EQ(menuNames(wb), (Names{"A", "fERN", "B"}));
    EXPECT_EQ(wb.FractalList[2], wb.CurrentIFS);
    EXPECT_EQ(wb.FractalList[2].a[0], 0.125f);
    EXPECT_EQ(wb.SelectedIFS, 2);
    EXPECT_EQ(checks(wb), (std::vector<bool>{false, true, false}));
    EXPECT_TRUE(wb.ListModified);
}

TEST_F(ListCommands, AfterAddingTheAsteriskIsGoneEvenRightAfterAnEdit) {
    setList(wb, {numberedEntry("Fern", 2)});
    take(1);
    CountEdit(wb);
    ASSERT_EQ(wb.FunctionsCaption, "IFS [Fern*]");
    typedName = "Fern II";
    EXPECT_TRUE(AddToList(wb, host, dialogs));
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requests[0].preset, "Fern");
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern II]");
    EXPECT_FALSE(wb.IFSModified);
    EXPECT_EQ(wb.ChangeCount, 0);
    EXPECT_FALSE(NeedsSave(wb));
    EXPECT_EQ(menuNames(wb), (Names{"Fern", "Fern II"}));
    EXPECT_EQ(wb.NamesItemCount, 7);
    EXPECT_EQ(wb.SelectedIFS, 2);
    EXPECT_EQ(checks(wb), (std::vector<bool>{false, true}));
    for (int k = 0; k <= 3; ++k) EXPECT_TRUE(wb.menu(NamesKey(k)).enabled) << k;
}

TEST_F(ListCommands, AddingToAnEmptyListMakesTheSeparatorAndEntryOne) {
    InitializeMenuState(wb.Menu);
    typedName = "First";
    EXPECT_TRUE(mnuNames_Click(wb, host, dialogs, 0));  // nothing selected: as "add as"
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requests[0].preset, "");  // "Untitled" is offered as no name
    EXPECT_TRUE(requests[0].columns.empty());
    EXPECT_EQ(wb.menu("mnuNames(4)").caption, "-");
    EXPECT_EQ(menuNames(wb), Names{"First"});
    EXPECT_EQ(wb.SelectedIFS, 1);
    EXPECT_TRUE(wb.menu("mnuNames(5)").checked);
    EXPECT_EQ(wb.FractalList[1].Name, "First");
    EXPECT_EQ(wb.FunctionsCaption, "IFS [First]");
}

TEST_F(ListCommands, CancelOrABlankNameAddsNothing) {
    setList(wb, {numberedEntry("A", 1)});
    const IFSEntry before = wb.CurrentIFS;
    typedName = std::nullopt;
    EXPECT_FALSE(AddToList(wb, host, dialogs));
    typedName = "   ";
    EXPECT_FALSE(AddToList(wb, host, dialogs));
    EXPECT_EQ(requests.size(), 2u);
    EXPECT_EQ(wb.ListCount(), 1);
    EXPECT_EQ(wb.CurrentIFS, before);
    EXPECT_FALSE(wb.ListModified);
}

TEST_F(ListCommands, AFullListRefusesAnAdditionBeforeTheDialog) {
    std::vector<IFSEntry> thirty;
    for (int n = 1; n <= 30; ++n) thirty.push_back(numberedEntry("E" + std::to_string(n), 1));
    setList(wb, thirty);
    ASSERT_EQ(wb.NamesItemCount, 35);
    typedName = "E1";
    EXPECT_FALSE(mnuNames_Click(wb, host, dialogs, 1));
    EXPECT_EQ(host.shown(),
              (Messages{{"Warning", "Limit of 30 fractals. Delete an IFS before adding a new one."}}));
    EXPECT_TRUE(requests.empty());
    EXPECT_EQ(wb.ListCount(), 30);
}

TEST_F(ListCommands, TheDialogShowsTheNamesInColumnsOfTen) {
    std::vector<IFSEntry> entries;
    for (int n = 1; n <= 23; ++n) entries.push_back(numberedEntry(" N" + std::to_string(n), 1));
    setList(wb, entries);
    const auto columns = ListNameColumns(wb);
    ASSERT_EQ(columns.size(), 3u);
    EXPECT_EQ(columns[0].size(), 10u);
    EXPECT_EQ(columns[1].size(), 10u);
    EXPECT_EQ(columns[2], (Names{"N21", "N22", "N23"}));
    EXPECT_EQ(columns[0][0], "N1");
    EXPECT_EQ(columns[1][0], "N11");
}

TEST(NameColumnLefts, EachColumnIsItsWidestNamePlusTheGap) {
    const std::vector<Names> columns{{"ab", "abcde"}, {"x"}, {"y"}};
    const TextWidth tenPerChar = [](const std::string& s) { return 10.0 * static_cast<double>(s.size()); };
    EXPECT_EQ(NameColumnLefts(columns, tenPerChar, NameColumnGapTwips), (std::vector<double>{0, 250, 460}));
}

TEST_F(ListCommands, SaveCurrentToListUpdatesTheSelectedEntryWithoutADialog) {
    setList(wb, {numberedEntry("A", 1), numberedEntry("B", 2)});
    take(2);
    wb.CurrentIFS.e[1] = 7.5f;
    CountEdit(wb);
    EXPECT_TRUE(mnuNames_Click(wb, host, dialogs, 0));
    EXPECT_TRUE(requests.empty());
    EXPECT_EQ(wb.FractalList[2].e[1], 7.5f);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [B]");
    EXPECT_EQ(wb.ChangeCount, 0);
    EXPECT_FALSE(wb.IFSModified);
    EXPECT_TRUE(wb.ListModified);
}

TEST_F(ListCommands, DeletingMovesTheLaterEntriesUpAndKeepsTheSelectionOnItsEntry) {
    IFSEntry d = numberedEntry("D", 1);
    setList(wb, {numberedEntry("A", 1), numberedEntry("B", 1), numberedEntry("C", 2), d});
    wb.Menu.setEnabled(EntryKey(4), false);  // greyed as in chaos game mode
    take(3);
    chosenEntry = 2;
    EXPECT_TRUE(mnuNames_Click(wb, host, dialogs, 2));
    ASSERT_EQ(deleteShown.size(), 1u);
    EXPECT_EQ(deleteShown[0], (Names{"A", "B", "C", "D"}));
    EXPECT_EQ(listNames(wb), (Names{"A", "C", "D"}));
    EXPECT_EQ(menuNames(wb), (Names{"A", "C", "D"}));
    EXPECT_EQ(wb.NamesItemCount, 8);
    EXPECT_FALSE(wb.Menu.contains("mnuNames(8)"));
    EXPECT_EQ(wb.SelectedIFS, 2);
    EXPECT_EQ(wb.FractalList[2].nMaps, 2);
    EXPECT_EQ(checks(wb), (std::vector<bool>{false, true, false}));
    EXPECT_FALSE(wb.menu(EntryKey(3)).enabled);
    EXPECT_TRUE(wb.ListModified);
}

TEST_F(ListCommands, DeletingTheSelectedEntryLeavesNoneSelected) {
    setList(wb, {numberedEntry("A", 1), numberedEntry("B", 1)});
    take(2);
    EXPECT_TRUE(DeleteListEntry(wb, 2));
    EXPECT_EQ(wb.SelectedIFS, 0);
    EXPECT_EQ(checks(wb), std::vector<bool>{false});
    EXPECT_EQ(wb.CurrentIFS.Name, "B");  // the working IFS itself stays
}

TEST_F(ListCommands, DeletingAnEntryBeforeTheSelectedOneKeepsItValid) {
    setList(wb, {numberedEntry("A", 1), numberedEntry("B", 1)});
    take(2);
    EXPECT_TRUE(DeleteListEntry(wb, 1));
    EXPECT_EQ(wb.SelectedIFS, 1);
    EXPECT_EQ(wb.FractalList[wb.SelectedIFS].Name, "B");
    EXPECT_EQ(checks(wb), std::vector<bool>{true});
}

TEST_F(ListCommands, DeletingTheLastEntryLeavesTheEmptyList) {
    setList(wb, {numberedEntry("A", 1)});
    take(1);
    EXPECT_TRUE(DeleteListEntry(wb, 1));
    EXPECT_EQ(wb.NamesItemCount, 4);
    EXPECT_FALSE(wb.Menu.contains("mnuNames(4)"));
    EXPECT_FALSE(wb.Menu.contains("mnuNames(5)"));
    EXPECT_FALSE(wb.menu("mnuNames(0)").enabled);
    EXPECT_TRUE(wb.menu("mnuNames(1)").enabled);
    EXPECT_FALSE(wb.menu("mnuNames(2)").enabled);
    EXPECT_FALSE(wb.menu("mnuNames(3)").enabled);
    EXPECT_EQ(wb.SelectedIFS, 0);
}

TEST_F(ListCommands, CancelInTheDeleteDialogOrANumberOutsideTheListDeletesNothing) {
    setList(wb, {numberedEntry("A", 1), numberedEntry("B", 1)});
    chosenEntry = std::nullopt;
    EXPECT_FALSE(mnuNames_Click(wb, host, dialogs, 2));
    chosenEntry = 3;
    EXPECT_FALSE(mnuNames_Click(wb, host, dialogs, 2));
    EXPECT_EQ(listNames(wb), (Names{"A", "B"}));
    EXPECT_FALSE(wb.ListModified);
}

class DeleteAll : public ListCommands {
  protected:
    DeleteAll() {
        setList(wb, {numberedEntry("A", 1), numberedEntry("B", 1)});
        take(2);
    }
    void expectCleared() {
        EXPECT_EQ(wb.ListCount(), 0);
        EXPECT_EQ(wb.NamesItemCount, 4);
        EXPECT_EQ(wb.SelectedIFS, 0);
        EXPECT_TRUE(wb.ListModified);
    }
    TempDir dir;
};

const ShownMessage ReallyDeleteAll{"Delete All?", "Really delete all the fractals in the list?"};
const ShownMessage SaveChanges{"Save IFS List?", "Save changes made to the IFS list?"};

TEST_F(DeleteAll, CancelKeepsTheList) {
    host.answers = {Answer::Cancel};
    EXPECT_FALSE(mnuNames_Click(wb, host, dialogs, 3));
    EXPECT_EQ(host.shown(), Messages{ReallyDeleteAll});
    EXPECT_EQ(host.shown()[0].buttons, MessageButtons::OKCancel);
    EXPECT_EQ(listNames(wb), (Names{"A", "B"}));
    EXPECT_EQ(wb.SelectedIFS, 2);
}

TEST_F(DeleteAll, AnUnmodifiedListIsClearedAfterOneQuestion) {
    host.answers = {Answer::OK};
    EXPECT_TRUE(mnuNames_Click(wb, host, dialogs, 3));
    EXPECT_EQ(host.shown(), Messages{ReallyDeleteAll});
    expectCleared();
}

TEST_F(DeleteAll, AModifiedListAsksToSaveAndYesSavesItFirst) {
    wb.ListModified = true;
    host.answers = {Answer::OK, Answer::Yes};
    host.fileNames = {dir.path("kept")};
    EXPECT_TRUE(mnuNames_Click(wb, host, dialogs, 3));
    EXPECT_EQ(host.shown(), (Messages{ReallyDeleteAll, SaveChanges}));
    EXPECT_EQ(host.shown()[1].buttons, MessageButtons::YesNoCancel);
    const std::string saved = TempDir::read(dir.path("kept.ifs"));
    EXPECT_NE(saved.find("A {\n"), std::string::npos);
    EXPECT_NE(saved.find("B {\n"), std::string::npos);
    expectCleared();
}

TEST_F(DeleteAll, YesWithTheSaveDialogCancelledKeepsTheList) {
    wb.ListModified = true;
    host.answers = {Answer::OK, Answer::Yes};
    host.fileNames = {std::nullopt};
    EXPECT_FALSE(mnuNames_Click(wb, host, dialogs, 3));
    EXPECT_EQ(listNames(wb), (Names{"A", "B"}));
    EXPECT_EQ(wb.SelectedIFS, 2);
}

TEST_F(DeleteAll, NoClearsWithoutSaving) {
    wb.ListModified = true;
    host.answers = {Answer::OK, Answer::No};
    EXPECT_TRUE(mnuNames_Click(wb, host, dialogs, 3));
    EXPECT_TRUE(host.dialogs().empty());
    expectCleared();
}

TEST_F(DeleteAll, CancelAtTheSaveQuestionKeepsTheList) {
    wb.ListModified = true;
    host.answers = {Answer::OK, Answer::Cancel};
    EXPECT_FALSE(mnuNames_Click(wb, host, dialogs, 3));
    EXPECT_EQ(host.shown(), (Messages{ReallyDeleteAll, SaveChanges}));
    EXPECT_EQ(listNames(wb), (Names{"A", "B"}));
    EXPECT_TRUE(host.dialogs().empty());
}

TEST_F(ListCommands, RenameReachesTheSelectedEntryAndKeepsTheAsterisk) {
    setList(wb, {numberedEntry("A", 1), numberedEntry("Fern", 2)});
    take(2);
    wb.CurrentIFS.a[0] = 0.3f;
    CountEdit(wb);
    std::string preset;
    EXPECT_TRUE(mnuCodeRename_Click(wb, [&](const std::string& p) {
        preset = p;
        return std::optional<std::string>(" Bracken ");
    }));
    EXPECT_EQ(preset, "Fern");
    EXPECT_EQ(wb.CurrentIFS.Name, "Bracken");
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Bracken*]");
    EXPECT_EQ(menuNames(wb), (Names{"A", "Bracken"}));
    EXPECT_EQ(wb.FractalList[2].Name, "Bracken");
    EXPECT_EQ(wb.FractalList[2].a[0], 0.5f);  // the stored numbers wait for "Save Current IFS to List"
    EXPECT_TRUE(wb.ListModified);
    EXPECT_EQ(wb.ChangeCount, 1);
}

TEST_F(ListCommands, RenamingAnIFSOutsideTheListLeavesTheListAlone) {
    setList(wb, {numberedEntry("A", 1)});
    EXPECT_EQ(RenamePreset(wb), "");
    EXPECT_TRUE(RenameIFS(wb, "Mine"));
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Mine]");
    EXPECT_EQ(menuNames(wb), Names{"A"});
    EXPECT_FALSE(wb.ListModified);
    EXPECT_FALSE(RenameIFS(wb, "  "));
    EXPECT_FALSE(mnuCodeRename_Click(wb, [](const std::string&) { return std::optional<std::string>(); }));
    EXPECT_EQ(wb.CurrentIFS.Name, "Mine");
}

}  // namespace
}  // namespace quillane
