#include "app/design_view.h"

#include <algorithm>

#include "core/numbers.h"
#include "core/table_editing.h"
#include "app/chaos_design.h"
#include "design/chaos_drawing.h"
#include "design/design_drawing.h"
#include "app/polygon_commands.h"
#include "app/fractal_view.h"

namespace quillane {

namespace {

constexpr double FractalPadPixels = 2;  // 30 twips

// Widens the smaller span by half the difference on both sides.
void makeSquare(float& xmin, float& xmax, float& ymin, float& ymax) {
    const float w = xmax - xmin, h = ymax - ymin;
    if (w < h) {
        xmin -= (h - w) / 2;
        xmax += (h - w) / 2;
    } else {
        ymin -= (w - h) / 2;
        ymax += (w - h) / 2;
    }
}

void extend(float& lo, float& hi, float v) {
    lo = std::min(lo, v);
    hi = std::max(hi, v);
}

}  // namespace

void RedrawDesignView(Workbench& wb, DesignPictures& d) {
    if (d.Poly.PolygonMode) {
        RedrawPolygonMode(wb, d);
        return;
    }
    if (wb.DesignMode == 1) {
        RedrawCGDesign(wb, d);
        return;
    }
    DrawDesign(wb, d, false);
    RedrawSelection(wb, d);
}

void DesignAxes(Workbench& wb, DesignPictures& d) {
    RedrawDesignView(wb, d);
}

void DesignGrid(Workbench& wb, DesignPictures& d) {
    wb.Menu.setChecked("mnuDesignGrid", !wb.menu("mnuDesignGrid").checked);
    RedrawDesignView(wb, d);
}

void DesignFixedPoints(Workbench& wb, DesignPictures& d) {
    wb.Menu.setChecked("mnuDesignFP", !wb.menu("mnuDesignFP").checked);
    RedrawDesignView(wb, d);
}

void mnuDesignLine_Click(Workbench& wb, DesignPictures& d, int Index) {
    if (Index < 0 || Index > 2) return;
    for (int k = 0; k < 3; ++k) wb.Menu.setChecked(MenuTable::key("mnuDesignLine", k), k == Index);
    wb.LineThickness = static_cast<int16_t>(2 * Index);
    RedrawDesignView(wb, d);
}

void ApplyDesignWindow(DesignPictures& d, const WorldWindow& w) {
    for (RasterSurface* s : {&d.picdesign, &d.picImage, &d.picCGDesign}) s->setScale(w.xmin, w.ymax, w.xmax, w.ymin);
}

void WriteDesignText(Workbench& wb) {
    wb.txtDesign = WindowTexts(wb.DesignWindow);
}

void ScaleDesignWindows(Workbench& wb, DesignPictures& d) {
    WorldWindow& w = wb.DesignWindow;
    w.ymax = static_cast<float>(Val(wb.txtDesign[0]));
    w.ymin = static_cast<float>(Val(wb.txtDesign[1]));
    w.xmin = static_cast<float>(Val(wb.txtDesign[2]));
    w.xmax = static_cast<float>(Val(wb.txtDesign[3]));
    ApplyDesignWindow(d, w);
}

WorldWindow DesignWinScale(Workbench& wb, DesignPictures& d) {
    float xmin = 100, xmax = -100, ymin = 100, ymax = -100;
    const DesignPolygon& p = wb.InitialPolygon;
    for (int k = 1; k <= p.nPoints; ++k) {
        if (p.x[k] >= PenLift || p.y[k] >= PenLift) continue;
        extend(xmin, xmax, p.x[k]);
        extend(ymin, ymax, p.y[k]);
    }
    for (int i = 0; i < wb.CurrentIFS.nMaps && i < MaxMaps; ++i) {
        BoundingBoxes(wb, d, i);
        const quillane::BoundingBox& b = d.BoundingBox[static_cast<size_t>(i)];
        extend(xmin, xmax, b.xmin);
        extend(xmin, xmax, b.xmax);
        extend(ymin, ymax, b.ymin);
        extend(ymin, ymax, b.ymax);
    }
    auto up = [](float v) { return static_cast<float>(Round(Round(v, 5) + 0.05, 1)); };
    auto down = [](float v) { return static_cast<float>(Round(Round(v, 5) - 0.05, 1)); };
    xmax = up(xmax);
    xmin = down(xmin);
    ymax = up(ymax);
    ymin = down(ymin);
    if (xmax == xmin) {
        xmax += 0.05f;
        xmin -= 0.05f;
    }
    if (ymax == ymin) {
        ymax += 0.05f;
        ymin -= 0.05f;
    }
    if (wb.DesignMode == 1) CGDesignScale(wb, xmax, xmin, ymax, ymin);
    makeSquare(xmin, xmax, ymin, ymax);
    const float w = xmax - xmin, h = ymax - ymin;
    return {xmin - 0.05f * w, xmax + 0.05f * w, ymin - 0.05f * h, ymax + 0.05f * h};
}

void DesignScale(Workbench& wb, DesignPictures& d) {
    if (d.Poly.PolygonMode) return;
    wb.DesignWindow = DesignWinScale(wb, d);
    ApplyDesignWindow(d, wb.DesignWindow);
    RedrawDesignView(wb, d);
    ResetUndoMenu(wb);
    WriteDesignText(wb);
}

void mnuDesignMatch_Click(Workbench& wb, DesignPictures& d, const FractalPictures& pics) {
    wb.DesignWindow = wb.Window;
    wb.txtDesign = wb.txtWin;
    const WorldWindow& w = wb.DesignWindow;
    const double r = pics.picfractal.pixelsToWorldX(FractalPadPixels);
    d.picdesign.setScale(w.xmin, w.ymax, w.xmax + r, w.ymin - r);
    DrawDesign(wb, d, false);
    RedrawSelection(wb, d);
}

void DesignWinZoom(Workbench& wb, DesignPictures& d, int Direction) {
    d.DesignUndoWindow = wb.DesignWindow;
    WorldWindow& w = wb.DesignWindow;
    w.xmin = w.xmin - Direction * 0.05f * (w.xmax - w.xmin);
    w.xmax = w.xmax + Direction * 0.05f * (w.xmax - w.xmin);
    w.ymax = w.ymax + Direction * 0.05f * (w.ymax - w.ymin);
    w.ymin = w.ymin - Direction * 0.05f * (w.ymax - w.ymin);
    WriteDesignText(wb);
    ScaleDesignWindows(wb, d);
    RedrawDesignView(wb, d);
    if (d.Poly.PolygonMode) return;
    wb.Menu.setCaption("mnuUndo", UndoZoomCaption);
    wb.Menu.setEnabled("mnuUndo", true);
    wb.Menu.setEnabled(UndoToolButton, true);
    wb.ZoomUndoSource = 0;
}

void ShiftDesignWin(Workbench& wb, DesignPictures& d, int KeyCode) {
    if (wb.DrawingActive) return;
    d.ShiftUndoWindow = wb.DesignWindow;
    ResetUndoMenu(wb);
    WorldWindow& w = wb.DesignWindow;
    const float dx = 0.01f * (w.xmax - w.xmin), dy = 0.01f * (w.ymax - w.ymin);
    switch (KeyCode) {
        case KeyLeft: w.xmin -= dx, w.xmax -= dx; break;
        case KeyRight: w.xmin += dx, w.xmax += dx; break;
        case KeyUp: w.ymin += dy, w.ymax += dy; break;
        case KeyDown: w.ymin -= dy, w.ymax -= dy; break;
        default: return;
    }
    WriteDesignText(wb);
    ScaleDesignWindows(wb, d);
    RedrawDesignView(wb, d);
}

void MnuDesignShiftDir_Click(Workbench& wb, DesignPictures& d, int Index) {
    static constexpr int keys[4] = {KeyLeft, KeyRight, KeyDown, KeyUp};
    if (Index >= 0 && Index < 4) ShiftDesignWin(wb, d, keys[Index]);
}

bool RedrawDesignIfChanged(Workbench& wb, DesignPictures& d) {
    const IFSEntry& f = wb.CurrentIFS;
    DesignPictures::Shown now{f.nMaps, f.a, f.b, f.c, f.d, f.e, f.f, wb.FunctionColor, wb.InitialPolygon};
    if (d.Poly.PolygonMode || now == d.LastShown) return false;
    d.LastShown = now;
    RedrawDesignView(wb, d);
    return true;
}

std::string ResizeDesignWin(Workbench& wb, DesignPictures& d, int width, int height) {
    d.resize(width, height, wb.DesignBackColor);
    ScaleDesignWindows(wb, d);
    RedrawDesignView(wb, d);
    return std::to_string(width) + " x " + std::to_string(height);
}

BoxCommit txtDesign_Commit(Workbench& wb, Host& host) {
    if (wb.txtDesign == WindowTexts(wb.DesignWindow)) return BoxCommit::Unchanged;
    const std::optional<WorldWindow> w = WindowFromTexts(wb.txtDesign);
    if (!w) {
        host.warn(InvalidNumberTitle, InvalidNumberMessage);
        wb.txtDesign = WindowTexts(wb.DesignWindow);
        return BoxCommit::Refused;
    }
    const bool changed = *w != wb.DesignWindow;
    wb.DesignWindow = *w;
    wb.txtDesign = WindowTexts(*w);
    return changed ? BoxCommit::Changed : BoxCommit::Unchanged;
}

}  // namespace quillane
