#include "core/evaluate_window.h"

#include <gtest/gtest.h>

#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::Messages;

TEST(EvaluateWindow, OkWithAnExpressionClosesWithItsValue) {
    ScriptedHost host;
    EvaluateOutcome outcome;
    EXPECT_TRUE(EvaluateOkClick("2*pi/5", outcome, host));
    EXPECT_EQ(outcome.Result, 1);
    EXPECT_EQ(outcome.value, static_cast<float>(2 * 3.14159265358979 / 5));
    EXPECT_TRUE(host.shown().empty());
}

TEST(EvaluateWindow, OkWithBadTextSaysSoAndStaysOpen) {
    ScriptedHost host;
    EvaluateOutcome outcome;
    outcome.value = 4;
    EXPECT_FALSE(EvaluateOkClick("sin(", outcome, host));
    EXPECT_EQ(host.shown(), (Messages{{"Error", "Cannot evaluate expression"}}));
    EXPECT_EQ(host.shown().front().icon, MessageIcon::Warning);
    EXPECT_EQ(host.shown().front().buttons, MessageButtons::OK);
    EXPECT_EQ(outcome.Result, 0);
    EXPECT_EQ(outcome.value, 4.0f);
}

TEST(EvaluateWindow, AnEmptyBoxCannotBeEvaluated) {
    ScriptedHost host;
    EvaluateOutcome outcome;
    EXPECT_FALSE(EvaluateOkClick("", outcome, host));
    EXPECT_EQ(host.shown(), (Messages{{"Error", "Cannot evaluate expression"}}));
}

TEST(EvaluateWindow, CancelLeavesResultTwoAndKeepsTheValue) {
    EvaluateOutcome outcome;
    outcome.value = 1.5f;
    EvaluateCancelClick(outcome);
    EXPECT_EQ(outcome.Result, 2);
    EXPECT_EQ(outcome.value, 1.5f);
}

}  // namespace
}  // namespace quillane
