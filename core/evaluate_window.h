#pragma once
// frmEvaluate: one box for an expression, with OK, Cancel and Help. The caller gets the value.
#include <string>

#include "core/host.h"

namespace quillane {

inline constexpr const char* EvaluateCaption = "Evaluate Expression";
inline constexpr const char* EvaluateErrorTitle = "Error";
inline constexpr const char* EvaluateErrorMessage = "Cannot evaluate expression";
inline constexpr const char* EvaluateHelpTopic = "evaluationHelp.html";

// What the window leaves for its caller: Result 1 for OK with the value, 2 for Cancel, 0 while open.
struct EvaluateOutcome {
    int Result = 0;
    float value = 0;
};

// cmdOk: evaluates the box. A failure is shown and the window stays open; returns true when it closes.
bool EvaluateOkClick(const std::string& txtExpression, EvaluateOutcome& outcome, Host& host);

// cmdCancel: closes without a value; the last value stays as it was.
void EvaluateCancelClick(EvaluateOutcome& outcome);

}  // namespace quillane
