#include "design/design_drawing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>

#include "core/function_table.h"
#include "core/numbers.h"

namespace quillane {

namespace {

constexpr double DashOn = 6, DashPeriod = 9;
constexpr double PixelsPerInch = 96;  // 15 twips a pixel

// A filled box whose edge is widened by the pen, as a wide pen draws a filled box.
void penBox(RasterSurface& s, double x1, double y1, double x2, double y2, Color c, int width) {
    s.box(x1, y1, x2, y2, c, true);
    if (width > 1) {
        s.setDrawWidth(width);
        s.box(x1, y1, x2, y2, c, false);
    }
}

void resetPen(RasterSurface& s) {
    s.setDrawWidth(1);
    s.setDrawStyle(DrawStyle::Solid);
}

int nMapsOf(const Workbench& wb) {
    return std::clamp<int>(wb.CurrentIFS.nMaps, 0, MaxMaps);
}

}  // namespace

void DesignPictures::setBackColor(Color back) {
    for (RasterSurface* s : {&picdesign, &picCGDesign, &picImage}) s->setBackColor(back);
}

void DesignPictures::resize(int width, int height, Color back) {
    setBackColor(back);
    for (RasterSurface* s : {&picdesign, &picCGDesign, &picImage}) s->resize(width, height);
}

Color DesignColorOf(const Workbench& wb, int i, bool forHandles) {
    const Color c = wb.FunctionColor[static_cast<size_t>(i)];
    if (c != wb.FractalBackColor) return c;
    return !forHandles && wb.DesignBackColor == Black ? White : Black;
}

void DashedLine(RasterSurface& s, double x1, double y1, double x2, double y2, Color c) {
    const double length = std::hypot(s.worldToPixelsX(x2 - x1), s.worldToPixelsY(y2 - y1));
    if (!(length > 0) || !std::isfinite(length)) {
        s.line(x1, y1, x2, y2, c);
        return;
    }
    for (double from = 0; from < length; from += DashPeriod) {
        const double t0 = from / length, t1 = std::min(from + DashOn, length) / length;
        s.line(x1 + t0 * (x2 - x1), y1 + t0 * (y2 - y1), x1 + t1 * (x2 - x1), y1 + t1 * (y2 - y1), c);
    }
}

void DrawIFS(Workbench& wb, DesignPictures& d, int i, int ExtraWidth) {
    RasterSurface& s = d.picdesign;
    const DesignPolygon& poly = wb.InitialPolygon;
    DesignPolygon& image = d.PolygonImage[static_cast<size_t>(i)];
    const bool ghost = i == GhostSlot;
    const Color c = ghost ? Black : DesignColorOf(wb, i);
    s.setDrawWidth(wb.LineThickness + ExtraWidth);
    s.setDrawStyle(DrawStyle::Solid);
    image.Kind = poly.Kind;
    image.nPoints = poly.nPoints;
    if (poly.nPoints >= 1) {
        float cx, cy;
        MapPoint(wb.CurrentIFS, i, poly.x[1], poly.y[1], cx, cy);
        image.x[1] = cx;
        image.y[1] = cy;
        for (int k = 2; k <= poly.nPoints; ++k) {
            if (poly.isPenLift(k)) {
                image.x[k] = image.y[k] = PenLift;
                if (k < poly.nPoints) MapPoint(wb.CurrentIFS, i, poly.x[k + 1], poly.y[k + 1], cx, cy);
                continue;
            }
            float nx, ny;
            MapPoint(wb.CurrentIFS, i, poly.x[k], poly.y[k], nx, ny);
            if (ghost)
                DashedLine(s, cx, cy, nx, ny, c);
            else
                s.line(cx, cy, nx, ny, c);
            image.x[k] = cx = nx;
            image.y[k] = cy = ny;
        }
    }
    resetPen(s);
    if (wb.menu("mnuDesignFP").checked) FixedPoints(wb, d, i, 4);
    if (ExtraWidth > 1) {
        d.picTrans = "Tran.#" + Str(static_cast<float>(i + 1));
        wb.MapSelected = true;
    }
}

void BoundingBoxes(Workbench& wb, DesignPictures& d, int i) {
    d.BoundingBox[static_cast<size_t>(i)] = MapBoundingBox(wb.CurrentIFS, i, wb.InitialPolygon);
}

void DrawBoundingBox(Workbench& wb, DesignPictures& d, int i, int Size) {
    RasterSurface& s = d.picdesign;
    const quillane::BoundingBox& b = d.BoundingBox[static_cast<size_t>(i)];
    const double h = s.pixelsToWorldX(Size) / 2;
    const bool ghost = i == GhostSlot;
    const Color c = ghost ? Black : DesignColorOf(wb, i, true);
    const int width = CInt(Size + 1.2 * wb.LineThickness);
    if (ghost) s.setDrawStyle(DrawStyle::Dot);
    const double xmid = (b.xmin + b.xmax) / 2.0, ymid = (b.ymin + b.ymax) / 2.0;
    const double centres[8][2] = {{b.xmin, b.ymin}, {b.xmax, b.ymin}, {b.xmax, b.ymax}, {b.xmin, b.ymax},
                                  {xmid, b.ymin},   {xmid, b.ymax},   {b.xmin, ymid},   {b.xmax, ymid}};
    for (const auto& p : centres) penBox(s, p[0] - h, p[1] - h, p[0] + h, p[1] + h, c, width);
    resetPen(s);
}

bool FixedPointOf(const Workbench& wb, int i, float& x, float& y) {
    const IFSEntry& f = wb.CurrentIFS;
    const float a = f.a[i], b = f.b[i], c = f.c[i], dd = f.d[i], e = f.e[i], ff = f.f[i];
    const float den = dd * a + ((1 - dd) - a) - c * b;
    if (den == 0) return false;
    x = (ff * b + (e - e * dd)) / den;
    y = ((e * c + ff) - ff * a) / den;
    return true;
}

void FixedPoints(Workbench& wb, DesignPictures& d, int i, int Size) {
    if (i == GhostSlot) return;
    float x, y;
    if (!FixedPointOf(wb, i, x, y)) return;
    RasterSurface& s = d.picdesign;
    const double h = s.pixelsToWorldX(Size);
    penBox(s, x - h, y - h, x + h, y + h, wb.FunctionColor[static_cast<size_t>(i)], wb.LineThickness + 1);
    resetPen(s);
}

void DrawDesignFPs(Workbench& wb, DesignPictures& d) {
    d.picdesign.setDrawMode(DrawMode::CopyPen);
    for (int i = 0; i < nMapsOf(wb); ++i) FixedPoints(wb, d, i, 4);
}

void ForEachMultiple(double lo, double hi, double step, double pixelsPerUnit,
                     const std::function<void(double)>& draw) {
    if (!(step > 0) || !std::isfinite(lo) || !std::isfinite(hi) || !std::isfinite(pixelsPerUnit) ||
        pixelsPerUnit == 0)
        return;
    const double first = std::floor(lo / step), last = std::floor(hi / step);
    if (!(first <= last)) return;
    const double pixels = (last - first) * step * std::fabs(pixelsPerUnit);
    if (last - first <= pixels + 1) {
        const auto count = static_cast<int64_t>(last - first);
        for (int64_t n = 0; n <= count; ++n) draw((first + static_cast<double>(n)) * step);
        return;
    }
    // Closer than a pixel apart, every pixel between the first and the last holds one already.
    const double from = first * step, perPixel = 1 / std::fabs(pixelsPerUnit);
    for (int64_t j = 0; j <= static_cast<int64_t>(pixels); ++j) draw(from + static_cast<double>(j) * perPixel);
}

void DesignAxesTick(Workbench& wb, DesignPictures& d) {
    const WorldWindow& w = wb.DesignWindow;
    for (RasterSurface* s : {&d.picdesign, &d.picCGDesign}) {
        const double t = s->pixelsToWorldX(0.1 * PixelsPerInch);
        s->setDrawWidth(1);
        ForEachMultiple(w.xmin, w.xmax, 1, s->worldToPixelsX(1),
                        [&](double x) { s->line(x, -t / 2, x, t / 2, wb.DesignAxisColor); });
        ForEachMultiple(w.ymin, w.ymax, 1, s->worldToPixelsY(1),
                        [&](double y) { s->line(-t / 2, y, t / 2, y, wb.DesignAxisColor); });
    }
}

void DrawDesignAxes(Workbench& wb, DesignPictures& d) {
    const WorldWindow& w = wb.DesignWindow;
    for (RasterSurface* s : {&d.picdesign, &d.picCGDesign}) {
        s->setDrawWidth(1);
        s->line(w.xmin, 0, w.xmax, 0, wb.DesignAxisColor);
        s->line(0, w.ymin, 0, w.ymax, wb.DesignAxisColor);
    }
    DesignAxesTick(wb, d);
    for (RasterSurface* s : {&d.picdesign, &d.picCGDesign}) s->setDrawWidth(wb.LineThickness + 1);
}

void drawDesignGrid(Workbench& wb, DesignPictures& d, bool BothAreas) {
    const WorldWindow& w = wb.DesignWindow;
    std::vector<RasterSurface*> areas{&d.picCGDesign};
    if (BothAreas) areas.push_back(&d.picdesign);
    const double gx = wb.GridX, gy = wb.GridY;
    for (RasterSurface* s : areas) {
        const DrawMode mode = s->drawMode();
        s->setDrawMode(DrawMode::CopyPen);
        s->setDrawStyle(DrawStyle::Dot);
        s->setDrawWidth(1);
        ForEachMultiple(w.xmin, w.xmax, gx, s->worldToPixelsX(1),
                        [&](double x) { s->line(x, w.ymin, x, w.ymax, GridColor); });
        ForEachMultiple(w.ymin, w.ymax, gy, s->worldToPixelsY(1),
                        [&](double y) { s->line(w.xmin, y, w.xmax, y, GridColor); });
        s->setDrawStyle(DrawStyle::Solid);
        s->setDrawMode(mode);
    }
    if (wb.menu("mnuDesignAxes").checked) DrawDesignAxes(wb, d);
    for (RasterSurface* s : areas) s->setDrawWidth(wb.LineThickness + 1);
    if (!wb.MapSelected && wb.GridX == wb.GridY) d.picTrans = Str(wb.GridX);
}

void DrawDesignSetup(Workbench& wb, DesignPictures& d) {
    RasterSurface& s = d.picdesign;
    const DesignPolygon& p = wb.InitialPolygon;
    if (wb.menu("mnuDesignPoly").checked && !d.Poly.PolygonMode) {
        const Color c = wb.DesignBackColor == Black ? White : Black;
        s.setDrawWidth(1);
        for (int k = 2; k <= p.nPoints; ++k)
            if (!p.isPenLift(k) && !p.isPenLift(k - 1)) DashedLine(s, p.x[k - 1], p.y[k - 1], p.x[k], p.y[k], c);
        resetPen(s);
        s.setDrawWidth(wb.LineThickness + 1);
    }
    if (wb.menu("mnuDesignGrid").checked) drawDesignGrid(wb, d, true);
    if (wb.menu("mnuDesignAxes").checked) DrawDesignAxes(wb, d);
}

void DrawDesign(Workbench& wb, DesignPictures& d, bool Preview) {
    d.picdesign.clear();
    d.picTrans.clear();
    DrawDesignSetup(wb, d);
    for (int i = 0; i < nMapsOf(wb); ++i) DrawIFS(wb, d, i, 1);
    if (Preview && wb.menu("mnuDesignPreview").checked && d.DrawPreview) d.DrawPreview();
}

void RedrawSelection(Workbench& wb, DesignPictures& d) {
    if (!wb.MapSelected || wb.SelectedMap >= wb.CurrentIFS.nMaps) return;
    BoundingBoxes(wb, d, wb.SelectedMap);
    DrawIFS(wb, d, wb.SelectedMap, 3);
    DrawBoundingBox(wb, d, wb.SelectedMap, HandleSize);
}

}  // namespace quillane
