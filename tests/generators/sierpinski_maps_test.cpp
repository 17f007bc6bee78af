#include "generators/sierpinski_maps.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillane::testing {
namespace {

TrianglePoint apply(const IFSFunction& m, TrianglePoint p) {
    return {m.a * p.x + m.b * p.y + m.e, m.c * p.x + m.d * p.y + m.f};
}

// The corners and the dividing points of the rules: a on BC, b on CA, c on AB.
TrianglePoint named(char letter, TrianglePoint A, float fa, float fb, float fc) {
    switch (letter) {
        case 'A':
            return A;
        case 'B':
            return {0, 0};
        case 'C':
            return {1, 0};
        case 'a':
            return {fa, 0};
        case 'b':
            return {1 + fb * (A.x - 1), fb * A.y};
        default:
            return {(1 - fc) * A.x, (1 - fc) * A.y};
    }
}

void expectRulesHold(int method, TrianglePoint A, float fa, float fb, float fc) {
    const auto maps = SierpinskiMaps(method, A, fa, fb, fc);
    const auto& rules = SierpinskiRules(method);
    for (int i = 0; i < 3; ++i) {
        // "Fi(ABC) = XYZ": A goes to X, B to Y, C to Z.
        const std::string images = rules[static_cast<size_t>(i)].substr(10, 3);
        const TrianglePoint corners[3] = {A, {0, 0}, {1, 0}};
        for (int k = 0; k < 3; ++k) {
            const TrianglePoint got = apply(maps[static_cast<size_t>(i)], corners[k]);
            const TrianglePoint want = named(images[static_cast<size_t>(k)], A, fa, fb, fc);
            EXPECT_NEAR(got.x, want.x, 2e-5) << "method " << method << " map " << i + 1 << " corner " << k;
            EXPECT_NEAR(got.y, want.y, 2e-5) << "method " << method << " map " << i + 1 << " corner " << k;
        }
    }
}

TEST(SierpinskiMaps, EveryMethodCarriesTheCornersAsItsRulesSay) {
    for (int method = 1; method <= 3; ++method) {
        expectRulesHold(method, {0.5f, 0.8660254f}, 0.5f, 0.5f, 0.5f);
        expectRulesHold(method, {0.3f, 0.7f}, 0.25f, 0.6f, 0.4f);
        expectRulesHold(method, {0.8f, 0.2f}, 0.7f, 0.3f, 0.35f);
    }
}

TEST(SierpinskiMaps, MethodOneWithDefaultFactorsIsTheSierpinskiTriangle) {
    const TrianglePoint A{0.5f, 0.8660254f};
    const auto maps = SierpinskiMaps(1, A, 0.5f, 0.5f, 0.5f);
    const float e[3] = {0, 0.5f, 0.25f};
    const float f[3] = {0, 0, 0.4330127f};
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(maps[i].a, 0.5, 1e-6) << i;
        EXPECT_NEAR(maps[i].b, 0, 1e-6) << i;
        EXPECT_NEAR(maps[i].c, 0, 1e-6) << i;
        EXPECT_NEAR(maps[i].d, 0.5, 1e-6) << i;
        EXPECT_NEAR(maps[i].e, e[i], 1e-6) << i;
        EXPECT_NEAR(maps[i].f, f[i], 1e-6) << i;
    }
}

TEST(SierpinskiMaps, TheDefaultAnglesGiveTheEquilateralTriangle) {
    const auto t = ApexFromAngles(60, 60, 60);
    ASSERT_TRUE(t.apex.has_value());
    EXPECT_NEAR(t.apex->x, 0.5, 1e-6);
    EXPECT_NEAR(t.apex->y, std::sqrt(3.0) / 2, 1e-6);
    const auto right = ApexFromAngles(30, 80, 70);
    ASSERT_TRUE(right.apex.has_value());
    // The angle at B is the slope of BA.
    EXPECT_NEAR(std::atan2(right.apex->y, right.apex->x) * 180 / 3.14159265358979, 80, 1e-4);
}

TEST(SierpinskiMaps, AnglesAreCheckedInOrder) {
    EXPECT_EQ(ApexFromAngles(0, 90, 90).error, "Angles must be positive");
    EXPECT_EQ(ApexFromAngles(60, -10, 130).error, "Angles must be positive");
    EXPECT_EQ(ApexFromAngles(60, 60, 61).error, "Angles must add to 180");
    EXPECT_EQ(ApexFromAngles(90, 45, 45).error, "Angles must be less than 90 degrees");
    EXPECT_EQ(ApexFromAngles(20, 20, 140).error, "Angles must be less than 90 degrees");
    EXPECT_FALSE(ApexFromAngles(NAN, 60, 60).apex.has_value());
}

TEST(SierpinskiMaps, PedalFactorsAreTheFeetOfTheAltitudes) {
    const TrianglePoint A{0.3f, 0.7f};
    const auto f = PedalFactors(A);
    // The foot from A on BC is straight below A.
    EXPECT_NEAR(f[0], 0.3, 1e-6);
    // The foot from B on CA: the point b = C + fb (A - C) makes BB' perpendicular to CA.
    const double bx = 1 + f[1] * (A.x - 1), by = f[1] * A.y;
    EXPECT_NEAR(bx * (A.x - 1) + by * A.y, 0, 1e-6);
    // The foot from C on AB: c = (1 - fc) A makes CC' perpendicular to AB.
    const double cx = (1 - f[2]) * A.x - 1, cy = (1 - f[2]) * A.y;
    EXPECT_NEAR(cx * A.x + cy * A.y, 0, 1e-6);
    const auto eq = PedalFactors({0.5f, 0.8660254f});
    for (float v : eq) EXPECT_NEAR(v, 0.5, 1e-6);
}

TEST(SierpinskiMaps, EveryCoefficientStaysFiniteForALowApex) {
    // y divides every b; a low apex still gives finite maps.
    for (int method = 1; method <= 3; ++method)
        for (const IFSFunction& m : SierpinskiMaps(method, {0.5f, 1e-4f}, 0.5f, 0.5f, 0.5f))
            EXPECT_TRUE(std::isfinite(m.b)) << method;
}

TEST(SierpinskiMaps, RulesAndCommentLines) {
    EXPECT_EQ(SierpinskiRules(2)[1], "F2(ABC) = abC");
    EXPECT_EQ(SierpinskiCommentLine(1), "; f1(ABC) = cBa, f2(ABC) = baC, f3(ABC) = Acb");
    EXPECT_EQ(SierpinskiCommentLine(2), "; f1(ABC) = aBc, f2(ABC) = abC, f3(ABC) = Abc");
    EXPECT_EQ(SierpinskiCommentLine(3), "; f1(ABC) = caB, f2(ABC) = Cab, f3(ABC) = cAb");
}

}  // namespace
}  // namespace quillane::testing
