#pragma once
// Complex bases: a base w of modulus below 1 gives the two maps z -> w z and z -> w z + w, whose
// attractor is the set of all sums of distinct powers of w. That set can also be drawn without any
// random choice, by counting through the digit rows of a 22-digit binary counter.
#include <array>
#include <cstdint>

#include "core/ifs_entry.h"

namespace quillane {

inline constexpr int ComplexDigitCount = 22;
inline constexpr int ComplexPowerCount = 33;  // powers 0 to 32
inline constexpr int32_t ComplexDigitRows = 1 << ComplexDigitCount;
// The program's own value of pi in the angle of the base.
inline constexpr double ComplexPi = 3.141592654;

// One entry of the examples cmdExample cycles through.
struct ComplexExample {
    bool polar;  // opt2: R and A; else opt1: a + bi
    const char* txta;
    const char* txtb;
};
inline constexpr int ComplexExampleCount = 6;
const std::array<ComplexExample, ComplexExampleCount>& ComplexExamples();

// The base u + vi from the values of the two boxes: a + bi, or R (cos A + i sin A) with a negative
// R legal (the opposite point). Single arithmetic.
struct ComplexPoint {
    float u = 0, v = 0;
};
ComplexPoint ComplexBasePoint(bool polar, float a, float b);

// The two maps of base u + vi: a = d = u, b = -v, c = v, p = 0.5; map 1 moves by (u, v).
std::array<IFSFunction, 2> ComplexBaseMaps(ComplexPoint base);

// base^n for n = 0 to 32, from modulus and angle rather than repeated products.
struct ComplexPowers {
    std::array<double, ComplexPowerCount> ComplexPowersX{}, ComplexPowersY{};
};
ComplexPowers ComputeComplexPowers(bool polar, float a, float b);

// The digit row: digits 1 to 22 (slot 0 unused), digit 22 the least significant.
using ComplexDigitRow = std::array<bool, ComplexDigitCount + 1>;
// Adds one to the row as a binary counter; returns the highest digit that changed (1 to 22), so that
// sums over the digits above it still hold. A full row wraps to all clear and returns 1.
int AdvanceComplexDigits(ComplexDigitRow& digits);

// The sum over the set digits i of base^(22 - i), taken from digit 1 down to digit 22 into a Single.
// Keeps the running sum after every digit, so that after a counter step only the digits from the
// changed one on are added again; the result is the same as the whole sum in that order.
class ComplexDigitSum {
  public:
    explicit ComplexDigitSum(const ComplexPowers& powers) : powers_(powers) {}
    // The sum for `digits`, of which only digits from `from` on changed since the last call.
    void update(const ComplexDigitRow& digits, int from);
    float x() const { return x_[ComplexDigitCount]; }
    float y() const { return y_[ComplexDigitCount]; }

  private:
    const ComplexPowers& powers_;
    std::array<float, ComplexDigitCount + 1> x_{}, y_{};  // slot i: after digit i
};

}  // namespace quillane
