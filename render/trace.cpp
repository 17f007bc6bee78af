#include "render/trace.h"

#include "render/fractal_overlays.h"
#include "render/run_maps.h"

namespace quillane {

namespace {

// The fill of the pictures is the circle's own here; only the pen's mode matters to a dot.
void dot(RasterSurface& s, double x, double y, double r, Color c) {
    if (s.width() <= 0) return;
    const DrawMode mode = s.drawMode();
    s.setDrawMode(DrawMode::CopyPen);
    try {
        s.circle(x, y, r, c, true);
    } catch (const SurfaceOverflow&) {
        // A point that has run far off leaves no dot.
    }
    s.setDrawMode(mode);
}

void takeMaskShift(const Workbench& wb, FractalPictures& pics) {
    const WorldWindow& w = wb.Window;
    pics.picMaskShift.setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    pics.picMaskShift.takeImage(pics.picMask);
}

double dotRadius(const Workbench& wb, const RasterSurface& s) {
    return s.pixelsToWorldX(wb.TraceDotSize);
}

// Colour stealing: the colouring orbit moves by map i of the colouring IFS; its pixel is the colour.
Color stolenColor(Workbench& wb, FractalPictures& pics, int i, Color fallback) {
    ColorStealingState& cs = pics.Stealing;
    const IFSEntry& m = cs.ColoringIFS;
    if (i < 0 || i >= MapSlots) return fallback;
    const float nx = m.a[i] * wb.TraceColorX + m.b[i] * wb.TraceColorY + m.e[i];
    const float ny = m.c[i] * wb.TraceColorX + m.d[i] * wb.TraceColorY + m.f[i];
    Color c = cs.picImage.point(nx, ny);
    if (c == NoColor) c = fallback;
    if (cs.chkTrace) dot(cs.picTrace, nx, ny, cs.picTrace.pixelsToWorldX(wb.TraceDotSize), cs.picTraceColor);
    wb.TraceColorX = nx;
    wb.TraceColorY = ny;
    return c;
}

}  // namespace

void RepaintTraceDots(FractalPictures& pics) {
    for (const FractalPictures::TraceDot& d : pics.TraceDots) dot(pics.picfractal, d.x, d.y, d.r, d.color);
}

void SetTracePoint(Workbench& wb, FractalPictures& pics, float& x, float& y) {
    pics.picfractal.takeImage(pics.picImage2);
    FractalGridAxesFP(wb, pics);
    pics.picMask.takeImage(pics.picImage2);
    const double r = dotRadius(wb, pics.picfractal);
    for (RasterSurface* s : {&pics.picfractal, &pics.picMask, &pics.picImage}) dot(*s, x, y, r, Black);
    pics.TraceDots.assign(1, {x, y, r, Black});
    takeMaskShift(wb, pics);
    wb.TracePointSet = true;
    wb.TraceX = wb.TraceCurX = x;
    wb.TraceY = wb.TraceCurY = y;
    pics.picCount.clear();
}

int TraceRandomMap(const float* p, int n, double r) {
    // No forced last entry: a sum that falls short of r takes no map.
    int i = 0;
    double s = p[0];
    while (s < r) {
        ++i;
        if (i >= n) return -1;
        s += p[i];
    }
    return i;
}

void TraceStep(Workbench& wb, FractalPictures& pics, int Map) {
    if (wb.Table.text(7, 0).empty()) return;
    const RunMaps m = CopyRunMaps(wb);
    int i;
    if (Map == -1) {
        wb.Rng.Randomize();
        i = TraceRandomMap(m.p.data(), m.n, wb.Rng.Rnd());
    } else {
        i = Map - 1;
    }
    if (i < 0 || i >= m.n) return;
    const float x = m.a[i] * wb.TraceCurX + m.b[i] * wb.TraceCurY + m.e[i];
    const float y = m.c[i] * wb.TraceCurX + m.d[i] * wb.TraceCurY + m.f[i];
    Color c = Black;
    if (wb.menu("mnuColorTrace").checked) {
        c = m.color[i];
        if (wb.menu(MenuTable::key("mnuColors", 2)).checked)
            c = stolenColor(wb, pics, i, pics.picfractal.backColor());
    }
    const double r = dotRadius(wb, pics.picfractal);
    for (RasterSurface* s : {&pics.picfractal, &pics.picMask, &pics.picImage}) dot(*s, x, y, r, c);
    // A very long walk keeps its first million dots for repainting; the mask still holds the rest.
    if (pics.TraceDots.size() < MaxTraceDots) pics.TraceDots.push_back({x, y, r, c});
    takeMaskShift(wb, pics);
    wb.TraceCurX = x;
    wb.TraceCurY = y;
}

}  // namespace quillane
