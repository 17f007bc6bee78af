#include "generators/tiling.h"

#include <gtest/gtest.h>

namespace quillane::testing {
namespace {

TilingMatrix matrix(int m11, int m12, int m21, int m22) {
    TilingMatrix M;
    M.m11 = m11;
    M.m12 = m12;
    M.m21 = m21;
    M.m22 = m22;
    return M;
}

// The lattice of M drawn on a 400 pixel square fitted as the first Draw Lattice fits it.
class TilingLatticeTest : public ::testing::Test {
  protected:
    void draw(const TilingMatrix& m) {
        M = m;
        if (!lat.LatticeDrawn) {
            lat.BaseRadius = LatticeBaseRadius(M);
            RestoreLatticeView(lat);
        }
        PaintLattice(pic, lat, M, B);
        lat.LatticeDrawn = true;
    }
    // A click right on the lattice point (u, v).
    bool click(int u, int v) {
        const double x = u * static_cast<double>(B.b11) + v * static_cast<double>(B.b12);
        const double y = u * static_cast<double>(B.b21) + v * static_cast<double>(B.b22);
        return PickResidue(lat, M, B, x, y, pic.pixelsToWorldX(3)).has_value();
    }
    std::vector<std::pair<int, int>> residues(std::initializer_list<std::pair<int, int>> l) { return l; }
    TilingMatrix M;
    TilingBasis B;
    TilingLattice lat;
    RasterSurface pic{400, 400};
};

TEST(TilingMatrixText, ValRoundsEachBoxToAnIntegerHalfToEven) {
    const TilingMatrix M = ReadTilingMatrix({"2.5", "-1.5", "3abc", "x"});
    EXPECT_EQ(M.m11, 2);
    EXPECT_EQ(M.m12, -2);
    EXPECT_EQ(M.m21, 3);
    EXPECT_EQ(M.m22, 0);
    EXPECT_EQ(ReadTilingMatrix({"1e30", "-1e30", "0", "0"}).m11, 32767);
}

TEST(TilingEigenvalues, ComplexPairShowsTheModulusTwice) {
    const TilingEigenLabels l = EigenLabels(matrix(1, -1, 1, 1));
    EXPECT_EQ(l.lblDet, "| Det | = 2");
    EXPECT_EQ(l.lblTrace, "| Trace | = 2");
    EXPECT_EQ(l.lblEigType, "Complex");
    EXPECT_EQ(l.lbleig1, "1.414");
    EXPECT_EQ(l.lbleig2, "1.414");
}

TEST(TilingEigenvalues, RealPairShowsBothModuli) {
    const TilingEigenLabels l = EigenLabels(matrix(-3, 0, 0, 2));
    EXPECT_EQ(l.lblDet, "| Det | = 6");
    EXPECT_EQ(l.lblTrace, "| Trace | = 1");
    EXPECT_EQ(l.lblEigType, "Real");
    EXPECT_EQ(l.lbleig1, "2");
    EXPECT_EQ(l.lbleig2, "3");
    // Rounded to three places, half to even: (1 + sqrt 5) / 2 = 1.6180...
    EXPECT_EQ(EigenLabels(matrix(1, 1, 1, 0)).lbleig1, "1.618");
    EXPECT_EQ(EigenLabels(matrix(1, 1, 1, 0)).lbleig2, "0.618");
}

TEST(TilingView, BaseRadiusFitsTheCellAndStopsAtTen) {
    // S(0, 2) = Round(2.45) * 1.2 = 2.4 is the largest for the twin dragon's M.
    EXPECT_FLOAT_EQ(LatticeBaseRadius(matrix(1, -1, 1, 1)), 2.4f);
    EXPECT_FLOAT_EQ(LatticeBaseRadius(matrix(20, 0, 0, 1)), 10.0f);
}

TEST_F(TilingLatticeTest, TheViewIsFittedOnlyAtTheFirstDrawing) {
    draw(matrix(1, -1, 1, 1));
    EXPECT_FLOAT_EQ(lat.vxmax, 2.4f);
    draw(matrix(4, 0, 0, 5));
    EXPECT_FLOAT_EQ(lat.vxmax, 2.4f);
    EXPECT_FLOAT_EQ(lat.vymin, -2.4f);
}

TEST_F(TilingLatticeTest, PointsAreRedWhenMarkedAndTheBaseCellIsRed) {
    draw(matrix(2, 0, 0, 2));
    ASSERT_TRUE(click(1, 1));
    PaintLattice(pic, lat, M, B);
    EXPECT_EQ(pic.point(1, 1), RGB(255, 0, 0));
    EXPECT_EQ(pic.point(-1, 1), Black);
    // The axis is blue between lattice points, the base cell's side red.
    EXPECT_EQ(pic.point(0.5, 0), RGB(255, 0, 0));
    EXPECT_EQ(pic.point(-0.5, 0), RGB(0, 0, 255));
}

TEST_F(TilingLatticeTest, APointCongruentToAChosenResidueIsRefusedSilently) {
    draw(matrix(2, 0, 0, 2));
    ASSERT_TRUE(click(0, 0));
    // (2, 0) - (0, 0) = M (1, 0): the same class.
    EXPECT_FALSE(click(2, 0));
    EXPECT_FALSE(click(-2, 4));
    EXPECT_FALSE(lat.marked(2, 0));
    EXPECT_EQ(lat.nResidues(), 1);
    EXPECT_TRUE(CongruentToChosen(lat, M, 2, 2));
    EXPECT_FALSE(CongruentToChosen(lat, M, 1, 2));
    EXPECT_TRUE(click(1, 2));
}

TEST_F(TilingLatticeTest, ZeroPickedLastStandsFirstAndTheFormerFirstGoesLast) {
    draw(matrix(3, 0, 0, 1));
    ASSERT_TRUE(click(1, 0));
    ASSERT_TRUE(click(2, 0));
    ASSERT_TRUE(click(0, 0));
    EXPECT_EQ(lat.ResidueVectors, residues({{0, 0}, {2, 0}, {1, 0}}));
    const IFSEntry ifs = TilingMaps(M, B, lat.ResidueVectors);
    EXPECT_EQ(ifs.e[0], 0);
    EXPECT_EQ(ifs.f[0], 0);
    EXPECT_EQ(ifs.e[2], 1);
}

TEST_F(TilingLatticeTest, RemovingAResidueMovesTheLaterOnesDown) {
    draw(matrix(3, 0, 0, 1));
    click(0, 0);
    click(1, 0);
    click(2, 0);
    ASSERT_TRUE(click(1, 0));
    EXPECT_EQ(lat.ResidueVectors, residues({{0, 0}, {2, 0}}));
    EXPECT_FALSE(lat.marked(1, 0));
}

TEST_F(TilingLatticeTest, AClickAwayFromAPointDoesNothing) {
    draw(matrix(2, 0, 0, 2));
    const double r = pic.pixelsToWorldX(3);
    EXPECT_FALSE(PickResidue(lat, M, B, 0.5, 0.5, r).has_value());
    EXPECT_TRUE(PickResidue(lat, M, B, 1 + r, 1 + r * 0.9, r).has_value());
}

TEST_F(TilingLatticeTest, NoMoreThanDetResiduesButRemovingAlwaysWorks) {
    draw(matrix(2, 0, 0, 2));
    for (auto [u, v] : residues({{0, 0}, {1, 0}, {0, 1}, {1, 1}})) ASSERT_TRUE(click(u, v));
    // Changing M keeps the marks, now more than |Det(M)| = 2.
    M = matrix(2, 0, 0, 1);
    draw(M);
    EXPECT_EQ(lat.nResidues(), 4);
    EXPECT_FALSE(click(-1, -1));
    EXPECT_TRUE(click(1, 1));
    EXPECT_EQ(lat.nResidues(), 3);
    EXPECT_FALSE(click(1, 1));
}

TEST_F(TilingLatticeTest, PointsBeyondTwentyCannotBePicked) {
    draw(matrix(20, 0, 0, 1));
    lat.vxmin = 10;
    lat.vxmax = 20;
    PaintLattice(pic, lat, M, B);
    EXPECT_FALSE(PickResidue(lat, M, B, 21, 0, pic.pixelsToWorldX(3)).has_value());
    EXPECT_TRUE(PickResidue(lat, M, B, 20, 0, pic.pixelsToWorldX(3)).has_value());
    // The view itself stops at 20.
    EXPECT_FALSE(LatticeViewKey(lat, TilingKeyRight, true));
    EXPECT_FLOAT_EQ(lat.vxmax, 20);
}

TEST_F(TilingLatticeTest, AResidueOutsideTheLatticeIsRefusedEvenUnderASmallBasis) {
    B = {0.1f, 0, 0, 0.1f};
    draw(matrix(2, 0, 0, 2));
    EXPECT_FALSE(PickResidue(lat, M, B, 2.5, 0, 1).has_value());
}

TEST_F(TilingLatticeTest, NonIntegerBasisKeepsIntegerResiduesAndTransformsTranslations) {
    B = {0.5f, 0.25f, 0, 1.5f};
    draw(matrix(2, 0, 0, 1));
    ASSERT_TRUE(click(0, 0));
    ASSERT_TRUE(click(1, 1));
    EXPECT_EQ(lat.ResidueVectors, residues({{0, 0}, {1, 1}}));
    const IFSEntry ifs = TilingMaps(M, B, lat.ResidueVectors);
    EXPECT_FLOAT_EQ(ifs.e[1], 0.75f);
    EXPECT_FLOAT_EQ(ifs.f[1], 1.5f);
    // T = B M^-1 B^-1 has M^-1's eigenvalues 1/2 and 1.
    EXPECT_NEAR(ifs.a[0] + ifs.d[0], 1.5, 1e-6);
    EXPECT_NEAR(ifs.a[0] * ifs.d[0] - ifs.b[0] * ifs.c[0], 0.5, 1e-6);
}

TEST(TilingMapsOfM, TwinDragonFromItsTwoResidues) {
    const IFSEntry ifs = TilingMaps(matrix(1, -1, 1, 1), TilingBasis{}, {{0, 0}, {1, 0}});
    ASSERT_EQ(ifs.nMaps, 2);
    for (int k = 0; k < 2; ++k) {
        EXPECT_FLOAT_EQ(ifs.a[k], 0.5f);
        EXPECT_FLOAT_EQ(ifs.b[k], 0.5f);
        EXPECT_FLOAT_EQ(ifs.c[k], -0.5f);
        EXPECT_FLOAT_EQ(ifs.d[k], 0.5f);
        EXPECT_FLOAT_EQ(ifs.p[k], 0.5f);
    }
    EXPECT_EQ(ifs.e[0], 0);
    EXPECT_EQ(ifs.f[0], 0);
    EXPECT_EQ(ifs.e[1], 1);
    EXPECT_EQ(ifs.f[1], 0);
}

TEST_F(TilingLatticeTest, ViewKeysZoomShiftAndComeHome) {
    draw(matrix(1, -1, 1, 1));
    ASSERT_TRUE(LatticeViewKey(lat, TilingKeyPageUp, false));
    EXPECT_FLOAT_EQ(lat.vxmin, -1.4f);
    EXPECT_FLOAT_EQ(lat.vymax, 1.4f);
    // Without Ctrl a held key acts once until it is released.
    EXPECT_FALSE(LatticeViewKey(lat, TilingKeyPageUp, false));
    lat.KeyLatch = false;
    ASSERT_TRUE(LatticeViewKey(lat, TilingKeyPageUp, false));
    EXPECT_NEAR(lat.vxmin, -0.4, 1e-6);
    lat.KeyLatch = false;
    // A further step would turn the bounds over.
    EXPECT_FALSE(LatticeViewKey(lat, TilingKeyPageUp, false));
    EXPECT_NEAR(lat.vxmax, 0.4, 1e-6);
    // With Ctrl the step is a quarter and a held key repeats.
    ASSERT_TRUE(LatticeViewKey(lat, TilingKeyLeft, true));
    ASSERT_TRUE(LatticeViewKey(lat, TilingKeyLeft, true));
    EXPECT_NEAR(lat.vxmin, -0.9, 1e-6);
    ASSERT_TRUE(LatticeViewKey(lat, TilingKeyUp, true));
    EXPECT_NEAR(lat.vymax, 0.65, 1e-6);
    ASSERT_TRUE(LatticeViewKey(lat, TilingKeyHome, true));
    EXPECT_FLOAT_EQ(lat.vxmin, -2.4f);
    EXPECT_FLOAT_EQ(lat.vymax, 2.4f);
}

TEST_F(TilingLatticeTest, ZoomOutStopsAtTwenty) {
    draw(matrix(20, 0, 0, 1));
    EXPECT_FLOAT_EQ(lat.vxmax, 10);
    for (int k = 0; k < 10; ++k) {
        lat.KeyLatch = false;
        ASSERT_TRUE(LatticeViewKey(lat, TilingKeyPageDown, false)) << k;
    }
    lat.KeyLatch = false;
    EXPECT_FALSE(LatticeViewKey(lat, TilingKeyPageDown, false));
    EXPECT_FLOAT_EQ(lat.vxmax, 20);
}

TEST_F(TilingLatticeTest, ClearingRemovesEveryMark) {
    draw(matrix(2, 0, 0, 2));
    click(0, 0);
    click(1, 0);
    ClearLattice(lat);
    EXPECT_EQ(lat.nResidues(), 0);
    EXPECT_FALSE(lat.marked(1, 0));
}

}  // namespace
}  // namespace quillane::testing
