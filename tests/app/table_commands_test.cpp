#include "app/table_commands.h"
#include "app/chaos_design.h"

#include <gtest/gtest.h>

#include "core/function_forms.h"
#include "core/numbers.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "app/fractal_view.h"
#include "tests/core/table_bench.h"
#include "app/code_commands.h"

namespace quillane {
namespace {

struct TableBench {
    Workbench wb;
    ScriptedHost host;
    FractalPictures pics;

    explicit TableBench(const IFSEntry& ifs = SierpinskiTriangleIFS()) : wb(tableWith(ifs)) {
        wb.Rng.pin(7);
        pics.resize(32, White);
        ApplyWindow(pics, wb.Window);
    }

    // Focus into the box, type, and leave it.
    bool edit(int column, int row, const std::string& text) {
        BoxGotFocus(wb, column, row);
        typeInto(wb, column, row, text);
        return HandleTextBoxChange(wb, column, row);
    }
};

IFSEntry named(IFSEntry ifs, const std::string& name) {
    ifs.Name = name;
    return ifs;
}

TEST(HandleTextBoxChange, OneThirdShowsThreeDecimalsAndStoresTheFullSingle) {
    TableBench t;
    EXPECT_TRUE(t.edit(7, 1, "1/3"));
    EXPECT_EQ(t.wb.Table.text(7, 1), "0.333");
    EXPECT_EQ(t.wb.Table.old(7, 1), "0.333");
    EXPECT_EQ(t.wb.CurrentIFS.p[1], 1.0f / 3.0f);
    EXPECT_EQ(t.wb.lblProbSum, "1.000");
    EXPECT_EQ(t.wb.ChangeCount, 1);
    EXPECT_TRUE(t.wb.IFSModified);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo Text Entry");
    EXPECT_TRUE(t.wb.menu("mnuUndo").enabled);
    EXPECT_TRUE(t.wb.menu(UndoToolButton).enabled);
    EXPECT_EQ(t.wb.TextUndoField, 7);
    EXPECT_EQ(t.wb.TextUndoValue, 0.333f);

    // Leaving the box later finds nothing new: the stored third stays.
    EXPECT_FALSE(HandleTextBoxChange(t.wb, 7, 1));
    EXPECT_EQ(t.wb.CurrentIFS.p[1], 1.0f / 3.0f);
    EXPECT_EQ(t.wb.ChangeCount, 1);
}

TEST(HandleTextBoxChange, AZeroDenominatorGivesTheNumerator) {
    TableBench t;
    EXPECT_TRUE(t.edit(5, 0, "5/0"));
    EXPECT_EQ(t.wb.Table.text(5, 0), "5.000");
    EXPECT_EQ(t.wb.CurrentIFS.e[0], 5.0f);
}

TEST(HandleTextBoxChange, TheSameValueIsOnlyReformatted) {
    TableBench t;
    EXPECT_FALSE(t.edit(1, 0, "0.5000"));
    EXPECT_EQ(t.wb.Table.text(1, 0), "0.500");
    EXPECT_EQ(t.wb.ChangeCount, 0);
    EXPECT_FALSE(t.wb.menu("mnuUndo").enabled);
}

TEST(HandleTextBoxChange, ALockedBoxIsLeftAlone) {
    TableBench t;
    LockFunctions(t.wb, true);
    EXPECT_FALSE(t.edit(1, 0, "0.9"));
    EXPECT_EQ(t.wb.CurrentIFS.a[0], 0.5f);
    EXPECT_EQ(t.wb.ChangeCount, 0);
    EXPECT_TRUE(t.edit(7, 0, "0.2"));
    EXPECT_EQ(t.wb.CurrentIFS.p[0], 0.2f);
}

TEST(HandleTextBoxChange, AnglesOfTheRotationFormShowTwoDecimals) {
    TableBench t;
    mnuRotation_Click(t.wb);
    EXPECT_TRUE(t.edit(3, 0, "30"));
    EXPECT_EQ(t.wb.Table.text(3, 0), "30.00");
    EXPECT_FLOAT_EQ(t.wb.CurrentIFS.a[0], static_cast<float>(0.5 * std::cos(30 * DegToRad)));
    EXPECT_TRUE(t.edit(1, 0, ".25"));
    EXPECT_EQ(t.wb.Table.text(1, 0), "0.250");
    EXPECT_NEAR(AngleOf(t.wb.CurrentIFS.a[0], t.wb.CurrentIFS.c[0]), 30.0, 1e-5);
}

TEST(HandleTextBoxChange, CountsOneEditAndMarksANamedCaption) {
    TableBench t(named(SierpinskiTriangleIFS(), "Sierpinski"));
    t.edit(2, 1, "0.1");
    EXPECT_EQ(t.wb.FunctionsCaption, "IFS [Sierpinski*]");
    t.edit(2, 1, "0.2");
    EXPECT_EQ(t.wb.ChangeCount, 2);
    EXPECT_EQ(t.wb.FunctionsCaption, "IFS [Sierpinski*]");
}

TEST(HandleTextBoxChange, TurnsTheRecursiveDrawingOff) {
    TableBench t(named(SierpinskiTriangleIFS(), "Untitled"));  // the caption alone clears nothing here
    t.wb.TableRecursionFlags.fill(true);
    t.edit(1, 0, "0.4");
    for (bool flag : t.wb.TableRecursionFlags) EXPECT_FALSE(flag);
}

TEST(HandleTextBoxChange, FixedPointFormBuildsTheMatrixAndProportionalProbabilities) {
    TableBench t(copiesOfDefault(2));
    mnuCodeFP_Click(t.wb);
    EXPECT_TRUE(t.edit(5, 0, "0.25"));
    EXPECT_EQ(t.wb.Table.text(5, 0), "0.250");
    EXPECT_EQ(t.wb.CurrentIFS.a[0], 0.25f);
    EXPECT_EQ(t.wb.Table.text(7, 0), "0.200");
    EXPECT_EQ(t.wb.Table.text(7, 1), "0.800");
    EXPECT_TRUE(t.edit(8, 0, "1"));
    EXPECT_EQ(t.wb.Table.text(8, 0), "1.000");
    EXPECT_EQ(t.wb.CurrentIFS.e[0], 0.75f);
    EXPECT_TRUE(t.edit(6, 0, "45"));
    EXPECT_EQ(t.wb.Table.text(6, 0), "45.00");
    EXPECT_EQ(t.wb.ChangeCount, 3);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo Text Entry");
}

TEST(HandleTextBoxChange, FixedPointFormComparesTextsWithoutCase) {
    TableBench t(copiesOfDefault(2));
    mnuCodeFP_Click(t.wb);
    EXPECT_FALSE(t.edit(1, 0, "s"));
    EXPECT_EQ(t.wb.Table.text(1, 0), "S");
    EXPECT_EQ(t.wb.ChangeCount, 0);
    EXPECT_TRUE(t.edit(2, 0, "r"));
    EXPECT_EQ(t.wb.CurrentIFS.Step[2][0], "R");
    EXPECT_EQ(t.wb.Table.text(2, 0), "R");
}

TEST(UndoTextEntry, PutsTheFormerValuesBackWithoutARedo) {
    TableBench t(named(SierpinskiTriangleIFS(), "Sierpinski"));
    t.edit(1, 2, "0.75");
    ASSERT_EQ(t.wb.CurrentIFS.a[2], 0.75f);
    const std::optional<BoxAddress> box = UndoTextEntry(t.wb);
    ASSERT_TRUE(box.has_value());
    EXPECT_EQ(*box, (BoxAddress{1, 2}));
    EXPECT_EQ(t.wb.CurrentIFS.a[2], 0.5f);
    EXPECT_EQ(t.wb.Table.text(1, 2), "0.500");
    EXPECT_EQ(t.wb.ChangeCount, 0);
    EXPECT_EQ(t.wb.FunctionsCaption, "IFS [Sierpinski]");
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo");
    EXPECT_FALSE(t.wb.menu("mnuUndo").enabled);
    EXPECT_FALSE(t.wb.menu(UndoToolButton).enabled);
    EXPECT_FALSE(UndoTextEntry(t.wb).has_value());
    EXPECT_EQ(t.wb.ChangeCount, 0);
}

TEST(UndoTextEntry, TheBoxShowsTheFormerValueInThreeDecimals) {
    TableBench t;
    mnuRotation_Click(t.wb);
    t.edit(3, 0, "30");
    UndoTextEntry(t.wb);
    EXPECT_EQ(t.wb.CurrentIFS.a[0], 0.5f);
    EXPECT_EQ(t.wb.CurrentIFS.c[0], 0.0f);
    EXPECT_EQ(t.wb.Table.text(3, 0), "0.000");
}

TEST(UndoTextEntry, RestoresAProbabilityAndItsSum) {
    TableBench t;
    t.edit(7, 0, "0.5");
    EXPECT_EQ(t.wb.lblProbSum, "1.167");
    UndoTextEntry(t.wb);
    EXPECT_EQ(t.wb.CurrentIFS.p[0], 0.333333f);
    EXPECT_EQ(t.wb.lblProbSum, "1.000");
}

TEST(UndoTextEntry, ChaosGameModeTakesTheWholeSavedIFS) {
    TableBench t(copiesOfDefault(2));
    mnuCodeFP_Click(t.wb);
    t.edit(5, 0, "0.25");
    t.edit(2, 0, "R");  // a second entry replaces the first as the undo step
    const IFSEntry afterFirst = t.wb.SavedIFS;
    ASSERT_TRUE(UndoTextEntry(t.wb).has_value());
    EXPECT_EQ(t.wb.CurrentIFS, afterFirst);
    EXPECT_EQ(t.wb.CurrentIFS.Scale[0], 0.25f);
    EXPECT_EQ(t.wb.CurrentIFS.Step[2][0], "");
    EXPECT_EQ(t.wb.Table.text(2, 0), "");
    EXPECT_EQ(t.wb.Table.text(7, 0), "0.200");
    EXPECT_EQ(t.wb.ChangeCount, 1);
}

TEST(UndoTextEntry, IsIgnoredDuringADrawingAndForOtherCaptions) {
    TableBench t;
    t.edit(1, 0, "0.75");
    t.wb.DrawingActive = true;
    EXPECT_FALSE(UndoTextEntry(t.wb).has_value());
    EXPECT_EQ(t.wb.CurrentIFS.a[0], 0.75f);
    t.wb.DrawingActive = false;
    t.wb.Menu.setCaption("mnuUndo", "&Undo Move");
    EXPECT_FALSE(UndoTextEntry(t.wb).has_value());
    EXPECT_EQ(t.wb.CurrentIFS.a[0], 0.75f);
}

TEST(BoxGotFocus, SelectsTheRowAndDropsTheUndoOfAnotherFunction) {
    TableBench t;
    t.edit(1, 0, "0.75");
    BoxGotFocus(t.wb, 2, 0);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo Text Entry");
    BoxGotFocus(t.wb, 2, 1);
    EXPECT_EQ(t.wb.SelectedMap, 1);
    EXPECT_TRUE(t.wb.MapSelected);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo");
    EXPECT_FALSE(t.wb.menu("mnuUndo").enabled);
}

TEST(txtMaps, FromThreeToFourSelectsTheNewFunction) {
    TableBench t;
    t.wb.txtMaps = "4";
    const MapsCommit r = txtMaps_Commit(t.wb, t.host, false);
    EXPECT_EQ(r.outcome, BoxCommit::Changed);
    ASSERT_TRUE(r.focusRow.has_value());
    EXPECT_EQ(*r.focusRow, 3);
    EXPECT_EQ(t.wb.SelectedMap, 3);
    EXPECT_TRUE(t.wb.MapSelected);
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 4);
    EXPECT_EQ(t.wb.Table.LastMaps, 4);
    EXPECT_EQ(t.wb.CurrentIFS.a[3], 0.5f);
    // Placed as the design's New places a function: 10% to 50% of the span from the low end.
    const WorldWindow& w = t.wb.DesignWindow;
    EXPECT_GE(t.wb.CurrentIFS.e[3], w.xmin + 0.1f * (w.xmax - w.xmin) - 1e-6f);
    EXPECT_LE(t.wb.CurrentIFS.e[3], w.xmin + 0.5f * (w.xmax - w.xmin) + 1e-6f);
    EXPECT_GE(t.wb.CurrentIFS.f[3], w.ymin + 0.1f * (w.ymax - w.ymin) - 1e-6f);
    EXPECT_LE(t.wb.CurrentIFS.f[3], w.ymin + 0.5f * (w.ymax - w.ymin) + 1e-6f);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(t.wb.Table.text(7, i), "0.250") << i;
    EXPECT_EQ(t.wb.Table.text(4, 3), "0.500");
    EXPECT_EQ(t.wb.ChangeCount, 1);
    EXPECT_GT(t.wb.AttractorXMax, 0.9f);  // setscale sampled the new IFS
    EXPECT_TRUE(t.host.shown().empty());
}

TEST(txtMaps, FromThreeToSixSelectsNone) {
    TableBench t;
    t.wb.MapSelected = true;
    t.wb.txtMaps = "6";
    const MapsCommit r = txtMaps_Commit(t.wb, t.host, false);
    EXPECT_EQ(r.outcome, BoxCommit::Changed);
    EXPECT_FALSE(r.focusRow.has_value());
    EXPECT_FALSE(t.wb.MapSelected);
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 6);
    EXPECT_EQ(t.wb.Table.text(1, 5), "0.500");
}

TEST(txtMaps, AddedFunctionsAreNotOnTopOfEachOther) {
    TableBench t;
    t.wb.txtMaps = "5";
    txtMaps_Commit(t.wb, t.host, false);
    const IFSEntry& ifs = t.wb.CurrentIFS;
    EXPECT_TRUE(ifs.e[3] != ifs.e[4] || ifs.f[3] != ifs.f[4]);
    EXPECT_TRUE(ifs.e[3] != 0 || ifs.f[3] != 0);
    EXPECT_EQ(t.wb.Table.text(5, 3), Format(ifs.e[3], "0.000"));
}

TEST(txtMaps, InChaosGameModeAddedFunctionsAreNewFixedPoints) {
    TableBench t;
    ASSERT_TRUE(mnuNewChaosGame_Click(t.wb, t.host));
    t.wb.txtMaps = "3";
    txtMaps_Commit(t.wb, t.host, false);
    const IFSEntry& ifs = t.wb.CurrentIFS;
    ASSERT_EQ(ifs.nMaps, 3);
    for (int i = 1; i < 3; ++i) {
        EXPECT_EQ(ifs.Step[1][i], "S") << i;
        EXPECT_EQ(ifs.Scale[i], 0.5f) << i;
    }
    EXPECT_TRUE(ifs.FPx[1] != ifs.FPx[2] || ifs.FPy[1] != ifs.FPy[2]);
    EXPECT_EQ(t.wb.Table.text(1, 2), "S");
}

TEST(txtMaps, FewerFunctionsSelectNoneEither) {
    TableBench t;
    t.wb.MapSelected = true;
    t.wb.SelectedMap = 2;
    t.wb.txtMaps = "2";
    txtMaps_Commit(t.wb, t.host, false);
    EXPECT_FALSE(t.wb.MapSelected);
    EXPECT_EQ(t.wb.SelectedMap, 1);
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 2);
    EXPECT_EQ(t.wb.Table.text(1, 2), "");
}

TEST(txtMaps, AValueOutsideTheRangeIsRefusedAndReverts) {
    for (const char* text : {"0", "101", ""}) {
        TableBench t;
        t.wb.txtMaps = text;
        const MapsCommit r = txtMaps_Commit(t.wb, t.host, false);
        EXPECT_EQ(r.outcome, BoxCommit::Refused) << text;
        EXPECT_FALSE(r.beep);
        EXPECT_EQ(t.host.shown(), (std::vector<ShownMessage>{{"Error", "Enter a value between 1 and 100"}}));
        EXPECT_EQ(t.wb.txtMaps, "3");
        EXPECT_EQ(t.wb.CurrentIFS.nMaps, 3);
        EXPECT_EQ(t.wb.ChangeCount, 0);
    }
}

TEST(txtMaps, OnFocusLossARefusedValueOnlyBeeps) {
    TableBench t;
    t.wb.txtMaps = "250";
    const MapsCommit r = txtMaps_Commit(t.wb, t.host, true);
    EXPECT_EQ(r.outcome, BoxCommit::Refused);
    EXPECT_TRUE(r.beep);
    EXPECT_TRUE(t.host.shown().empty());
    EXPECT_EQ(t.wb.txtMaps, "3");
}

TEST(txtMaps, TheSameCountDoesNothing) {
    TableBench t;
    t.wb.txtMaps = "03";
    EXPECT_EQ(txtMaps_Commit(t.wb, t.host, false).outcome, BoxCommit::Unchanged);
    EXPECT_EQ(t.wb.ChangeCount, 0);
}

TEST(txtMaps, MoreThanThirtyFiveLeaveTheMatrixFunctionForm) {
    TableBench t;
    mnuCodeMatrixFormat_Click(t.wb, t.host);
    t.wb.txtMaps = "40";
    txtMaps_Commit(t.wb, t.host, false);
    ASSERT_EQ(t.host.shown().size(), 1u);
    EXPECT_EQ(t.host.shown()[0].text, MatrixFunctionFormReset);
    EXPECT_EQ(t.wb.MatrixFunctionForm, 0);
    EXPECT_TRUE(t.wb.menu("mnuMatrix").checked);
    EXPECT_EQ(t.wb.CurrentIFS.nMaps, 40);
    EXPECT_EQ(t.wb.Table.text(1, 39), "0.500");
}

TEST(txtWin, ATypedWindowIsSetAndThePicturesRescaled) {
    TableBench t;
    t.wb.DrawingStarted = true;
    t.wb.txtWin = {"2", "-1", "-1", "2"};
    EXPECT_EQ(txtWin_Commit(t.wb, t.pics, t.host), BoxCommit::Changed);
    EXPECT_EQ(t.wb.Window, (WorldWindow{-1, 2, -1, 2}));
    EXPECT_EQ(t.wb.txtWin, (std::array<std::string, 4>{"2.000", "-1.000", "-1.000", "2.000"}));
    EXPECT_DOUBLE_EQ(t.pics.picfractal.scaleLeft(), -1.0);
    EXPECT_DOUBLE_EQ(t.pics.picfractal.scaleTop(), 2.0);
    EXPECT_FALSE(t.wb.DrawingStarted);
    EXPECT_TRUE(t.host.shown().empty());
}

TEST(txtWin, AnInvalidNumberIsRefused) {
    TableBench t;
    const WorldWindow before = t.wb.Window;
    t.wb.txtWin[0] = "1.2.";
    EXPECT_EQ(txtWin_Commit(t.wb, t.pics, t.host), BoxCommit::Refused);
    EXPECT_EQ(t.host.shown(), (std::vector<ShownMessage>{{"Error", "Invalid number"}}));
    EXPECT_EQ(t.wb.Window, before);
    EXPECT_EQ(t.wb.txtWin[0], "1.100");
}

TEST(txtWin, AFrozenScaleIsNotChanged) {
    TableBench t;
    mnuDrawFreezeScale_Click(t.wb);
    const WorldWindow before = t.wb.Window;
    t.wb.txtWin[3] = "5";
    EXPECT_EQ(txtWin_Commit(t.wb, t.pics, t.host), BoxCommit::Refused);
    EXPECT_EQ(t.host.shown(), (std::vector<ShownMessage>{{"Not permitted", "Scale is frozen"}}));
    EXPECT_EQ(t.wb.Window, before);
    EXPECT_EQ(t.wb.txtWin[3], "1.100");
}

TEST(txtWin, UnchangedTextsDoNothing) {
    TableBench t;
    mnuDrawFreezeScale_Click(t.wb);
    EXPECT_EQ(txtWin_Commit(t.wb, t.pics, t.host), BoxCommit::Unchanged);
    EXPECT_TRUE(t.host.shown().empty());
}

TEST(mnuProb, EqualProbabilitiesCountOneEditOnlyWhenTheyChange) {
    TableBench t;
    t.wb.CurrentIFS.p[0] = 0.5f;
    t.wb.CurrentIFS.p[1] = t.wb.CurrentIFS.p[2] = 0.25f;
    t.wb.Menu.setCaption("mnuUndo", "&Undo Move");
    t.wb.Menu.setEnabled("mnuUndo", true);
    EXPECT_TRUE(mnuProb_Click(t.wb, t.host));
    EXPECT_EQ(t.wb.CurrentIFS.p[0], 0.333333f);
    EXPECT_EQ(t.wb.CurrentIFS.p[2], 0.333334f);
    EXPECT_EQ(t.wb.Table.text(7, 2), "0.333");
    EXPECT_EQ(t.wb.lblProbSum, "1.000");
    EXPECT_EQ(t.wb.ChangeCount, 1);
    EXPECT_EQ(t.wb.menu("mnuUndo").caption, "&Undo");
    EXPECT_GT(t.wb.AttractorXMax, 0.9f);
    EXPECT_FALSE(mnuProb_Click(t.wb, t.host));
    EXPECT_EQ(t.wb.ChangeCount, 1);
}

TEST(mnuProbCalc, ProportionalProbabilitiesActOnChanges) {
    TableBench t;
    t.wb.CurrentIFS.p[0] = 0.5f;
    t.wb.CurrentIFS.p[1] = t.wb.CurrentIFS.p[2] = 0.25f;
    EXPECT_TRUE(mnuProbCalc_Click(t.wb, t.host));
    EXPECT_FLOAT_EQ(t.wb.CurrentIFS.p[0], 1.0f / 3.0f);
    EXPECT_EQ(t.wb.Table.text(7, 0), "0.333");
    EXPECT_EQ(t.wb.ChangeCount, 1);
    EXPECT_FALSE(mnuProbCalc_Click(t.wb, t.host));
    EXPECT_EQ(t.wb.ChangeCount, 1);
}

TEST(mnuProbCalc, MapsWithoutAreaEndTheCommandQuietly) {
    IFSEntry lines = copiesOfDefault(2);
    lines.a[0] = lines.a[1] = 0;
    lines.p[0] = 0.75f;
    lines.p[1] = 0.25f;
    TableBench t(lines);
    EXPECT_FALSE(mnuProbCalc_Click(t.wb, t.host));
    EXPECT_EQ(t.wb.CurrentIFS.p[0], 0.75f);
    EXPECT_EQ(t.wb.ChangeCount, 0);
    EXPECT_TRUE(t.host.shown().empty());
}

}  // namespace
}  // namespace quillane
