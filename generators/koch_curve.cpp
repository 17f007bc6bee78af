#include "generators/koch_curve.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"

namespace quillane {
namespace {

// A limit that came out as no number at all (a ratio of 1, a pixel of no size) limits nothing; the
// bound keeps the integer conversions in range.
constexpr double NoLimit = 1e6;

int wholeLimit(double v) {
    if (!std::isfinite(v)) return static_cast<int>(NoLimit);
    return static_cast<int>(std::floor(std::clamp(v, -NoLimit, NoLimit)));
}

}  // namespace

std::vector<IFSFunction> KochMaps(int n, double c) {
    std::vector<IFSFunction> maps(static_cast<size_t>(std::max(n, 1) + 1));
    const double K = KochTwoPi;
    const double t = (n - 2) * K / (2.0 * n);
    double x = (1 - c) / 2, y = 0, phi = t;
    IFSFunction& first = maps.front();
    first.a = first.d = static_cast<float>((1 - c) / 2);
    for (int i = 1; i <= n - 1; ++i) {
        IFSFunction& m = maps[static_cast<size_t>(i)];
        m.a = static_cast<float>(c * std::cos(phi));
        m.b = static_cast<float>(-c * std::sin(phi));
        m.c = static_cast<float>(c * std::sin(phi));
        m.d = static_cast<float>(c * std::cos(phi));
        m.e = static_cast<float>(x);
        m.f = static_cast<float>(y);
        y = y + c * std::sin(i * K / n);
        x = x - c * std::cos(i * K / n);
        phi = t - (K / 2 - phi);
    }
    IFSFunction& last = maps.back();
    last.a = last.d = static_cast<float>((1 - c) / 2);
    last.e = static_cast<float>((c + 1) / 2);
    return maps;
}

std::vector<float> KochTurns(int n) {
    const float P = KochPi;
    const float T = static_cast<float>(n - 2) * P / static_cast<float>(n);
    std::vector<float> A(static_cast<size_t>(n + 1), 0.0f);
    std::vector<float> turn(static_cast<size_t>(n + 2), 0.0f);
    A[1] = T;
    turn[1] = 0;
    for (int i = 1; i <= n - 1; ++i) {
        const auto k = static_cast<size_t>(i);
        turn[k + 1] = A[k] - A[k - 1];
        A[k + 1] = T - (P - A[k]);
    }
    turn[static_cast<size_t>(n + 1)] = -A[static_cast<size_t>(n - 1)];
    return turn;
}

float KochRatioFor(float c) {
    return c >= 0.33333334f ? c : 1 - 2 * c;
}

float SelfAvoidingLength(int n) {
    const double angle = static_cast<double>(KochPi) / n;
    if (n % 2 == 0) {
        const double s = std::sin(angle), k = std::cos(angle);
        return static_cast<float>(s * s / (k * k + 1));
    }
    return static_cast<float>(1 - std::cos(angle));
}

KochView KochPreviewView(int n, double c) {
    const double T = (n - 2) * Pi / n;
    const double h = std::max((c + 1) * (c / 2) / (1 - c) * std::tan(T / 2), 0.55);
    const double k = (c / 2) * std::tan(T / 2);
    return {0.5 - h, k + h, 0.5 + h, k - h};
}

KochLimits KochRecursionLimits(int n, float ratio, double pixel) {
    KochLimits limits;
    limits.p = wholeLimit(std::log(pixel) / std::log(static_cast<double>(ratio)) + 0.5);
    limits.q = CInt(std::log(1000000.0) / std::log(n + 1.0));
    return limits;
}

int KochRecursionLevel(int L, const KochLimits& limits) {
    if (L >= limits.q - 1 || L >= limits.p - 1) return std::min(limits.p, limits.q);
    return L;
}

}  // namespace quillane
