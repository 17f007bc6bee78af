#include "app/ifs_file_reader.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::menuNames;
using testing::Messages;
using testing::numberedEntry;
using testing::setList;
using testing::TempDir;
using Names = std::vector<std::string>;

const std::string Ignored = "That IFS and the rest of the file were ignored.    ";

std::string problemWith(const std::string& name) {
    return "There was a problem reading the code for     \nthe IFS with name \"" + name + "\".   \n" +
           Ignored;
}

std::string block(const std::string& name, int rows = 1) {
    std::string s = name + " {\n";
    for (int i = 0; i < rows; ++i) s += "  0.5 0 0 0.5 " + std::to_string(i) + " 0 0.25\n";
    return s + "}\n\n";
}

class OpenIFS : public ::testing::Test {
  protected:
    bool open(const std::string& text, int Start = 0) {
        path = dir.write("list.ifs", text);
        return OpenIFSFile(wb, host, Start, path);
    }
    void oldList() { setList(wb, {numberedEntry("Old one", 2), numberedEntry("Old two", 3)}); }
    void expectOldList() {
        EXPECT_EQ(menuNames(wb), (Names{"Old one", "Old two"}));
        EXPECT_EQ(wb.FractalList[1], numberedEntry("Old one", 2));
        EXPECT_EQ(wb.FractalList[2], numberedEntry("Old two", 3));
    }
    Workbench wb;
    ScriptedHost host;
    TempDir dir;
    std::string path;
};

TEST_F(OpenIFS, ReadsTheBlocksAndTakesTheFirstEntry) {
    EXPECT_TRUE(
        open("Triangle {\n  0.5 0 0 0.5 0 0 0.333\n  0.5 0 0 0.5 0.5 0 0.333\n"
             "  0.5 0 0 0.5 0.25 0.5 0.334\n}\n\nLine {\n 0.5 0 0 0.5 0 0 1\n}\n"));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(menuNames(wb), (Names{"Triangle", "Line"}));
    EXPECT_EQ(wb.NamesItemCount, 7);
    EXPECT_EQ(wb.menu("mnuNames(4)").caption, "-");
    const IFSEntry& t = wb.FractalList[1];
    EXPECT_EQ(t.nMaps, 3);
    EXPECT_EQ(t.e[2], 0.25f);
    EXPECT_EQ(t.f[2], 0.5f);
    EXPECT_EQ(t.p[2], 0.334f);
    EXPECT_EQ(wb.CurrentIFS, t);
    EXPECT_EQ(wb.SelectedIFS, 1);
    EXPECT_TRUE(wb.menu("mnuNames(5)").checked);
    EXPECT_FALSE(wb.menu("mnuNames(6)").checked);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Triangle]");
    EXPECT_EQ(wb.txtMaps, "3");
    EXPECT_EQ(wb.FrameCaption, "Quillane - list.ifs");
    EXPECT_EQ(wb.IFSFileName, path);
    EXPECT_EQ(wb.RecentFiles[0], path);
    EXPECT_TRUE(wb.SettingsChanged);
}

TEST_F(OpenIFS, ANewListResetsTheFigureChoice) {
    wb.Menu.setChecked("mnuDrawAddFigure(3)", true);
    wb.Menu.setChecked("mnuDrawDetColorItems(1)", true);
    ASSERT_TRUE(open(block("A")));
    EXPECT_TRUE(wb.menu("mnuDrawAddFigure(0)").checked);
    for (int k = 1; k <= 8; ++k) EXPECT_FALSE(wb.menu(MenuTable::key("mnuDrawAddFigure", k)).checked) << k;
    EXPECT_TRUE(wb.menu("mnuDrawDetColorItems(0)").checked);
    EXPECT_FALSE(wb.menu("mnuDrawDetColorItems(1)").checked);
}

TEST_F(OpenIFS, ANewListIsUnmodifiedAndAnAppendedOneModified) {
    wb.ListModified = true;
    ASSERT_TRUE(open(block("A")));
    EXPECT_FALSE(wb.ListModified);
    ASSERT_TRUE(open(block("B"), 1));
    EXPECT_TRUE(wb.ListModified);
}

TEST_F(OpenIFS, AFileWithTwoBlocksOneWithoutRowsKeepsOnlyTheOther) {
    EXPECT_TRUE(open("Empty { nothing here\n; none\n}\nFull {\n 0.5 0 0 0.5 0 0 1\n}\n"));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(menuNames(wb), Names{"Full"});
    EXPECT_EQ(wb.FractalList[1].Name, "Full");
}

TEST_F(OpenIFS, BlankLinesBeforeTheFirstRowAreSkipped) {
    ASSERT_TRUE(open("A {\n\n   \n; note\n\n 0.5 0 0 0.5 0 0 1\n}\n"));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(wb.FractalList[1].nMaps, 1);
    EXPECT_EQ(wb.FractalList[1].nComments, 1);
    EXPECT_EQ(wb.FractalList[1].Comment[1], "; note");
}

TEST_F(OpenIFS, ABlankLineBetweenRowsIsReadAsARowAndFails) {
    oldList();
    EXPECT_TRUE(open(block("Good") + "Bad {\n 0.5 0 0 0.5 0 0 1\n\n 0.5 0 0 0.5 1 0 1\n}\n"));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", problemWith("Bad")}}));
    EXPECT_EQ(menuNames(wb), Names{"Good"});
    EXPECT_EQ(wb.CurrentIFS.Name, "Good");
}

TEST_F(OpenIFS, AFaultInTheFirstBlockKeepsTheOldListWhole) {
    oldList();
    EXPECT_FALSE(open("Short {\n 0.5 0 0 0.5\n}\n" + block("Later")));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", problemWith("Short")}}));
    expectOldList();
}

TEST_F(OpenIFS, CommasTabsAndBlanksSeparateFieldsAlike) {
    ASSERT_TRUE(
        open("A {\n0.5 0.1 -0.2 0.4 0.3 -0.6 0.7\n}\nB {\n0.5,0.1,-0.2,0.4,0.3,-0.6,0.7\n}\n"
             "C {\n0.5\t0.1\t-0.2\t0.4\t0.3\t-0.6\t0.7\n}\n"
             "D {\n0.5 ,\t0.1,, -0.2\t \t0.4   0.3, -0.6 ,0.7\n}\n"));
    ASSERT_EQ(wb.ListCount(), 4);
    const IFSFunction a = wb.FractalList[1].function(0);
    EXPECT_EQ(a.a, 0.5f);
    EXPECT_EQ(a.c, -0.2f);
    EXPECT_EQ(a.f, -0.6f);
    EXPECT_EQ(a.p, 0.7f);
    for (int n = 2; n <= 4; ++n) EXPECT_EQ(wb.FractalList[n].function(0), a) << n;
}

TEST_F(OpenIFS, ARowWithSixNumbersHasNoP) {
    wb.FractalList[1].p[1] = 0.9f;
    ASSERT_TRUE(open("Mixed {\n0.5 0 0 0.5 0 0 0.6\n0.5 0 0 0.5 0.5 0\n}\n"));
    EXPECT_EQ(wb.FractalList[1].p[0], 0.6f);
    EXPECT_EQ(wb.FractalList[1].p[1], 0.0f);
}

TEST_F(OpenIFS, ABlockWithoutAnyPGivesEachRowOneThirdRoundedToSixDecimals) {
    ASSERT_TRUE(open("Three {\n0.5 0 0 0.5 0 0\n0.5 0 0 0.5 0.5 0\n0.5 0 0 0.5 0.25 0.5\n}\n"));
    const IFSEntry& t = wb.FractalList[1];
    for (int i = 0; i < 3; ++i) EXPECT_EQ(t.p[i], 0.333333f) << i;
    EXPECT_NE(static_cast<double>(t.p[0]) + t.p[1] + t.p[2], 1.0);
}

TEST_F(OpenIFS, BlanksInsideTheTailOfARowRunTogether) {
    ASSERT_TRUE(open("A {\n0.5 0 0 0.5 0 0 0.25 7\n}\nB {\n0.5 0 0 0.5 0 0 0.3 0.4\n}\n"));
    EXPECT_EQ(wb.FractalList[1].p[0], 0.257f);
    EXPECT_EQ(wb.FractalList[2].p[0], 0.3f);
}

TEST_F(OpenIFS, TextFromASemicolonOnIsIgnored) {
    ASSERT_TRUE(open("A {\n0.5 0 0 0.5 0 0 1 ; 0.9 9\n0.4 0 0 0.4 0 0;1\n}\n"));
    EXPECT_EQ(wb.FractalList[1].p[0], 1.0f);
    EXPECT_EQ(wb.FractalList[1].f[1], 0.0f);
    EXPECT_EQ(wb.FractalList[1].p[1], 0.0f);
}

TEST_F(OpenIFS, TheLineHoldingTheClosingBraceEndsTheBlockWhateverElseItHolds) {
    ASSERT_TRUE(open("A {\n0.5 0 0 0.5 0 0 1\n0.2 0 0 0.2 0 0 1 } more text\n}\n"));
    EXPECT_EQ(wb.FractalList[1].nMaps, 1);
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(OpenIFS, TextBeforeTheFirstBraceIsSkipped) {
    ASSERT_TRUE(open("random words\n123 456\n\n" + block("A")));
    EXPECT_EQ(menuNames(wb), Names{"A"});
}

TEST_F(OpenIFS, ALastLineHoldingABraceYieldsNoEntry) {
    ASSERT_TRUE(open(block("A") + "B {"));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(menuNames(wb), Names{"A"});
}

TEST_F(OpenIFS, AFileWhoseOnlyBlockIsItsLastLineHasNoValidFunctions) {
    oldList();
    EXPECT_FALSE(open("B {\n"));
    EXPECT_EQ(host.shown(), (Messages{{"Error", "No valid functions found in this file"}}));
    expectOldList();
}

TEST_F(OpenIFS, ACommentOf120CharactersIsCutTo89) {
    const std::string text120 = std::string(60, 'x') + std::string(60, 'y');
    ASSERT_TRUE(open("A {" + text120 + "\n;" + text120 + "\n0.5 0 0 0.5 0 0 1\n}\n"));
    const IFSEntry& a = wb.FractalList[1];
    EXPECT_EQ(a.nComments, 2);
    EXPECT_EQ(a.Comment[1], text120.substr(0, 89));
    EXPECT_EQ(a.Comment[2], (";" + text120).substr(0, 89));
}

TEST_F(OpenIFS, ATwentyFirstCommentLineIsDropped) {
    std::string text = "A { head\n";
    for (int k = 2; k <= 21; ++k) text += "; line " + std::to_string(k) + "\n";
    ASSERT_TRUE(open(text + "0.5 0 0 0.5 0 0 1\n}\n"));
    const IFSEntry& a = wb.FractalList[1];
    EXPECT_EQ(a.nComments, 20);
    EXPECT_EQ(a.Comment[1], "head");
    EXPECT_EQ(a.Comment[20], "; line 20");
    EXPECT_EQ(a.nMaps, 1);
}

TEST_F(OpenIFS, TextAfterTheBraceIsTheFirstCommentWithoutASemicolon) {
    ASSERT_TRUE(open("A {  first words  \n  ; second\n0.5 0 0 0.5 0 0 1\n}\n"));
    const IFSEntry& a = wb.FractalList[1];
    EXPECT_EQ(a.nComments, 2);
    EXPECT_EQ(a.Comment[1], "first words");
    EXPECT_EQ(a.Comment[2], "  ; second");
}

TEST_F(OpenIFS, WithoutTextAfterTheBraceTheFirstCommentLineIsCommentOne) {
    wb.FractalList[1].Comment[1] = "stale";
    ASSERT_TRUE(open("A {\n; only\n0.5 0 0 0.5 0 0 1\n}\nB {\n0.5 0 0 0.5 0 0 1\n}\n"));
    EXPECT_EQ(wb.FractalList[1].nComments, 1);
    EXPECT_EQ(wb.FractalList[1].Comment[1], "; only");
    EXPECT_EQ(wb.FractalList[2].nComments, 0);
    EXPECT_EQ(wb.FractalList[2].Comment[1], "");
}

TEST_F(OpenIFS, AFileOf31BlocksGivesTheFirst30AndSaysSo) {
    std::string text;
    for (int k = 1; k <= 31; ++k) text += block("B" + std::to_string(k));
    ASSERT_TRUE(open(text));
    EXPECT_EQ(wb.ListCount(), 30);
    EXPECT_EQ(wb.FractalList[30].Name, "B30");
    EXPECT_EQ(wb.NamesItemCount, 35);
    ASSERT_EQ(host.shown(), (Messages{{"Open File",
                                       "There were more than 30 functions in the file.   \n"
                                       "Only the first 30 functions were used."}}));
    EXPECT_EQ(host.shown()[0].icon, MessageIcon::Information);
}

TEST_F(OpenIFS, AFileOfExactly30BlocksSaysNothing) {
    std::string text;
    for (int k = 1; k <= 30; ++k) text += block("B" + std::to_string(k));
    ASSERT_TRUE(open(text + "; the end\n"));
    EXPECT_EQ(wb.ListCount(), 30);
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(OpenIFS, AppendingAddsAfterTheKeptEntriesAndKeepsTheWorkingIFS) {
    oldList();
    wb.CurrentIFS = numberedEntry("Work", 4);
    wb.SelectedIFS = 2;
    ASSERT_TRUE(open(block("New one") + block("New two", 2), 2));
    EXPECT_EQ(menuNames(wb), (Names{"Old one", "Old two", "New one", "New two"}));
    EXPECT_EQ(wb.FractalList[1], numberedEntry("Old one", 2));
    EXPECT_EQ(wb.FractalList[4].nMaps, 2);
    EXPECT_EQ(wb.CurrentIFS, numberedEntry("Work", 4));
    EXPECT_EQ(wb.SelectedIFS, 2);
    EXPECT_EQ(wb.FrameCaption, "Quillane");
    EXPECT_EQ(wb.RecentFiles[0], path);
}

TEST_F(OpenIFS, AppendingWithRoomForSomeSaysHowMany) {
    setList(wb, std::vector<IFSEntry>(28, numberedEntry("Old", 1)));
    ASSERT_TRUE(open(block("X") + block("Y") + block("Z"), 28));
    EXPECT_EQ(wb.ListCount(), 30);
    EXPECT_EQ(host.shown(), (Messages{{"Open File",
                                       "There was room in the fractals list to append\n"
                                       "only the first 2 functions in the file.   "}}));
}

TEST_F(OpenIFS, AppendingWithRoomForOneSaysTheFirstFunction) {
    setList(wb, std::vector<IFSEntry>(29, numberedEntry("Old", 1)));
    ASSERT_TRUE(open(block("X") + block("Y"), 29));
    EXPECT_EQ(wb.FractalList[30].Name, "X");
    EXPECT_EQ(host.shown(), (Messages{{"Open File",
                                       "There was room in the fractals list to append\n"
                                       "only the first function in the file.   "}}));
}

TEST_F(OpenIFS, AFileEndingInsideABlockNamesThatBlock) {
    oldList();
    EXPECT_TRUE(open(block("Good") + "Open end {\n; note\n0.5 0 0 0.5 0 0 1\n"));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", problemWith("Open end")}}));
    EXPECT_EQ(menuNames(wb), Names{"Good"});
}

TEST_F(OpenIFS, AHundredRowsAreReadAndAHundredAndOneAreAFaultOfThatBlock) {
    ASSERT_TRUE(open(block("Full", 100)));
    EXPECT_EQ(wb.FractalList[1].nMaps, 100);
    EXPECT_EQ(wb.FractalList[1].e[99], 99.0f);
    host.clear();
    const IFSEntry before101 = wb.FractalList[2];
    EXPECT_TRUE(open(block("Good") + block("Big", 101) + block("After")));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", problemWith("Big")}}));
    EXPECT_EQ(menuNames(wb), Names{"Good"});
    EXPECT_EQ(wb.FractalList[2], before101);
}

TEST_F(OpenIFS, BinaryGarbageWithoutABraceHasNoValidFunctions) {
    oldList();
    std::string bytes;
    for (int rep = 0; rep < 4; ++rep)
        for (int ch = 0; ch < 256; ++ch)
            if (ch != '{') bytes += static_cast<char>(ch);
    EXPECT_FALSE(open(bytes));
    EXPECT_EQ(host.shown(), (Messages{{"Error", "No valid functions found in this file"}}));
    expectOldList();
}

TEST_F(OpenIFS, BinaryGarbageInABlockIsAFaultOfThatBlock) {
    oldList();
    const std::string name = "\x01\x02 junk";
    const char rest[] = "{\x00\xff\n\x00\x00\x7f\n}\n";
    EXPECT_FALSE(open(name + std::string(rest, sizeof rest - 1)));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", problemWith(name)}}));
    expectOldList();
}

TEST_F(OpenIFS, RandomBytesNeverBreakTheList) {
    const char symbols[] = "{};,. \t\r\n0123456789-eE\0\xff\x80xS";
    const std::string alphabet(symbols, sizeof symbols - 1);
    for (unsigned seed = 1; seed <= 60; ++seed) {
        Workbench fresh;
        ScriptedHost quiet;
        std::mt19937 gen(seed);
        std::string bytes;
        for (int k = 0; k < 3000; ++k)
            bytes += (gen() % 4 == 0) ? static_cast<char>(gen() % 256) : alphabet[gen() % alphabet.size()];
        OpenIFSFile(fresh, quiet, 0, dir.write("noise.ifs", bytes));
        EXPECT_LE(quiet.shown().size(), 1u) << seed;
        EXPECT_LE(fresh.ListCount(), 30) << seed;
        for (int n = 1; n <= fresh.ListCount(); ++n) {
            EXPECT_GE(fresh.FractalList[n].nMaps, 1) << seed;
            EXPECT_LE(fresh.FractalList[n].nMaps, MaxMaps) << seed;
        }
    }
}

TEST_F(OpenIFS, AnEmptyFileHasNoValidFunctions) {
    oldList();
    EXPECT_FALSE(open(""));
    EXPECT_EQ(host.shown(), (Messages{{"Error", "No valid functions found in this file"}}));
    expectOldList();
}

TEST_F(OpenIFS, AMissingFileIsNamedWithFourBlanksAfterIt) {
    oldList();
    wb.ListModified = true;
    const std::string missing = dir.path("nowhere.ifs");
    EXPECT_FALSE(OpenIFSFile(wb, host, 0, missing));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", "This file cannot be found\n\n" + missing + "    "}}));
    expectOldList();
    EXPECT_TRUE(wb.ListModified);
}

TEST_F(OpenIFS, AFolderInsteadOfAFileCannotBeRead) {
    oldList();
    EXPECT_FALSE(OpenIFSFile(wb, host, 0, dir.path("")));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", "There was a problem reading this file.   "}}));
    expectOldList();
}

TEST_F(OpenIFS, LineEndsLfCrLfAndLoneCrReadAlike) {
    const std::string text =
        "A { head\n; more\n0.5 0 0 0.5 0 0 0.4\n0.5 0 0 0.5 1 0 0.6\n}\n\nB {\n1 2 3 4 5 6\n}\n";
    ASSERT_TRUE(open(text));
    const IFSEntry a = wb.FractalList[1], b = wb.FractalList[2];
    for (const char* end : {"\r\n", "\r"}) {
        Workbench other;
        std::string converted;
        for (char ch : text) converted += ch == '\n' ? end : std::string(1, ch);
        ASSERT_TRUE(OpenIFSFile(other, host, 0, dir.write("other.ifs", converted)));
        EXPECT_EQ(other.FractalList[1], a);
        EXPECT_EQ(other.FractalList[2], b);
    }
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(OpenIFS, VeryLongLinesAreCutOrRefused) {
    const std::string longComment = "; " + std::string(1 << 20, 'c');
    ASSERT_TRUE(open("A {\n" + longComment + "\n0.5 0 0 0.5 0 0 1\n}\n"));
    EXPECT_EQ(wb.FractalList[1].Comment[1], longComment.substr(0, 89));
    EXPECT_FALSE(open("Long {\n" + std::string(200000, '7') + "\n}\n"));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", problemWith("Long")}}));
}

TEST_F(OpenIFS, ANulByteEndsANumber) {
    const char text[] = "A {\n0.5\0009 0 0 0.5 0 0 1\n}\n";
    ASSERT_TRUE(open(std::string(text, sizeof text - 1)));
    EXPECT_EQ(wb.FractalList[1].a[0], 0.5f);
    EXPECT_EQ(wb.FractalList[1].p[0], 1.0f);
}

TEST_F(OpenIFS, AValueBeyondSinglePrecisionIsAFaultOfTheBlock) {
    EXPECT_FALSE(open("Huge {\n1e39 0 0 0.5 0 0 1\n}\n"));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", problemWith("Huge")}}));
}

TEST_F(OpenIFS, AnIFSBlockLeavesHasChaosGameAsTheSlotHeldIt) {
    wb.FractalList[1].HasChaosGame = True16;
    wb.FractalList[2].HasChaosGame = False16;
    ASSERT_TRUE(open(block("A") + block("B")));
    EXPECT_EQ(wb.FractalList[1].HasChaosGame, True16);
    EXPECT_EQ(wb.FractalList[2].HasChaosGame, False16);
}

// The runtime's trim takes blanks only, so a row indented by a tab starts with an empty field.
TEST_F(OpenIFS, ARowIndentedByATabShiftsItsFields) {
    ASSERT_TRUE(open("A {\n\t0.5 0.1 0.2 0.3 0.4 0.6 0.7\n}\n"));
    const IFSEntry& a = wb.FractalList[1];
    EXPECT_EQ(a.a[0], 0.0f);
    EXPECT_EQ(a.b[0], 0.5f);
    EXPECT_EQ(a.f[0], 0.4f);
    EXPECT_EQ(a.p[0], 0.6f);
}

TEST_F(OpenIFS, WithoutANameTheDialogAsksAndCancelEndsQuietly) {
    oldList();
    EXPECT_FALSE(OpenIFSFile(wb, host, 0, ""));
    EXPECT_EQ(host.shown(), Messages{});
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Open IFS file");
    ASSERT_EQ(host.dialogs()[0].filters.size(), 1u);
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "Iterated Function Systems (*.ifs)");
    EXPECT_EQ(host.dialogs()[0].filters[0].pattern, "*.ifs");
    expectOldList();
}

TEST_F(OpenIFS, WithoutANameTheChosenFileIsRead) {
    host.fileNames.push_back(dir.write("chosen.ifs", block("Chosen")));
    EXPECT_TRUE(OpenIFSFile(wb, host, 0, ""));
    EXPECT_EQ(menuNames(wb), Names{"Chosen"});
    EXPECT_EQ(wb.FrameCaption, "Quillane - chosen.ifs");
}

}  // namespace
}  // namespace quillane
