#include "generators/triangle_fractal.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillane::testing {
namespace {

const double H = std::sqrt(3.0) / 2;

class TriangleFractalTest : public ::testing::Test {
  protected:
    void grid(int n) { DrawTriangles(tri, pic, n); }
    // The centroid of cell (row, pos).
    static void centre(int n, int row, int pos, double& x, double& y) {
        const double s = 1.0 / n;
        x = (row + pos + 1) * s / 2;
        y = (row + (pos % 2 == 0 ? 1.0 / 3 : 2.0 / 3)) * s * H;
    }
    bool click(int row, int pos) {
        double x = 0, y = 0;
        centre(tri.n, row, pos, x, y);
        return ClickTriangle(tri, pic, x, y);
    }
    TriangleFractal tri;
    RasterSurface pic{400, 400};
};

TEST_F(TriangleFractalTest, EveryCellIsFoundAtItsCentre) {
    for (int n = 2; n <= 10; ++n) {
        grid(n);
        for (int row = 0; row < n; ++row)
            for (int pos = 0; pos <= 2 * (n - row) - 2; ++pos) {
                double x = 0, y = 0;
                centre(n, row, pos, x, y);
                const TriangleCell cell = TriangleAt(tri, x, y);
                EXPECT_EQ(cell.row, row) << n << " " << row << " " << pos;
                EXPECT_EQ(cell.pos, pos) << n << " " << row << " " << pos;
            }
    }
}

TEST_F(TriangleFractalTest, PointsOutsideFindNoCell) {
    grid(3);
    EXPECT_EQ(TriangleAt(tri, 0.5, 0).row, -1);
    EXPECT_EQ(TriangleAt(tri, 0.1, 0.5).row, -1);
    EXPECT_EQ(TriangleAt(tri, 0.9, 0.5).row, -1);
    EXPECT_EQ(TriangleAt(tri, 1.0, 0.01).row, -1);
    EXPECT_EQ(TriangleAt(tri, 0.0, 0.01).row, -1);
    EXPECT_FALSE(ClickTriangle(tri, pic, 0.1, 0.5));
}

TEST_F(TriangleFractalTest, AClickRemovesAndASecondRestores) {
    grid(2);
    double x = 0, y = 0;
    centre(2, 0, 1, x, y);
    EXPECT_EQ(pic.point(x, y), TriangleRed);
    ASSERT_TRUE(click(0, 1));
    EXPECT_TRUE(tri.TriangleOff[1]);
    EXPECT_EQ(tri.TriangleCount, 3);
    EXPECT_EQ(pic.point(x, y), White);
    double x0 = 0, y0 = 0;
    centre(2, 0, 0, x0, y0);
    EXPECT_EQ(pic.point(x0, y0), TriangleRed);  // the fill stopped at the grid lines
    ASSERT_TRUE(click(0, 1));
    EXPECT_FALSE(tri.TriangleOff[1]);
    EXPECT_EQ(tri.TriangleCount, 4);
    EXPECT_EQ(pic.point(x, y), TriangleRed);
}

TEST_F(TriangleFractalTest, AClickOnAGridLineChangesNothing) {
    grid(2);
    // The middle line at height h / 2 is black in the picture.
    const double y = H / 2;
    ASSERT_EQ(pic.point(0.5, y), Black);
    const TriangleFractal before = tri;
    EXPECT_FALSE(ClickTriangle(tri, pic, 0.5, y));
    EXPECT_EQ(tri.TriangleCount, before.TriangleCount);
    EXPECT_EQ(tri.TriangleOff, before.TriangleOff);
}

TEST_F(TriangleFractalTest, TheMiddleRemovedGivesTheSierpinskiTriangle) {
    grid(2);
    click(0, 1);
    const IFSEntry ifs = TriangleMaps(tri);
    ASSERT_EQ(ifs.nMaps, 3);
    const float e[] = {0, 0.5f, 0.25f};
    const float f[] = {0, 0, static_cast<float>(H / 2)};
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_FLOAT_EQ(ifs.a[i], 0.5f);
        EXPECT_FLOAT_EQ(ifs.d[i], 0.5f);
        EXPECT_EQ(ifs.b[i], 0);
        EXPECT_EQ(ifs.c[i], 0);
        EXPECT_FLOAT_EQ(ifs.e[i], e[i]) << i;
        EXPECT_FLOAT_EQ(ifs.f[i], f[i]) << i;
        EXPECT_EQ(ifs.p[i], 0.333333f);
    }
}

TEST_F(TriangleFractalTest, InvertedCellsTurnTheMapOver) {
    grid(3);
    const IFSEntry ifs = TriangleMaps(tri);
    ASSERT_EQ(ifs.nMaps, 9);
    // Row 0, pos 1: the first inverted cell, its map's fixed corner at its top left.
    EXPECT_FLOAT_EQ(ifs.a[1], -1.0f / 3);
    EXPECT_FLOAT_EQ(ifs.d[1], -1.0f / 3);
    EXPECT_FLOAT_EQ(ifs.e[1], static_cast<float>(1.0 / 3 + 1.0 / 6));
    EXPECT_FLOAT_EQ(ifs.f[1], static_cast<float>(H / 3));
    EXPECT_EQ(ifs.p[8], 0.111111f);
}

TEST_F(TriangleFractalTest, AllRemovedGivesNoMaps) {
    grid(2);
    for (int pos = 0; pos < 3; ++pos) click(0, pos);
    click(1, 0);
    EXPECT_EQ(tri.TriangleCount, 0);
    EXPECT_EQ(TriangleMaps(tri).nMaps, 0);
}

}  // namespace
}  // namespace quillane::testing
