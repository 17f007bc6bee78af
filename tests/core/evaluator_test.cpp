#include "core/evaluator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "core/numbers.h"

namespace quillane {
namespace {

// The double value of a text that must evaluate.
double valueOf(std::string_view text) {
    Evaluator evaluator;
    float stored = NAN;
    EXPECT_TRUE(evaluator.Evaluate(text, stored)) << '"' << text << '"';
    EXPECT_FALSE(evaluator.Error()) << text;
    return evaluator.result();
}

// True when the text fails with the error flag and leaves the caller's value alone.
bool fails(std::string_view text) {
    Evaluator evaluator;
    float stored = 7.0f;
    const bool ok = evaluator.Evaluate(text, stored);
    return !ok && evaluator.Error() && !evaluator.Assigned() && stored == 7.0f;
}

TEST(EvaluatorEdgeCases, ACommaActsAsDecimalPoint) {
    EXPECT_DOUBLE_EQ(valueOf("1,5"), 1.5);
    EXPECT_DOUBLE_EQ(valueOf("0,25*4"), 1.0);
    EXPECT_DOUBLE_EQ(valueOf(",5"), 0.5);
    EXPECT_TRUE(fails("1,2,3"));
}

TEST(EvaluatorEdgeCases, TheSineOfHalfPiGivesOne) {
    Evaluator evaluator;
    float value = 0;
    ASSERT_TRUE(evaluator.Evaluate("sin(pi/2)", value));
    EXPECT_EQ(value, 1.0f);
    EXPECT_NEAR(evaluator.result(), 1.0, 1e-15);
}

TEST(EvaluatorEdgeCases, ANumberFollowedByRadIsThatNumberTimes180OverPi) {
    const double factor = 180 / EvaluatorPi;
    EXPECT_DOUBLE_EQ(valueOf("2rad"), 2 * factor);
    EXPECT_DOUBLE_EQ(valueOf("2 rad"), 2 * factor);
    EXPECT_DOUBLE_EQ(valueOf("2*rad"), 2 * factor);
    EXPECT_DOUBLE_EQ(valueOf("0.5RAD"), 0.5 * factor);
    EXPECT_NEAR(valueOf("(pi/2)rad"), 90.0, 1e-12);
}

TEST(EvaluatorEdgeCases, AnEmptyTextIsAnError) {
    EXPECT_TRUE(fails(""));
    EXPECT_TRUE(fails("   "));
    EXPECT_TRUE(fails("()"));
}

TEST(EvaluatorRewrite, BlanksGoAndTheTextIsStoredInUpperCaseWithTheRewritesApplied) {
    Evaluator evaluator;
    float value = 0;
    ASSERT_TRUE(evaluator.Evaluate(" 2 * rad ", value));
    EXPECT_EQ(evaluator.Expression(), "2*(180/(3.14159265358979))");
    ASSERT_TRUE(evaluator.Evaluate("Pi", value));
    EXPECT_EQ(evaluator.Expression(), "(3.14159265358979)");
    ASSERT_TRUE(evaluator.Evaluate("e^(1)", value));
    EXPECT_EQ(evaluator.Expression(), "EXP(1)");
    // The text is kept as rewritten even when it cannot be evaluated.
    EXPECT_FALSE(evaluator.Evaluate("sqrt(x,5)+1", value));
    EXPECT_EQ(evaluator.Expression(), "SQRT(X.5)+1");
}

TEST(EvaluatorRewrite, PiHasTheEvaluatorsOwnPrecision) {
    EXPECT_EQ(valueOf("pi"), EvaluatorPi);
    EXPECT_NE(valueOf("PI"), Pi);
}

TEST(EvaluatorRewrite, EToTheBracketIsTheExponential) {
    EXPECT_DOUBLE_EQ(valueOf("e^(1)"), std::exp(1.0));
    EXPECT_DOUBLE_EQ(valueOf("E^(2)"), std::exp(2.0));
    EXPECT_DOUBLE_EQ(valueOf("3*e^(-1)"), 3 * std::exp(-1.0));
    // Without the bracket there is no constant e.
    EXPECT_TRUE(fails("e^2"));
    EXPECT_TRUE(fails("e"));
}

TEST(EvaluatorSetExpression, StoresUpperCaseWithoutBlanksAndWithPoints) {
    Evaluator evaluator;
    evaluator.setExpression(" 1,5 + sin (pi) ");
    EXPECT_EQ(evaluator.Expression(), "1.5+SIN(PI)");
    EXPECT_FALSE(evaluator.Assigned());
}

TEST(EvaluatorSetExpression, ResultEvaluatesOnFirstReadingWithoutRewriting) {
    Evaluator evaluator;
    evaluator.setExpression("2^10 - 24");
    EXPECT_FALSE(evaluator.Assigned());
    EXPECT_EQ(evaluator.result(), 1000.0);
    EXPECT_TRUE(evaluator.Assigned());
    EXPECT_FALSE(evaluator.Error());
    // Only Evaluate knows pi; the bare expression reads it as an unknown name.
    evaluator.setExpression("pi");
    EXPECT_EQ(evaluator.result(), 0.0);
    EXPECT_TRUE(evaluator.Error());
    EXPECT_FALSE(evaluator.Assigned());
}

TEST(EvaluatorSetExpression, ANewExpressionClearsTheErrorFlag) {
    Evaluator evaluator;
    float value = 3;
    EXPECT_FALSE(evaluator.Evaluate("1/0", value));
    EXPECT_TRUE(evaluator.Error());
    EXPECT_EQ(value, 3.0f);
    EXPECT_TRUE(evaluator.Evaluate("4/8", value));
    EXPECT_FALSE(evaluator.Error());
    EXPECT_TRUE(evaluator.Assigned());
    EXPECT_EQ(value, 0.5f);
}

TEST(EvaluatorReplaceText, ReplacesEveryOccurrenceWithoutRescanning) {
    EXPECT_EQ(Evaluator::ReplaceText("a,b,c", ",", "."), "a.b.c");
    EXPECT_EQ(Evaluator::ReplaceText("aaaa", "aa", "a"), "aa");
    EXPECT_EQ(Evaluator::ReplaceText("aa", "a", "aa"), "aaaa");
    EXPECT_EQ(Evaluator::ReplaceText("rad", "rad", "*(180/pi)"), "*(180/pi)");
    EXPECT_EQ(Evaluator::ReplaceText("abc", "", "x"), "abc");
    EXPECT_EQ(Evaluator::ReplaceText("", "a", "b"), "");
    EXPECT_EQ(Evaluator::ReplaceText("xyz", "q", "b"), "xyz");
}

TEST(EvaluatorResult, IsKeptAsDoubleAndHandedOutAsFloat) {
    Evaluator evaluator;
    float value = 0;
    ASSERT_TRUE(evaluator.Evaluate("1/3", value));
    EXPECT_EQ(evaluator.result(), 1.0 / 3.0);
    EXPECT_EQ(value, static_cast<float>(1.0 / 3.0));
}

TEST(EvaluatorResult, AValuePastTheRangeOfAFloatIsAnError) {
    EXPECT_TRUE(fails("340000000000000000000000000000000000000*10"));
    EXPECT_TRUE(fails("-10^39"));
    EXPECT_FLOAT_EQ(static_cast<float>(valueOf("10^38")), 1e38f);
}

TEST(EvaluatorFunctions, EveryNameGivesItsFunction) {
    const double p = EvaluatorPi;
    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"ABS(-2.5)", 2.5},
        {"ACOS(0.5)", std::acos(0.5)},
        {"ARCCOS(-1)", std::acos(-1.0)},
        {"ARCSIN(1)", std::asin(1.0)},
        {"ASIN(0.5)", std::asin(0.5)},
        {"ARCTAN(1)", std::atan(1.0)},
        {"ATAN(-2)", std::atan(-2.0)},
        {"ATN(3)", std::atan(3.0)},
        {"COS(1)", std::cos(1.0)},
        {"SIN(1)", std::sin(1.0)},
        {"TAN(1)", std::tan(1.0)},
        {"EXP(2)", std::exp(2.0)},
        {"LN(10)", std::log(10.0)},
        {"LOG(100)", std::log(100.0)},
        {"SQR(16)", 4.0},
        {"SQRT(2)", std::sqrt(2.0)},
        {"cos(pi)", std::cos(p)},
        {"Sqrt(abs(-9))", 3.0},
    };
    for (const auto& c : cases) EXPECT_DOUBLE_EQ(valueOf(c.text), c.value) << c.text;
}

TEST(EvaluatorFunctions, LogIsTheNaturalLogarithm) {
    EXPECT_NE(valueOf("log(100)"), 2.0);
    EXPECT_DOUBLE_EQ(valueOf("ln(e^(3))"), 3.0);
}

TEST(EvaluatorFunctions, AnUnknownNameOrANameWithoutBracketIsAnError) {
    for (const char* text :
         {"foo(1)", "sinh(1)", "log10(100)", "sin2", "x", "sin", "sin 2", "cos()", "abs(1"})
        EXPECT_TRUE(fails(text)) << text;
}

TEST(EvaluatorFailures, ArithmeticFailuresSetTheErrorFlag) {
    for (const char* text : {"1/0", "0/0", "1/(2-2)", "5/(1-1)*0", "log(0)", "ln(-1)", "sqrt(-1)", "acos(2)",
                             "asin(-1.5)", "exp(1000)", "0^-1", "(-8)^(1/3)", "10^400"})
        EXPECT_TRUE(fails(text)) << text;
}

TEST(EvaluatorFailures, MalformedTextIsAnError) {
    for (const char* text :
         {"(1+2", "1+2)", "((1)",  ")(",  "1+",  "*2", "/2",  "2**3", "2//3",  "1+*2", "^2",
          "2^",   ".",    "1.2.3", "..5", "1e5", "#",  "1;2", "2=2",  "1\t+2", "\xff"})
        EXPECT_TRUE(fails(text)) << text;
}

TEST(EvaluatorFailures, TextAfterAClosingBracketOrNumberIsNotAnImpliedProduct) {
    for (const char* text : {"2(3)", "(2)3", "(2)(3)", "sin(0)1", "2pi", "pi2", "(1)sin(0)"})
        EXPECT_TRUE(fails(text)) << text;
}

TEST(EvaluatorGrammar, ProductsBindTighterThanSums) {
    EXPECT_EQ(valueOf("1+2*3"), 7.0);
    EXPECT_EQ(valueOf("(1+2)*3"), 9.0);
    EXPECT_EQ(valueOf("2*3^2"), 18.0);
    EXPECT_EQ(valueOf("10-4/2"), 8.0);
}

TEST(EvaluatorGrammar, SumsAndProductsGoLeftToRight) {
    EXPECT_EQ(valueOf("8/2/2"), 2.0);
    EXPECT_EQ(valueOf("6/2*3"), 9.0);
    EXPECT_EQ(valueOf("8-2-2"), 4.0);
    EXPECT_EQ(valueOf("1-2+3"), 2.0);
}

TEST(EvaluatorGrammar, PowersGoRightToLeft) {
    EXPECT_EQ(valueOf("2^3^2"), 512.0);
    EXPECT_EQ(valueOf("(2^3)^2"), 64.0);
    EXPECT_EQ(valueOf("2^0.5"), std::sqrt(2.0));
}

TEST(EvaluatorGrammar, ALeadingSignAppliesToThePower) {
    EXPECT_EQ(valueOf("-2^2"), -4.0);
    EXPECT_EQ(valueOf("(-2)^2"), 4.0);
    EXPECT_EQ(valueOf("2^-2"), 0.25);
    EXPECT_EQ(valueOf("-2^-2"), -0.25);
    EXPECT_EQ(valueOf("2^-1^2"), 0.5);
}

TEST(EvaluatorGrammar, SignsMayFollowAnyOperator) {
    EXPECT_EQ(valueOf("2*-3"), -6.0);
    EXPECT_EQ(valueOf("2--3"), 5.0);
    EXPECT_EQ(valueOf("-2*-2"), 4.0);
    EXPECT_EQ(valueOf("6/-2"), -3.0);
    EXPECT_EQ(valueOf("+3"), 3.0);
    EXPECT_EQ(valueOf("--3"), 3.0);
    EXPECT_EQ(valueOf("-(-3)"), 3.0);
    EXPECT_EQ(valueOf("-sin(pi/2)"), -1.0);
    EXPECT_EQ(valueOf("1+-+2"), -1.0);
}

TEST(EvaluatorGrammar, NumbersAreDigitsWithOnePoint) {
    EXPECT_EQ(valueOf(".5"), 0.5);
    EXPECT_EQ(valueOf("5."), 5.0);
    EXPECT_EQ(valueOf("007"), 7.0);
    EXPECT_EQ(valueOf("12.375"), 12.375);
    EXPECT_EQ(valueOf("0.1"), 0.1);
}

TEST(EvaluatorGrammar, BlanksAnywhereAreIgnored) {
    EXPECT_EQ(valueOf(" 1 + 2 "), 3.0);
    EXPECT_EQ(valueOf("1 000"), 1000.0);
    EXPECT_EQ(valueOf("s i n ( 0 )"), 0.0);
    EXPECT_EQ(valueOf("2 ^ 3"), 8.0);
    EXPECT_EQ(valueOf("p i"), EvaluatorPi);
}

TEST(EvaluatorGrammar, DeepButReasonableNestingWorks) {
    const std::string nested = std::string(150, '(') + "2" + std::string(150, ')');
    EXPECT_EQ(valueOf(nested), 2.0);
    EXPECT_EQ(valueOf(std::string(150, '-') + "2"), 2.0);
}

TEST(EvaluatorGrammar, NestingBeyondTheLimitIsAnErrorNotACrash) {
    EXPECT_TRUE(fails(std::string(100000, '(') + "1" + std::string(100000, ')')));
    EXPECT_TRUE(fails(std::string(100000, '-') + "1"));
    std::string powers;
    for (int i = 0; i < 50000; ++i) powers += "1^";
    EXPECT_TRUE(fails(powers + "1"));
    EXPECT_TRUE(fails("sin(" + std::string(100000, '(')));
}

TEST(EvaluateText, GivesTheFloatOrNothing) {
    EXPECT_EQ(EvaluateText("2*pi/5"), static_cast<float>(2 * EvaluatorPi / 5));
    EXPECT_EQ(EvaluateText("1/0"), std::nullopt);
    EXPECT_EQ(EvaluateText(""), std::nullopt);
}

}  // namespace
}  // namespace quillane
