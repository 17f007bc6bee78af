#include <gtest/gtest.h>

#include <vector>

#include "design/design_drawing.h"

namespace quillane {
namespace {

std::vector<double> multiples(double lo, double hi, double step, double pixelsPerUnit) {
    std::vector<double> v;
    ForEachMultiple(lo, hi, step, pixelsPerUnit, [&](double x) { v.push_back(x); });
    return v;
}

TEST(ForEachMultiple, EveryMultipleFromTheFloorOfEachEnd) {
    EXPECT_EQ(multiples(-1.5, 2.2, 1, 100), (std::vector<double>{-2, -1, 0, 1, 2}));
    EXPECT_EQ(multiples(0.3, 0.9, 0.25, 100), (std::vector<double>{0.25, 0.5, 0.75}));
}

// A design window a billion units wide on 500 pixels: one tick per pixel, not a billion.
TEST(ForEachMultiple, CloserThanAPixelGivesOnePerPixel) {
    const std::vector<double> v = multiples(0, 1e9, 1, 500 / 1e9);
    EXPECT_LE(v.size(), 502u);
    EXPECT_GE(v.size(), 499u);
    EXPECT_DOUBLE_EQ(v.front(), 0);
    EXPECT_NEAR(v.back(), 1e9, 2.1e6);
}

// Beyond 2^53 a double loop with ++x never ends; 1e30 wide and far away must still finish.
TEST(ForEachMultiple, HugeOrBrokenRangesFinish) {
    EXPECT_LE(multiples(1e30, 1e30 + 1e20, 1, 500 / 1e20).size(), 502u);
    EXPECT_LE(multiples(-3e38, 3e38, 0.05, 500 / 6e38).size(), 502u);
    EXPECT_TRUE(multiples(0, std::nan(""), 1, 100).empty());
    EXPECT_TRUE(multiples(0, 5, 0, 100).empty());
    EXPECT_TRUE(multiples(0, 5, 1, 0).empty());
}

}  // namespace
}  // namespace quillane
