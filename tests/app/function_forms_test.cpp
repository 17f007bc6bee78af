#include "core/function_forms.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/function_table.h"
#include "core/numbers.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "core/table_editing.h"
#include "tests/core/table_bench.h"
#include "app/code_commands.h"

namespace quillane {
namespace {

// A map of scale r0 at angle theta0 in its first column and s0 at phi0 in its second.
IFSEntry turnedMap(double r0, double theta0, double s0, double phi0) {
    const double t = theta0 * DegToRad, p = phi0 * DegToRad;
    return oneMap(static_cast<float>(r0 * std::cos(t)), static_cast<float>(-s0 * std::sin(p)),
                  static_cast<float>(r0 * std::sin(t)), static_cast<float>(s0 * std::cos(p)));
}

std::string checkedForm(const Workbench& wb) {
    std::string checked;
    for (const char* key : {"mnuMatrix", "mnuCodeMatrixFormat", "mnuRotation", "mnuCodeFP"})
        if (wb.menu(key).checked) checked += checked.empty() ? key : std::string(",") + key;
    return checked;
}

TEST(ScaleAndRotation, ZeroFirstColumnHasRadiusAndAngleZeroAndStaysZero) {
    Workbench wb = tableWith(oneMap(0, 0, 0, 0.5f));
    mnuRotation_Click(wb);
    EXPECT_EQ(wb.Table.text(1, 0), "0.000");
    EXPECT_EQ(wb.Table.text(3, 0), "0.00");
    EnterBox(wb, 2, 0);
    typeInto(wb, 2, 0, "0.7");
    convert(wb, 2, 0);
    EXPECT_EQ(wb.CurrentIFS.a[0], 0.0f);
    EXPECT_EQ(wb.CurrentIFS.c[0], 0.0f);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.d[0], 0.7f);
}

TEST(ScaleAndRotation, NegativeAWithZeroCIsAHalfTurn) {
    Workbench wb = tableWith(oneMap(-0.5f, 0, 0, 0.5f));
    mnuRotation_Click(wb);
    EXPECT_EQ(wb.Table.text(3, 0), "180.00");
}

TEST(ScaleAndRotation, ZeroDWithNegativeBIsNinetyButMinusNinetyFromTheList) {
    Workbench wb = tableWith(oneMap(0.5f, -0.5f, 0, 0));
    mnuRotation_Click(wb);
    EXPECT_EQ(wb.Table.text(4, 0), "90.00");
    WriteTableRows(wb, RowTextSource::ListEntry);
    EXPECT_EQ(wb.Table.text(4, 0), "-90.00");
    EXPECT_EQ(wb.Table.old(4, 0), "-90.00");
}

TEST(ScaleAndRotation, TheListRoundsRAndSToFourDecimalsFirst) {
    Workbench wb = tableWith(oneMap(0.12345f, 0, 0, 0.5f));
    mnuRotation_Click(wb);
    EXPECT_EQ(wb.Table.text(1, 0), "0.123");
    WriteTableRows(wb, RowTextSource::ListEntry);
    EXPECT_EQ(wb.Table.text(1, 0), "0.124");
}

TEST(ScaleAndRotation, AReflectionLeftToRightDiffersByAHalfTurn) {
    Workbench wb = tableWith(oneMap(-1, 0, 0, 1));
    mnuRotation_Click(wb);
    EXPECT_EQ(wb.Table.text(3, 0), "180.00");
    EXPECT_EQ(wb.Table.text(4, 0), "0.00");
}

TEST(Convert, EditingRKeepsThetaAtFullPrecision) {
    const double theta0 = 12.3456789, phi0 = 33.3333;
    Workbench wb = tableWith(turnedMap(0.4, theta0, 0.2, phi0));
    mnuRotation_Click(wb);
    ASSERT_EQ(wb.Table.text(3, 0), "12.35");
    const float b0 = wb.CurrentIFS.b[0], d0 = wb.CurrentIFS.d[0];
    EnterBox(wb, 1, 0);
    typeInto(wb, 1, 0, "0.8");
    convert(wb, 1, 0);
    const IFSEntry& ifs = wb.CurrentIFS;
    EXPECT_NEAR(AngleOf(ifs.a[0], ifs.c[0]), theta0, 1e-4);
    EXPECT_NEAR(std::hypot(ifs.a[0], ifs.c[0]), 0.8, 1e-6);
    EXPECT_NEAR(ifs.b[0], b0, 1e-7);
    EXPECT_NEAR(ifs.d[0], d0, 1e-7);

    // Reading the other three from their texts, as TextToCode does, would have moved theta.
    IFSEntry fromText = wb.CurrentIFS;
    TextToCode(wb, fromText);
    EXPECT_GT(std::fabs(AngleOf(fromText.a[0], fromText.c[0]) - theta0), 1e-3);
}

TEST(Convert, TakesTheCoefficientsAsTheyStoodWhenTheBoxWasEntered) {
    Workbench wb = tableWith(turnedMap(0.5, 30, 0.5, 30));
    mnuRotation_Click(wb);
    EnterBox(wb, 3, 0);
    // The design moves the map while the box has the focus; the edit still starts from the entry.
    wb.CurrentIFS.b[0] = 0;
    wb.CurrentIFS.d[0] = 0.9f;
    typeInto(wb, 3, 0, "90");
    convert(wb, 3, 0);
    EXPECT_NEAR(wb.CurrentIFS.a[0], 0.0, 1e-7);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.c[0], 0.5f);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.d[0], static_cast<float>(0.5 * std::cos(30 * DegToRad)));
}

TEST(Convert, MatrixFormPutsEachColumnInItsCoefficient) {
    Workbench wb = tableWith(DefaultIFS());
    const char* texts[] = {"0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7"};
    for (int k = 1; k <= 7; ++k) {
        typeInto(wb, k, 0, texts[k - 1]);
        convert(wb, k, 0);
    }
    const IFSFunction fn = wb.CurrentIFS.function(0);
    EXPECT_EQ(fn.a, 0.1f);
    EXPECT_EQ(fn.b, 0.2f);
    EXPECT_EQ(fn.c, 0.3f);
    EXPECT_EQ(fn.d, 0.4f);
    EXPECT_EQ(fn.e, 0.5f);
    EXPECT_EQ(fn.f, 0.6f);
    EXPECT_EQ(fn.p, 0.7f);
}

TEST(Convert, RotationFormTakesTranslationAndProbabilityPlainly) {
    Workbench wb = tableWith(DefaultIFS());
    mnuRotation_Click(wb);
    typeInto(wb, 5, 0, "-1.25");
    convert(wb, 5, 0);
    typeInto(wb, 7, 0, "0.4");
    convert(wb, 7, 0);
    EXPECT_EQ(wb.CurrentIFS.e[0], -1.25f);
    EXPECT_EQ(wb.CurrentIFS.p[0], 0.4f);
    EXPECT_EQ(wb.CurrentIFS.a[0], 0.5f);
}

TEST(Convert, FixedPointFormWritesTheRecipe) {
    Workbench wb = tableWith(DefaultIFS());
    mnuCodeFP_Click(wb);
    const std::pair<int, const char*> boxes[] = {{2, " r "}, {5, "0.25"}, {6, "90"}, {8, "2"}, {9, "-3"}};
    for (const auto& [column, text] : boxes) {
        typeInto(wb, column, 0, text);
        convert(wb, column, 0);
    }
    const IFSEntry& ifs = wb.CurrentIFS;
    EXPECT_EQ(ifs.Step[1][0], "S");
    EXPECT_EQ(ifs.Step[2][0], "R");
    EXPECT_EQ(ifs.Scale[0], 0.25f);
    EXPECT_EQ(ifs.Angle[0], 90.0f);
    EXPECT_EQ(ifs.FPx[0], 2.0f);
    EXPECT_EQ(ifs.FPy[0], -3.0f);
}

TEST(TextToCode, ReadsAllRowsOfTheMatrixForm) {
    Workbench wb = tableWith(SierpinskiTriangleIFS());
    typeInto(wb, 5, 2, "0.3");
    IFSEntry target;
    TextToCode(wb, target);
    EXPECT_EQ(target.nMaps, 3);
    EXPECT_EQ(target.e[2], 0.3f);
    EXPECT_EQ(target.a[1], 0.5f);
    EXPECT_EQ(target.p[0], 0.333f);  // the display text, not the stored 0.333333
}

TEST(TextToCode, BuildsTheMatrixFromTheRecipeInTheFixedPointForm) {
    Workbench wb = tableWith(DefaultIFS());
    mnuCodeFP_Click(wb);
    typeInto(wb, 2, 0, "H");
    typeInto(wb, 8, 0, "1");
    IFSEntry target;
    TextToCode(wb, target);
    EXPECT_EQ(target.a[0], -0.5f);
    EXPECT_EQ(target.d[0], 0.5f);
    EXPECT_EQ(target.e[0], 1.5f);  // (1 - a) * FPx
}

TEST(FormCommands, EachSwitchRewritesTheTextsAndHeadings) {
    Workbench wb = tableWith(turnedMap(0.5, 30, 0.5, 30));
    EXPECT_EQ(checkedForm(wb), "mnuMatrix");
    EXPECT_EQ(wb.Table.text(1, 0), "0.433");
    EXPECT_EQ(wb.Table.text(2, 0), "-0.250");

    mnuRotation_Click(wb);
    EXPECT_EQ(checkedForm(wb), "mnuRotation");
    EXPECT_EQ(wb.CodeForm, 1);
    EXPECT_EQ(ColumnHeadings(wb)[2], "theta");
    EXPECT_EQ(wb.Table.text(1, 0), "0.500");
    EXPECT_EQ(wb.Table.text(3, 0), "30.00");
    EXPECT_EQ(wb.Table.old(4, 0), "30.00");

    mnuCodeFP_Click(wb);
    EXPECT_EQ(checkedForm(wb), "mnuCodeFP");
    EXPECT_EQ(wb.CodeForm, 2);
    EXPECT_EQ(wb.DesignMode, 1);
    EXPECT_EQ(wb.DesignCaption, "Design (Chaos Game)");
    EXPECT_EQ(wb.ScaleCGCaption, "Chaos Game Design");
    EXPECT_EQ(ColumnHeadings(wb)[0], "Step 1");
    EXPECT_EQ(HeadingGroups(wb), (std::vector<HeadingGroup>{{"Moves", 1, 4}, {"Parameters", 5, 6}}));
    EXPECT_EQ(wb.Table.text(1, 0), "S");
    EXPECT_EQ(wb.Table.text(5, 0), "0.500");
    EXPECT_EQ(wb.Table.text(6, 0), "0.00");

    mnuMatrix_Click(wb);
    EXPECT_EQ(checkedForm(wb), "mnuMatrix");
    EXPECT_EQ(wb.DesignMode, 0);
    EXPECT_EQ(wb.DesignCaption, "Design (IFS)");
    EXPECT_TRUE(HeadingGroups(wb).empty());
    EXPECT_EQ(ColumnHeadings(wb)[0], "a");
    EXPECT_EQ(wb.Table.text(1, 0), "0.433");
}

TEST(FormCommands, DoNothingWhenAlreadyChecked) {
    Workbench wb = tableWith(DefaultIFS());
    mnuRotation_Click(wb);
    typeInto(wb, 1, 0, "typed");
    mnuRotation_Click(wb);
    EXPECT_EQ(wb.Table.text(1, 0), "typed");
    mnuMatrix_Click(wb);
    EXPECT_EQ(wb.Table.text(1, 0), "0.500");
    typeInto(wb, 1, 0, "typed");
    mnuMatrix_Click(wb);
    EXPECT_EQ(wb.Table.text(1, 0), "typed");
}

TEST(FormCommands, RotationAndFixedPointKeepTheMatrixFunctionFlag) {
    Workbench wb = tableWith(DefaultIFS());
    ScriptedHost host;
    mnuCodeMatrixFormat_Click(wb, host);
    EXPECT_EQ(checkedForm(wb), "mnuCodeMatrixFormat");
    EXPECT_EQ(wb.MatrixFunctionForm, 1);
    mnuRotation_Click(wb);
    EXPECT_EQ(wb.MatrixFunctionForm, 1);
    mnuCodeFP_Click(wb);
    EXPECT_EQ(wb.MatrixFunctionForm, 1);
    mnuMatrix_Click(wb);
    EXPECT_EQ(wb.MatrixFunctionForm, 0);
    EXPECT_TRUE(host.shown().empty());
}

TEST(FormCommands, TheMatrixFunctionFormRefusesThirtySixFunctions) {
    Workbench wb = tableWith(GridIFS(36));
    ScriptedHost host;
    mnuCodeMatrixFormat_Click(wb, host);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Warning");
    EXPECT_EQ(host.shown()[0].text.rfind("The matrix function form can only", 0), 0u);
    EXPECT_EQ(checkedForm(wb), "mnuMatrix");
    EXPECT_EQ(wb.MatrixFunctionForm, 0);

    Workbench fits = tableWith(GridIFS(35));
    ScriptedHost quiet;
    mnuCodeMatrixFormat_Click(fits, quiet);
    EXPECT_TRUE(quiet.shown().empty());
    EXPECT_EQ(fits.MatrixFunctionForm, 1);
}

TEST(SetUpFunctions, MoreThanThirtyFiveResetTheMatrixFunctionForm) {
    Workbench wb = tableWith(DefaultIFS());
    ScriptedHost host;
    mnuCodeMatrixFormat_Click(wb, host);
    SetUpFunctions(wb, host, 36);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].text,
              "The matrix function form can only be used\nwith at most 35 functions. The format will\n"
              "be reset to the matrix compact form.    ");
    EXPECT_EQ(checkedForm(wb), "mnuMatrix");
    EXPECT_EQ(wb.MatrixFunctionForm, 0);
    EXPECT_EQ(wb.txtMaps, "36");
    EXPECT_EQ(wb.Table.LastMaps, 36);
}

TEST(SetUpFunctions, ThirtyFiveKeepTheMatrixFunctionForm) {
    Workbench wb = tableWith(DefaultIFS());
    ScriptedHost host;
    mnuCodeMatrixFormat_Click(wb, host);
    SetUpFunctions(wb, host, 35);
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(wb.MatrixFunctionForm, 1);
}

TEST(SetUpFunctions, AnotherFormKeepsItsFormAndTheFlag) {
    Workbench wb = tableWith(DefaultIFS());
    ScriptedHost host;
    mnuCodeMatrixFormat_Click(wb, host);
    mnuRotation_Click(wb);
    SetUpFunctions(wb, host, 40);
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(checkedForm(wb), "mnuRotation");
    EXPECT_EQ(wb.MatrixFunctionForm, 1);
}

TEST(LockFunctions, MarksTheCaptionAndTheFirstSixColumns) {
    IFSEntry fern = DefaultIFS();
    fern.Name = "Fern";
    Workbench wb = tableWith(fern);
    LockFunctions(wb, true);
    LockFunctions(wb, true);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern] LOCKED");
    EXPECT_TRUE(BoxLocked(wb, 1));
    EXPECT_TRUE(BoxLocked(wb, 6));
    EXPECT_FALSE(BoxLocked(wb, 7));
    LockFunctions(wb, false);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern]");
    EXPECT_FALSE(BoxLocked(wb, 1));
}

TEST(LockFunctions, TheFixedPointFormAndSetUpFunctionsUnlock) {
    Workbench wb = tableWith(DefaultIFS());
    LockFunctions(wb, true);
    mnuCodeFP_Click(wb);
    EXPECT_FALSE(wb.Table.Locked);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Untitled]");
    LockFunctions(wb, true);
    ScriptedHost host;
    SetUpFunctions(wb, host, 1);
    EXPECT_FALSE(wb.Table.Locked);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Untitled]");
}

TEST(SetProb, ThreeFunctionsGetSixDecimalThirdsAndTheLastTheRest) {
    Workbench wb = tableWith(copiesOfDefault(3));
    EXPECT_TRUE(SetProb(wb));
    EXPECT_EQ(wb.CurrentIFS.p[0], 0.333333f);
    EXPECT_EQ(wb.CurrentIFS.p[1], 0.333333f);
    EXPECT_EQ(wb.CurrentIFS.p[2], 0.333334f);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(wb.Table.text(7, i), "0.333") << i;
    EXPECT_FALSE(SetProb(wb));
}

TEST(ProbCalc, AllMapsWithoutAreaEndWithoutAnyChange) {
    IFSEntry lines = copiesOfDefault(3);
    for (int i = 0; i < 3; ++i) {
        lines.d[i] = 0;
        lines.p[i] = i == 0 ? 0.5f : 0.25f;
    }
    Workbench wb = tableWith(lines);
    EXPECT_FALSE(ProbCalc(wb).has_value());
    EXPECT_EQ(wb.CurrentIFS.p[0], 0.5f);
    EXPECT_EQ(wb.CurrentIFS.p[1], 0.25f);
    EXPECT_EQ(wb.Table.text(7, 0), "0.500");
}

TEST(ProbCalc, AMapOfNoAreaGetsOneHundredthBeforeTheDivision) {
    IFSEntry maps = copiesOfDefault(3);
    maps.d[2] = 0;
    Workbench wb = tableWith(maps);
    const std::optional<bool> changed = ProbCalc(wb);
    ASSERT_TRUE(changed.has_value());
    EXPECT_TRUE(*changed);
    EXPECT_FLOAT_EQ(wb.CurrentIFS.p[0], static_cast<float>(0.5 / 1.01));
    EXPECT_FLOAT_EQ(wb.CurrentIFS.p[2], static_cast<float>(0.01 / 1.01));
    EXPECT_EQ(wb.Table.text(7, 0), "0.495");
    EXPECT_EQ(wb.Table.text(7, 2), "0.010");
    EXPECT_EQ(wb.lblProbSum, "1.000");
}

TEST(ArrangeFixedPoints, PutsThemOnARegularPolygonWithUnitSides) {
    Workbench wb = tableWith(copiesOfDefault(4));
    mnuCodeFP_Click(wb);
    mnuCodeArrangeFP_Click(wb);
    const IFSEntry& ifs = wb.CurrentIFS;
    const float x[] = {0, 1, 1, 0}, y[] = {0, 0, 1, 1};
    for (int i = 0; i < 4; ++i) {
        EXPECT_NEAR(ifs.FPx[i], x[i], 1e-6) << i;
        EXPECT_NEAR(ifs.FPy[i], y[i], 1e-6) << i;
        // The matrix is rebuilt around the new fixed point.
        EXPECT_NEAR(ifs.a[i] * ifs.FPx[i] + ifs.b[i] * ifs.FPy[i] + ifs.e[i], ifs.FPx[i], 1e-6);
        EXPECT_NEAR(ifs.c[i] * ifs.FPx[i] + ifs.d[i] * ifs.FPy[i] + ifs.f[i], ifs.FPy[i], 1e-6);
    }
    EXPECT_EQ(wb.Table.text(8, 2), "1.000");
    EXPECT_EQ(wb.Table.text(9, 2), "1.000");
    EXPECT_EQ(wb.Table.text(9, 3), "1.000");
}

TEST(ArrangeFixedPoints, ThreeMakeAnEquilateralTriangle) {
    Workbench wb = tableWith(copiesOfDefault(3));
    mnuCodeFP_Click(wb);
    mnuCodeArrangeFP_Click(wb);
    EXPECT_NEAR(wb.CurrentIFS.FPx[2], 0.5, 1e-6);
    EXPECT_NEAR(wb.CurrentIFS.FPy[2], std::sqrt(3.0) / 2, 1e-6);
    EXPECT_EQ(wb.Table.text(9, 2), "0.866");
}

TEST(ProbSumText, AddsTheProbabilitiesOfTheFunctions) {
    Workbench wb = tableWith(SierpinskiTriangleIFS());
    wb.CurrentIFS.p[2] = 0.2f;
    EXPECT_EQ(ProbSumText(wb), "0.867");
}

}  // namespace
}  // namespace quillane
