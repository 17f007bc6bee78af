#include "core/numbers.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <sstream>

namespace quillane {

namespace {
bool isBlank(char ch) {
    return ch == ' ' || ch == '\t';
}
bool isDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

// Next character that is not a blank or tab, from position i.
size_t skipBlanks(std::string_view t, size_t i) {
    while (i < t.size() && isBlank(t[i])) ++i;
    return i;
}
}  // namespace

double Val(std::string_view text) {
    std::string digits;  // the number with blanks removed, handed to strtod
    size_t i = skipBlanks(text, 0);
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
        digits += text[i];
        i = skipBlanks(text, i + 1);
    }
    bool anyDigit = false;
    bool point = false;
    while (i < text.size()) {
        char ch = text[i];
        if (isDigit(ch)) {
            digits += ch;
            anyDigit = true;
        } else if (ch == '.' && !point) {
            digits += ch;
            point = true;
        } else if (!isBlank(ch)) {
            break;
        }
        ++i;
    }
    if (!anyDigit) return 0.0;
    // Exponent: E or D (the runtime's double exponent), then optional sign and digits.
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        size_t j = skipBlanks(text, i + 1);
        std::string exponent = "e";
        if (j < text.size() && (text[j] == '-' || text[j] == '+')) {
            exponent += text[j];
            j = skipBlanks(text, j + 1);
        }
        bool expDigit = false;
        while (j < text.size() && (isDigit(text[j]) || isBlank(text[j]))) {
            if (isDigit(text[j])) {
                exponent += text[j];
                expDigit = true;
            }
            ++j;
        }
        if (expDigit) digits += exponent;
    }
    // from_chars reads "." whatever the locale, unlike strtod.
    double v = 0;
    const char* first = digits.c_str();
    if (*first == '+') ++first;
    const auto [end, ec] = std::from_chars(first, digits.c_str() + digits.size(), v);
    (void)end;
    if (ec == std::errc::result_out_of_range) {
        const bool tiny = digits.find("e-") != std::string::npos;
        v = tiny ? 0.0 : ((*first == '-') ? -HUGE_VAL : HUGE_VAL);
    }
    if (!std::isfinite(v))
        return v > 0 ? std::numeric_limits<double>::max() : -std::numeric_limits<double>::max();
    return v;
}

double Round(double x, int decimals) {
    if (!std::isfinite(x)) return x;
    double scale = std::pow(10.0, decimals);
    double scaled = x * scale;
    if (!std::isfinite(scaled) || std::fabs(scaled) >= 4.5e15) return x;
    // nearbyint follows the default rounding mode, round half to even.
    return std::nearbyint(scaled) / scale;
}

int32_t CLng(double x) {
    if (std::isnan(x)) return 0;
    double r = std::nearbyint(x);
    if (r >= 2147483647.0) return std::numeric_limits<int32_t>::max();
    if (r <= -2147483648.0) return std::numeric_limits<int32_t>::min();
    return static_cast<int32_t>(r);
}

int32_t CInt(double x) {
    return CLng(x);
}

std::string Format(double x, std::string_view pattern) {
    // Split the pattern into prefix, number field and suffix.
    size_t start = pattern.find_first_of("0#.");
    if (start == std::string_view::npos) return std::string(pattern);
    size_t end = start;
    while (end < pattern.size() && (pattern[end] == '0' || pattern[end] == '#' || pattern[end] == '.')) ++end;
    std::string_view field = pattern.substr(start, end - start);
    size_t point = field.find('.');
    int decimals = point == std::string_view::npos ? 0 : static_cast<int>(field.size() - point - 1);
    int minInt = 0;
    for (size_t k = 0; k < (point == std::string_view::npos ? field.size() : point); ++k)
        if (field[k] == '0') ++minInt;

    bool negative = x < 0;
    double mag = std::fabs(x);
    // Half away from zero at the given decimals; the small nudge absorbs the binary
    // representation error of values such as 0.0005.
    double scale = std::pow(10.0, decimals);
    double scaled = mag * scale;
    double rounded = std::floor(scaled + 0.5 + scaled * 1e-15);
    char buf[400];
    std::snprintf(buf, sizeof buf, "%.0f", rounded);
    std::string all = buf;
    while (static_cast<int>(all.size()) < decimals + 1) all = "0" + all;
    std::string intPart = all.substr(0, all.size() - decimals);
    std::string fracPart = all.substr(all.size() - decimals);
    if (intPart == "0" && minInt == 0) intPart.clear();
    while (static_cast<int>(intPart.size()) < minInt) intPart = "0" + intPart;
    std::string number = intPart;
    if (point != std::string_view::npos) number += "." + fracPart;
    std::string out = std::string(pattern.substr(0, start)) + number + std::string(pattern.substr(end));
    return negative ? "-" + out : out;
}

namespace {
std::string strWithDigits(double x, int digits) {
    if (x == 0) return " 0";
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*G", digits, x);
    std::string s = buf;
    for (char& ch : s)
        if (ch == ',') ch = '.';  // the runtime prints "." whatever the locale
    // The runtime writes two-digit exponents ("1E+07") and drops the leading zero (".5").
    size_t e = s.find('E');
    if (e != std::string::npos) {
        std::string mant = s.substr(0, e);
        std::string expo = s.substr(e + 1);
        char sign = expo[0];
        std::string expDigits = expo.substr(1);
        while (expDigits.size() > 2 && expDigits[0] == '0') expDigits.erase(0, 1);
        s = mant + "E" + sign + expDigits;
    }
    bool negative = s[0] == '-';
    std::string body = negative ? s.substr(1) : s;
    if (body.size() > 1 && body[0] == '0' && body[1] == '.') body.erase(0, 1);
    return (negative ? "-" : " ") + body;
}
}  // namespace

std::string Str(float x) {
    return strWithDigits(static_cast<double>(x), 7);
}
std::string StrD(double x) {
    return strWithDigits(x, 15);
}

double AngleOf(double x, double y) {
    if (x == 0) return Sgn(y) * 90.0;
    if (x > 0) return std::atan(y / x) * RadToDeg;
    if (y == 0) return 180.0;
    return std::atan(y / x) * RadToDeg + Sgn(y) * 180.0;
}

std::string LTrim(std::string_view s) {
    size_t i = 0;
    while (i < s.size() && s[i] == ' ') ++i;
    return std::string(s.substr(i));
}

std::string RTrim(std::string_view s) {
    size_t n = s.size();
    while (n > 0 && s[n - 1] == ' ') --n;
    return std::string(s.substr(0, n));
}

std::string Trim(std::string_view s) {
    return LTrim(RTrim(s));
}

std::string ToLower(std::string_view s) {
    std::string r(s);
    for (char& ch : r)
        if (ch >= 'A' && ch <= 'Z') ch = static_cast<char>(ch - 'A' + 'a');
    return r;
}

std::string ToUpper(std::string_view s) {
    std::string r(s);
    for (char& ch : r)
        if (ch >= 'a' && ch <= 'z') ch = static_cast<char>(ch - 'a' + 'A');
    return r;
}

std::vector<std::string> TextLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

}  // namespace quillane
