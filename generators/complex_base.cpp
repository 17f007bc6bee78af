#include "generators/complex_base.h"

#include <cmath>

namespace quillane {

const std::array<ComplexExample, ComplexExampleCount>& ComplexExamples() {
    static const std::array<ComplexExample, ComplexExampleCount> examples{{
        {false, "0.65", "-0.30"},
        {false, "0.80", "0.20"},
        {true, "-0.697", "2*pi/5"},
        {false, "0.5", "0.5"},
        {true, "-0.62", "2*pi/7"},
        {false, "0.2", "0.6"},
    }};
    return examples;
}

ComplexPoint ComplexBasePoint(bool polar, float a, float b) {
    if (!polar) return {a, b};
    return {a * std::cos(b), a * std::sin(b)};
}

std::array<IFSFunction, 2> ComplexBaseMaps(ComplexPoint base) {
    std::array<IFSFunction, 2> maps{};
    for (IFSFunction& m : maps) {
        m.a = base.u;
        m.b = -base.v;
        m.c = base.v;
        m.d = base.u;
        m.p = 0.5f;
    }
    maps[1].e = base.u;
    maps[1].f = base.v;
    return maps;
}

ComplexPowers ComputeComplexPowers(bool polar, float a, float b) {
    double m = 0, t = 0;
    if (polar) {
        m = a;
        t = b;
    } else {
        m = std::sqrt(static_cast<double>(a) * a + static_cast<double>(b) * b);
        if (a > 0)
            t = std::atan(static_cast<double>(b) / a);
        else if (a < 0)
            t = std::atan(static_cast<double>(b) / a) + ComplexPi;
        else
            t = b > 0 ? ComplexPi / 2 : (b < 0 ? -ComplexPi / 2 : 0.0);
    }
    ComplexPowers p;
    for (int n = 0; n < ComplexPowerCount; ++n) {
        // pow(0, 0) is 1: the first power of a zero base is still the point 1.
        const double r = std::pow(m, n);
        p.ComplexPowersX[static_cast<size_t>(n)] = r * std::cos(n * t);
        p.ComplexPowersY[static_cast<size_t>(n)] = r * std::sin(n * t);
    }
    return p;
}

int AdvanceComplexDigits(ComplexDigitRow& digits) {
    for (int i = ComplexDigitCount; i >= 1; --i) {
        digits[static_cast<size_t>(i)] = !digits[static_cast<size_t>(i)];
        if (digits[static_cast<size_t>(i)]) return i;
    }
    return 1;
}

void ComplexDigitSum::update(const ComplexDigitRow& digits, int from) {
    float x = x_[static_cast<size_t>(from - 1)];
    float y = y_[static_cast<size_t>(from - 1)];
    for (int i = from; i <= ComplexDigitCount; ++i) {
        if (digits[static_cast<size_t>(i)]) {
            // A Single plus a Double is a Double, stored back into the Single.
            x = static_cast<float>(x + powers_.ComplexPowersX[static_cast<size_t>(ComplexDigitCount - i)]);
            y = static_cast<float>(y + powers_.ComplexPowersY[static_cast<size_t>(ComplexDigitCount - i)]);
        }
        x_[static_cast<size_t>(i)] = x;
        y_[static_cast<size_t>(i)] = y;
    }
}

}  // namespace quillane
