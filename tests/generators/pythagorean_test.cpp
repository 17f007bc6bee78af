#include "generators/pythagorean.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillane::testing {
namespace {

TEST(Pythagorean, OneAndEightyNineAreTheExtremesAccepted) {
    EXPECT_TRUE(PythAngleAccepted(1));
    EXPECT_TRUE(PythAngleAccepted(89));
    EXPECT_FALSE(PythAngleAccepted(0.99f));
    EXPECT_FALSE(PythAngleAccepted(89.01f));
    EXPECT_FALSE(PythAngleAccepted(0));
    EXPECT_FALSE(PythAngleAccepted(90));
    EXPECT_TRUE(PythAngleAccepted(45.5f));
}

TEST(Pythagorean, AtFortyFiveTheTwoChildrenAreEqualHalves) {
    const IFSEntry t = PythagoreanIFS(45, "45");
    ASSERT_EQ(t.nMaps, 3);
    EXPECT_NEAR(t.a[0], 0.5, 1e-7);
    EXPECT_NEAR(t.a[1], 0.5, 1e-7);
    EXPECT_NEAR(t.b[0], -0.5, 1e-7);
    EXPECT_NEAR(t.c[0], 0.5, 1e-7);
    EXPECT_NEAR(t.b[1], 0.5, 1e-7);
    EXPECT_NEAR(t.c[1], -0.5, 1e-7);
    EXPECT_EQ(t.e[0], 0);
    EXPECT_EQ(t.f[0], 1);
    EXPECT_NEAR(t.e[1], 0.5, 1e-7);
    EXPECT_NEAR(t.f[1], 1.5, 1e-7);
    EXPECT_NEAR(t.p[0], 0.25, 1e-7);
    EXPECT_NEAR(t.p[1], 0.25, 1e-7);
    EXPECT_EQ(t.p[2], 0.5f);
    // Equal children: both scale by cos 45 = sin 45.
    EXPECT_NEAR(std::hypot(t.a[0], t.c[0]), std::hypot(t.a[1], t.c[1]), 1e-7);
    EXPECT_TRUE(CheckPythTree(t));
}

TEST(Pythagorean, MapsCarryTheUnitSquareOntoTheLegSquares) {
    const float angle = 30;
    const IFSEntry t = PythagoreanIFS(angle, "30");
    const double th = angle * 0.017453292522222223;
    // Map 1 sends (1, 0) to the top of the left leg: (cos^2, 1 + sin cos).
    EXPECT_NEAR(t.a[0] * 1 + t.e[0], std::cos(th) * std::cos(th), 1e-6);
    EXPECT_NEAR(t.c[0] * 1 + t.f[0], 1 + std::sin(th) * std::cos(th), 1e-6);
    // Map 2 sends (0, 0) to that same tip and (1, 0) to (1, 1).
    EXPECT_NEAR(t.a[1] + t.e[1], 1, 1e-6);
    EXPECT_NEAR(t.c[1] + t.f[1], 1, 1e-6);
    EXPECT_TRUE(CheckPythTree(t));
    EXPECT_EQ(t.nComments, 2);
    EXPECT_EQ(t.Comment[1], "; Pythagorean Tree");
    EXPECT_EQ(t.Comment[2], "; Angle: 30 degrees");
    EXPECT_EQ(t.Name, "Pythagorean Tree (30)");
    EXPECT_EQ(PythagoreanIFS(45.5f, "45.5").Name, "Pythagorean Tree (45.5)");
}

TEST(Pythagorean, CheckFailsForOtherIFS) {
    IFSEntry t = PythagoreanIFS(40, "40");
    IFSEntry noTrunk = t;
    noTrunk.e[2] = 0.1f;
    EXPECT_FALSE(CheckPythTree(noTrunk));
    IFSEntry moved = t;
    moved.f[1] += 0.01f;
    EXPECT_FALSE(CheckPythTree(moved));
    IFSEntry two = t;
    two.nMaps = 2;
    EXPECT_FALSE(CheckPythTree(two));
}

TEST(Pythagorean, BoxCornersRunCounterClockwiseFromTheBase) {
    const PythBox b = PythBoxCorners(1, 2, 2, 3.141592654 / 2);
    EXPECT_NEAR(b.x[1], -1, 1e-8);
    EXPECT_NEAR(b.y[1], 2, 1e-8);
    EXPECT_NEAR(b.x[2], -1, 1e-8);
    EXPECT_NEAR(b.y[2], 4, 1e-8);
    EXPECT_NEAR(b.x[3], 1, 1e-8);
    EXPECT_NEAR(b.y[3], 4, 1e-8);
}

TEST(Pythagorean, DepthLimitIsWhereTheBiggerChildFallsUnderAPixel) {
    const double phi = 45 * 0.017453292522222223;
    // ln 0.001 / ln cos 45 = 19.93.
    EXPECT_EQ(PythTreeDepthLimit(phi, 0.001), 19);
    EXPECT_EQ(PythTreeDepthLimit(30 * 0.017453292522222223, 0.001),
              static_cast<int>(std::floor(std::log(0.001) / std::log(std::cos(30 * 0.017453292522222223)))));
}

TEST(Pythagorean, FilledBoxesPaintTheSquareAndTheChildrenTheirColours) {
    const IFSEntry t = PythagoreanIFS(45, "45");
    RasterSurface pic(200, 200, White);
    pic.setScale(-1, 2.5, 2, -0.5);
    BoxPainter paint;
    paint.picfractal = &pic;
    paint.filled = true;
    const Color colours[3] = {RGB(255, 0, 0), RGB(0, 0, 255), RGB(0, 255, 0)};
    paint.colourOf = [&colours](int, int c) { return colours[c]; };
    int count = 0;
    paint.step = [&count] { return ++count > 0; };
    EXPECT_TRUE(PythTreeBoxFilled(PythPhi(t), paint, 1, 0, 0, 1, 0, 2));
    EXPECT_EQ(count, 3);
    EXPECT_EQ(pic.point(0.5, 0.5) & 0xFFFFFF, colours[2]);
    // The left child stands on (0, 1)-(0.5, 1.5); its middle is at (0, 1.5).
    EXPECT_EQ(pic.point(0, 1.5) & 0xFFFFFF, colours[0]);
    EXPECT_EQ(pic.point(1, 1.5) & 0xFFFFFF, colours[1]);
    // Outlines leave the inside empty.
    RasterSurface outline(200, 200, White);
    outline.setScale(-1, 2.5, 2, -0.5);
    paint.picfractal = &outline;
    paint.filled = false;
    PythTreeBoxFilled(PythPhi(t), paint, 0, 0, 0, 1, 0, 2);
    EXPECT_EQ(outline.point(0.5, 0.5) & 0xFFFFFF, White);
    EXPECT_EQ(outline.point(0.5, 0) & 0xFFFFFF, colours[2]);
}

}  // namespace
}  // namespace quillane::testing
