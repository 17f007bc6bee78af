#include "generators/sierpinski_maps.h"

#include <cmath>
#include <numbers>

namespace quillane {
namespace {

IFSFunction map(float a, float b, float c, float d, float e = 0, float f = 0) {
    IFSFunction m;
    m.a = a, m.b = b, m.c = c, m.d = d, m.e = e, m.f = f;
    return m;
}

std::array<IFSFunction, 3> method1(float x, float y, float a, float b, float c) {
    const float p = 1 - b + (c + b - 1) * x;
    return {map(a, (x / y) * (1 - c - a), 0, 1 - c), map(1 - a, (1 - b - a) * (1 - x) / y, 0, b, a),
            map(p, (c - p) * x / y, (c + b - 1) * y, c - (c + b - 1) * x, (1 - c) * x, (1 - c) * y)};
}

std::array<IFSFunction, 3> method2(float x, float y, float a, float b, float c) {
    // The squares in double, as the maps were worked out.
    const double x2 = static_cast<double>(x) * x;
    return {map((1 - c) * x, static_cast<float>((-x2 + c * x2 + a) / y), (1 - c) * y, (c - 1) * x),
            map((1 - x) * b, ((x - 2) * b * x + a + b - 1) / y, -b * y, (x - 1) * b, 1 - (1 - x) * b, b * y),
            map((1 - b - c) * x - 1 + b, static_cast<float>(((2 - 2 * b) * x + (c + b - 1) * x2 + b - 1) / y),
                (1 - b - c) * y, (c + b - 1) * x + 1 - b, 1 - (1 - x) * b, b * y)};
}

std::array<IFSFunction, 3> method3(float x, float y, float a, float b, float c) {
    const double x2 = static_cast<double>(x) * x;
    return {
        map(-a, ((a + 1 - c) * x - a) / y, 0, 1 - c, a),
        map(b * x + 1 - a - b, static_cast<float>(((b + a - 1) * x - b * x2 - a + 1) / y), b * y, -b * x, a),
        map((b - 1) * x + 1 - b, static_cast<float>(((b - c - 1) * x + (1 - b) * x2) / y), (b - 1) * y,
            (1 - b) * x - c, x, y)};
}

double squared(double dx, double dy) {
    return dx * dx + dy * dy;
}

}  // namespace

const std::array<std::string, 3>& SierpinskiRules(int method) {
    static const std::array<std::array<std::string, 3>, 3> rules{{
        {"F1(ABC) = cBa", "F2(ABC) = baC", "F3(ABC) = Acb"},
        {"F1(ABC) = aBc", "F2(ABC) = abC", "F3(ABC) = Abc"},
        {"F1(ABC) = caB", "F2(ABC) = Cab", "F3(ABC) = cAb"},
    }};
    return rules[static_cast<size_t>(method == 2 ? 1 : method == 3 ? 2 : 0)];
}

const std::string& SierpinskiCommentLine(int method) {
    static const std::array<std::string, 3> lines{
        "; f1(ABC) = cBa, f2(ABC) = baC, f3(ABC) = Acb",
        "; f1(ABC) = aBc, f2(ABC) = abC, f3(ABC) = Abc",
        "; f1(ABC) = caB, f2(ABC) = Cab, f3(ABC) = cAb",
    };
    return lines[static_cast<size_t>(method == 2 ? 1 : method == 3 ? 2 : 0)];
}

TriangleFromAngles ApexFromAngles(double angleA, double angleB, double angleC) {
    TriangleFromAngles out;
    if (!(angleA > 0) || !(angleB > 0) || !(angleC > 0)) {
        out.error = "Angles must be positive";
    } else if (std::abs(angleA + angleB + angleC - 180) > 1e-4) {
        out.error = "Angles must add to 180";
    } else if (!(angleA < 90) || !(angleB < 90) || !(angleC < 90)) {
        out.error = "Angles must be less than 90 degrees";
    } else {
        const double r = std::numbers::pi / 180;
        const double sa = std::sin(angleA * r), sb = std::sin(angleB * r), sc = std::sin(angleC * r);
        out.apex = TrianglePoint{static_cast<float>(sc * std::cos(angleB * r) / sa),
                                 static_cast<float>(sb * sc / sa)};
    }
    return out;
}

std::array<float, 3> PedalFactors(TrianglePoint A) {
    const double ab2 = squared(A.x, A.y), bc2 = 1, ca2 = squared(1 - A.x, A.y);
    const double ab = std::sqrt(ab2), bc = 1, ca = std::sqrt(ca2);
    const double cosB = (ab2 + bc2 - ca2) / (2 * ab * bc);
    const double cosC = (bc2 + ca2 - ab2) / (2 * bc * ca);
    const double cosA = (ca2 + ab2 - bc2) / (2 * ca * ab);
    return {static_cast<float>(ab * cosB / bc), static_cast<float>(bc * cosC / ca),
            static_cast<float>(ca * cosA / ab)};
}

std::array<IFSFunction, 3> SierpinskiMaps(int method, TrianglePoint A, float fa, float fb, float fc) {
    if (method == 2) return method2(A.x, A.y, fa, fb, fc);
    if (method == 3) return method3(A.x, A.y, fa, fb, fc);
    return method1(A.x, A.y, fa, fb, fc);
}

}  // namespace quillane
