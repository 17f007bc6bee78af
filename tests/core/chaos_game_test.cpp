#include "core/chaos_game.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane {
namespace {

// One function with the given steps, scale 0.5, the given angle and the fixed point (1, 2).
Workbench withRecipe(const std::string& steps, float angle) {
    Workbench wb;
    IFSEntry& ifs = wb.CurrentIFS;
    for (int k = 1; k <= 4; ++k)
        ifs.Step[k][0] = k <= static_cast<int>(steps.size()) ? steps.substr(k - 1, 1) : "";
    ifs.Scale[0] = 0.5f;
    ifs.Angle[0] = angle;
    ifs.FPx[0] = 1;
    ifs.FPy[0] = 2;
    ifs.HasChaosGame = False16;
    return wb;
}

void expectFixedPoint(const IFSEntry& ifs, int i) {
    EXPECT_NEAR(ifs.a[i] * ifs.FPx[i] + ifs.b[i] * ifs.FPy[i] + ifs.e[i], ifs.FPx[i], 1e-6);
    EXPECT_NEAR(ifs.c[i] * ifs.FPx[i] + ifs.d[i] * ifs.FPy[i] + ifs.f[i], ifs.FPy[i], 1e-6);
}

TEST(CGMatrix, ScaleThenRotateGivesTheScaledRotation) {
    Workbench wb = withRecipe("SR", 30);
    CGMatrix(wb, 0);
    const double t = 30 * Pi / 180;
    const IFSEntry& ifs = wb.CurrentIFS;
    EXPECT_EQ(ifs.a[0], static_cast<float>(std::cos(t) * 0.5));
    EXPECT_EQ(ifs.b[0], static_cast<float>(-std::sin(t) * 0.5));
    EXPECT_EQ(ifs.c[0], static_cast<float>(std::sin(t) * 0.5));
    EXPECT_EQ(ifs.d[0], static_cast<float>(std::cos(t) * 0.5));
    expectFixedPoint(ifs, 0);
    EXPECT_EQ(ifs.HasChaosGame, True16);
    EXPECT_EQ(ifs.p[0], 1.0f);
}

TEST(CGMatrix, RotateThenScaleIsTheSameUpToFloatRounding) {
    Workbench sr = withRecipe("SR", 30), rs = withRecipe("RS", 30);
    CGMatrix(sr, 0);
    CGMatrix(rs, 0);
    EXPECT_NEAR(rs.CurrentIFS.a[0], sr.CurrentIFS.a[0], 1e-7);
    EXPECT_NEAR(rs.CurrentIFS.b[0], sr.CurrentIFS.b[0], 1e-7);
    EXPECT_NEAR(rs.CurrentIFS.c[0], sr.CurrentIFS.c[0], 1e-7);
    EXPECT_NEAR(rs.CurrentIFS.d[0], sr.CurrentIFS.d[0], 1e-7);
    expectFixedPoint(rs.CurrentIFS, 0);
}

TEST(CGMatrix, AVerticalThenAHorizontalFlipIsAHalfTurn) {
    Workbench wb = withRecipe("VH", 0);
    CGMatrix(wb, 0);
    const IFSEntry& ifs = wb.CurrentIFS;
    EXPECT_EQ(ifs.a[0], -1.0f);
    EXPECT_EQ(ifs.b[0], 0.0f);
    EXPECT_EQ(ifs.c[0], 0.0f);
    EXPECT_EQ(ifs.d[0], -1.0f);
    EXPECT_EQ(ifs.e[0], 2.0f);
    EXPECT_EQ(ifs.f[0], 4.0f);
}

TEST(CGMatrix, WithAllStepsEmptyTheMatrixIsZeroAndOnlyFPxSurvives) {
    Workbench wb = withRecipe("", 0);
    wb.CurrentIFS.a[0] = wb.CurrentIFS.d[0] = 0.7f;
    CGMatrix(wb, 0);
    const IFSEntry& ifs = wb.CurrentIFS;
    EXPECT_EQ(ifs.a[0], 0.0f);
    EXPECT_EQ(ifs.b[0], 0.0f);
    EXPECT_EQ(ifs.c[0], 0.0f);
    EXPECT_EQ(ifs.d[0], 0.0f);
    EXPECT_EQ(ifs.e[0], 1.0f);
    EXPECT_EQ(ifs.f[0], 0.0f);
}

TEST(CGMatrix, ABlankStepAheadOfALetterStartsFromTheOldCoefficients) {
    Workbench wb = withRecipe("", 0);
    wb.CurrentIFS.Step[2][0] = "S";
    wb.CurrentIFS.a[0] = wb.CurrentIFS.d[0] = 0.8f;
    CGMatrix(wb, 0);
    EXPECT_EQ(wb.CurrentIFS.a[0], 0.4f);
    EXPECT_EQ(wb.CurrentIFS.d[0], 0.4f);
}

// Maps x' = area * x, y' = y: the area factor of map i is areas[i].
Workbench withAreas(const std::vector<float>& areas) {
    Workbench wb;
    wb.CurrentIFS.nMaps = static_cast<int16_t>(areas.size());
    for (size_t i = 0; i < areas.size(); ++i) {
        wb.CurrentIFS.a[i] = areas[i];
        wb.CurrentIFS.b[i] = wb.CurrentIFS.c[i] = 0;
        wb.CurrentIFS.d[i] = 1;
    }
    return wb;
}

TEST(PropProb, ThreeMapsWithoutAreaGetOneThirdEach) {
    Workbench wb = withAreas({0, 0, 0});
    PropProb(wb);
    for (int i = 0; i < 3; ++i) EXPECT_NEAR(wb.CurrentIFS.p[i], 1.0 / 3.0, 1e-7) << i;
    EXPECT_EQ(wb.lblProbSum, "1.000");
}

TEST(PropProb, AMapBelowHalfAThousandthOfTheTotalGetsOneHundredthBeforeTheDivision) {
    Workbench wb = withAreas({1, 1, 0.0001f});
    PropProb(wb);
    const double half = Round(1.0 / 2.0001, 6);
    const double sum = 2 * half + 0.01;
    EXPECT_NEAR(wb.CurrentIFS.p[0], half / sum, 1e-7);
    EXPECT_NEAR(wb.CurrentIFS.p[2], 0.01 / sum, 1e-7);
}

TEST(PropProb, AMapAtSixTenThousandthsKeepsItsShare) {
    Workbench wb = withAreas({0.9994f, 0.0006f});
    PropProb(wb);
    EXPECT_NEAR(wb.CurrentIFS.p[1], 0.0006, 1e-7);
    EXPECT_NEAR(wb.CurrentIFS.p[0], 0.9994, 1e-7);
}

}  // namespace
}  // namespace quillane
