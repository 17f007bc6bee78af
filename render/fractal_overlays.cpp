#include "render/fractal_overlays.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "render/run_maps.h"
#include "render/trace.h"

namespace quillane {

namespace {

// Overlays draw in copy pen whatever the picture's pen was; the pen comes back after.
class PenKeeper {
  public:
    explicit PenKeeper(RasterSurface& p)
        : p_(p), mode_(p.drawMode()), width_(p.drawWidth()), style_(p.drawStyle()) {
        p.setDrawMode(DrawMode::CopyPen);
    }
    ~PenKeeper() {
        p_.setDrawMode(mode_);
        p_.setDrawWidth(width_);
        p_.setDrawStyle(style_);
    }
    PenKeeper(const PenKeeper&) = delete;
    PenKeeper& operator=(const PenKeeper&) = delete;

  private:
    RasterSurface& p_;
    DrawMode mode_;
    int width_;
    DrawStyle style_;
};

bool usable(const RasterSurface& p) {
    return p.width() > 0 && p.height() > 0;
}

// Lines at every multiple of `step` from Int(lo / step) * step to Int(hi / step) * step.
template <class Draw>
void gridLines(double lo, double hi, double step, int pixels, Draw draw) {
    if (!(step > 0) || !std::isfinite(lo) || !std::isfinite(hi)) return;
    const double first = std::floor(lo / step), last = std::floor(hi / step);
    if (!(last - first <= static_cast<double>(pixels) * MaxGridLinesPerPixel)) return;
    for (double k = first; k <= last; k += 1) draw(k * step);
}

}  // namespace

bool MapFixedPoint(float a, float b, float c, float d, float e, float f, float& x, float& y) {
    const float det = a * d + (1 - d - a) - b * c;
    if (det == 0) return false;
    x = (f * b + e - e * d) / det;
    y = (e * c + f - f * a) / det;
    return true;
}

void DrawFractalAxes(const Workbench& wb, RasterSurface& p) {
    const WorldWindow& w = wb.Window;
    p.setDrawWidth(wb.AxisThickness);
    p.line(w.xmin, 0, w.xmax, 0, wb.FractalAxisColor);
    p.line(0, w.ymin, 0, w.ymax, wb.FractalAxisColor);
    p.setDrawWidth(1);
    FractalAxesTick(wb, p, TickPixelsPerInch);
    p.setDrawWidth(1);
}

void FractalAxesTick(const Workbench& wb, RasterSurface& p, double pixelsPerInch) {
    const WorldWindow& w = wb.Window;
    const double lx = p.pixelsToWorldX(0.1 * pixelsPerInch) / 2;
    const double ly = p.pixelsToWorldY(0.1 * pixelsPerInch) / 2;
    // Whole numbers from Int(min) to Int(max); a window too wide for ticks to be told apart has none.
    auto ticks = [&](double lo, double hi, auto draw) {
        const double first = std::floor(lo), last = std::floor(hi);
        if (!(last - first <= std::max(p.width(), p.height()))) return;
        for (double k = first; k <= last; k += 1) draw(k);
    };
    ticks(w.xmin, w.xmax, [&](double k) { p.line(k, -ly, k, ly, wb.FractalAxisColor); });
    ticks(w.ymin, w.ymax, [&](double k) { p.line(-lx, k, lx, k, wb.FractalAxisColor); });
}

void DrawFixedPoints(const Workbench& wb, RasterSurface& p) {
    const RunMaps m = CopyRunMaps(wb);
    const bool colored = wb.menu("mnuColorFP").checked;
    const double r = p.pixelsToWorldX(FixedPointRadiusPixels);
    for (int i = 0; i < m.n; ++i) {
        float x = 0, y = 0;
        if (!MapFixedPoint(m.a[i], m.b[i], m.c[i], m.d[i], m.e[i], m.f[i], x, y)) continue;
        try {
            p.circle(x, y, r, colored ? m.color[i] : Black, true);
        } catch (const SurfaceOverflow&) {
            // A fixed point that far away has no dot on the picture.
        }
    }
}

void DrawAxesFPs(const Workbench& wb, FractalPictures& pics) {
    RasterSurface& p = pics.picfractal;
    if (!usable(p)) return;
    PenKeeper pen(p);
    if (wb.menu("mnuAxes").checked) DrawFractalAxes(wb, p);
    if (wb.menu("mnuFixedPoints").checked) DrawFixedPoints(wb, p);
}

void drawFractalGrid(const Workbench& wb, FractalPictures& pics) {
    RasterSurface& p = pics.picfractal;
    if (!usable(p)) return;
    if (wb.menu("mnudrawFractalGrid").checked) {
        PenKeeper pen(p);
        p.setDrawWidth(1);
        p.setDrawStyle(DrawStyle::Dot);
        const WorldWindow& w = wb.Window;
        gridLines(w.xmin, w.xmax, wb.GridSpacingX, p.width(),
                  [&](double x) { p.line(x, w.ymin, x, w.ymax, FractalGridColor); });
        gridLines(w.ymin, w.ymax, wb.GridSpacingY, p.height(),
                  [&](double y) { p.line(w.xmin, y, w.xmax, y, FractalGridColor); });
        p.setDrawStyle(DrawStyle::Solid);
    }
    DrawAxesFPs(wb, pics);
}

void FractalGridAxesFP(const Workbench& wb, FractalPictures& pics) {
    drawFractalGrid(wb, pics);
}

void RedrawOverlays(const Workbench& wb, FractalPictures& pics) {
    pics.picfractal.takeImage(pics.picImage2);
    if (wb.TraceEnabled && wb.TracePointSet && pics.picMask.width() == pics.picfractal.width() &&
        pics.picMask.height() == pics.picfractal.height()) {
        pics.picfractal.paint(pics.picMask, pics.picfractal.scaleLeft(), pics.picfractal.scaleTop(),
                              RasterOp::And);
        RepaintTraceDots(pics);
    }
    FractalGridAxesFP(wb, pics);
}

void ShowOverlays(Workbench& wb, FractalPictures& pics) {
    if (wb.RandomMode && wb.TraceEnabled && wb.TracePointSet) {
        float x = wb.TraceX, y = wb.TraceY;
        SetTracePoint(wb, pics, x, y);
    } else {
        FractalGridAxesFP(wb, pics);
    }
}

void StepGridSpacing(float& x, float& y, bool coarser) {
    static constexpr std::array<float, 4> ring{0.05f, 0.1f, 0.125f, 0.25f};
    if (x != y) {
        x = y = coarser ? std::max(x, y) : std::min(x, y);
        return;
    }
    const auto at = std::find(ring.begin(), ring.end(), x);
    if (at == ring.end()) {
        x = y = 0.1f;
        return;
    }
    const size_t i = static_cast<size_t>(at - ring.begin());
    x = y = ring[coarser ? (i + 1) % ring.size() : (i + ring.size() - 1) % ring.size()];
}

}  // namespace quillane
