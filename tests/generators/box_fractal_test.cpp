#include "generators/box_fractal.h"

#include <gtest/gtest.h>

namespace quillane::testing {
namespace {

class BoxFractalTest : public ::testing::Test {
  protected:
    void grid(int n) { DrawBoxes2(box, pic, n); }
    // A click in the middle of the box at (row, col), rows from the top.
    bool click(int row, int col) {
        const double S = box.BoxSize;
        return ClickBox(box, pic, (col + 0.5) * S, (row + 0.5) * S);
    }
    BoxFractal box;
    RasterSurface pic{300, 300};
};

TEST_F(BoxFractalTest, BoxSizesFillTheArea) {
    const int expected[] = {1500, 1000, 750, 600, 496, 428, 375, 333, 300};
    for (int n = 2; n <= 10; ++n) {
        EXPECT_EQ(GetBoxSize(n), expected[n - 2]) << n;
        EXPECT_GE(n * GetBoxSize(n), 2970) << n;
        EXPECT_LE(n * GetBoxSize(n), 3000) << n;
    }
}

TEST_F(BoxFractalTest, TheDrawingKeepsEveryBoxAndSetsTheFlagBelowTheGrid) {
    grid(4);
    EXPECT_EQ(box.BoxCount, 16);
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col < 4; ++col) EXPECT_TRUE(box.BoxOn[static_cast<size_t>(row + 10 * col)]);
    EXPECT_TRUE(box.BoxOn[4]);  // row 4, column 0: the inclusive bound
    EXPECT_EQ(pic.point(375, 375), BoxRed);
}

TEST_F(BoxFractalTest, AClickRemovesAndASecondRestores) {
    grid(3);
    ASSERT_TRUE(click(1, 2));
    EXPECT_EQ(box.BoxCount, 8);
    EXPECT_FALSE(box.BoxOn[1 + 20]);
    EXPECT_EQ(pic.point(2500, 1500), White);
    ASSERT_TRUE(click(1, 2));
    EXPECT_EQ(box.BoxCount, 9);
    EXPECT_EQ(pic.point(2500, 1500), BoxRed);
}

TEST_F(BoxFractalTest, AClickOutsideTheGridChangesNothing) {
    grid(7);  // 7 x 428 = 2996: a strip of the area holds no box
    EXPECT_FALSE(ClickBox(box, pic, 100, 2998));
    EXPECT_FALSE(ClickBox(box, pic, -5, 100));
    EXPECT_EQ(box.BoxCount, 49);
}

TEST_F(BoxFractalTest, RemovingTheUpperRightOfFourGivesTheRightAngledTriangle) {
    grid(2);
    click(0, 1);
    const IFSEntry ifs = BoxMaps(box);
    ASSERT_EQ(ifs.nMaps, 3);
    // Rows from the top: (0, 0) upper left, then the bottom row.
    const float e[] = {0, 0, 0.5f}, f[] = {0.5f, 0, 0};
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_FLOAT_EQ(ifs.a[i], 0.5f);
        EXPECT_FLOAT_EQ(ifs.d[i], 0.5f);
        EXPECT_EQ(ifs.b[i], 0);
        EXPECT_EQ(ifs.c[i], 0);
        EXPECT_FLOAT_EQ(ifs.e[i], e[i]) << i;
        EXPECT_FLOAT_EQ(ifs.f[i], f[i]) << i;
        EXPECT_FLOAT_EQ(ifs.p[i], 0.333333f);
    }
    // The flag below the grid writes one more map behind the last in use.
    EXPECT_FLOAT_EQ(ifs.a[3], 0.5f);
    EXPECT_FLOAT_EQ(ifs.e[3], 0);
    EXPECT_FLOAT_EQ(ifs.f[3], -0.5f);
    EXPECT_FLOAT_EQ(ifs.p[3], 0.333333f);
}

TEST_F(BoxFractalTest, TheCentreRemovedGivesTheCarpet) {
    grid(3);
    click(1, 1);
    const IFSEntry ifs = BoxMaps(box);
    ASSERT_EQ(ifs.nMaps, 8);
    const float third = 1.0f / 3;
    const float e[] = {0, third, 2 * third, 0, 2 * third, 0, third, 2 * third};
    const float f[] = {2 * third, 2 * third, 2 * third, third, third, 0, 0, 0};
    for (size_t i = 0; i < 8; ++i) {
        EXPECT_FLOAT_EQ(ifs.a[i], third);
        EXPECT_FLOAT_EQ(ifs.d[i], third);
        EXPECT_NEAR(ifs.e[i], e[i], 1e-6) << i;
        EXPECT_NEAR(ifs.f[i], f[i], 1e-6) << i;
        EXPECT_EQ(ifs.p[i], 0.125f) << i;
    }
    EXPECT_NEAR(ifs.f[8], -third, 1e-6);
    EXPECT_EQ(ifs.p[8], 0.125f);
}

TEST_F(BoxFractalTest, NineBoxesKeepTheirRoundedProbability) {
    grid(3);
    const IFSEntry ifs = BoxMaps(box);
    ASSERT_EQ(ifs.nMaps, 9);
    float sum = 0;
    for (size_t i = 0; i < 9; ++i) {
        EXPECT_EQ(ifs.p[i], 0.111111f) << i;
        sum += ifs.p[i];
    }
    EXPECT_NEAR(sum, 0.999999f, 1e-6);
}

TEST_F(BoxFractalTest, OnTheLargestGridTheExtraStepReadsTheFlagOfTheSecondColumn) {
    grid(10);
    EXPECT_EQ(BoxMaps(box).a[100], 0.1f);
    click(0, 1);  // flag 10: the same one the step k = 100 reads
    const IFSEntry ifs = BoxMaps(box);
    EXPECT_EQ(ifs.nMaps, 99);
    EXPECT_EQ(ifs.a[99], 0);
}

}  // namespace
}  // namespace quillane::testing
