#include "generators/line_fractal_canvas.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"

namespace quillane {
namespace {

constexpr double LinePi = 3.141592654;
// More lines than any canvas has pixels: a tiny spacing draws no grid rather than hang.
constexpr double MaxGridLines = 4000;

float squaredLength(const LineFractal& g, int i) {
    const GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
    const GeneratorPoint& q = g.GeneratorPoints[static_cast<size_t>(i + 1)];
    const float dx = q.x - p.x;
    const float dy = q.y - p.y;
    return dx * dx + dy * dy;
}

bool solidGridLine(float spacing, double coordinate) {
    return spacing == 0.05f && CInt(coordinate * 100) % 25 == 0;
}

void gridLines(RasterSurface& pic, float spacing, float low, float high, bool vertical, float a, float b) {
    if (!(spacing > 0)) return;
    const double first = std::floor(low / spacing);
    const double last = std::floor(high / spacing + 1);
    if (!(last - first < MaxGridLines)) return;
    for (double k = first; k <= last; ++k) {
        const double c = static_cast<float>(k * spacing);
        pic.setDrawStyle(solidGridLine(spacing, c) ? DrawStyle::Solid : DrawStyle::Dot);
        if (vertical)
            pic.line(c, a, c, b, GridGrey);
        else
            pic.line(a, c, b, c, GridGrey);
    }
    pic.setDrawStyle(DrawStyle::Solid);
}

void halfArrow(RasterSurface& canvas, const LineFractal& g, int i) {
    const GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
    const GeneratorPoint& q = g.GeneratorPoints[static_cast<size_t>(i + 1)];
    int direction = 1, side = 1;
    Color color = SegmentForward;
    switch (OrientLetter(g, i)) {
        case 'G':
            side = -1;
            break;
        case 'B':
            direction = -1;
            color = SegmentBack;
            break;
        case 'A':
            direction = -1;
            side = -1;
            color = SegmentBack;
            break;
        default:
            break;
    }
    const double theta = ATan2(q.y - p.y, q.x - p.x);
    const double s = 331.2 / (static_cast<double>(canvas.width()) * TwipsPerPixel);
    const double mx = direction == 1 ? (3.0 * q.x + p.x) / 4 : (3.0 * p.x + q.x) / 4;
    const double my = direction == 1 ? (3.0 * q.y + p.y) / 4 : (3.0 * p.y + q.y) / 4;
    const GeneratorPoint& far = direction == 1 ? p : q;
    const double D = std::hypot(far.x - mx, far.y - my);
    const double L = D < s ? s / 3 : (D < 2 * s ? 2 * s / 3 : s);
    const double phi = side == -1 ? theta + LinePi / 6 : theta - LinePi / 6;
    const double gsign = -direction;
    const double bx = mx + gsign * L * std::cos(phi);
    const double by = my + gsign * L * std::sin(phi);
    const double ex = mx + gsign * L * std::cos(theta);
    const double ey = my + gsign * L * std::sin(theta);
    canvas.line(mx, my, bx, by, color);
    canvas.line(bx, by, ex, ey, color);
}

}  // namespace

void ApplyCanvasView(LineCanvasView& v, RasterSurface& canvas, RasterSurface& picgrid) {
    canvas.setScale(v.xmin, v.ymax, v.xmax, v.ymin);
    picgrid.setScale(v.xmin, v.ymax, v.xmax, v.ymin);
    const double twips = static_cast<double>(std::max(canvas.width(), 1)) * TwipsPerPixel;
    v.MarkerRadius = static_cast<float>(83.7 / twips * (v.xmax - v.xmin));
}

std::array<std::string, 4> ScaleLabels(const LineCanvasView& v) {
    return {Format(v.xmin + 0.02f, "0.00"), Format(v.xmax - 0.02f, "0.00"), Format(v.ymin + 0.02f, "0.00"),
            Format(v.ymax - 0.02f, "0.00")};
}

void MoveView(LineCanvasView& v, ViewKey key) {
    switch (key) {
        case ViewKey::PageDown:
            v.xmin -= ViewStep, v.ymin -= ViewStep, v.xmax += ViewStep, v.ymax += ViewStep;
            break;
        case ViewKey::PageUp:
            v.xmin += ViewStep, v.ymin += ViewStep, v.xmax -= ViewStep, v.ymax -= ViewStep;
            break;
        case ViewKey::Up:
            v.ymin += ViewStep, v.ymax += ViewStep;
            break;
        case ViewKey::Down:
            v.ymin -= ViewStep, v.ymax -= ViewStep;
            break;
        case ViewKey::Left:
            v.xmin -= ViewStep, v.xmax -= ViewStep;
            break;
        case ViewKey::Right:
            v.xmin += ViewStep, v.xmax += ViewStep;
            break;
        case ViewKey::Home: {
            const LineCanvasView defaults;
            v.xmin = defaults.xmin, v.xmax = defaults.xmax, v.ymin = defaults.ymin, v.ymax = defaults.ymax;
            break;
        }
    }
}

void TurnView(LineCanvasView& v, int direction) {
    const LineCanvasView old = v;
    if (direction == 1) {
        v.xmin = -old.ymax, v.xmax = -old.ymin, v.ymin = old.xmin, v.ymax = old.xmax;
    } else {
        v.ymin = -old.xmax, v.ymax = -old.xmin, v.xmin = old.ymin, v.xmax = old.ymax;
    }
}

void ResizeView(LineCanvasView& v, int direction) {
    if (direction == 1) v.xmin = -0.52f, v.xmax = 0.52f, v.ymin = -0.02f, v.ymax = 1.02f;
}

void FitView(LineCanvasView& v, const PointsFile& file) {
    auto steps = [](auto reached) {
        int k = 0;
        while (k < 20 && !reached(k)) ++k;
        return k;
    };
    const int k = std::max({steps([&](int n) { return 1 + ViewStep * n >= file.maxX; }),
                            steps([&](int n) { return 0 - ViewStep * n <= file.minX; }),
                            steps([&](int n) { return 0.5f + ViewStep * n >= file.maxY; }),
                            steps([&](int n) { return -0.5f - ViewStep * n <= file.minY; })});
    v.xmin = -ViewStep * k - 0.02f;
    v.xmax = ViewStep * k + 1 + 0.02f;
    v.ymin = -0.5f - ViewStep * k - 0.02f;
    v.ymax = ViewStep * k + 0.5f + 0.02f;
}

Color SegmentColor(const LineFractal& g, int i) {
    if (squaredLength(g, i) >= 1) return SegmentRed;
    if (!g.chkOrient) return Black;
    const char c = OrientLetter(g, i);
    if (c == 0) return SegmentNoLetter;
    if (c == 'F' || c == 'G') return SegmentForward;
    return SegmentBack;
}

void DrawGrid(RasterSurface& picgrid, const LineCanvasView& v) {
    picgrid.clear();
    if (!v.chkGrid) return;
    gridLines(picgrid, v.GridX, v.xmin, v.xmax, true, v.ymin, v.ymax);
    gridLines(picgrid, v.GridY, v.ymin, v.ymax, false, v.xmin, v.xmax);
}

void DrawPolyline(RasterSurface& canvas, const RasterSurface& picgrid, const LineFractal& g,
                  const LineCanvasView& v) {
    if (v.chkGrid && picgrid.width() == canvas.width() && picgrid.height() == canvas.height())
        canvas.takeImage(picgrid);
    else
        canvas.clear();
    const int n = g.segments();
    for (int i = 0; i < n; ++i) {
        const GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
        const GeneratorPoint& q = g.GeneratorPoints[static_cast<size_t>(i + 1)];
        const Color color = SegmentColor(g, i);
        canvas.line(p.x, p.y, q.x, q.y, color);
        canvas.circle(p.x, p.y, v.MarkerRadius, color, false);
    }
    const GeneratorPoint& end = g.GeneratorPoints[static_cast<size_t>(n)];
    canvas.circle(end.x, end.y, v.MarkerRadius, n > 0 ? SegmentColor(g, n - 1) : Black, false);
    const int sel = v.SelectedPoint;
    if (sel > 0 && sel <= n) {
        bool red = squaredLength(g, sel - 1) >= 1;
        if (sel < n && squaredLength(g, sel) >= 1) red = true;
        const GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(sel)];
        canvas.circle(p.x, p.y, v.MarkerRadius, red ? SegmentRed : SegmentColor(g, sel - 1), true);
    }
    if (g.chkOrient)
        for (int i = 0; i < n; ++i) halfArrow(canvas, g, i);
}

void SetPreviewView(RasterSurface& picPreview, int direction) {
    if (direction == 1)
        picPreview.setScale(-1, 1.5, 1, -0.5);
    else
        picPreview.setScale(-0.5, 1, 1.5, -1);
}

void DrawPreview(RasterSurface& picPreview, LineFractal& g, int depth) {
    picPreview.clear();
    InitializeGenerator(g);
    RecurseLines(g, depth, [&](double x1, double y1, double x2, double y2, int) {
        picPreview.line(x1, y1, x2, y2, Black);
        return true;
    });
}

int HitVertex(const LineFractal& g, float x, float y) {
    const float limit = 0.015f * 0.015f;
    for (int i = 1; i < g.segments(); ++i) {
        const GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
        const float dx = x - p.x;
        const float dy = y - p.y;
        if (dx * dx + dy * dy < limit) return i;
    }
    return -1;
}

}  // namespace quillane
