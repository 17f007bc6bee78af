#include "core/evaluate_window.h"

#include "core/evaluator.h"

namespace quillane {

bool EvaluateOkClick(const std::string& txtExpression, EvaluateOutcome& outcome, Host& host) {
    Evaluator evaluator;
    float value = 0;
    if (!evaluator.Evaluate(txtExpression, value)) {
        host.warn(EvaluateErrorTitle, EvaluateErrorMessage);
        return false;
    }
    outcome.value = value;
    outcome.Result = 1;
    return true;
}

void EvaluateCancelClick(EvaluateOutcome& outcome) {
    outcome.Result = 2;
}

}  // namespace quillane
