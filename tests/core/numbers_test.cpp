#include "core/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillane {
namespace {

TEST(Val, ReadsPlainNumbers) {
    EXPECT_DOUBLE_EQ(Val("0.5"), 0.5);
    EXPECT_DOUBLE_EQ(Val("-1.25"), -1.25);
    EXPECT_DOUBLE_EQ(Val("+3"), 3.0);
    EXPECT_DOUBLE_EQ(Val(".5"), 0.5);
    EXPECT_DOUBLE_EQ(Val("1e3"), 1000.0);
    EXPECT_DOUBLE_EQ(Val("2.5E-2"), 0.025);
}

TEST(Val, SkipsBlanksEvenBetweenDigits) {
    EXPECT_DOUBLE_EQ(Val("0.25 7"), 0.257);
    EXPECT_DOUBLE_EQ(Val("  \t 12"), 12.0);
    EXPECT_DOUBLE_EQ(Val("- 4"), -4.0);
    EXPECT_DOUBLE_EQ(Val("1 000"), 1000.0);
}

TEST(Val, StopsAtTheFirstOtherCharacter) {
    EXPECT_DOUBLE_EQ(Val("3.5abc"), 3.5);
    EXPECT_DOUBLE_EQ(Val("1.2.3"), 1.2);
    EXPECT_DOUBLE_EQ(Val("7,5"), 7.0);
    EXPECT_DOUBLE_EQ(Val("2e"), 2.0);
}

TEST(Val, HugeAndTinyExponents) {
    EXPECT_EQ(Val("1e-400"), 0.0);
    EXPECT_EQ(Val("-1e999"), -std::numeric_limits<double>::max());
    EXPECT_EQ(Val("1e999"), std::numeric_limits<double>::max());
}

TEST(Val, TextWithoutANumberIsZero) {
    EXPECT_EQ(Val(""), 0.0);
    EXPECT_EQ(Val("abc"), 0.0);
    EXPECT_EQ(Val("-"), 0.0);
    EXPECT_EQ(Val("."), 0.0);
    EXPECT_EQ(Val("\x01\xff"), 0.0);
}

TEST(Round, IsHalfToEven) {
    EXPECT_DOUBLE_EQ(Round(2.5), 2.0);
    EXPECT_DOUBLE_EQ(Round(3.5), 4.0);
    EXPECT_DOUBLE_EQ(Round(-2.5), -2.0);
    EXPECT_DOUBLE_EQ(Round(0.125, 2), 0.12);
    EXPECT_DOUBLE_EQ(Round(0.375, 2), 0.38);
    EXPECT_DOUBLE_EQ(Round(1.0 / 3.0, 6), 0.333333);
}

TEST(CInt, ConvertsHalfToEvenAndSaturates) {
    EXPECT_EQ(CInt(0.5), 0);
    EXPECT_EQ(CInt(1.5), 2);
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(-1.5), -2);
    EXPECT_EQ(CInt(-2.5), -2);
    EXPECT_EQ(CLng(1e12), 2147483647);
    EXPECT_EQ(CLng(-1e12), -2147483647 - 1);
}

TEST(Format, RoundsHalfAwayFromZero) {
    EXPECT_EQ(Format(0.0005, "0.000"), "0.001");
    EXPECT_EQ(Format(0.0015, "0.000"), "0.002");
    EXPECT_EQ(Format(0.0025, "0.000"), "0.003");
    EXPECT_EQ(Format(-0.0025, "0.000"), "-0.003");
    EXPECT_EQ(Format(2.5, "0"), "3");
    EXPECT_EQ(Format(0.125, "0.00"), "0.13");
}

TEST(Format, KeepsLiteralBlanksOfThePattern) {
    EXPECT_EQ(Format(0.5, " 0.000000 "), " 0.500000 ");
    EXPECT_EQ(Format(-0.5, "0.000000 "), "-0.500000 ");
    EXPECT_EQ(Format(1.0 / 3.0, " 0.000000"), " 0.333333");
    EXPECT_EQ(Format(12.3456, "0.00"), "12.35");
    EXPECT_EQ(Format(0, "0.000"), "0.000");
    EXPECT_EQ(Format(1.2, "0.0"), "1.2");
}

TEST(Str, PrintsLikeTheRuntime) {
    EXPECT_EQ(Str(0.5f), " .5");
    EXPECT_EQ(Str(-0.5f), "-.5");
    EXPECT_EQ(Str(3.0f), " 3");
    EXPECT_EQ(Str(0.0f), " 0");
    EXPECT_EQ(Str(1234567.0f), " 1234567");
    EXPECT_EQ(Str(12345678.0f), " 1.234568E+07");
    EXPECT_EQ(Str(0.1f), " .1");
    EXPECT_EQ(Str(0.00001f), " 1E-05");
    EXPECT_EQ(Str(-2.25f), "-2.25");
}

TEST(AngleOf, FollowsTheQuadrantRules) {
    EXPECT_EQ(AngleOf(0, 0), 0.0);
    EXPECT_EQ(AngleOf(0, 2), 90.0);
    EXPECT_EQ(AngleOf(0, -2), -90.0);
    EXPECT_EQ(AngleOf(-1, 0), 180.0);
    EXPECT_NEAR(AngleOf(1, 1), 45.0, 1e-7);
    EXPECT_NEAR(AngleOf(-1, 1), 135.0, 1e-7);
    EXPECT_NEAR(AngleOf(-1, -1), -135.0, 1e-7);
}

TEST(Constants, PiIsTheShortDecimal) {
    EXPECT_EQ(Pi, 3.141592654);
    EXPECT_EQ(DegToRad, 0.017453292522222223);
    EXPECT_EQ(RadToDeg, 57.29577950560105);
}

TEST(Trim, RemovesBlanksOnly) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\tx\t"), "\tx\t");
    EXPECT_EQ(RTrim("ab  "), "ab");
    EXPECT_EQ(LTrim("  ab"), "ab");
}

TEST(TextLines, TakesBothLineEndsAndNoEmptyLastLine) {
    EXPECT_EQ(TextLines("a\r\nb\nc"), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(TextLines("a\r\n\r\nb\r\n"), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_TRUE(TextLines("").empty());
}

}  // namespace
}  // namespace quillane
