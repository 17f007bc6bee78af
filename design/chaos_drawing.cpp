#include "design/chaos_drawing.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/numbers.h"
#include "design/design_drawing.h"

namespace quillane {

namespace {

constexpr double PiValue = 3.141592654;
constexpr double TwoPi = 2 * PiValue;
constexpr int BoxHalf = 4, SelectedHalf = 6, DotRadius = 3;

int nMapsOf(const Workbench& wb) {
    return std::clamp<int>(wb.CurrentIFS.nMaps, 0, MaxMaps);
}

void fixedPointBox(const Workbench& wb, RasterSurface& s, int i, int half) {
    const double h = s.pixelsToWorldX(half);
    const double x = wb.CurrentIFS.FPx[i], y = wb.CurrentIFS.FPy[i];
    s.box(x - h, y - h, x + h, y + h, wb.FunctionColor[static_cast<size_t>(i)], true);
}

// The arc about F from the direction of P through `turn` radians, counterclockwise for a positive one.
void arc(RasterSurface& s, const Workbench& wb, int i, const CGMove& m) {
    const double fx = wb.CurrentIFS.FPx[i], fy = wb.CurrentIFS.FPy[i];
    const double r = std::hypot(m.x0 - fx, m.y0 - fy);
    double start = std::atan2(m.y0 - fy, m.x0 - fx);
    if (start < 0) start += TwoPi;
    double end = start + m.turn;
    end = std::fmod(end, TwoPi);
    if (m.turn < 0) {
        std::swap(start, end);
        if (start < 0) start += TwoPi;
        if (end < 0) end += TwoPi;
    }
    if (end < start) end += TwoPi;
    const double pixels = std::max(1.0, s.worldToPixelsX(r) * (end - start));
    const int n = static_cast<int>(std::ceil(pixels / 2));
    double x = fx + r * std::cos(start), y = fy + r * std::sin(start);
    for (int k = 1; k <= n; ++k) {
        const double a = start + (end - start) * k / n;
        const double nx = fx + r * std::cos(a), ny = fy + r * std::sin(a);
        s.line(x, y, nx, ny, wb.FunctionColor[static_cast<size_t>(i)]);
        x = nx, y = ny;
    }
}

void drawPath(Workbench& wb, RasterSurface& s, int i) {
    const IFSEntry& ifs = wb.CurrentIFS;
    const Color c = wb.FunctionColor[static_cast<size_t>(i)];
    bool any = false;
    for (int k = 1; k <= 4; ++k) any = any || !ifs.Step[k][i].empty();
    if (!any) return;
    double px = wb.ReferencePoint.x, py = wb.ReferencePoint.y;
    for (const CGMove& m : CGPathOf(wb, i)) {
        if (m.letter == 'R')
            arc(s, wb, i, m);
        else if (m.letter == 'H')
            s.line(m.x0, m.y0, std::max<double>(m.x1, wb.DesignWindow.xmin), m.y1, c);
        else
            s.line(m.x0, m.y0, m.x1, m.y1, c);
        px = m.x1, py = m.y1;
    }
    s.circle(px, py, s.pixelsToWorldX(DotRadius), c, true);
}

}  // namespace

std::vector<CGMove> CGPathOf(const Workbench& wb, int i) {
    const IFSEntry& ifs = wb.CurrentIFS;
    const double fx = ifs.FPx[i], fy = ifs.FPy[i];
    const double scale = ifs.Scale[i], t = ifs.Angle[i] * PiValue / 180;
    std::vector<CGMove> moves;
    double px = wb.ReferencePoint.x, py = wb.ReferencePoint.y;
    for (int k = 1; k <= 4; ++k) {
        std::string l = ifs.Step[k][i].substr(0, 1);
        std::transform(l.begin(), l.end(), l.begin(), [](unsigned char ch) { return std::toupper(ch); });
        CGMove m{l.empty() ? ' ' : l[0], px, py, px, py, 0};
        if (m.letter == 'S' && scale >= 0 && scale <= 1) {
            m.x1 = (1 - scale) * (fx - px) + px;
            m.y1 = (1 - scale) * (fy - py) + py;
        } else if (m.letter == 'R' && t != 0) {
            m.turn = t;
            m.x1 = fx + (px - fx) * std::cos(t) - (py - fy) * std::sin(t);
            m.y1 = fy + (px - fx) * std::sin(t) + (py - fy) * std::cos(t);
        } else if (m.letter == 'H') {
            m.x1 = 2 * fx - px;
        } else if (m.letter == 'V') {
            m.y1 = 2 * fy - py;
        } else {
            continue;
        }
        moves.push_back(m);
        px = m.x1, py = m.y1;
    }
    return moves;
}

void DrawCGFixedPoints(Workbench& wb, DesignPictures& d) {
    RasterSurface& s = d.picCGDesign;
    s.clear();
    s.setDrawMode(DrawMode::CopyPen);
    if (wb.menu("mnuDesignGrid").checked) drawDesignGrid(wb, d, false);
    if (wb.menu("mnuDesignAxes").checked) DrawDesignAxes(wb, d);
    s.setDrawWidth(wb.LineThickness + 1);
    for (int i = 0; i < nMapsOf(wb); ++i) fixedPointBox(wb, s, i, BoxHalf);
}

void DrawCGDesign(Workbench& wb, DesignPictures& d, int i, bool Preview) {
    DrawCGFixedPoints(wb, d);
    RasterSurface& s = d.picCGDesign;
    if (wb.ReferencePoint.shown != 0) {
        for (int k = 0; k < nMapsOf(wb); ++k) {
            if (i != -1 && k != i) continue;
            s.setDrawWidth(wb.LineThickness + 1);
            fixedPointBox(wb, s, k, BoxHalf);
            drawPath(wb, s, k);
        }
        s.setDrawWidth(1);
        s.circle(wb.ReferencePoint.x, wb.ReferencePoint.y, s.pixelsToWorldX(DotRadius), Black, true);
    }
    s.setDrawWidth(wb.LineThickness + 1);
    if (Preview && wb.menu("mnuDesignPreview").checked && d.DrawPreview) d.DrawPreview();
}

void DrawSelectedCGFixedPoint(Workbench& wb, DesignPictures& d, int i) {
    DrawCGDesign(wb, d, -1, true);
    if (i < 0 || i >= nMapsOf(wb)) return;
    wb.SelectedMap = static_cast<int16_t>(i);
    wb.CGMapSelected = true;
    fixedPointBox(wb, d.picCGDesign, i, SelectedHalf);
    d.picTrans = "Tran.#" + std::to_string(i + 1);
}

void RedrawCGDesign(Workbench& wb, DesignPictures& d) {
    if (wb.CGMapSelected)
        DrawSelectedCGFixedPoint(wb, d, wb.SelectedMap);
    else
        DrawCGDesign(wb, d, -1, true);
    if (!wb.CGMapSelected && wb.menu("mnuDesignGrid").checked && wb.GridX == wb.GridY)
        d.picTrans = Str(wb.GridX);
}

}  // namespace quillane
