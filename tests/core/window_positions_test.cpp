#include "core/window_positions.h"

#include <gtest/gtest.h>

namespace quillane {
namespace {

TEST(WindowPositions, FirstStartPlacesFollowTheDefaultTable) {
    const WindowPositions p = SetDefaultWindowPositions(12345);
    EXPECT_EQ(p.functions.left, 0);
    EXPECT_EQ(p.functions.top, 0);
    EXPECT_EQ(p.functions.width, 10010);
    EXPECT_EQ(p.functions.height, 7500);
    // The fractal window overlaps the table's right edge by 800.
    EXPECT_EQ(p.fractal.left, 10010 - 5200 + 800);
    EXPECT_EQ(p.fractal.top, 0);
    EXPECT_EQ(p.fractal.width, 5200);
    EXPECT_EQ(p.fractal.height, 6000);
    // The design window stands 800 below the fractal window's top, at its left.
    EXPECT_EQ(p.design.left, 5610);
    EXPECT_EQ(p.design.top, 800);
    EXPECT_EQ(p.design.width, 5955);
    EXPECT_EQ(p.design.height, 6000);
    EXPECT_EQ(p.tilingOptions.left, 900);
    EXPECT_EQ(p.tilingOptions.top, 100);
    EXPECT_EQ(p.preview.left, 12345);
    EXPECT_EQ(p.preview.top, 0);
    EXPECT_EQ(p.preview.width, 2925);
    EXPECT_EQ(p.preview.height, 3315);
    EXPECT_EQ(p.colorStealing.left, 100);
    EXPECT_EQ(p.colorStealing.top, 100);
    EXPECT_EQ(p.colorStealing.width, 9300);
    EXPECT_EQ(p.colorStealing.height, 5985);
}

TEST(WindowPositions, TheExtentHoldsTheThreeMainWindows) {
    const WindowPlace e = MainWindowsExtent(SetDefaultWindowPositions(0));
    EXPECT_EQ(e.left, 0);
    EXPECT_EQ(e.top, 0);
    EXPECT_EQ(e.width, 5610 + 5955);  // the design window's right edge
    EXPECT_EQ(e.height, 7500);        // the table's bottom, below the design window's 6800
}

TEST(WindowPositions, TwipsAndPixelsConvertAtTheScreensDensity) {
    EXPECT_EQ(TwipsToPixels(1440, 96), 96);
    EXPECT_EQ(TwipsToPixels(10010, 96), 667);  // 667.33
    EXPECT_EQ(TwipsToPixels(15, 96), 1);
    EXPECT_EQ(TwipsToPixels(1440, 144), 144);
    EXPECT_EQ(PixelsToTwips(96, 96), 1440);
    EXPECT_EQ(PixelsToTwips(1, 96), 15);
    EXPECT_EQ(PixelsToTwips(100, 120), 1200);
}

}  // namespace
}  // namespace quillane
