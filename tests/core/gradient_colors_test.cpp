// The gradient of the gradient colour modes: its strips and its text file.
#include "core/gradient_colors.h"

#include <gtest/gtest.h>

namespace quillane {
namespace {

TEST(GradientStrips, TwoColoursMakeOneBandOf180) {
    GradientColors g = DefaultGradient();
    g.GradientColorCount = 2;
    g.picColors[0] = RGB(0, 0, 0);
    g.picColors[1] = RGB(180, 90, 255);
    EXPECT_EQ(GradientBandWidth(2), 180);
    const auto strips = GradientStrips(g);
    EXPECT_EQ(strips[0], RGB(0, 0, 0));
    EXPECT_EQ(strips[90], RGB(90, 45, 127)) << "Int of the mix: 127.5 gives 127";
    EXPECT_EQ(strips[180], RGB(180, 90, 255));
}

TEST(GradientStrips, SevenColoursMakeBandsOf30) {
    const GradientColors g = DefaultGradient();
    EXPECT_EQ(GradientBandWidth(7), 30);
    const auto strips = GradientStrips(g);
    for (int k = 0; k < 7; ++k) EXPECT_EQ(strips[static_cast<size_t>(k * 30)], g.picColors[static_cast<size_t>(k)]) << k;
}

TEST(GradientStrips, ABandRoundsTheWholeNumberOfStrips) {
    EXPECT_EQ(GradientBandWidth(3), 90);
    EXPECT_EQ(GradientBandWidth(4), 60);
    EXPECT_EQ(GradientBandWidth(5), 45);
    EXPECT_EQ(GradientBandWidth(6), 36);
}

TEST(GradientChannels, RedIsTheLowByte) {
    int r = 0, g = 0, b = 0;
    GetRGBColors(RGB(1, 2, 3), r, g, b);
    EXPECT_EQ(r, 1);
    EXPECT_EQ(g, 2);
    EXPECT_EQ(b, 3);
}

TEST(GradientFile, HasEightLinesAndReadsBack) {
    GradientColors g = DefaultGradient();
    g.GradientColorCount = 4;
    g.txtCount[2] = "12";
    const std::string text = GradientFileText(g);
    EXPECT_EQ(text.substr(0, 3), "4\r\n");
    EXPECT_EQ(text.substr(3, 12), "255,0,0,0\r\n2");
    int lines = 0;
    for (char c : text) lines += c == '\n';
    EXPECT_EQ(lines, 8);
    EXPECT_EQ(ReadGradientFile(text), g);
}

TEST(GradientFile, ACountOfThreeStillReadsAllSevenColourLines) {
    const std::string text =
        "3\n1,2,3,0\n4,5,6,5\n7,8,9,10\n10,11,12,15\n13,14,15,20\n16,17,18,25\n19,20,21,30\n";
    const auto g = ReadGradientFile(text);
    ASSERT_TRUE(g.has_value());
    EXPECT_EQ(g->GradientColorCount, 3);
    EXPECT_EQ(g->picColors[6], RGB(19, 20, 21));
    EXPECT_EQ(g->txtCount[6], "30");
}

TEST(GradientFile, FewerColoursKeepTheHiddenThresholds) {
    GradientColors g = DefaultGradient();
    g.txtCount[6] = "99";
    g.GradientColorCount = 2;
    const auto back = ReadGradientFile(GradientFileText(g));
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(back->txtCount[6], "99");
}

TEST(GradientFile, AShortOrBrokenFileIsRefused) {
    EXPECT_FALSE(ReadGradientFile("7\n1,2,3,0\n").has_value());
    EXPECT_FALSE(ReadGradientFile("9\n1,2,3,0\n1,2,3,0\n1,2,3,0\n1,2,3,0\n1,2,3,0\n1,2,3,0\n1,2,3,0\n").has_value());
    EXPECT_FALSE(ReadGradientFile("7\n1,2,3\n1,2,3,0\n1,2,3,0\n1,2,3,0\n1,2,3,0\n1,2,3,0\n1,2,3,0\n").has_value());
}

}  // namespace
}  // namespace quillane
