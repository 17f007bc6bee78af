#include "core/evaluator.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "core/numbers.h"

namespace quillane {

namespace {

// Deeper nesting than any person types; it keeps the descent off the end of the stack.
constexpr int MaxNesting = 200;

std::string removeBlanks(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char ch : text)
        if (ch != ' ') out += ch;
    return out;
}

bool isDigit(char ch) {
    return ch >= '0' && ch <= '9';
}
bool isLetter(char ch) {
    return ch >= 'A' && ch <= 'Z';
}

using Function = double (*)(double);

struct NamedFunction {
    std::string_view name;
    Function apply;
};

double absolute(double x) {
    return std::fabs(x);
}
double arcCosine(double x) {
    return std::acos(x);
}
double arcSine(double x) {
    return std::asin(x);
}
double arcTangent(double x) {
    return std::atan(x);
}
double cosine(double x) {
    return std::cos(x);
}
double sine(double x) {
    return std::sin(x);
}
double tangent(double x) {
    return std::tan(x);
}
double exponential(double x) {
    return std::exp(x);
}
double logarithm(double x) {
    return std::log(x);
}
double squareRoot(double x) {
    return std::sqrt(x);
}

constexpr NamedFunction Functions[] = {
    {"ABS", absolute}, {"ACOS", arcCosine},    {"ARCCOS", arcCosine}, {"ARCSIN", arcSine},
    {"ASIN", arcSine}, {"ARCTAN", arcTangent}, {"ATAN", arcTangent},  {"ATN", arcTangent},
    {"COS", cosine},   {"SIN", sine},          {"TAN", tangent},      {"EXP", exponential},
    {"LN", logarithm}, {"LOG", logarithm},     {"SQR", squareRoot},   {"SQRT", squareRoot},
};

Function functionNamed(std::string_view name) {
    for (const NamedFunction& f : Functions)
        if (f.name == name) return f.apply;
    return nullptr;
}

// Recursive descent over the prepared text. After the first failure every level returns at once.
class Parser {
  public:
    explicit Parser(std::string_view text) : text_(text) {}

    std::optional<double> run() {
        const double value = sum();
        if (!failed_ && pos_ != text_.size()) fail();
        if (failed_) return std::nullopt;
        return value;
    }

  private:
    bool failed_ = false;
    std::string_view text_;
    size_t pos_ = 0;
    int depth_ = 0;

    double fail() {
        failed_ = true;
        return 0;
    }
    char peek() const { return pos_ < text_.size() ? text_[pos_] : '\0'; }
    bool take(char ch) {
        if (peek() != ch) return false;
        ++pos_;
        return true;
    }
    // Division by zero, logarithm of 0, square root of -1, overflow: all end up not finite.
    double checked(double value) { return std::isfinite(value) ? value : fail(); }

    double sum() {
        double value = term();
        while (!failed_) {
            if (take('+'))
                value = checked(value + term());
            else if (take('-'))
                value = checked(value - term());
            else
                break;
        }
        return value;
    }

    double term() {
        double value = unary();
        while (!failed_) {
            if (take('*')) {
                value = checked(value * unary());
            } else if (take('/')) {
                const double divisor = unary();
                if (failed_) break;
                value = divisor == 0 ? fail() : checked(value / divisor);
            } else {
                break;
            }
        }
        return value;
    }

    double unary() {
        if (++depth_ > MaxNesting) return fail();
        double value;
        if (take('-'))
            value = -unary();
        else if (take('+'))
            value = unary();
        else
            value = power();
        --depth_;
        return failed_ ? 0 : value;
    }

    double power() {
        const double base = primary();
        if (failed_ || !take('^')) return base;
        const double exponent = unary();
        return failed_ ? 0 : checked(std::pow(base, exponent));
    }

    double primary() {
        const char ch = peek();
        if (isDigit(ch) || ch == '.') return number();
        if (ch == '(') return group();
        if (isLetter(ch)) return function();
        return fail();
    }

    double number() {
        const size_t start = pos_;
        bool point = false;
        bool digit = false;
        while (isDigit(peek()) || (peek() == '.' && !point)) {
            if (peek() == '.')
                point = true;
            else
                digit = true;
            ++pos_;
        }
        if (!digit) return fail();
        double value = 0;
        const auto [end, ec] = std::from_chars(text_.data() + start, text_.data() + pos_, value);
        if (ec != std::errc() || end != text_.data() + pos_) return fail();
        return checked(value);
    }

    double group() {
        take('(');
        const double value = sum();
        if (failed_) return 0;
        return take(')') ? value : fail();
    }

    double function() {
        const size_t start = pos_;
        while (isLetter(peek()) || isDigit(peek())) ++pos_;
        const Function apply = functionNamed(text_.substr(start, pos_ - start));
        if (apply == nullptr || peek() != '(') return fail();
        const double argument = group();
        return failed_ ? 0 : checked(apply(argument));
    }
};

std::string rewrite(std::string_view text) {
    std::string s = ToLower(removeBlanks(text));
    s = Evaluator::ReplaceText(s, "*rad", "rad");
    s = Evaluator::ReplaceText(s, "rad", "*(180/pi)");
    s = Evaluator::ReplaceText(s, "pi", "(3.14159265358979)");
    return Evaluator::ReplaceText(s, "e^(", "exp(");
}

}  // namespace

void Evaluator::setExpression(std::string_view text) {
    expression_ = ReplaceText(ToUpper(removeBlanks(text)), ",", ".");
    error_ = false;
    assigned_ = false;
    result_ = 0;
}

double Evaluator::result() {
    if (!assigned_ && !error_) {
        const std::optional<double> value = Parser(expression_).run();
        error_ = !value;
        assigned_ = value.has_value();
        result_ = value.value_or(0);
    }
    return result_;
}

bool Evaluator::Evaluate(std::string_view Text, float& Result) {
    setExpression(rewrite(Text));
    const double value = result();
    // The caller keeps a 32-bit float; a value past its range is a failure, not an infinity.
    if (!error_ && std::fabs(value) > std::numeric_limits<float>::max()) {
        error_ = true;
        assigned_ = false;
        result_ = 0;
    }
    if (error_) return false;
    Result = static_cast<float>(value);
    return true;
}

std::string Evaluator::ReplaceText(std::string_view text, std::string_view find,
                                   std::string_view replacement) {
    if (find.empty()) return std::string(text);
    std::string out;
    size_t from = 0;
    for (size_t at = text.find(find); at != std::string_view::npos; at = text.find(find, from)) {
        out.append(text.substr(from, at - from));
        out.append(replacement);
        from = at + find.size();
    }
    out.append(text.substr(from));
    return out;
}

std::optional<float> EvaluateText(std::string_view text) {
    Evaluator evaluator;
    float value = 0;
    if (!evaluator.Evaluate(text, value)) return std::nullopt;
    return value;
}

}  // namespace quillane
