#pragma once
// Evaluator: the numeric text boxes of dialogs and generators take expressions such as
// "2*pi/5", "sqrt(3)/2" or "30rad", read by recursive descent.
//
// Binding, loose to tight, as in the usual calculator languages:
//   sum      := term { ("+" | "-") term }
//   term     := unary { ("*" | "/") unary }          left to right
//   unary    := ("+" | "-") unary | power
//   power    := primary [ "^" unary ]               right to left: 2^3^2 = 2^9
//   primary  := number | "(" sum ")" | name "(" sum ")"
// So "-2^2" is -4 and "2^-2" is 0.25. A number is digits with at most one "."; there is
// no exponent form and no implied product: "2(3)", "(2)3" and text left after a closing
// parenthesis are errors rather than a quiet guess.
#include <optional>
#include <string>
#include <string_view>

namespace quillane {

class Evaluator {
  public:
    // Upper case, blanks removed, "," read as ".".
    const std::string& Expression() const { return expression_; }
    void setExpression(std::string_view text);

    // True after a failed evaluation.
    bool Error() const { return error_; }

    // The value of Expression; evaluated on first reading. 0 when Error.
    double result();

    // A value of the present Expression is there.
    bool Assigned() const { return assigned_; }

    // Rewrites Text ("rad", "pi", "e^("), evaluates it and stores the value in Result unless
    // Error; Result is left alone on failure. Returns !Error().
    bool Evaluate(std::string_view Text, float& Result);

    // Every occurrence of `find`, left to right, without rescanning what was put in.
    static std::string ReplaceText(std::string_view text, std::string_view find,
                                   std::string_view replacement);

  private:
    std::string expression_;
    bool error_ = false;
    double result_ = 0;
    bool assigned_ = false;
};

// The value of an expression text as a dialog box reads it, or nothing when it cannot be evaluated.
std::optional<float> EvaluateText(std::string_view text);

}  // namespace quillane
