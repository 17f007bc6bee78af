#pragma once
// The gradient's colour at t, computed here apart from the engines, for the colour mode tests.
#include <cmath>

#include "core/colors.h"
#include "core/gradient_colors.h"

namespace quillane::testing {

// first + (second - first) * f per channel, rounded down and held to 0..255.
inline Color FormulaGradientMix(Color first, Color second, double f) {
    auto ch = [f](int a, int b) {
        const double v = std::floor(a + (b - a) * f);
        return static_cast<int>(v < 0 ? 0 : v > 255 ? 255 : v);
    };
    return RGB(ch(RedOf(first), RedOf(second)), ch(GreenOf(first), GreenOf(second)),
               ch(BlueOf(first), BlueOf(second)));
}

// The band of t (the factor 0.99999 keeps t = 1 in the last band) and the place within it.
inline Color FormulaGradientColor(const GradientColors& g, double t) {
    const int c = g.GradientColorCount;
    const int k = static_cast<int>(std::floor(0.99999 * (c - 1) * t));
    double f = (c - 1) * t - k;
    f = f < 0 ? 0 : f > 1 ? 1 : f;
    return FormulaGradientMix(g.picColors[k], g.picColors[k + 1], f);
}

}  // namespace quillane::testing
