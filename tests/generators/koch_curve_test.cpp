#include "generators/koch_curve.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numeric>

namespace quillane {
namespace {

struct Lines {
    std::vector<std::array<double, 4>> lines;
    std::vector<int> pieces;
    bool line(double x1, double y1, double x2, double y2) {
        lines.push_back({x1, y1, x2, y2});
        return true;
    }
    void piece(int i) { pieces.push_back(i); }
};

void expectMap(const IFSFunction& m, double a, double b, double c, double d, double e, double f) {
    EXPECT_NEAR(m.a, a, 1e-6);
    EXPECT_NEAR(m.b, b, 1e-6);
    EXPECT_NEAR(m.c, c, 1e-6);
    EXPECT_NEAR(m.d, d, 1e-6);
    EXPECT_NEAR(m.e, e, 1e-6);
    EXPECT_NEAR(m.f, f, 1e-6);
}

TEST(KochMaps, TriangleWithAThirdIsTheClassicKochCurve) {
    const auto maps = KochMaps(3, 1.0 / 3);
    ASSERT_EQ(maps.size(), 4u);
    const double s = 1.0 / 3, h = std::sqrt(3.0) / 6;
    expectMap(maps[0], s, 0, 0, s, 0, 0);
    expectMap(maps[1], s / 2, -h, h, s / 2, s, 0);
    expectMap(maps[2], s / 2, h, -h, s / 2, 0.5, h);
    expectMap(maps[3], s, 0, 0, s, 2 * s, 0);
}

TEST(KochMaps, TheSidesOfTheSquareFollowOneAnother) {
    // n = 4: up, across, down; each side starts where the one before it ended.
    const double c = 0.25;
    const auto maps = KochMaps(4, c);
    ASSERT_EQ(maps.size(), 5u);
    expectMap(maps[1], 0, -c, c, 0, 0.375, 0);
    expectMap(maps[2], c, 0, 0, c, 0.375, c);
    expectMap(maps[3], 0, c, -c, 0, 0.625, c);
    EXPECT_NEAR(maps[4].e, 0.625, 1e-6);
}

TEST(KochMaps, SixtyEdgesGiveSixtyOneMaps) {
    const auto maps = KochMaps(60, 0.999);
    EXPECT_EQ(maps.size(), 61u);
    for (const IFSFunction& m : maps) {
        EXPECT_TRUE(std::isfinite(m.a) && std::isfinite(m.e) && std::isfinite(m.f));
    }
}

TEST(KochMaps, EdgeLengthZeroCollapsesTheMiddleMaps) {
    const auto maps = KochMaps(5, 0);
    ASSERT_EQ(maps.size(), 6u);
    for (int i = 1; i <= 4; ++i) {
        const IFSFunction& m = maps[static_cast<size_t>(i)];
        EXPECT_EQ(m.a, 0.0f);
        EXPECT_EQ(m.b, 0.0f);
        EXPECT_EQ(m.c, 0.0f);
        EXPECT_EQ(m.d, 0.0f);
        // All of them sit in the middle of the segment.
        EXPECT_NEAR(m.e, 0.5, 1e-7);
        EXPECT_NEAR(m.f, 0, 1e-7);
    }
    EXPECT_FLOAT_EQ(maps[0].a, 0.5f);
    EXPECT_FLOAT_EQ(maps[5].e, 0.5f);
}

TEST(KochTurns, AddUpToNoTurn) {
    for (int n : {3, 4, 7, 60}) {
        const auto turns = KochTurns(n);
        ASSERT_EQ(turns.size(), static_cast<size_t>(n + 2));
        EXPECT_EQ(turns[1], 0.0f);
        EXPECT_NEAR(std::accumulate(turns.begin() + 1, turns.end(), 0.0), 0.0, 1e-5) << n;
    }
}

TEST(KochTurns, TriangleTurnsLeftRightLeft) {
    const auto turns = KochTurns(3);
    const double third = 3.1415927 / 3;
    EXPECT_NEAR(turns[2], third, 1e-6);
    EXPECT_NEAR(turns[3], -2 * third, 1e-6);
    EXPECT_NEAR(turns[4], third, 1e-6);
}

TEST(KochRatio, FromAThirdUpItIsTheEdgeLength) {
    EXPECT_EQ(KochRatioFor(0.5f), 0.5f);
    EXPECT_EQ(KochRatioFor(static_cast<float>(1.0 / 3)), static_cast<float>(1.0 / 3));
}

TEST(KochRatio, BelowAThirdItIsOneLessTwiceTheEdge) {
    EXPECT_FLOAT_EQ(KochRatioFor(0.1f), 0.8f);
    // Not the end pieces' ratio (1 - c) / 2, which would be 0.45.
    EXPECT_NE(KochRatioFor(0.1f), 0.45f);
    EXPECT_FLOAT_EQ(KochRatioFor(0.0f), 1.0f);
}

TEST(KochRecursionLimits, BelowAThirdThePixelLimitRunsDeeperThanThePiecesNeed) {
    // c = 0.1: the longest piece is an end piece of 0.45, yet the limit uses 0.8.
    const double pixel = 0.001;
    const KochLimits limits = KochRecursionLimits(3, KochRatioFor(0.1f), pixel);
    const int needed = static_cast<int>(std::floor(std::log(pixel) / std::log(0.45) + 0.5));
    EXPECT_EQ(limits.p, 31);
    EXPECT_EQ(needed, 9);
    EXPECT_GT(limits.p, needed);
}

TEST(KochRecursionLimits, ClassicCurveOnAThousandPixels) {
    const KochLimits limits = KochRecursionLimits(3, static_cast<float>(1.0 / 3), 1.1 / 1000);
    EXPECT_EQ(limits.p, 6);
    EXPECT_EQ(limits.q, 10);  // ln 1e6 / ln 4 = 9.97
    EXPECT_EQ(KochRecursionLevel(3, limits), 3);
    EXPECT_EQ(KochRecursionLevel(4, limits), 4);
    EXPECT_EQ(KochRecursionLevel(5, limits), 6);
    EXPECT_EQ(KochRecursionLevel(40, limits), 6);
}

TEST(KochRecursionLimits, ARatioOfOneOrANegativeEdgeStaysInRange) {
    const KochLimits one = KochRecursionLimits(3, 1.0f, 0.001);
    EXPECT_EQ(one.q, 10);
    EXPECT_GT(one.p, 1000);
    EXPECT_EQ(KochRecursionLevel(9, one), 10);
    // c = -0.2: a ratio above 1 gives a negative limit, so the pass draws the segment alone.
    const KochLimits negative = KochRecursionLimits(3, KochRatioFor(-0.2f), 0.001);
    EXPECT_LT(negative.p, 0);
    EXPECT_LT(KochRecursionLevel(0, negative) + 1, 1);
    const KochLimits nothing = KochRecursionLimits(60, 0.5f, 0.0);
    EXPECT_EQ(nothing.q, 3);
    EXPECT_EQ(KochRecursionLevel(2, nothing), 3);
}

TEST(SelfAvoiding, SquareGivesAThird) {
    EXPECT_NEAR(SelfAvoidingLength(4), 1.0 / 3, 1e-7);
}

TEST(SelfAvoiding, OddEdgesUseOneLessTheCosine) {
    EXPECT_NEAR(SelfAvoidingLength(3), 0.5, 1e-7);
    EXPECT_NEAR(SelfAvoidingLength(5), 1 - std::cos(3.1415927 / 5), 1e-7);
}

TEST(KochPreviewView, SixtyEdgesNearOneStillAtLeastTheMinimum) {
    const KochView v = KochPreviewView(60, 0.999);
    EXPECT_GE((v.right - v.left) / 2, 0.55);
    EXPECT_TRUE(std::isfinite(v.left) && std::isfinite(v.top));
    const KochView small = KochPreviewView(3, 0.01);
    EXPECT_NEAR((small.right - small.left) / 2, 0.55, 1e-12);
    EXPECT_NEAR(small.left, -0.05, 1e-12);
}

TEST(KochPreviewView, ClassicCurveView) {
    const double c = 1.0 / 3, tanHalf = std::tan(3.141592654 / 6);
    const double h = std::max((c + 1) * (c / 2) / (1 - c) * tanHalf, 0.55);
    const KochView v = KochPreviewView(3, c);
    EXPECT_NEAR(v.top, c / 2 * tanHalf + h, 1e-12);
    EXPECT_NEAR(v.bottom, c / 2 * tanHalf - h, 1e-12);
}

TEST(KochSegment, LevelOneIsTheGeneratorAndEndsAtTheEnd) {
    const auto turns = KochTurns(3);
    Lines sink;
    double x = 0, y = 0;
    ASSERT_TRUE(KochSegment(turns, 1, x, y, 0, 1, 1.0 / 3, sink));
    ASSERT_EQ(sink.lines.size(), 4u);
    EXPECT_EQ(sink.pieces, (std::vector<int>{1, 2, 3, 4}));
    EXPECT_NEAR(sink.lines[1][2], 0.5, 1e-6);
    EXPECT_NEAR(sink.lines[1][3], std::sqrt(3.0) / 6, 1e-6);
    EXPECT_NEAR(x, 1, 1e-6);
    EXPECT_NEAR(y, 0, 1e-6);
}

TEST(KochSegment, EachLevelMultipliesTheLines) {
    const auto turns = KochTurns(5);
    Lines sink;
    double x = 0, y = 0;
    KochSegment(turns, 3, x, y, 0, 1, 0.3, sink);
    EXPECT_EQ(sink.lines.size(), 216u);
    EXPECT_NEAR(x, 1, 1e-5);
    EXPECT_NEAR(y, 0, 1e-5);
}

TEST(KochSegment, TheGeneratorsLinesAreTheMapsImagesOfTheUnitSegment) {
    const int n = 6;
    const double c = 0.2;
    const auto maps = KochMaps(n, c);
    Lines sink;
    double x = 0, y = 0;
    KochSegment(KochTurns(n), 1, x, y, 0, 1, c, sink);
    ASSERT_EQ(sink.lines.size(), maps.size());
    for (size_t i = 0; i < maps.size(); ++i) {
        const IFSFunction& m = maps[i];
        EXPECT_NEAR(sink.lines[i][0], m.e, 1e-5) << i;
        EXPECT_NEAR(sink.lines[i][1], m.f, 1e-5) << i;
        EXPECT_NEAR(sink.lines[i][2], m.a + m.e, 1e-5) << i;
        EXPECT_NEAR(sink.lines[i][3], m.c + m.f, 1e-5) << i;
    }
}

TEST(KochSegment, ARefusedLineEndsTheDrawing) {
    struct Stopper {
        int count = 0;
        bool line(double, double, double, double) { return ++count < 5; }
        void piece(int) {}
    } sink;
    double x = 0, y = 0;
    EXPECT_FALSE(KochSegment(KochTurns(3), 4, x, y, 0, 1, 1.0 / 3, sink));
    EXPECT_EQ(sink.count, 5);
}

}  // namespace
}  // namespace quillane
