#include <gtest/gtest.h>

#include "app/code_commands.h"
#include "app/file_commands.h"
#include "app/list_commands.h"
#include "core/menu_tree.h"
#include "app/list_entry_commands.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::listNames;
using testing::Messages;
using testing::numberedEntry;
using testing::setList;
using testing::TempDir;
using Names = std::vector<std::string>;

const std::string ThreeBlocks =
    "Alpha {\n0.5 0 0 0.5 0 0 0.5\n0.5 0 0 0.5 0.5 0 0.5\n}\n\n"
    "Fern { four maps\n"
    "0 0 0 0.16 0 0 0.01\n"
    "0.85 0.04 -0.04 0.85 0 1.6 0.85\n"
    "0.2 -0.26 0.23 0.22 0 1.6 0.07\n"
    "-0.15 0.28 0.26 0.24 0 0.44 0.07\n}\n\n"
    "Gamma {\n0.5 0 0 0.5 0 0\n0.5 0 0 0.5 0.5 0\n0.5 0 0 0.5 0.25 0.5\n}\n";

struct ListBench {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;
    ListBench() {
        InitializeMenuState(wb.Menu);
        pics.resize(40, White);
        wb.Rng.pin(7);
    }
};

// An entry with a chaos game recipe: scale 1/2 towards n fixed points.
IFSEntry chaosEntry(const std::string& name, int n) {
    IFSEntry e = numberedEntry(name, n);
    e.HasChaosGame = True16;
    for (int i = 0; i < n; ++i) {
        e.Step[1][i] = "S";
        e.Scale[i] = 0.5f;
        e.FPx[i] = static_cast<float>(i);
    }
    return e;
}

std::vector<IFSFunction> functions(const IFSEntry& e) {
    std::vector<IFSFunction> fs;
    for (int i = 0; i < e.nMaps; ++i) {
        IFSFunction f = e.function(i);
        f.Step = {};
        f.Scale = f.Angle = f.Prob = f.FPx = f.FPy = 0;
        fs.push_back(f);
    }
    return fs;
}

TEST(ListEntryClick, InChaosGameModeEntriesWithoutAChaosGameAreGreyedAndCannotBeTaken) {
    ListBench b;
    setList(b.wb, {numberedEntry("Plain", 2), chaosEntry("Chaos", 3)});
    b.wb.DesignMode = 1;
    b.wb.CodeForm = 2;
    AdjustIFSMenu(b.wb, false);
    EXPECT_FALSE(b.wb.menu(EntryKey(1)).enabled);
    EXPECT_TRUE(b.wb.menu(EntryKey(2)).enabled);
    const IFSEntry before = b.wb.CurrentIFS;
    EXPECT_FALSE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 5));
    EXPECT_EQ(b.wb.CurrentIFS, before);
    EXPECT_EQ(b.wb.SelectedIFS, 0);
    EXPECT_EQ(b.host.shown(), Messages{});

    EXPECT_TRUE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 6));
    EXPECT_EQ(b.wb.CurrentIFS.Name, "Chaos");
    EXPECT_EQ(b.wb.SelectedIFS, 2);
    EXPECT_EQ(b.wb.Table.text(1, 2), "S");
    EXPECT_EQ(b.wb.Table.text(5, 2), "0.500");
    EXPECT_EQ(b.wb.Table.text(8, 2), "2.000");
    EXPECT_TRUE(b.wb.menu("mnuCodeFP").checked);
    EXPECT_TRUE(b.wb.CGMapSelected);
}

TEST(ListEntryClick, AnUntitledIFSWithOneFunctionIsReplacedWithoutAQuestion) {
    ListBench b;
    setList(b.wb, {numberedEntry("Plain", 2)});
    b.wb.CurrentIFS.a[0] = 0.9f;
    b.wb.IFSModified = true;
    EXPECT_TRUE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 5));
    EXPECT_EQ(b.host.shown(), Messages{});
    EXPECT_EQ(b.wb.CurrentIFS.Name, "Plain");
}

// Taking an entry lays its rows out through SetUpFunctions: 40 maps do not fit the full matrix form.
TEST(ListEntryClick, FortyMapsTakenInTheFullMatrixFormFallBackToTheCompactFormWithTheWarning) {
    ListBench b;
    setList(b.wb, {numberedEntry("Small", 2), numberedEntry("Forty", 40)});
    mnuCodeMatrixFormat_Click(b.wb, b.host);
    ASSERT_EQ(b.wb.MatrixFunctionForm, 1);
    EXPECT_TRUE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 6));
    EXPECT_EQ(b.host.shown(), (Messages{{"Warning",
                                         "The matrix function form can only be used\nwith at most 35 functions. "
                                         "The format will\nbe reset to the matrix compact form.    "}}));
    EXPECT_EQ(b.wb.MatrixFunctionForm, 0);
    EXPECT_TRUE(b.wb.menu("mnuMatrix").checked);
    EXPECT_FALSE(b.wb.menu("mnuCodeMatrixFormat").checked);
    EXPECT_EQ(b.wb.Table.LastMaps, 40);
    EXPECT_EQ(b.wb.txtMaps, "40");
    // Small entries keep the form.
    EXPECT_TRUE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 5));
    b.host.clear();
    mnuCodeMatrixFormat_Click(b.wb, b.host);
    EXPECT_TRUE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 5));
    EXPECT_EQ(b.wb.MatrixFunctionForm, 1);
    EXPECT_EQ(b.host.shown(), Messages{});
}

TEST(ListEntryClick, AnUntitledIFSWithTwoModifiedFunctionsAsksFirst) {
    ListBench b;
    setList(b.wb, {numberedEntry("Plain", 2)});
    b.wb.CurrentIFS = numberedEntry("Untitled", 2);
    b.wb.IFSModified = true;
    b.host.answers = {Answer::Cancel};
    EXPECT_FALSE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 5));
    ASSERT_EQ(b.host.shown().size(), 1u);
    EXPECT_EQ(b.host.shown()[0].title, "Continue without saving?");
    EXPECT_EQ(b.wb.CurrentIFS.Name, "Untitled");
}

TEST(NewIFSCommand, ClearsThePictureAndTheUndo) {
    ListBench b;
    b.wb.PointCount = 500;
    b.pics.picCount = "500";
    b.wb.Menu.setEnabled("mnuUndo", true);
    b.wb.Menu.setCaption("mnuUndo", "&Undo Zoom");
    EXPECT_TRUE(mnuNewIFS_Click(b.wb, b.pics, b.host));
    EXPECT_EQ(b.wb.PointCount, 0);
    EXPECT_EQ(b.pics.picCount, "");
    EXPECT_FALSE(b.wb.menu("mnuUndo").enabled);
    EXPECT_EQ(b.wb.menu("mnuUndo").caption, "&Undo");
}

TEST(ListSession, OpenTakeEditAddSaveAndReopenGivesTheSameNumbers) {
    ListBench b;
    TempDir dir;
    const std::string path = dir.write("session.ifs", ThreeBlocks);
    b.host.fileNames = {path};
    ASSERT_TRUE(mnuOpen_Click(b.wb, b.host));
    ShowTakenIFS(b.wb, b.pics, b.host);
    const std::vector<IFSEntry> read{b.wb.FractalList[1], b.wb.FractalList[2], b.wb.FractalList[3]};
    EXPECT_EQ(b.wb.CurrentIFS.Name, "Alpha");

    ASSERT_TRUE(mnuNamesEntry_Click(b.wb, b.pics, b.host, 6));
    EXPECT_EQ(b.wb.FunctionsCaption, "IFS [Fern]");
    EXPECT_EQ(b.wb.lblComment, "four maps");
    EXPECT_EQ(b.wb.Table.text(2, 2), "-0.260");

    b.wb.CurrentIFS.a[1] = 0.4321f;
    CountEdit(b.wb);
    EXPECT_EQ(b.wb.FunctionsCaption, "IFS [Fern*]");

    ListDialogs dialogs;
    std::string preset;
    dialogs.frmSaveIFSAs = [&](const ListNameRequest& r) {
        preset = r.preset;
        return std::optional<std::string>("Fern Variant");
    };
    ASSERT_TRUE(mnuNames_Click(b.wb, b.host, dialogs, 1));
    EXPECT_EQ(preset, "Fern");
    EXPECT_EQ(b.wb.SelectedIFS, 4);

    ASSERT_TRUE(mnuSaveIFS_Click(b.wb, b.host));
    EXPECT_FALSE(b.wb.ListModified);

    b.host.fileNames = {path};
    ASSERT_TRUE(mnuOpen_Click(b.wb, b.host));
    ShowTakenIFS(b.wb, b.pics, b.host);
    EXPECT_EQ(b.host.shown(), Messages{});
    EXPECT_EQ(listNames(b.wb), (Names{"Alpha", "Fern", "Gamma", "Fern Variant"}));
    for (int n = 1; n <= 3; ++n) EXPECT_EQ(functions(b.wb.FractalList[n]), functions(read[n - 1])) << n;
    IFSEntry expected = read[1];
    expected.a[1] = 0.4321f;
    EXPECT_EQ(functions(b.wb.FractalList[4]), functions(expected));
    EXPECT_EQ(b.wb.FractalList[4].Comment[1], "four maps");
    EXPECT_EQ(b.wb.CurrentIFS.Name, "Alpha");
    EXPECT_EQ(b.wb.SelectedIFS, 1);
}

}  // namespace
}  // namespace quillane
