#include "generators/complex_base.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <utility>

namespace quillane::testing {
namespace {

TEST(ComplexBaseMaps, HalfPlusHalfIGivesTheTwinDragonsRelative) {
    const auto maps = ComplexBaseMaps(ComplexBasePoint(false, 0.5f, 0.5f));
    for (const IFSFunction& m : maps) {
        EXPECT_FLOAT_EQ(m.a, 0.5f);
        EXPECT_FLOAT_EQ(m.d, 0.5f);
        EXPECT_FLOAT_EQ(m.b, -0.5f);
        EXPECT_FLOAT_EQ(m.c, 0.5f);
        EXPECT_FLOAT_EQ(m.p, 0.5f);
    }
    EXPECT_EQ(maps[0].e, 0.0f);
    EXPECT_EQ(maps[0].f, 0.0f);
    EXPECT_FLOAT_EQ(maps[1].e, 0.5f);
    EXPECT_FLOAT_EQ(maps[1].f, 0.5f);
}

TEST(ComplexBaseMaps, MinusHalfMinusHalfIGivesTheTwinDragon) {
    const auto maps = ComplexBaseMaps(ComplexBasePoint(false, -0.5f, -0.5f));
    EXPECT_FLOAT_EQ(maps[0].a, -0.5f);
    EXPECT_FLOAT_EQ(maps[0].b, 0.5f);
    EXPECT_FLOAT_EQ(maps[0].c, -0.5f);
    EXPECT_FLOAT_EQ(maps[0].d, -0.5f);
    EXPECT_FLOAT_EQ(maps[1].e, -0.5f);
    EXPECT_FLOAT_EQ(maps[1].f, -0.5f);
    // Each map halves areas: two copies fill the set once, as a tile.
    EXPECT_FLOAT_EQ(maps[0].a * maps[0].d - maps[0].b * maps[0].c, 0.5f);
}

TEST(ComplexBaseMaps, ANegativeRadiusGivesTheOppositePoint) {
    const float A = static_cast<float>(2 * 3.14159265358979 / 5);
    const ComplexPoint p = ComplexBasePoint(true, -0.697f, A);
    EXPECT_FLOAT_EQ(p.u, -0.697f * std::cos(A));
    EXPECT_FLOAT_EQ(p.v, -0.697f * std::sin(A));
    EXPECT_LT(p.u, 0);
    EXPECT_LT(p.v, 0);
}

TEST(ComplexBaseMaps, AZeroBaseCollapsesBothMapsToPoints) {
    const auto maps = ComplexBaseMaps(ComplexBasePoint(false, 0, 0));
    for (const IFSFunction& m : maps) {
        EXPECT_EQ(m.a, 0);
        EXPECT_EQ(m.b, 0);
        EXPECT_EQ(m.c, 0);
        EXPECT_EQ(m.d, 0);
        EXPECT_EQ(m.e, 0);
        EXPECT_EQ(m.f, 0);
    }
}

TEST(ComplexPowers, AZeroBaseStillHasTheFirstPowerOne) {
    const ComplexPowers p = ComputeComplexPowers(false, 0, 0);
    EXPECT_EQ(p.ComplexPowersX[0], 1.0);
    EXPECT_EQ(p.ComplexPowersY[0], 0.0);
    for (int n = 1; n < ComplexPowerCount; ++n) {
        EXPECT_EQ(p.ComplexPowersX[static_cast<size_t>(n)], 0.0) << n;
        EXPECT_EQ(p.ComplexPowersY[static_cast<size_t>(n)], 0.0) << n;
    }
}

TEST(ComplexPowers, ComeFromModulusAndAngleInEveryQuadrant) {
    for (auto [a, b] : std::initializer_list<std::pair<float, float>>{
             {0.65f, -0.3f}, {-0.5f, 0.5f}, {-0.5f, -0.5f}, {0, 0.7f}, {0, -0.7f}, {0.6f, 0}}) {
        const ComplexPowers p = ComputeComplexPowers(false, a, b);
        // base^n by repeated products, in double: the two agree to rounding.
        double x = 1, y = 0;
        for (int n = 0; n < ComplexPowerCount; ++n) {
            EXPECT_NEAR(p.ComplexPowersX[static_cast<size_t>(n)], x, 1e-6) << a << " " << b << " " << n;
            EXPECT_NEAR(p.ComplexPowersY[static_cast<size_t>(n)], y, 1e-6) << a << " " << b << " " << n;
            const double nx = x * a - y * b, ny = x * b + y * a;
            x = nx;
            y = ny;
        }
    }
}

TEST(ComplexPowers, PolarFormTakesRAndAAsTheyStand) {
    const ComplexPowers p = ComputeComplexPowers(true, -0.62f, 0.5f);
    EXPECT_DOUBLE_EQ(p.ComplexPowersX[3], std::pow(static_cast<double>(-0.62f), 3) * std::cos(1.5));
    EXPECT_DOUBLE_EQ(p.ComplexPowersY[3], std::pow(static_cast<double>(-0.62f), 3) * std::sin(1.5));
}

TEST(ComplexPowers, TheAngleUsesTheProgramsPi) {
    const ComplexPowers p = ComputeComplexPowers(false, -1, 0);
    // t = atan(0) + 3.141592654, so sin t is not exactly 0.
    EXPECT_DOUBLE_EQ(p.ComplexPowersY[1], std::sin(3.141592654));
    EXPECT_NE(p.ComplexPowersY[1], 0.0);
}

TEST(ComplexDigits, CountInBinaryWithTheLastDigitLeastSignificant) {
    ComplexDigitRow row{};
    EXPECT_EQ(AdvanceComplexDigits(row), 22);
    EXPECT_TRUE(row[22]);
    EXPECT_EQ(AdvanceComplexDigits(row), 21);  // 01 -> 10
    EXPECT_FALSE(row[22]);
    EXPECT_TRUE(row[21]);
    EXPECT_EQ(AdvanceComplexDigits(row), 22);  // 11
    EXPECT_EQ(AdvanceComplexDigits(row), 20);  // 100
    for (int k = 5; k <= 1000; ++k) {
        AdvanceComplexDigits(row);
        int value = 0;
        for (int i = 1; i <= ComplexDigitCount; ++i)
            value = value * 2 + (row[static_cast<size_t>(i)] ? 1 : 0);
        ASSERT_EQ(value, k);
    }
}

TEST(ComplexDigits, TheFullRowWrapsToAllClear) {
    ComplexDigitRow row{};
    row.fill(true);
    AdvanceComplexDigits(row);
    for (int i = 1; i <= ComplexDigitCount; ++i) EXPECT_FALSE(row[static_cast<size_t>(i)]) << i;
}

TEST(ComplexDigitSum, KeptSumsMatchTheWholeSumInOrder) {
    const ComplexPowers p = ComputeComplexPowers(false, 0.65f, -0.3f);
    ComplexDigitRow row{};
    ComplexDigitSum sum(p);
    sum.update(row, 1);
    for (int k = 1; k <= 5000; ++k) {
        sum.update(row, AdvanceComplexDigits(row));
        float x = 0, y = 0;
        for (int i = 1; i <= ComplexDigitCount; ++i) {
            if (!row[static_cast<size_t>(i)]) continue;
            x = static_cast<float>(x + p.ComplexPowersX[static_cast<size_t>(ComplexDigitCount - i)]);
            y = static_cast<float>(y + p.ComplexPowersY[static_cast<size_t>(ComplexDigitCount - i)]);
        }
        ASSERT_EQ(sum.x(), x) << k;
        ASSERT_EQ(sum.y(), y) << k;
    }
}

TEST(ComplexDigitSum, TheFirstRowsAreTheFirstPowersAndTheirSums) {
    const ComplexPowers p = ComputeComplexPowers(false, 0.5f, 0.5f);
    ComplexDigitRow row{};
    ComplexDigitSum sum(p);
    sum.update(row, AdvanceComplexDigits(row));  // 1: base^0
    EXPECT_FLOAT_EQ(sum.x(), 1);
    EXPECT_FLOAT_EQ(sum.y(), 0);
    sum.update(row, AdvanceComplexDigits(row));  // 10: base^1
    EXPECT_FLOAT_EQ(sum.x(), 0.5f);
    EXPECT_FLOAT_EQ(sum.y(), 0.5f);
    sum.update(row, AdvanceComplexDigits(row));  // 11: 1 + base
    EXPECT_FLOAT_EQ(sum.x(), 1.5f);
    EXPECT_FLOAT_EQ(sum.y(), 0.5f);
    sum.update(row, AdvanceComplexDigits(row));  // 100: base^2 = i/2
    EXPECT_NEAR(sum.x(), 0, 1e-7);
    EXPECT_FLOAT_EQ(sum.y(), 0.5f);
}

TEST(ComplexExamples, SixInTheOrderOfTheButton) {
    const auto& e = ComplexExamples();
    EXPECT_FALSE(e[0].polar);
    EXPECT_STREQ(e[0].txta, "0.65");
    EXPECT_STREQ(e[0].txtb, "-0.30");
    EXPECT_STREQ(e[1].txta, "0.80");
    EXPECT_STREQ(e[1].txtb, "0.20");
    EXPECT_TRUE(e[2].polar);
    EXPECT_STREQ(e[2].txta, "-0.697");
    EXPECT_STREQ(e[2].txtb, "2*pi/5");
    EXPECT_STREQ(e[3].txta, "0.5");
    EXPECT_STREQ(e[3].txtb, "0.5");
    EXPECT_TRUE(e[4].polar);
    EXPECT_STREQ(e[4].txta, "-0.62");
    EXPECT_STREQ(e[4].txtb, "2*pi/7");
    EXPECT_FALSE(e[5].polar);
    EXPECT_STREQ(e[5].txta, "0.2");
    EXPECT_STREQ(e[5].txtb, "0.6");
}

}  // namespace
}  // namespace quillane::testing
