#include "core/ifs_file_writer.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::Messages;
using testing::numberedEntry;
using testing::setList;
using testing::TempDir;
namespace fs = std::filesystem;

const std::string HalfRow = " 0.500000  0.000000  0.000000  0.500000  0.000000  0.000000 ";

TEST(WrittenForm, NumbersCarryABlankInPlaceOfThePlusSignAndATrailingBlank) {
    EXPECT_EQ(CoefficientText(0.5f), " 0.500000 ");
    EXPECT_EQ(CoefficientText(0.0f), " 0.000000 ");
    EXPECT_EQ(CoefficientText(-0.25f), "-0.250000 ");
    EXPECT_EQ(CoefficientText(12.5f), " 12.500000 ");
    EXPECT_EQ(CoefficientText(0.1234565f), " 0.123457 ");
    EXPECT_EQ(CoefficientText(-0.0000004f), "-0.000000 ");
}

TEST(WrittenForm, AListRowHasTwoLeadingBlanksAndPOnlyWhenItIsPositive) {
    IFSEntry e = DefaultIFS();
    e.p[0] = 0.333333f;
    EXPECT_EQ(IFSRowText(e, 0, "  "),
              "   0.500000  0.000000  0.000000  0.500000  0.000000  0.000000  0.333333");
    e.p[0] = 0;
    EXPECT_EQ(IFSRowText(e, 0, "  "), "  " + HalfRow);
    e.p[0] = -0.2f;
    EXPECT_EQ(IFSRowText(e, 0, "  "), "  " + HalfRow);
}

TEST(WrittenForm, NegativeCoefficientsTakeTheBlankOfTheSign) {
    IFSEntry e = DefaultIFS();
    e.b[0] = -0.5f;
    e.f[0] = -1.25f;
    e.p[0] = 1;
    EXPECT_EQ(IFSRowText(e, 0, ""), " 0.500000 -0.500000  0.000000  0.500000  0.000000 -1.250000  1.000000");
}

TEST(WrittenForm, AChaosRowPutsTheStepsTogetherBeforeTheFiveNumbers) {
    IFSEntry e = DefaultIFS();
    e.Step[2][0] = "R";
    e.Angle[0] = 30;
    e.Prob[0] = 0.333333f;
    e.FPx[0] = 1;
    e.FPy[0] = -2;
    EXPECT_EQ(ChaosRowText(e, 0, "  "), "  SR  0.500000  30.000000  0.333333  1.000000 -2.000000 ");
    e.Step[1][0] = "";
    e.Step[2][0] = "";
    EXPECT_EQ(ChaosRowText(e, 0, ""), "  0.500000  30.000000  0.333333  1.000000 -2.000000 ");
}

TEST(WrittenForm, TheHeadLineCarriesTheTrimmedNameAndTheFirstComment) {
    IFSEntry e = DefaultIFS();
    e.Name = "  Fern  ";
    EXPECT_EQ(IFSBlockText(e, 1, "  "), "Fern {\n  " + HalfRow + " 1.000000\n}\n\n");
    e.nComments = 3;
    e.Comment[1] = "first   ";
    e.Comment[2] = "; two  ";
    e.Comment[3] = "  ; three";
    e.Comment[4] = "; stale";
    EXPECT_EQ(IFSBlockText(e, 1, ""), "Fern {first\n; two\n  ; three\n" + HalfRow + " 1.000000\n}\n\n");
}

TEST(WrittenForm, AListIsItsBlocksInOrder) {
    Workbench wb;
    const IFSEntry a = numberedEntry("A", 2), b = numberedEntry("B", 3);
    setList(wb, {a, b});
    EXPECT_EQ(IFSListText(wb), IFSBlockText(a, 2, "  ") + IFSBlockText(b, 3, "  "));
    wb.Menu.setEnabled(EntryKey(1), false);
    EXPECT_EQ(ChaosListText(wb), ChaosBlockText(b, 3, "  "));
}

class SaveList : public ::testing::Test {
  protected:
    void SetUp() override {
        IFSEntry chaos = numberedEntry("Chaos", 2);
        chaos.HasChaosGame = True16;
        setList(wb, {numberedEntry("A", 2), chaos, numberedEntry("C", 1)});
    }
    Workbench wb;
    ScriptedHost host;
    TempDir dir;
};

TEST_F(SaveList, WithoutAFileNameNothingIsWritten) {
    EXPECT_FALSE(SaveIFSList(wb, host, ""));
    EXPECT_EQ(host.shown(), (Messages{{"IFS", "No IFS file loaded"}}));
}

TEST_F(SaveList, AnEmptyListIsNotWritten) {
    ClearIFSMenu(wb);
    const std::string file = dir.path("list.ifs");
    EXPECT_FALSE(SaveIFSList(wb, host, file));
    EXPECT_FALSE(SaveChaosList(wb, host, file));
    EXPECT_EQ(host.shown(), (Messages{{"Warning", "The fractal list is empty."},
                                      {"Warning", "The fractal list is empty."}}));
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(SaveList, WithoutChaosGameEntriesThereIsNothingToSaveInChaosGameMode) {
    wb.FractalList[2].HasChaosGame = False16;
    wb.DesignMode = 1;
    AdjustIFSMenu(wb, false);
    EXPECT_FALSE(SaveIFSList(wb, host, dir.path("list.ifs")));
    EXPECT_FALSE(SaveChaosList(wb, host, dir.path("list.chg")));
    EXPECT_EQ(host.shown(), (Messages{{"Warning", "There are no Chaos Game definitions to save."},
                                      {"Error", "There are no Chaos Game definitions to save."}}));
}

TEST_F(SaveList, TheIFSListHoldsEveryEntryAndAChgNameBecomesIfs) {
    EXPECT_TRUE(SaveIFSList(wb, host, dir.path("list.chg")));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_FALSE(fs::exists(dir.path("list.chg")));
    EXPECT_EQ(TempDir::read(dir.path("list.ifs")), IFSListText(wb));
    EXPECT_FALSE(fs::exists(dir.path(".list.ifs.tmp")));
}

TEST_F(SaveList, TheChaosListHoldsTheEnabledEntriesWithProbFromP) {
    AdjustIFSMenu(wb, false);
    wb.FractalList[2].p[0] = 0.6f;
    wb.FractalList[2].p[1] = 0.4f;
    EXPECT_TRUE(SaveChaosList(wb, host, dir.path("list.ifs")));
    EXPECT_FALSE(fs::exists(dir.path("list.ifs")));
    EXPECT_EQ(wb.FractalList[2].Prob[0], 0.6f);
    EXPECT_EQ(wb.FractalList[2].Prob[1], 0.4f);
    EXPECT_EQ(TempDir::read(dir.path("list.chg")), ChaosBlockText(wb.FractalList[2], 2, "  "));
}

TEST_F(SaveList, SaveAsAsksForANameAndAddsTheExtension) {
    host.fileNames.push_back(dir.path("out"));
    EXPECT_TRUE(SaveListAs(wb, host));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Save IFS file");
    ASSERT_EQ(host.dialogs()[0].filters.size(), 1u);
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "IFS text files (*.ifs)");
    EXPECT_EQ(host.dialogs()[0].filters[0].pattern, "*.ifs");
    EXPECT_EQ(TempDir::read(dir.path("out.ifs")), IFSListText(wb));
    EXPECT_EQ(wb.FrameCaption, "Quillane - out.ifs");
    EXPECT_EQ(wb.IFSFileName, dir.path("out.ifs"));
}

TEST_F(SaveList, SaveAsKeepsAnExtensionInAnyCase) {
    host.fileNames.push_back(dir.path("OUT.IFS"));
    EXPECT_TRUE(SaveListAs(wb, host));
    EXPECT_TRUE(fs::exists(dir.path("OUT.IFS")));
    EXPECT_FALSE(fs::exists(dir.path("OUT.IFS.ifs")));
}

TEST_F(SaveList, SaveAsInChaosGameModeWritesAChaosList) {
    wb.DesignMode = 1;
    host.fileNames.push_back(dir.path("game"));
    EXPECT_TRUE(SaveListAs(wb, host));
    EXPECT_EQ(host.dialogs()[0].title, "Save Chaos Game file");
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "Chaos Game text files (*.chg)");
    EXPECT_EQ(host.dialogs()[0].filters[0].pattern, "*.chg");
    EXPECT_EQ(TempDir::read(dir.path("game.chg")), ChaosListText(wb));
}

TEST_F(SaveList, SaveAsOfAnEmptyListSaysSoWithoutThePoint) {
    ClearIFSMenu(wb);
    EXPECT_FALSE(SaveListAs(wb, host));
    EXPECT_EQ(host.shown(), (Messages{{"Warning", "The fractal list is empty"}}));
    EXPECT_TRUE(host.dialogs().empty());
}

TEST_F(SaveList, CancelInSaveAsWritesNothing) {
    EXPECT_FALSE(SaveListAs(wb, host));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(wb.FrameCaption, "Quillane");
}

TEST_F(SaveList, SaveChaosListAsOffersIfsNamesButWritesChg) {
    host.fileNames.push_back(dir.path("foo"));
    host.fileNames.push_back(dir.path("bar.chg"));
    EXPECT_TRUE(SaveChaosListAs(wb, host));
    EXPECT_TRUE(SaveChaosListAs(wb, host));
    EXPECT_EQ(host.dialogs()[0].title, "Save Chaos Game file");
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "IFS text files (*.ifs)");
    EXPECT_EQ(host.dialogs()[0].filters[0].pattern, "*.ifs");
    EXPECT_TRUE(fs::exists(dir.path("foo.chg")));
    EXPECT_FALSE(fs::exists(dir.path("foo.ifs")));
    EXPECT_TRUE(fs::exists(dir.path("bar.chg.chg")));
    EXPECT_EQ(wb.FrameCaption, "Quillane - bar.chg.chg");
}

TEST_F(SaveList, AFolderAsTargetFailsQuietlyAndStaysAFolder) {
    fs::create_directory(dir.path("taken.ifs"));
    EXPECT_FALSE(SaveIFSList(wb, host, dir.path("taken.ifs")));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_TRUE(fs::is_directory(dir.path("taken.ifs")));
    EXPECT_FALSE(fs::exists(dir.path(".taken.ifs.tmp")));
}

TEST_F(SaveList, AMissingFolderFailsQuietly) {
    EXPECT_FALSE(SaveIFSList(wb, host, dir.path("no/such/folder/list.ifs")));
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(SaveList, AFailedWriteLeavesTheOldFileAsItWas) {
    const std::string file = dir.write("keep.ifs", "old contents\n");
    fs::create_directory(dir.path(".keep.ifs.tmp"));  // nothing can be written beside it
    EXPECT_FALSE(SaveIFSList(wb, host, file));
    EXPECT_EQ(TempDir::read(file), "old contents\n");
}

TEST_F(SaveList, AWriteReplacesTheOldFile) {
    const std::string file = dir.write("keep.ifs", "old contents\n");
    EXPECT_TRUE(SaveIFSList(wb, host, file));
    EXPECT_EQ(TempDir::read(file), IFSListText(wb));
}

class SaveCurrent : public ::testing::Test {
  protected:
    void SetUp() override {
        wb.CurrentIFS = numberedEntry("  Fern ", 3);
        wb.txtMaps = "2";
        wb.ChangeCount = 1;
        wb.FunctionsCaption = "IFS [Fern*]";
    }
    Workbench wb;
    ScriptedHost host;
    TempDir dir;
};

TEST_F(SaveCurrent, WritesTheTableCountOfRowsWithoutLeadingBlanks) {
    host.fileNames.push_back(dir.path("fern"));
    EXPECT_TRUE(SaveCurrentIFSFile(wb, host));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Save IFS file");
    EXPECT_EQ(host.dialogs()[0].initialName, "Fern.ifs");
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "IFS text files (*.ifs)");
    EXPECT_EQ(TempDir::read(dir.path("fern.ifs")), "Fern {\n" + IFSRowText(wb.CurrentIFS, 0, "") + "\n" +
                                                       IFSRowText(wb.CurrentIFS, 1, "") + "\n}\n\n");
    EXPECT_EQ(IFSRowText(wb.CurrentIFS, 0, "").substr(0, 10), " 0.500000 ");
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern]");
}

TEST_F(SaveCurrent, TheChaosFormRefreshesProbFromP) {
    wb.CurrentIFS.Prob[0] = 0.9f;
    host.fileNames.push_back(dir.path("fern.chg"));
    EXPECT_TRUE(SaveCurrentChaosFile(wb, host));
    EXPECT_EQ(host.dialogs()[0].title, "Save Chaos Game file");
    EXPECT_EQ(host.dialogs()[0].initialName, "Fern.chg");
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "Chaos Game text files (*.chg)");
    EXPECT_EQ(wb.CurrentIFS.Prob[0], wb.CurrentIFS.p[0]);
    EXPECT_EQ(TempDir::read(dir.path("fern.chg")), ChaosBlockText(wb.CurrentIFS, 2, ""));
}

TEST_F(SaveCurrent, CancelKeepsTheAsterisk) {
    EXPECT_FALSE(SaveCurrentIFSFile(wb, host));
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern*]");
}

TEST_F(SaveCurrent, AFailedWriteKeepsTheAsterisk) {
    fs::create_directory(dir.path("fern.ifs"));
    host.fileNames.push_back(dir.path("fern.ifs"));
    EXPECT_FALSE(SaveCurrentIFSFile(wb, host));
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern*]");
    EXPECT_EQ(host.shown(), Messages{});
}

}  // namespace
}  // namespace quillane
