#include "render/color_modes.h"

#include <emmintrin.h>

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "render/fractal_pictures.h"

namespace quillane {

int PlayGameColorMode(const Workbench& wb, const FractalPictures& pics) {
    if (wb.menu(MenuTable::key("mnuColors", 2)).checked) return StealingColorMode;
    if (wb.menu(MenuTable::key("mnuColors", 1)).checked) return std::clamp(pics.Det.optColoring, 1, 6);
    return IFSColorMode;
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
            fx_.push_back(fixed_.back()[0]);
            fy_.push_back(fixed_.back()[1]);
        }
    }
}

double GradientPosition::fixedPointT(float x, float y) const {
    double smallest = 1000, largest = 0;
    nearestAndFarthest(x, y, smallest, largest);
    const double t = std::sqrt(smallest) / std::sqrt(largest);
    // No fixed point (or a point on all of them) divides by zero: the last colour.
    return std::isfinite(t) ? std::min(t, 1.0) : 1.0;
}

void GradientPosition::nearestAndFarthest(double x, double y, double& smallest, double& largest) const {
    // Two points a step in each of two pairs of lanes. A squared distance is never -0, and one that is
    // NaN loses every comparison in a lane as it does in a single loop, so the lanes' smallest and
    // largest are the single loop's, whatever the order.
    const size_t n = fx_.size();
    const double* px = fx_.data();
    const double* py = fy_.data();
    const __m128d X = _mm_set1_pd(x), Y = _mm_set1_pd(y);
    __m128d s0 = _mm_set1_pd(smallest), s1 = s0, l0 = _mm_set1_pd(largest), l1 = l0;
    size_t k = 0;
    for (; k + 4 <= n; k += 4) {
        const __m128d dx0 = _mm_sub_pd(X, _mm_loadu_pd(px + k)), dy0 = _mm_sub_pd(Y, _mm_loadu_pd(py + k));
        const __m128d dx1 = _mm_sub_pd(X, _mm_loadu_pd(px + k + 2)),
                      dy1 = _mm_sub_pd(Y, _mm_loadu_pd(py + k + 2));
        const __m128d d0 = _mm_add_pd(_mm_mul_pd(dx0, dx0), _mm_mul_pd(dy0, dy0));
        const __m128d d1 = _mm_add_pd(_mm_mul_pd(dx1, dx1), _mm_mul_pd(dy1, dy1));
        // min(a, b) is a < b ? a : b, as std::min(smallest, d2) is d2 < smallest ? d2 : smallest.
        s0 = _mm_min_pd(d0, s0);
        s1 = _mm_min_pd(d1, s1);
        l0 = _mm_max_pd(d0, l0);
        l1 = _mm_max_pd(d1, l1);
    }
    double lanes[8];
    _mm_storeu_pd(lanes, s0);
    _mm_storeu_pd(lanes + 2, s1);
    _mm_storeu_pd(lanes + 4, l0);
    _mm_storeu_pd(lanes + 6, l1);
    for (int j = 0; j < 4; ++j) {
        smallest = std::min(smallest, lanes[j]);
        largest = std::max(largest, lanes[4 + j]);
    }
    for (; k < n; ++k) {
        const double dx = x - px[k], dy = y - py[k];
        const double d2 = dx * dx + dy * dy;
        smallest = std::min(smallest, d2);
        largest = std::max(largest, d2);
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

Color ThresholdColor(const std::array<Color, GradientColorSlots>& colors,
                     const std::array<double, GradientColorSlots>& threshold, int c, int h) {
    for (int k = 1; k <= c - 1; ++k) {
        if (h <= threshold[static_cast<size_t>(k)]) {
            const double span = threshold[static_cast<size_t>(k)] - threshold[static_cast<size_t>(k - 1)];
            // Equal thresholds leave no band; the count is then at the upper colour.
            const double f = span != 0 ? (h - threshold[static_cast<size_t>(k - 1)]) / span : 1.0;
            return MixColors(colors[static_cast<size_t>(k - 1)], colors[static_cast<size_t>(k)], f);
        }
    }
    return colors[static_cast<size_t>(c - 1)];
}

Color VisitCounter::colorOfCount(int h) const {
    return ThresholdColor(colors_, threshold_, c_, h);
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
    // picImage.point(nx, ny) without its call: floor(t) lies in [0, size) exactly when t does, and NaN
    // fails every test.
    const RasterSurface& p = cs_.picImage;
    const double tx = (static_cast<double>(nx) - p.scaleLeft()) * p.pixelScaleX();
    const double ty = (static_cast<double>(ny) - p.scaleTop()) * p.pixelScaleY();
    if (!(tx >= 0 && ty >= 0 && tx < p.width() && ty < p.height())) return NoColor;
    return p.pixel(static_cast<int>(tx), static_cast<int>(ty));
}

void PrepareRunColoring(Workbench& wb, FractalPictures& pics, int n, RunColoring& rc) {
    rc.mode = PlayGameColorMode(wb, pics);
    rc.gradient = wb.Gradient;
    rc.gradient.GradientColorCount = GradientCount(rc.gradient);
    switch (rc.mode) {
        case HeightColorMode:
        case WidthColorMode:
        case RadialColorMode:
        case FixedPointColorMode:
            rc.position.emplace(rc.mode, wb, wb.CurrentIFS, n);
            break;
        case RandomColorMode:
            rc.strips = GradientStrips(rc.gradient);
            wb.Rng.Randomize();
            break;
        case VisitCountColorMode:
            rc.visits.emplace(wb.HitCount, wb.Window, pics.picfractal.width(), rc.gradient);
            break;
        case StealingColorMode:
            rc.orbit.emplace(pics.Stealing);
            break;
        default:
            break;
    }
}

Color RunColoring::tileColor(Random& rng, int i, float x, float y, Color mapColor) {
    switch (mode) {
        case HeightColorMode:
        case WidthColorMode:
        case RadialColorMode:
        case FixedPointColorMode:
            return position->color(gradient, x, y);
        case RandomColorMode:
            return RandomStripColor(strips, rng);
        case VisitCountColorMode:
            return visits->tileColor(x, y);
        case StealingColorMode:
            return orbit->next(i);
        default:
            return mapColor;
    }
}

}  // namespace quillane
