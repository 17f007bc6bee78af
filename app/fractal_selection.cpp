// The mouse on the fractal picture: coordinates, the selection rectangle and the ruler line.
#include <algorithm>
#include <cmath>
#include <string>

#include "core/numbers.h"
#include "app/fractal_view.h"

namespace quillane {

namespace {

std::string pairText(double a, double b) {
    return "(" + Format(a, "0.000") + "," + Format(b, "0.000") + ")";
}

// Drawn in invert mode, so drawing the same figure again erases it.
void drawSelectionBox(FractalPictures& pics) {
    const FractalSelection& s = pics.Selection;
    pics.picfractal.box(s.SelX1, s.SelY1, s.SelX2, s.SelY2, 0, false);
}

void drawRuler(FractalPictures& pics, const Workbench& wb) {
    const FractalSelection& s = pics.Selection;
    pics.picfractal.line(s.SelX1, s.SelY1, s.SelX2, s.SelY2, wb.FractalAxisColor);
}

void savePen(FractalPictures& pics) {
    FractalSelection& s = pics.Selection;
    s.SavedDrawMode = pics.picfractal.drawMode();
    s.SavedDrawStyle = pics.picfractal.drawStyle();
    s.SavedDrawWidth = pics.picfractal.drawWidth();
}

// The end corner follows the mouse; a square selection takes the larger extent on both axes.
void setEndCorner(FractalSelection& s, double x, double y) {
    if (s.SelectionAspect == 1) {
        const double dx = x - s.SelX1, dy = y - s.SelY1;
        const double side = std::max(std::fabs(dx), std::fabs(dy));
        x = s.SelX1 + (dx < 0 ? -side : side);
        y = s.SelY1 + (dy < 0 ? -side : side);
    }
    s.SelX2 = x;
    s.SelY2 = y;
}

void dragTo(Workbench& wb, FractalPictures& pics, double x, double y) {
    FractalSelection& s = pics.Selection;
    if (s.DrawingLine) {
        drawRuler(pics, wb);
        s.SelX2 = x;
        s.SelY2 = y;
        drawRuler(pics, wb);
        pics.picCoord = pairText(s.SelX2 - s.SelX1, s.SelY2 - s.SelY1);
    } else {
        drawSelectionBox(pics);
        setEndCorner(s, x, y);
        drawSelectionBox(pics);
        pics.picCoord = SelectionSizeText(s);
    }
}

}  // namespace

std::string CoordinateText(const WorldWindow& w, double x, double y) {
    const double cx = std::clamp(x, static_cast<double>(std::min(w.xmin, w.xmax)),
                                 static_cast<double>(std::max(w.xmin, w.xmax)));
    const double cy = std::clamp(y, static_cast<double>(std::min(w.ymin, w.ymax)),
                                 static_cast<double>(std::max(w.ymin, w.ymax)));
    return pairText(cx, cy);
}

std::string SelectionSizeText(const FractalSelection& s) {
    return pairText(std::fabs(s.SelX2 - s.SelX1), std::fabs(s.SelY2 - s.SelY1));
}

void FractalMouseDown(Workbench& wb, FractalPictures& pics, double x, double y, int shiftMask) {
    if (wb.DrawingActive) return;
    ClearSelectionRect(wb, pics);
    savePen(pics);
    FractalSelection& s = pics.Selection;
    RasterSurface& p = pics.picfractal;
    p.setDrawMode(DrawMode::Invert);
    s.SelX1 = s.SelX2 = x;
    s.SelY1 = s.SelY2 = y;
    if ((shiftMask & ShiftMaskCtrl) != 0) {
        p.setDrawWidth(2);
        s.DrawingLine = true;
        drawRuler(pics, wb);
    } else if (wb.RandomMode) {
        s.SelectionDragging = true;
        s.SelectionAspect = (shiftMask & ShiftMaskShift) != 0 ? 1 : 0;
        p.setDrawStyle(DrawStyle::Dot);
        drawSelectionBox(pics);
    } else {
        RestoreSelectionPen(pics);
    }
}

void FractalMouseMove(Workbench& wb, FractalPictures& pics, double x, double y) {
    const FractalSelection& s = pics.Selection;
    if (s.DrawingLine || s.SelectionDragging)
        dragTo(wb, pics, x, y);
    else if (!pics.Floating.Visible)  // the floating picture's corners stay on show
        pics.picCoord = CoordinateText(wb.Window, x, y);
}

void FractalMouseUp(Workbench& wb, FractalPictures& pics, double x, double y) {
    if (wb.DrawingActive) return;
    FractalSelection& s = pics.Selection;
    if (s.DrawingLine) {
        // The ruler is only there while the button is held.
        drawRuler(pics, wb);
        s.DrawingLine = false;
        RestoreSelectionPen(pics);
    } else if (s.SelectionDragging) {
        dragTo(wb, pics, x, y);
        s.SelectionDragging = false;
        RestoreSelectionPen(pics);
        if (s.SelX1 != s.SelX2 && s.SelY1 != s.SelY2) {
            s.SelectionActive = true;
            wb.Menu.setCaption("mnuZoom", ZoomSelectionCaption);
        } else {
            ClearSelectionRect(wb, pics);
        }
    }
}

}  // namespace quillane
