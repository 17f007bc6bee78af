#include "generators/binary_tree.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillane::testing {
namespace {

TEST(BinaryTree, SelfContactingRatioAtNinetyIsTheClosedFormOneOverRootTwo) {
    const double c = std::cos(90 * 0.017453292);
    EXPECT_EQ(SelfContactingRatio(90), 1 / (std::sqrt(2 - 3 * c * c) - c));
    EXPECT_NEAR(SelfContactingRatio(90), 1 / std::sqrt(2.0), 1e-7);
    // The bisection would give a value off the closed form by its last step.
    double lo = 0.5, hi = 0.71;
    for (int k = 0; k < 20; ++k) {
        const double r = (hi + lo) / 2;
        (r * r >= 0.5 ? hi : lo) = r;
    }
    EXPECT_NE(SelfContactingRatio(90), (hi + lo) / 2);
}

TEST(BinaryTree, SelfContactingRatioAtOneThirtyFiveUsesTheLastForm) {
    const double t = 135 * 0.017453292;
    EXPECT_EQ(SelfContactingRatio(135), -1 / (2 * std::cos(t)));
    // The two closed forms meet at 135 degrees, yet differ in their last digits there.
    const double middle = 1 / (std::sqrt(2 - 3 * std::cos(t) * std::cos(t)) - std::cos(t));
    EXPECT_NE(SelfContactingRatio(135), middle);
}

TEST(BinaryTree, SelfContactingRatioBelowNinetyIsTheBisection) {
    const double r = SelfContactingRatio(60);
    EXPECT_GT(r, 0.5);
    EXPECT_LT(r, 0.71);
    // At 60 degrees N = 2; the bisection's end is where g crosses 1/2.
    const double t = 60 * 0.017453292;
    const auto g = [t](double x) {
        return x * x * (std::pow(x, 3) * std::cos(t) - x * x * std::cos(2 * t) - x * std::cos(t) + 1) /
               (x * x + 1 - 2 * x * std::cos(t));
    };
    EXPECT_NEAR(g(r), 0.5, 1e-5);
}

TEST(BinaryTree, DeterministicVariantHasTheIdentityTrunk) {
    const IFSEntry t = SymmetricBinaryTreeIFS(60, 0.5f, TreeMethod::Deterministic, "60", "0.5");
    ASSERT_EQ(t.nMaps, 3);
    const double q = 19.0 / 20 + 7.0 / 8 * 0.25 - 71.0 / 40 * 0.5;
    EXPECT_FLOAT_EQ(t.p[2], static_cast<float>(q));
    EXPECT_FLOAT_EQ(t.p[0], static_cast<float>((1 - q) / 2));
    EXPECT_EQ(t.a[2], 1);
    EXPECT_EQ(t.d[2], 1);
    EXPECT_EQ(t.e[2], 0);
    EXPECT_EQ(t.f[2], 0);
    EXPECT_FLOAT_EQ(t.a[0], static_cast<float>(0.5 * std::cos(60 * 0.017453292522222223)));
    EXPECT_FLOAT_EQ(t.b[0], -t.c[0]);
    EXPECT_FLOAT_EQ(t.b[1], t.c[0]);
    EXPECT_EQ(t.f[0], 1);
    EXPECT_EQ(t.f[1], 1);
    EXPECT_TRUE(CheckBinaryTree(t));
    EXPECT_EQ(t.nComments, 3);
    EXPECT_EQ(t.Comment[1], "; Symmetric Binary Tree");
    EXPECT_EQ(t.Comment[2], "; Branching angle: 60\xC2\xB0");
    EXPECT_EQ(t.Comment[3], "; Scaling ratio: 0.5");
    EXPECT_EQ(t.Name, "SBT(60\xC2\xB0, 0.5)");
}

TEST(BinaryTree, BranchTipsAreTwoMapsOfHalfWeight) {
    const IFSEntry t = SymmetricBinaryTreeIFS(45, 0.6f, TreeMethod::Tips, "45", ".6");
    ASSERT_EQ(t.nMaps, 2);
    EXPECT_EQ(t.p[0], 0.5f);
    EXPECT_EQ(t.p[1], 0.5f);
    EXPECT_EQ(t.Comment[1], "; Symmetric Binary Tree (branch tips)");
    EXPECT_EQ(t.Name, "SBT(45\xC2\xB0, 0.6) branch tips");
    EXPECT_FALSE(CheckBinaryTree(t));
}

TEST(BinaryTree, RandomVariantWithAShortTrunkScalesItByH) {
    const float h = TrunkHeight(0.5f, 60);
    ASSERT_LT(h, 1);
    const IFSEntry t = SymmetricBinaryTreeIFS(60, 0.5f, TreeMethod::Random, "60", "0.5");
    ASSERT_EQ(t.nMaps, 3);
    EXPECT_EQ(t.a[2], 0);
    EXPECT_EQ(t.d[2], h);
    EXPECT_EQ(t.f[2], 0);
    EXPECT_FLOAT_EQ(t.p[2], static_cast<float>(TrunkWeight(0.5f)));
}

TEST(BinaryTree, TrunkHeightOfExactlyOneTakesTheTwoMapTrunk) {
    // cos 120 = -1/2 and r = 1/2: h = (1 - 1/4) / (1 - 1/4) = 1.
    ASSERT_EQ(TrunkHeight(0.5f, 120), 1.0f);
    const IFSEntry t = SymmetricBinaryTreeIFS(120, 0.5f, TreeMethod::Random, "120", "0.5");
    ASSERT_EQ(t.nMaps, 4);
    EXPECT_EQ(t.d[2], 0.5f);
    EXPECT_EQ(t.f[2], 0);
    EXPECT_EQ(t.d[3], 0.5f);
    EXPECT_EQ(t.f[3], 0.5f);
    EXPECT_FLOAT_EQ(t.p[2], static_cast<float>(TrunkWeight(0.5f) / 2));
    EXPECT_FLOAT_EQ(t.p[3], t.p[2]);
}

TEST(BinaryTree, NonSymmetricTreeHasItsOwnSidesAndFiveComments) {
    NonSymTreeInput in{30, 0.7f, 50, 0.5f, "30", "0.7", "50", ".5"};
    const IFSEntry t = NonSymBinaryTreeIFS(in, TreeMethod::Deterministic);
    ASSERT_EQ(t.nMaps, 3);
    EXPECT_EQ(t.p[2], 0);
    EXPECT_EQ(t.p[0], 0.5f);
    EXPECT_FLOAT_EQ(t.a[0], static_cast<float>(0.7 * std::cos(30 * 0.017453292522222223)));
    EXPECT_FLOAT_EQ(t.c[1], static_cast<float>(-0.5 * std::sin(50 * 0.017453292522222223)));
    EXPECT_EQ(t.nComments, 5);
    EXPECT_EQ(t.Comment[1], "; Binary Tree");
    EXPECT_EQ(t.Comment[2], "; Left Branching angle: 30\xC2\xB0");
    EXPECT_EQ(t.Comment[3], "; Left Scaling ratio: 0.7");
    EXPECT_EQ(t.Comment[4], "; Right Branching angle: 50\xC2\xB0");
    EXPECT_EQ(t.Comment[5], "; Right Scaling ratio: .5");
    EXPECT_EQ(t.Name, "IFS [BT(Left:30\xC2\xB0,.7; Right:50\xC2\xB0,.5)]");
    EXPECT_TRUE(CheckNonSymBinaryTree(t));
    EXPECT_FALSE(CheckBinaryTree(t));
    const IFSEntry tips = NonSymBinaryTreeIFS(in, TreeMethod::Random);
    EXPECT_EQ(tips.nMaps, 2);
    EXPECT_EQ(tips.Comment[1], "; Binary Tree (branch tips)");
    EXPECT_EQ(tips.Name, "IFS [BT(Left:30\xC2\xB0,.7; Right:50\xC2\xB0,.5)] (branch tips)");
}

TEST(BinaryTree, CheckFailsOnceATranslationOrTheTrunkIsAltered) {
    IFSEntry t = SymmetricBinaryTreeIFS(60, 0.5f, TreeMethod::Deterministic, "60", "0.5");
    ASSERT_TRUE(CheckBinaryTree(t));
    IFSEntry moved = t;
    moved.e[0] = 0.1f;
    EXPECT_FALSE(CheckBinaryTree(moved));
    EXPECT_FALSE(CheckNonSymBinaryTree(moved));
    IFSEntry trunk = t;
    trunk.d[2] = 0.9f;
    EXPECT_FALSE(CheckBinaryTree(trunk));
    IFSEntry sheared = t;
    sheared.b[0] += 0.01f;
    sheared.b[1] -= 0.01f;
    EXPECT_FALSE(CheckBinaryTree(sheared));
}

TEST(BinaryTree, BranchesAreReadBackFromTheMaps) {
    const IFSEntry t = SymmetricBinaryTreeIFS(100, 0.6f, TreeMethod::Deterministic, "100", "0.6");
    const TreeBranches br = BranchesOf(t);
    EXPECT_NEAR(br.t1, 100 * 0.017453292522222223, 1e-6);
    EXPECT_NEAR(br.t2, -100 * 0.017453292522222223 + 2 * 3.141592654, 1e-6);
    EXPECT_NEAR(br.r1, 0.6, 1e-6);
    EXPECT_NEAR(br.r2, 0.6, 1e-6);
}

TEST(BinaryTree, DepthIsWhereTheLongerBranchFallsUnderAPixel) {
    TreeBranches br;
    br.r1 = 0.5;
    br.r2 = 0.25;
    EXPECT_EQ(BinaryTreeDepth(br, 1.0 / 1024, 1), 10);
    EXPECT_EQ(BinaryTreeDepth(br, 1.0 / 1000, 1), 9);
    br.r1 = 1.5;  // no tree shrinks with a ratio above 1
    EXPECT_EQ(BinaryTreeDepth(br, 1.0 / 1000, 1), 0);
}

TEST(BinaryTree, DrawingCountsEveryBranchAndStopsWhenAsked) {
    const TreeBranches br =
        BranchesOf(SymmetricBinaryTreeIFS(60, 0.5f, TreeMethod::Deterministic, "60", "0.5"));
    RasterSurface pic(100, 100, White);
    pic.setScale(-1, 2, 1, 0);
    int count = 0;
    TreePainter paint;
    paint.picfractal = &pic;
    paint.step = [&count] { return ++count < 1000; };
    EXPECT_TRUE(DrawBinaryTree(br, paint, 4, 0, 0, 1, 3.141592654 / 2, 2));
    EXPECT_EQ(count, 31);
    // The trunk is drawn: a pixel of the row in the middle of (0,0)-(0,1), next to x = 0.
    const int row = 75, column = 50;
    bool trunk = false;
    for (int dc = -1; dc <= 1; ++dc) trunk = trunk || (pic.pixel(column + dc, row) & 0xFFFFFF) == Black;
    EXPECT_TRUE(trunk);
    count = 0;
    paint.step = [&count] { return ++count < 5; };
    EXPECT_FALSE(DrawBinaryTree(br, paint, 10, 0, 0, 1, 3.141592654 / 2, 2));
    EXPECT_EQ(count, 5);
}

}  // namespace
}  // namespace quillane::testing
