#include "generators/twisted_sierpinski.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quillane::testing {
namespace {

constexpr TrianglePoint Apex{0.5f, 0.8660254f};
constexpr std::array<float, 3> Halves{0.5f, 0.5f, 0.5f};

double area(const TwistTriangle& t) {
    return 0.5 * std::fabs((t[1].x - t[0].x) * (t[2].y - t[0].y) - (t[2].x - t[0].x) * (t[1].y - t[0].y));
}

double heading(const TwistTriangle& t) {
    return std::atan2(t[1].y - t[0].y, t[1].x - t[0].x);
}

TEST(TwistedSierpinski, EachIterationCutsEveryPieceInThree) {
    for (int n = 1; n <= 5; ++n) {
        TwistSettings s;
        s.iterations = n;
        EXPECT_EQ(TwistedSierpinski(Apex, Halves, s).size(), static_cast<size_t>(std::pow(3, n))) << n;
    }
}

TEST(TwistedSierpinski, WithoutTwistThePiecesAreTheClassicCornerTriangles) {
    TwistSettings s;
    s.iterations = 1;
    const auto pieces = TwistedSierpinski(Apex, Halves, s);
    ASSERT_EQ(pieces.size(), 3u);
    // aBc: the corner at B is the origin, the midpoint of BC (0.5, 0) and of AB.
    EXPECT_FLOAT_EQ(pieces[0].t[1].x, 0);
    EXPECT_FLOAT_EQ(pieces[0].t[1].y, 0);
    EXPECT_FLOAT_EQ(pieces[0].t[2].x, 0.5f);
    EXPECT_FLOAT_EQ(pieces[1].t[2].x, 1);
    EXPECT_FLOAT_EQ(pieces[2].t[0].y, Apex.y);
    for (const TwistPiece& p : pieces) EXPECT_NEAR(area(p.t), area({Apex, {0, 0}, {1, 0}}) / 4, 1e-6);
}

TEST(TwistedSierpinski, TheTwistTurnsThePiecesButKeepsTheirArea) {
    TwistSettings none, large;
    none.iterations = large.iterations = 3;
    large.sliTwist = TwistSliderMax;
    const auto straight = TwistedSierpinski(Apex, Halves, none);
    const auto twisted = TwistedSierpinski(Apex, Halves, large);
    ASSERT_EQ(straight.size(), twisted.size());
    for (size_t k = 0; k < straight.size(); ++k) {
        EXPECT_NEAR(area(twisted[k].t), area(straight[k].t), 1e-6);
        // Three turns of the largest twist, compounded.
        double d = heading(twisted[k].t) - heading(straight[k].t);
        d = std::remainder(d, 2 * 3.14159265358979);
        EXPECT_NEAR(d, 3 * TwistLargest, 1e-4) << k;
    }
}

TEST(TwistedSierpinski, AnOpenTwistTurnsBackAtEveryLevel) {
    TwistSettings none, open;
    none.iterations = open.iterations = 2;
    open.sliTwist = TwistSliderMax / 2;
    open.alternate = true;
    const auto straight = TwistedSierpinski(Apex, Halves, none);
    const auto twisted = TwistedSierpinski(Apex, Halves, open);
    for (size_t k = 0; k < straight.size(); ++k)
        EXPECT_NEAR(std::remainder(heading(twisted[k].t) - heading(straight[k].t), 2 * 3.14159265358979), 0,
                    1e-4);
    // The places differ all the same: the second turn is about the piece's own centroid.
    EXPECT_GT(
        std::fabs(twisted[0].t[0].x - straight[0].t[0].x) + std::fabs(twisted[0].t[0].y - straight[0].t[0].y),
        1e-3);
}

TEST(TwistedSierpinski, IterationsAndSliderAreHeldToTheirRanges) {
    TwistSettings s;
    s.iterations = 50;
    s.sliTwist = 1000;
    EXPECT_EQ(TwistedSierpinski(Apex, Halves, s).size(),
              static_cast<size_t>(std::pow(3, TwistMaxIterations)));
    s.iterations = -3;
    EXPECT_EQ(TwistedSierpinski(Apex, Halves, s).size(), 3u);
}

TEST(TwistedSierpinski, TheLastCutsCornerColoursEachPiece) {
    TwistSettings s;
    s.iterations = 2;
    const auto pieces = TwistedSierpinski(Apex, Halves, s);
    for (size_t k = 0; k < pieces.size(); ++k) EXPECT_EQ(pieces[k].corner, static_cast<int>(k % 3));
}

}  // namespace
}  // namespace quillane::testing
