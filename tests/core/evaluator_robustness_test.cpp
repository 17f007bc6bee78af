// The evaluator against random text, random well-formed expressions and a decimal-comma locale.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <string>

#include "core/evaluator.h"
#include "core/numbers.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

TEST(EvaluatorFuzz, RandomTextNeverThrowsAndTheFlagsAgreeWithTheAnswer) {
    std::mt19937 random(20240611);
    const std::string alphabet = "0123456789.,+-*/^()  piradesincoxqtlbgEPIRADSQT\t";
    int evaluated = 0;
    for (int i = 0; i < 20000; ++i) {
        std::string text(random() % 40, ' ');
        for (char& ch : text)
            ch =
                random() % 10 == 0 ? static_cast<char>(random() % 256) : alphabet[random() % alphabet.size()];
        Evaluator evaluator;
        float value = -123.0f;
        bool ok = false;
        ASSERT_NO_THROW(ok = evaluator.Evaluate(text, value)) << text;
        ASSERT_EQ(ok, !evaluator.Error()) << text;
        ASSERT_EQ(ok, evaluator.Assigned()) << text;
        if (ok) {
            ++evaluated;
            ASSERT_TRUE(std::isfinite(evaluator.result())) << text;
            ASSERT_EQ(value, static_cast<float>(evaluator.result())) << text;
        } else {
            ASSERT_EQ(value, -123.0f) << text;
            ASSERT_EQ(evaluator.result(), 0.0) << text;
        }
    }
    // Short random texts such as "7", "(3)" or "1+2" do evaluate; the fuzz reaches both answers.
    EXPECT_GT(evaluated, 100);
}

// A random expression tree, its value by direct computation, and its text with the fewest brackets
// the binding rules allow.
struct Node {
    char op = 0;  // 0 number, 'u' unary minus, 'f' function, or + - * / ^
    double number = 0;
    std::string name;
    std::unique_ptr<Node> left, right;
};

enum Level { SumLevel = 1, ProductLevel, UnaryLevel, PowerLevel, AtomLevel };

int levelOf(const Node& n) {
    switch (n.op) {
        case '+':
        case '-':
            return SumLevel;
        case '*':
        case '/':
            return ProductLevel;
        case 'u':
            return UnaryLevel;
        case '^':
            return PowerLevel;
        default:
            return AtomLevel;
    }
}

std::unique_ptr<Node> randomTree(std::mt19937& random, int depth) {
    auto node = std::make_unique<Node>();
    const int pick = depth <= 0 ? 0 : static_cast<int>(random() % 9);
    if (pick == 0) {
        node->number = static_cast<double>(random() % 41) / 4;  // exact in binary
    } else if (pick == 1) {
        node->op = 'u';
        node->left = randomTree(random, depth - 1);
    } else if (pick == 2) {
        static const char* names[] = {"SIN", "cos", "Abs", "sqrt", "ATN", "exp", "ln"};
        node->op = 'f';
        node->name = names[random() % 7];
        node->left = randomTree(random, depth - 1);
    } else {
        node->op = "+-*/^+-"[pick - 2];
        node->left = randomTree(random, depth - 1);
        node->right = randomTree(random, depth - 1);
    }
    return node;
}

double apply(const std::string& name, double x) {
    const std::string upper = ToUpper(name);
    if (upper == "SIN") return std::sin(x);
    if (upper == "COS") return std::cos(x);
    if (upper == "ABS") return std::fabs(x);
    if (upper == "SQRT") return std::sqrt(x);
    if (upper == "ATN") return std::atan(x);
    if (upper == "EXP") return std::exp(x);
    return std::log(x);
}

// NaN stands for a failure; it spreads through every later step.
double reference(const Node& n) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    if (n.op == 0) return n.number;
    const double a = reference(*n.left);
    if (std::isnan(a)) return nan;
    if (n.op == 'u') return -a;
    if (n.op == 'f') return std::isfinite(apply(n.name, a)) ? apply(n.name, a) : nan;
    const double b = reference(*n.right);
    if (std::isnan(b)) return nan;
    double v = nan;
    switch (n.op) {
        case '+':
            v = a + b;
            break;
        case '-':
            v = a - b;
            break;
        case '*':
            v = a * b;
            break;
        case '/':
            v = b == 0 ? nan : a / b;
            break;
        case '^':
            v = std::pow(a, b);
            break;
    }
    return std::isfinite(v) ? v : nan;
}

std::string bracket(const std::string& text, bool needed) {
    return needed ? "(" + text + ")" : text;
}

std::string print(const Node& n, std::mt19937& random) {
    if (n.op == 0) {
        char digits[32];
        std::string text(digits, std::to_chars(digits, digits + sizeof digits, n.number).ptr);
        if (random() % 3 == 0 && text.find('.') != std::string::npos) text[text.find('.')] = ',';
        return text;
    }
    if (n.op == 'u') return "-" + bracket(print(*n.left, random), levelOf(*n.left) < UnaryLevel);
    if (n.op == 'f') return n.name + "(" + print(*n.left, random) + ")";
    const std::string gap = random() % 4 == 0 ? " " : "";
    const int level = levelOf(n);
    if (n.op == '^')
        return bracket(print(*n.left, random), levelOf(*n.left) < AtomLevel) + gap + "^" + gap +
               bracket(print(*n.right, random), levelOf(*n.right) < UnaryLevel);
    return bracket(print(*n.left, random), levelOf(*n.left) < level) + gap + n.op + gap +
           bracket(print(*n.right, random), levelOf(*n.right) <= level);
}

TEST(EvaluatorFuzz, RandomExpressionsWithFewestBracketsGiveTheDirectlyComputedValue) {
    std::mt19937 random(77);
    int failures = 0;
    for (int i = 0; i < 5000; ++i) {
        const std::unique_ptr<Node> tree = randomTree(random, 1 + static_cast<int>(random() % 6));
        const std::string text = print(*tree, random);
        const double expected = reference(*tree);
        const bool representable = std::fabs(expected) <= std::numeric_limits<float>::max();
        Evaluator evaluator;
        float value = 0;
        const bool ok = evaluator.Evaluate(text, value);
        if (std::isnan(expected) || !representable) {
            ++failures;
            EXPECT_FALSE(ok) << text;
        } else {
            ASSERT_TRUE(ok) << text;
            EXPECT_EQ(evaluator.result(), expected) << text;
            EXPECT_EQ(value, static_cast<float>(expected)) << text;
        }
    }
    EXPECT_GT(failures, 0);
    EXPECT_LT(failures, 2500);
}

// A decimal-comma locale, built on the spot so that the test does not depend on the machine's list.
class CommaLocale {
  public:
    CommaLocale() {
        const std::string source = dir_.write("comma.src",
                                              "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\n"
                                              "grouping 3;3\nEND LC_NUMERIC\n");
        const std::string command =
            "localedef -c -i '" + source + "' -f ANSI_X3.4-1968 '" + dir_.path("comma") + "' >/dev/null 2>&1";
        if (std::system(command.c_str()) == -1) return;
        setenv("LOCPATH", dir_.path("").c_str(), 1);
        active_ = std::setlocale(LC_NUMERIC, "comma") != nullptr;
    }
    ~CommaLocale() {
        std::setlocale(LC_NUMERIC, "C");
        unsetenv("LOCPATH");
    }
    bool active() const { return active_; }

  private:
    testing::TempDir dir_;
    bool active_ = false;
};

TEST(EvaluatorLocale, APointIsTheDecimalPointWhateverTheLocale) {
    CommaLocale comma;
    if (!comma.active()) GTEST_SKIP() << "localedef could not build a decimal-comma locale here";
    // The locale really is in force: the C library now stops at the point.
    ASSERT_EQ(std::strtod("1.5", nullptr), 1.0);
    EXPECT_EQ(EvaluateText("1.5"), 1.5f);
    EXPECT_EQ(EvaluateText("1,5"), 1.5f);
    EXPECT_EQ(EvaluateText("0.25*pi"), static_cast<float>(0.25 * EvaluatorPi));
}

}  // namespace
}  // namespace quillane
