#include "generators/twisted_sierpinski.h"

#include <algorithm>
#include <cmath>

namespace quillane {
namespace {

TrianglePoint along(TrianglePoint p, TrianglePoint q, double f) {
    return {static_cast<float>(p.x + f * (q.x - p.x)), static_cast<float>(p.y + f * (q.y - p.y))};
}

TwistTriangle turned(const TwistTriangle& t, double angle) {
    const double cx = (t[0].x + t[1].x + t[2].x) / 3.0, cy = (t[0].y + t[1].y + t[2].y) / 3.0;
    const double c = std::cos(angle), s = std::sin(angle);
    TwistTriangle r;
    for (size_t k = 0; k < 3; ++k) {
        const double dx = t[k].x - cx, dy = t[k].y - cy;
        r[k] = {static_cast<float>(cx + c * dx - s * dy), static_cast<float>(cy + s * dx + c * dy)};
    }
    return r;
}

// t = (A, B, C): the three corner pieces aBc, abC, Abc.
void cut(const TwistTriangle& t, const std::array<float, 3>& f, double angle, bool alternate, int level,
         int corner, std::vector<TwistPiece>& out) {
    if (level == 0) {
        out.push_back({t, corner});
        return;
    }
    const TrianglePoint A = t[0], B = t[1], C = t[2];
    const TrianglePoint a = along(B, C, f[0]), b = along(C, A, f[1]), c = along(A, B, f[2]);
    const std::array<TwistTriangle, 3> pieces{{{c, B, a}, {b, a, C}, {A, c, b}}};
    for (int k = 0; k < 3; ++k)
        cut(turned(pieces[static_cast<size_t>(k)], angle), f, alternate ? -angle : angle, alternate,
            level - 1, k, out);
}

}  // namespace

std::vector<TwistPiece> TwistedSierpinski(TrianglePoint apex, const std::array<float, 3>& factors,
                                          const TwistSettings& settings) {
    const int levels = std::clamp(settings.iterations, 1, TwistMaxIterations);
    const double angle = TwistLargest * std::clamp(settings.sliTwist, 0, TwistSliderMax) / TwistSliderMax;
    std::vector<TwistPiece> out;
    out.reserve(static_cast<size_t>(std::pow(3, levels)));
    cut({apex, TrianglePoint{0, 0}, TrianglePoint{1, 0}}, factors, angle, settings.alternate, levels, 0, out);
    return out;
}

void DrawTwistedSierpinski(DrawSurface& canvas, const std::vector<TwistPiece>& pieces, bool filled,
                           bool byCorner, Color color, const std::array<Color, 3>& cornerColors) {
    for (const TwistPiece& p : pieces) {
        const Color c = byCorner ? cornerColors[static_cast<size_t>(p.corner)] : color;
        std::vector<WorldPoint> points;
        for (const TrianglePoint& q : p.t) points.push_back({q.x, q.y});
        canvas.polygon(points, c, filled);
    }
}

}  // namespace quillane
