// The unit-square colouring IFS: its fixed strips for two and three maps, and the grid for more.
#include "core/unit_square_ifs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace quillane {
namespace {

IFSEntry withProbabilities(const std::vector<float>& p) {
    IFSEntry ifs;
    ifs.nMaps = static_cast<int16_t>(p.size());
    for (size_t i = 0; i < p.size(); ++i) ifs.p[i] = p[i];
    return ifs;
}

// The image of the unit square under map i, as a box.
UnitSquareCell imageOf(const IFSEntry& m, int i) {
    double xs[4], ys[4];
    const double cx[4] = {0, 1, 0, 1}, cy[4] = {0, 0, 1, 1};
    for (int k = 0; k < 4; ++k) {
        xs[k] = m.a[i] * cx[k] + m.b[i] * cy[k] + m.e[i];
        ys[k] = m.c[i] * cx[k] + m.d[i] * cy[k] + m.f[i];
    }
    const double x0 = *std::min_element(xs, xs + 4), x1 = *std::max_element(xs, xs + 4);
    const double y0 = *std::min_element(ys, ys + 4), y1 = *std::max_element(ys, ys + 4);
    return {x0, y0, x1 - x0, y1 - y0};
}

TEST(UnitSquareIFS, TwoMapsAreTheGivenStrips) {
    const IFSEntry cs = UnitSquareIFS(withProbabilities({0.3f, 0.7f}), 2);
    EXPECT_EQ(cs.Name, "Unit Square  ");
    EXPECT_EQ(cs.nMaps, 2);
    EXPECT_EQ(cs.a[0], 0);
    EXPECT_EQ(cs.b[0], -0.3f);
    EXPECT_EQ(cs.c[0], 1);
    EXPECT_EQ(cs.d[0], 0);
    EXPECT_EQ(cs.e[0], 0.3f);
    EXPECT_EQ(cs.f[0], 0);
    EXPECT_EQ(cs.a[1], 1 - 0.3f);
    EXPECT_EQ(cs.d[1], 1);
    EXPECT_EQ(cs.e[1], 0.3f);
    EXPECT_EQ(cs.p[0], 0.3f);
    EXPECT_EQ(cs.p[1], 0.7f);
    const UnitSquareCell first = imageOf(cs, 0), second = imageOf(cs, 1);
    EXPECT_NEAR(first.width, 0.3, 1e-6);
    EXPECT_NEAR(second.x, 0.3, 1e-6);
    EXPECT_NEAR(second.width, 0.7, 1e-6);
}

TEST(UnitSquareIFS, ThreeMapsAreTheGivenStrips) {
    const IFSEntry cs = UnitSquareIFS(withProbabilities({0.2f, 0.5f, 0.3f}), 3);
    EXPECT_EQ(cs.a[0], 0.2f);
    EXPECT_EQ(cs.d[0], 1);
    EXPECT_EQ(cs.b[1], -0.5f);
    EXPECT_EQ(cs.c[1], 1);
    EXPECT_EQ(cs.e[1], 1 - 0.3f);
    EXPECT_EQ(cs.a[2], 0.3f);
    EXPECT_EQ(cs.e[2], 1 - 0.3f);
    // Strips [0, 0.2], [0.2, 0.7], [0.7, 1].
    EXPECT_NEAR(imageOf(cs, 1).x, 0.2, 1e-6);
    EXPECT_NEAR(imageOf(cs, 1).width, 0.5, 1e-6);
    EXPECT_NEAR(imageOf(cs, 2).x, 0.7, 1e-6);
}

// Cells inside the square, areas the probabilities, no two overlapping: together they are the square.
void expectTiling(const IFSEntry& cs, const std::vector<float>& p) {
    const int n = static_cast<int>(p.size());
    double total = 0, sum = 0;
    for (float v : p) total += v;
    for (int i = 0; i < n; ++i) {
        const UnitSquareCell c = imageOf(cs, i);
        EXPECT_GE(c.x, -1e-6);
        EXPECT_GE(c.y, -1e-6);
        EXPECT_LE(c.x + c.width, 1 + 1e-6);
        EXPECT_LE(c.y + c.height, 1 + 1e-6);
        EXPECT_NEAR(c.width * c.height, p[i] / total, 1e-5) << "map " << i << " of " << n;
        sum += c.width * c.height;
        for (int j = 0; j < i; ++j) {
            const UnitSquareCell d = imageOf(cs, j);
            const double ox = std::min(c.x + c.width, d.x + d.width) - std::max(c.x, d.x);
            const double oy = std::min(c.y + c.height, d.y + d.height) - std::max(c.y, d.y);
            EXPECT_FALSE(ox > 1e-6 && oy > 1e-6) << "maps " << j << " and " << i << " of " << n;
        }
    }
    EXPECT_NEAR(sum, 1.0, 1e-5);
}

TEST(UnitSquareIFS, TwoToOneHundredMapsTileTheSquare) {
    std::mt19937 gen(3);
    std::uniform_real_distribution<float> share(0.05f, 1.0f);
    for (int n = 2; n <= 100; ++n) {
        std::vector<float> p(static_cast<size_t>(n));
        float total = 0;
        for (float& v : p) total += v = share(gen);
        for (float& v : p) v /= total;
        const IFSEntry cs = UnitSquareIFS(withProbabilities(p), n);
        ASSERT_EQ(cs.nMaps, n);
        expectTiling(cs, p);
        for (int i = 0; i < n; ++i) EXPECT_EQ(cs.p[i], p[i]);
    }
}

TEST(UnitSquareIFS, EqualProbabilitiesMakeARegularGrid) {
    const std::vector<float> p(9, 1.0f / 9);
    const std::vector<UnitSquareCell> cells = UnitSquareGrid(p.data(), 9);
    for (int i = 0; i < 9; ++i) {
        EXPECT_NEAR(cells[i].x, (i % 3) / 3.0, 1e-6);
        EXPECT_NEAR(cells[i].y, (i / 3) / 3.0, 1e-6);
        EXPECT_NEAR(cells[i].width, 1 / 3.0, 1e-6);
    }
}

TEST(UnitSquareIFS, ProbabilitiesThatFallShortAreTakenInProportion) {
    const std::vector<float> p{0.25f, 0.25f, 0.25f, 0.2496f};
    expectTiling(UnitSquareIFS(withProbabilities(p), 4), p);
}

}  // namespace
}  // namespace quillane
