#include "render/color_modes.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "render/fractal_pictures.h"

namespace quillane {

namespace {

// Int() of the runtime for values that fit an int; std::floor is a library call on the baseline
// instruction set, and the modes call this several times a point.
inline int floorToInt(double v) {
    const int i = static_cast<int>(v);
    return i > v ? i - 1 : i;
}

}  // namespace

int PlayGameColorMode(const Workbench& wb, const FractalPictures& pics) {
    if (wb.menu(MenuTable::key("mnuColors", 2)).checked) return StealingColorMode;
    if (wb.menu(MenuTable::key("mnuColors", 1)).checked) return std::clamp(pics.Det.optColoring, 1, 6);
    return IFSColorMode;
}

int GradientCount(const GradientColors& g) {
    const int c = g.GradientColorCount == 0 ? GradientColorSlots : g.GradientColorCount;
    return std::clamp(c, 1, GradientColorSlots);
}

Color MixColors(Color first, Color second, double f) {
    int r1, g1, b1, r2, g2, b2;
    GetRGBColors(first, r1, g1, b1);
    GetRGBColors(second, r2, g2, b2);
    auto mix = [f](int a, int b) {
        const double v = std::clamp(a + (b - a) * f, 0.0, 255.0);
        return floorToInt(v);
    };
    return RGB(mix(r1, r2), mix(g1, g2), mix(b1, b2));
}

Color GradientLookup(const GradientColors& g, double t) {
    const int c = GradientCount(g);
    if (c < 2) return g.picColors[0];
    // 0.99999 keeps t = 1 from indexing past the last colour.
    const int k = floorToInt(0.99999 * (c - 1) * t);
    const double f = std::clamp((c - 1) * t - k, 0.0, 1.0);
    const int at = std::clamp(k, 0, c - 2);
    return MixColors(g.picColors[static_cast<size_t>(at)], g.picColors[static_cast<size_t>(at + 1)], f);
}

GradientPosition::GradientPosition(int mode, const Workbench& wb, const IFSEntry& ifs, int n) : mode_(mode) {
    if (mode == HeightColorMode || mode == WidthColorMode) {
        const bool height = mode == HeightColorMode;
        lo_ = height ? wb.AttractorYMin : wb.AttractorXMin;
        const double hi = height ? wb.AttractorYMax : wb.AttractorXMax;
        range_ = hi - lo_;
        if (range_ <= 0) range_ = 1;
    } else if (mode == RadialColorMode) {
        cx_ = (static_cast<double>(wb.AttractorXMin) + wb.AttractorXMax) / 2;
        cy_ = (static_cast<double>(wb.AttractorYMin) + wb.AttractorYMax) / 2;
        const double halfWidth = std::fabs(cx_ - wb.AttractorXMin);
        const double halfHeight = std::fabs(cy_ - wb.AttractorYMin);
        radius_ = halfWidth <= halfHeight ? halfHeight : halfWidth;
        // An attractor of one point has no radius; as with the other bounds, 1 stands in.
        if (!(radius_ > 0)) radius_ = 1;
    } else if (mode == FixedPointColorMode) {
        for (int i = 0; i < n; ++i) {
            const double a = ifs.a[i], b = ifs.b[i], c = ifs.c[i], d = ifs.d[i], e = ifs.e[i], f = ifs.f[i];
            const double det = a * d + (1 - d - a) - b * c;
            if (det == 0) continue;
            fixed_.push_back({(f * b + e - e * d) / det, (e * c + f - f * a) / det});
        }
    }
}

double GradientPosition::t(float x, float y) const {
    switch (mode_) {
        case HeightColorMode:
            return std::min(std::fabs((y - lo_) / range_), 1.0);
        case WidthColorMode:
            return std::min(std::fabs((x - lo_) / range_), 1.0);
        case RadialColorMode: {
            const double dx = x - cx_, dy = y - cy_;
            return std::min(std::sqrt(dx * dx + dy * dy) / radius_, 1.0);
        }
        case FixedPointColorMode: {
            double smallest = 1000, largest = 0;
            for (const auto& p : fixed_) {
                const double dx = x - p[0], dy = y - p[1];
                const double d2 = dx * dx + dy * dy;
                smallest = std::min(smallest, d2);
                largest = std::max(largest, d2);
            }
            const double t = std::sqrt(smallest) / std::sqrt(largest);
            // No fixed point (or a point on all of them) divides by zero: the last colour.
            return std::isfinite(t) ? std::min(t, 1.0) : 1.0;
        }
        default:
            return 0;
    }
}

void ClearHitCount(std::vector<int16_t>& table) {
    table.assign(static_cast<size_t>(HitCountSide) * HitCountSide, 0);
}

VisitCounter::VisitCounter(std::vector<int16_t>& table, const WorldWindow& w, int pictureWidth,
                           const GradientColors& g)
    : table_(table), w_(w) {
    if (table_.size() != static_cast<size_t>(HitCountSide) * HitCountSide) ClearHitCount(table_);
    res_ = std::clamp(pictureWidth, 1, HitCountSide);
    sx_ = res_ / (static_cast<double>(w.xmax) - w.xmin);
    sy_ = res_ / (static_cast<double>(w.ymax) - w.ymin);
    c_ = GradientCount(g);
    colors_ = g.picColors;
    threshold_[0] = 0;
    for (int k = 1; k < GradientColorSlots; ++k) threshold_[k] = Val(g.txtCount[static_cast<size_t>(k)]);
}

Color VisitCounter::countAndColor(float x, float y) {
    // Int() lies in [0, 1000) exactly when the value does, so the test comes first.
    const double u = (x - static_cast<double>(w_.xmin)) * sx_;
    const double v = (y - static_cast<double>(w_.ymin)) * sy_;
    if (!(u >= 0 && u < HitCountSide && v >= 0 && v < HitCountSide)) return Black;
    int16_t& cell = table_[static_cast<size_t>(u) + HitCountSide * static_cast<size_t>(v)];
    // 16 bits wide: 32767 + 1 wraps to -32768.
    cell = static_cast<int16_t>(static_cast<uint16_t>(cell) + 1u);
    return colorOfCount(cell);
}

Color VisitCounter::colorOfCount(int h) const {
    for (int k = 1; k <= c_ - 1; ++k) {
        if (h <= threshold_[k]) {
            const double span = threshold_[k] - threshold_[k - 1];
            // Equal thresholds leave no band; the count is then at the upper colour.
            const double f = span != 0 ? (h - threshold_[k - 1]) / span : 1.0;
            return MixColors(colors_[static_cast<size_t>(k - 1)], colors_[static_cast<size_t>(k)], f);
        }
    }
    return colors_[static_cast<size_t>(c_ - 1)];
}

StealingOrbit::StealingOrbit(ColorStealingState& cs) : cs_(cs) {
    const IFSEntry& m = cs.ColoringIFS;
    // The step number is the map: no random choice, and steps past the last map meet whatever the
    // arrays hold there.
    for (int j = 1; j <= 50; ++j) {
        const float nx = m.a[j] * x_ + m.b[j] * y_ + m.e[j];
        const float ny = m.c[j] * x_ + m.d[j] * y_ + m.f[j];
        x_ = nx;
        y_ = ny;
    }
}

Color StealingOrbit::next(int i) {
    const IFSEntry& m = cs_.ColoringIFS;
    const float nx = m.a[i] * x_ + m.b[i] * y_ + m.e[i];
    const float ny = m.c[i] * x_ + m.d[i] * y_ + m.f[i];
    x_ = nx;
    y_ = ny;
    if (cs_.chkTrace) {
        try {
            cs_.picTrace.pset(nx, ny, cs_.picTraceColor);
        } catch (const SurfaceOverflow&) {
            // An orbit that far off the picture leaves no dot.
        }
    }
    return cs_.picImage.point(nx, ny);
}

}  // namespace quillane
