#include "core/function_table.h"

#include <gtest/gtest.h>

#include "core/chaos_game.h"

namespace quillane {
namespace {

TEST(FunctionTable, DefaultRowInTheMatrixForm) {
    Workbench wb;
    const auto t = RowTexts(wb, 0);
    EXPECT_EQ(t[0], "0.500");
    EXPECT_EQ(t[1], "0.000");
    EXPECT_EQ(t[2], "0.000");
    EXPECT_EQ(t[3], "0.500");
    EXPECT_EQ(t[4], "0.000");
    EXPECT_EQ(t[5], "0.000");
    EXPECT_EQ(t[6], "1.000");
    EXPECT_EQ(ColumnHeadings(wb)[0], "a");
}

TEST(FunctionTable, DefaultRowInTheScaleAndRotationForm) {
    Workbench wb;
    wb.CodeForm = 1;
    const auto t = RowTexts(wb, 0);
    const std::array<std::string, 7> expected = {"0.500", "0.500", "0.00", "0.00", "0.000", "0.000", "1.000"};
    for (int k = 0; k < 7; ++k) EXPECT_EQ(t[k], expected[k]) << k;
    EXPECT_EQ(ColumnHeadings(wb)[2], "theta");
}

TEST(FunctionTable, RotationOfDegenerateAndReflectedMaps) {
    RotationForm zero = PrintRotation(0, 0, 0, 0.5f);
    EXPECT_EQ(zero.r, 0.0);
    EXPECT_EQ(zero.theta, 0.0);
    RotationForm left = PrintRotation(-0.5f, 0, 0, 0.5f);
    EXPECT_EQ(left.theta, 180.0);
    RotationForm mirror = PrintRotation(-1, 0, 0, 1);
    EXPECT_EQ(mirror.theta, 180.0);
    EXPECT_EQ(mirror.phi, 0.0);
    // d = 0, b < 0: phi = 90 in this path.
    RotationForm turned = PrintRotation(0, -0.5f, 0.5f, 0);
    EXPECT_EQ(turned.phi, 90.0);
}

TEST(FunctionTable, FixedPointFormShowsTheRecipe) {
    Workbench wb;
    wb.CodeForm = 2;
    wb.CurrentIFS.Step[2][0] = "R";
    wb.CurrentIFS.Angle[0] = 36;
    wb.CurrentIFS.FPx[0] = 1;
    const auto t = RowTexts(wb, 0);
    EXPECT_EQ(t[0], "S");
    EXPECT_EQ(t[1], "R");
    EXPECT_EQ(t[2], "");
    EXPECT_EQ(t[4], "0.500");
    EXPECT_EQ(t[5], "36.00");
    EXPECT_EQ(t[7], "1.000");
    EXPECT_EQ(t[8], "0.000");
    EXPECT_EQ(ColumnHeadings(wb)[0], "Step 1");
    EXPECT_EQ(ColumnHeadings(wb)[5], "Angle");
}

TEST(FunctionTable, CaptionUsesTheTrimmedName) {
    EXPECT_EQ(FunctionsCaptionFor("  Fern "), "IFS [Fern]");
    EXPECT_EQ(FunctionsCaptionFor("Untitled"), "IFS [Untitled]");
}

}  // namespace
}  // namespace quillane
