#include <gtest/gtest.h>

#include "core/chaos_game.h"
#include "app/ifs_file_reader.h"
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

class OpenChaos : public ::testing::Test {
  protected:
    bool open(const std::string& text, int Start = 0) {
        path = dir.write("list.chg", text);
        return OpenChaosFile(wb, host, Start, path);
    }
    Workbench wb;
    ScriptedHost host;
    TempDir dir;
    std::string path;
};

TEST_F(OpenChaos, RowsFillTheRecipeAndTheCoefficientsFollowFromIt) {
    ASSERT_TRUE(open("Tri { turning\nS 0.5 0 0.2 0 0\nS 0.5 0 0.3 1 0\nSR 0.5 90 0.5 0.5 1\n}\n"));
    EXPECT_EQ(host.shown(), Messages{});
    const IFSEntry& t = wb.FractalList[1];
    EXPECT_EQ(t.nMaps, 3);
    EXPECT_EQ(t.Step[1][2], "S");
    EXPECT_EQ(t.Step[2][2], "R");
    EXPECT_EQ(t.Scale[2], 0.5f);
    EXPECT_EQ(t.Angle[2], 90.0f);
    EXPECT_EQ(t.Prob[2], 0.5f);
    EXPECT_EQ(t.FPx[2], 0.5f);
    EXPECT_EQ(t.FPy[2], 1.0f);
    EXPECT_EQ(t.HasChaosGame, True16);
    IFSEntry recipe = t;
    for (int i = 0; i < 3; ++i) CGMatrixOf(recipe, i);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(t.a[i], recipe.a[i]) << i;
        EXPECT_EQ(t.b[i], recipe.b[i]) << i;
        EXPECT_EQ(t.e[i], recipe.e[i]) << i;
        EXPECT_EQ(t.f[i], recipe.f[i]) << i;
    }
    // A quarter turn about (0.5, 1) at half size.
    EXPECT_NEAR(t.b[2], -0.5f, 1e-6);
    EXPECT_NEAR(t.c[2], 0.5f, 1e-6);
    // (0.5, 1) stays where it is: x' = -0.5 * 1 + e = 0.5, y' = 0.5 * 0.5 + f = 1.
    EXPECT_NEAR(t.e[2], 1.0, 1e-6);
    EXPECT_NEAR(t.f[2], 0.75, 1e-6);
}

TEST_F(OpenChaos, ProbabilitiesComeFromTheAreasNotFromTheProbColumn) {
    ASSERT_TRUE(open("Two {\nS 0.5 0 0.9 0 0\nS 0.25 0 0 1 1\n}\nNone {\nS 0.5 0 0 0 0\nS 0.5 0 0 1 0\n}\n"));
    EXPECT_NEAR(wb.FractalList[1].p[0], 0.8, 1e-6);
    EXPECT_NEAR(wb.FractalList[1].p[1], 0.2, 1e-6);
    EXPECT_EQ(wb.FractalList[1].Prob[0], 0.9f);
    EXPECT_NEAR(wb.FractalList[2].p[0], 0.5, 1e-6);
    EXPECT_EQ(wb.CurrentIFS, wb.FractalList[1]);
}

TEST_F(OpenChaos, StepsBeyondTheLettersKeepWhatTheSlotHeld) {
    wb.FractalList[1].Step[2][0] = "V";
    wb.FractalList[1].Step[2][1] = "H";
    wb.FractalList[1].Step[3][1] = "V";
    ASSERT_TRUE(open("A {\nS 0.5 0 1 0 0\nSR 0.5 0 1 0 0\n}\n"));
    const IFSEntry& a = wb.FractalList[1];
    EXPECT_EQ(a.Step[2][0], "V");
    EXPECT_EQ(a.d[0], -0.5f);  // the kept "V" flips the map
    EXPECT_EQ(a.Step[2][1], "R");
    EXPECT_EQ(a.Step[3][1], "V");
}

TEST_F(OpenChaos, AFifthLetterHasNoSlot) {
    setList(wb, {numberedEntry("Old", 2)});
    EXPECT_FALSE(open("Five {\nSRVHS 0.5 0 1 0 0\n}\n"));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", "Too many IFS entries (max 30)\n" + Ignored}}));
    EXPECT_EQ(menuNames(wb), Names{"Old"});
    EXPECT_EQ(wb.FractalList[1], numberedEntry("Old", 2));
}

TEST_F(OpenChaos, AFifthLetterAfterGoodBlocksKeepsThem) {
    EXPECT_TRUE(open("Good {\nS 0.5 0 1 0 0\n}\nFive {\nSRVHS 0.5 0 1 0 0\n}\n"));
    EXPECT_EQ(host.shown(), (Messages{{"File Error", "Too many IFS entries (max 30)\n" + Ignored}}));
    EXPECT_EQ(menuNames(wb), Names{"Good"});
}

TEST_F(OpenChaos, ARowWithTooFewFieldsNamesTheBlock) {
    EXPECT_FALSE(open("Short {\nS 0.5 0 1\n}\n"));
    EXPECT_EQ(host.shown(), (Messages{{"File Error",
                                       "There was a problem reading the code for     \n"
                                       "the IFS with name \"Short\".   \n" +
                                           Ignored}}));
    host.clear();
    EXPECT_FALSE(open("Letters only {\nS\n}\n"));
    EXPECT_EQ(host.shown(), (Messages{{"File Error",
                                       "There was a problem reading the code for     \n"
                                       "the IFS with name \"Letters only\".   \n" +
                                           Ignored}}));
}

TEST_F(OpenChaos, ANewListSwitchesToTheFixedPointFormInChaosGameMode) {
    wb.ListModified = true;
    ASSERT_TRUE(open("A {\nS 0.5 0 1 0 0\n}\n"));
    EXPECT_EQ(wb.CodeForm, 2);
    EXPECT_EQ(wb.DesignMode, 1);
    EXPECT_FALSE(wb.ListModified);
    EXPECT_EQ(wb.FrameCaption, "Quillane - list.chg");
    EXPECT_EQ(wb.FunctionsCaption, "IFS [A]");
}

TEST_F(OpenChaos, AppendingLeavesTheWorkingIFSAndTheListUnmodified) {
    setList(wb, {numberedEntry("Old one", 2), numberedEntry("Old two", 3)});
    wb.CurrentIFS = numberedEntry("Work", 2);
    wb.lblProbSum = "0.777";
    wb.ListModified = true;
    ASSERT_TRUE(open("New {\nSR 0.5 30 1 0 0\nS 0.5 0 1 1 0\n}\n", 2));
    EXPECT_EQ(menuNames(wb), (Names{"Old one", "Old two", "New"}));
    EXPECT_EQ(wb.CurrentIFS, numberedEntry("Work", 2));
    EXPECT_EQ(wb.lblProbSum, "0.777");
    EXPECT_FALSE(wb.ListModified);
    EXPECT_EQ(wb.CodeForm, 0);
}

TEST_F(OpenChaos, WithoutANameTheDialogAsksForAChaosGameFile) {
    EXPECT_FALSE(OpenChaosFile(wb, host, 0, ""));
    ASSERT_EQ(host.dialogs().size(), 1u);
    EXPECT_EQ(host.dialogs()[0].title, "Open Chaos Game file");
    ASSERT_EQ(host.dialogs()[0].filters.size(), 1u);
    EXPECT_EQ(host.dialogs()[0].filters[0].description, "Chaos Game Files (*.chg)");
    EXPECT_EQ(host.dialogs()[0].filters[0].pattern, "*.chg");
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(OpenChaos, TheFormatIsChosenByTheCallerNotByTheName) {
    path = dir.write("rows.ifs", "A {\nS 0.5 0 1 0.5 0.5\n}\n");
    ASSERT_TRUE(OpenChaosFile(wb, host, 0, path));
    EXPECT_EQ(wb.FractalList[1].Step[1][0], "S");
    EXPECT_EQ(wb.FractalList[1].e[0], 0.25f);
}

}  // namespace
}  // namespace quillane
