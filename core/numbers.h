#pragma once
// The number rules every part of the program shares: one reader, one rounding,
// one set of text formats. Coefficients and window bounds are 32-bit floats.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillane {

inline constexpr double Pi = 3.141592654;
// Kept at this precision on purpose: the last digits of converted angles depend on it.
inline constexpr double DegToRad = 0.017453292522222223;
inline constexpr double RadToDeg = 57.29577950560105;
// The evaluator alone uses the longer value.
inline constexpr double EvaluatorPi = 3.14159265358979;

// Leading-number reader: skips blanks and tabs anywhere (also between digits), optional sign,
// digits, one "." whatever the locale, optional exponent; stops at the first other character.
// Never fails; text without a number gives 0.
double Val(std::string_view text);

// Round half to even at n decimals.
double Round(double x, int decimals = 0);

// Float to integer conversion, half to even. Saturates instead of overflowing.
int32_t CInt(double x);
int32_t CLng(double x);

// Formats x with a pattern such as "0.000", " 0.000000 " or "0.00": literal characters around
// one number field of '0' / '#' digits with an optional '.'. Rounds half away from zero.
// A negative value puts its sign in front of the whole text, as the runtime's Format does.
std::string Format(double x, std::string_view pattern);

// The runtime's number printing of a 32-bit float: a leading blank for values that are not
// negative, no leading zero (" .5"), at most 7 significant digits, exponent form "1E+07".
std::string Str(float x);
// The same for a double (15 significant digits).
std::string StrD(double x);

// Sign as -1, 0 or 1.
inline int Sgn(double x) {
    return x > 0 ? 1 : (x < 0 ? -1 : 0);
}

// Angle of the vector (x, y) in degrees, in (-180, 180].
double AngleOf(double x, double y);

// Text helpers in the runtime's sense (blanks only, not tabs).
std::string Trim(std::string_view s);
std::string RTrim(std::string_view s);
std::string LTrim(std::string_view s);
std::string ToLower(std::string_view s);
std::string ToUpper(std::string_view s);
// The lines of a text without their line ends (LF or CR LF); no empty last line after a final end.
std::vector<std::string> TextLines(const std::string& text);

}  // namespace quillane
