#include <gtest/gtest.h>

#include "app/fractal_view.h"
#include "tests/app/fractal_view_fixture.h"

namespace quillane {
namespace {

void expectCount(const HowManyCheck& c, int32_t value) {
    ASSERT_TRUE(c.value.has_value()) << c.message;
    EXPECT_EQ(*c.value, value);
    EXPECT_EQ(c.message, "");
}

void expectRefused(const HowManyCheck& c, const std::string& message) {
    EXPECT_FALSE(c.value.has_value());
    EXPECT_EQ(c.message, message);
}

TEST(CheckHowMany, RemovesCommasAndReadsTheNumber) {
    expectCount(CheckHowMany("10,000", true), 10000);
    expectCount(CheckHowMany("1,2,3", true), 123);
    expectCount(CheckHowMany("", true), 0);
    expectCount(CheckHowMany("5", false), 5);
}

TEST(CheckHowMany, RoundsHalfToEven) {
    expectCount(CheckHowMany("2.5", true), 2);
    expectCount(CheckHowMany("3.5", true), 4);
    expectCount(CheckHowMany("999,999,999.5", true), 1000000000);
    expectCount(CheckHowMany("1000000000.5", true), 1000000000);
    expectCount(CheckHowMany("100.5", false), 100);
}

TEST(CheckHowMany, RandomCountsStopAtOneThousandMillion) {
    expectCount(CheckHowMany("1,000,000,000", true), 1000000000);
    expectRefused(CheckHowMany("1,000,000,001", true), "Number must be less than 1,000,000,000");
    expectRefused(CheckHowMany("1000000001.5", true), "Number must be less than 1,000,000,000");
    // Past the 32-bit range as well.
    expectRefused(CheckHowMany("99999999999", true), "Number must be less than 1,000,000,000");
}

TEST(CheckHowMany, DeterministicLevelsStopAtOneHundred) {
    expectCount(CheckHowMany("100", false), 100);
    expectRefused(CheckHowMany("101", false), "Number must be less than 100");
    expectRefused(CheckHowMany("101.5", false), "Number must be less than 100");
    expectCount(CheckHowMany("101", true), 101);
}

void expectTwips(const ImageSizeCheck& c, int twips) {
    ASSERT_TRUE(c.twips.has_value()) << c.message;
    EXPECT_EQ(*c.twips, twips);
}

TEST(CheckImageSize, InchesUpToTwentyTwo) {
    expectTwips(CheckImageSize("22", 0, 96), 31680);
    expectTwips(CheckImageSize("1.5", 0, 96), 2160);
    const ImageSizeCheck c = CheckImageSize("22.01", 0, 96);
    EXPECT_FALSE(c.twips.has_value());
    EXPECT_EQ(c.message, "Size cannot exceed 22 inches");
}

TEST(CheckImageSize, CentimetresUpToTheWholeCentimetresOfTwentyTwoInches) {
    expectTwips(CheckImageSize("55", 2, 96), 31181);  // 55 / 2.54 * 1440 = 31181.1
    expectTwips(CheckImageSize("2.54", 2, 96), 1440);
    const ImageSizeCheck c = CheckImageSize("55.5", 2, 96);
    EXPECT_FALSE(c.twips.has_value());
    EXPECT_EQ(c.message, "Size cannot exceed 55 cm");
}

TEST(CheckImageSize, PixelsFromOneToTheMaximumAtFifteenTwipsAPixel) {
    expectTwips(CheckImageSize("2112", 1, 96), 31680);
    expectTwips(CheckImageSize("1", 1, 96), 15);
    expectTwips(CheckImageSize("400", 1, 96), 6000);
    expectTwips(CheckImageSize("2.5", 1, 96), 38);  // 37.5 rounds to even
    ImageSizeCheck c = CheckImageSize("2113", 1, 96);
    EXPECT_FALSE(c.twips.has_value());
    EXPECT_EQ(c.message, "Size must be at most 2112 pixels");
    c = CheckImageSize("0.9", 1, 96);
    EXPECT_FALSE(c.twips.has_value());
    EXPECT_EQ(c.message, "Size must be at least 1 pixel\n(although you won't see much at that size!)");
    c = CheckImageSize("", 1, 96);
    EXPECT_EQ(c.message, "Size must be at least 1 pixel\n(although you won't see much at that size!)");
}

TEST(CheckImageSize, TheLimitFollowsTheScreensPixelsPerInch) {
    expectTwips(CheckImageSize("2640", 1, 120), 31680);
    EXPECT_EQ(CheckImageSize("2641", 1, 120).message, "Size must be at most 2640 pixels");
    EXPECT_EQ(TwipsToPixels(31680, 120), 2640);
    EXPECT_EQ(TwipsToPixels(6000, 96), 400);
}

TEST(ImageSizeOptionCaption, StatesTheMaxima) {
    EXPECT_EQ(ImageSizeOptionCaption(0, 96), "Max 22 inches");
    EXPECT_EQ(ImageSizeOptionCaption(1, 96), "Max 2112 pixels");
    EXPECT_EQ(ImageSizeOptionCaption(2, 96), "Max 55 cm");
    EXPECT_EQ(ImageSizeOptionCaption(1, 120), "Max 2640 pixels");
}

TEST(ImageSize, FixingAndUnfreezingFollowsTheMenuItem) {
    ViewBench b;
    SetImageSize(b.wb, b.pics, 6000);
    EXPECT_TRUE(b.pics.ImageSizeFixed);
    EXPECT_EQ(b.pics.ImageSizeTwips, 6000);
    EXPECT_TRUE(b.wb.menu("mnuDrawImageSize").enabled);
    mnuDrawImageSize_Click(b.wb, b.pics);
    EXPECT_FALSE(b.pics.ImageSizeFixed);
    EXPECT_FALSE(b.wb.menu("mnuDrawImageSize").enabled);
}

TEST(ComputeFractalLayout, TakesTheSmallerSideLessTheGaps) {
    // Width limits: 600 - 4 - 13.
    FractalLayout l = ComputeFractalLayout(600, 800, 20, 4, std::nullopt, 17);
    EXPECT_EQ(l.side, 583);
    EXPECT_EQ(l.outerSide, 587);
    EXPECT_FALSE(l.scrollbars);
    EXPECT_EQ(l.scrollRange, 0);
    // Height limits: 500 - 20 - 4 - 24 - 13.
    l = ComputeFractalLayout(800, 500, 20, 4, std::nullopt, 17);
    EXPECT_EQ(l.side, 439);
    EXPECT_EQ(l.outerSide, 443);
}

TEST(ComputeFractalLayout, AFixedSideThatFitsNeedsNoScrollbars) {
    const FractalLayout l = ComputeFractalLayout(600, 800, 20, 4, 300, 17);
    EXPECT_EQ(l.side, 300);
    EXPECT_EQ(l.outerSide, 304);
    EXPECT_FALSE(l.scrollbars);
}

TEST(ComputeFractalLayout, AFixedSideThatDoesNotFitGetsScrollbarsOverTheHiddenLength) {
    const FractalLayout l = ComputeFractalLayout(600, 800, 20, 4, 1000, 17);
    EXPECT_EQ(l.side, 1000);
    EXPECT_TRUE(l.scrollbars);
    EXPECT_EQ(l.outerSide, 583 - 17 + 4);
    EXPECT_EQ(l.scrollRange, 1000 - (583 - 17));
}

TEST(ComputeFractalLayout, ATinyWindowKeepsAOnePixelPicture) {
    const FractalLayout l = ComputeFractalLayout(10, 10, 20, 4, std::nullopt, 17);
    EXPECT_EQ(l.side, 1);
    EXPECT_FALSE(l.scrollbars);
}

}  // namespace
}  // namespace quillane
