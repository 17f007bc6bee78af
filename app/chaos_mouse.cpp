#include "app/chaos_mouse.h"

#include <algorithm>
#include <cmath>

#include "core/chaos_game.h"
#include "core/numbers.h"
#include "app/chaos_design.h"
#include "design/chaos_drawing.h"
#include "app/chaos_moves.h"
#include "design/design_drawing.h"
#include "app/design_keys.h"
#include "app/undo.h"
#include "app/fractal_view.h"
#include "app/design_selection.h"

namespace quillane {

namespace {

constexpr int PickPixels = 8, MovePixels = 4;

float snap(float v, float grid) {
    return grid > 0 ? static_cast<float>(Round(v / grid) * grid) : v;
}

bool gridSnap(const Workbench& wb, int Shift) {
    return (Shift & ShiftMaskShift) != 0 && wb.menu("mnuDesignGrid").checked;
}

// The fixed point's position into the arrays, its boxes and its matrix.
void placeFixedPoint(Workbench& wb, int i, float x, float y) {
    wb.CurrentIFS.FPx[i] = x;
    wb.CurrentIFS.FPy[i] = y;
    wb.Table.text(8, i) = Format(x, "0.000");
    wb.Table.text(9, i) = Format(y, "0.000");
    CGMatrix(wb, i);
}

bool pickFixedPoint(Workbench& wb, DesignPictures& d, int Button, float x, float y) {
    if (Button != CGButtonLeft) return false;
    const IFSEntry& ifs = wb.CurrentIFS;
    const double r = d.picCGDesign.pixelsToWorldX(PickPixels);
    const Color under = d.picCGDesign.point(x, y);
    for (int i = 0; i < ifs.nMaps && i < MaxMaps; ++i) {
        if (under != wb.FunctionColor[static_cast<size_t>(i)]) continue;
        const double dx = x - ifs.FPx[i], dy = y - ifs.FPy[i];
        if (dx * dx + dy * dy >= 2 * r * r) continue;
        wb.OriginalFP = {ifs.FPx[i], ifs.FPy[i]};
        if (i != wb.SelectedMap) ResetUndoMenu(wb);
        wb.CGDragging = true;
        wb.FPMoved = false;
        wb.CGMapSelected = true;
        AdjustDesignMenu(wb, true);
        DrawSelectedCGFixedPoint(wb, d, i);
        if (wb.ScaleCG.Showing) SetFPSettings(wb, false);
        return true;
    }
    return false;
}

void deselect(Workbench& wb, DesignPictures& d) {
    wb.CGMapSelected = false;
    d.picTrans.clear();
    DrawCGDesign(wb, d, -1, true);
    AdjustDesignMenu(wb, false);
}

// Selection by digits, as in IFS mode: 1..9, or two digits each with Shift.
bool digitKey(Workbench& wb, DesignPictures& d, int KeyCode, int Shift) {
    const std::optional<int> chosen = DigitSelection(wb.CurrentIFS.nMaps, d, KeyCode, Shift);
    if (!chosen) return false;
    if (*chosen > 0) {
        if (*chosen - 1 != wb.SelectedMap) ResetUndoMenu(wb);
        AdjustDesignMenu(wb, true);
        DrawSelectedCGFixedPoint(wb, d, *chosen - 1);
        if (wb.ScaleCG.Showing) SetFPSettings(wb, false);
    }
    return true;
}

}  // namespace

void picCGDesign_MouseDown(Workbench& wb, Host& host, DesignPictures& d, int Button, int Shift, float x,
                           float y) {
    if (Button == CGButtonRight) return;
    if (pickFixedPoint(wb, d, Button, x, y)) return;
    if (Button == CGButtonLeft && (Shift == ShiftMaskCtrl || Shift == ShiftMaskShift)) {
        if (gridSnap(wb, Shift)) {
            x = snap(x, wb.GridX);
            y = snap(y, wb.GridX);
        }
        newCGFixedPoint(wb, host, false, x, y);
        DrawSelectedCGFixedPoint(wb, d, wb.SelectedMap);
        wb.OriginalFP = {x, y};
        ++wb.ChangeCount;
        wb.CGDragging = true;
        wb.FPMoved = false;
        wb.IFSModified = true;
        AddAsterickToName(wb);
        SetUndoCaption(wb, UndoNewCaption);
        OfferUndo(wb);
        return;
    }
    const double r = d.picCGDesign.pixelsToWorldX(PickPixels);
    if (std::hypot(x - wb.ReferencePoint.x, y - wb.ReferencePoint.y) < r) {
        wb.OldReferencePoint = wb.ReferencePoint;
        wb.MoveRefPending = true;
        return;
    }
    deselect(wb, d);
}

void picCGDesign_MouseMove(Workbench& wb, DesignPictures& d, int Button, int /*Shift*/, float x, float y) {
    d.picCoord = "(" + Format(x, "0.000") + "," + Format(y, "0.000") + ")";
    if (Button != CGButtonLeft) return;
    if (wb.MoveRefPending) {
        wb.ReferencePoint.x = x;
        wb.ReferencePoint.y = y;
        wb.CGMapSelected = false;
        wb.SelectedMap = -1;
        DrawCGDesign(wb, d, -1, true);
        SetUndoCaption(wb, UndoMoveReferenceCaption);
        return;
    }
    if (!wb.CGDragging) return;
    const int i = wb.SelectedMap;
    const double dist = std::hypot(d.picCGDesign.worldToPixelsX(x - wb.CurrentIFS.FPx[i]),
                                   d.picCGDesign.worldToPixelsX(y - wb.CurrentIFS.FPy[i]));
    if (dist < MovePixels) return;
    placeFixedPoint(wb, i, x, y);
    DrawSelectedCGFixedPoint(wb, d, i);
    SetUndoCaption(wb, UndoMoveCaption);
    wb.IFSModified = true;
    wb.FPMoved = true;
}

bool picCGDesign_MouseUp(Workbench& wb, DesignPictures& d, int Button, int Shift, float x, float y) {
    if (Button == CGButtonRight) {
        if (Shift != ShiftMaskCtrl) return true;
        wb.OldReferencePoint = wb.ReferencePoint;
        wb.ReferencePoint = {x, y, True16};
        wb.CGMapSelected = false;
        DrawCGDesign(wb, d, -1, true);
        return false;
    }
    if (Button != CGButtonLeft) return false;
    const bool snapped = gridSnap(wb, Shift);
    if (wb.MoveRefPending) {
        wb.MoveRefPending = false;
        OfferUndo(wb);
        wb.NewReferencePoint = {x, y, True16};
        if (snapped) {
            wb.NewReferencePoint.x = snap(x, wb.GridX);
            wb.NewReferencePoint.y = snap(y, wb.GridY);
            wb.ReferencePoint = wb.NewReferencePoint;
            DrawCGDesign(wb, d, -1, true);
        }
        return false;
    }
    if (!wb.CGDragging) return false;
    wb.CGDragging = false;
    const int i = wb.SelectedMap;
    wb.ResultFP = {x, y};
    if (snapped) {
        wb.ResultFP = {snap(x, wb.GridX), snap(y, wb.GridY)};
        placeFixedPoint(wb, i, wb.ResultFP.x, wb.ResultFP.y);
    }
    CGMatrix(wb, i);
    DrawSelectedCGFixedPoint(wb, d, i);
    if (wb.FPMoved) CommitUndo(wb);
    wb.FPMoved = false;
    return false;
}

bool picCGDesign_KeyDown(Workbench& wb, DesignPictures& d, int KeyCode, int Shift) {
    if (!wb.menu("mnuCodeFP").checked) return false;
    if (KeyCode >= KeyLeft && KeyCode <= KeyDown) {
        if (!wb.CGMapSelected) return false;
        const int i = wb.SelectedMap;
        IFSEntry& ifs = wb.CurrentIFS;
        if (!wb.CGKeyMoving) wb.OriginalFP = {ifs.FPx[i], ifs.FPy[i]};
        wb.CGKeyMoving = true;
        const double px = d.picCGDesign.pixelsToWorldX(1), py = d.picCGDesign.pixelsToWorldY(1);
        float x = ifs.FPx[i], y = ifs.FPy[i];
        if (KeyCode == KeyLeft) x = static_cast<float>(x - px);
        if (KeyCode == KeyRight) x = static_cast<float>(x + px);
        if (KeyCode == KeyUp) y = static_cast<float>(y + std::abs(py));
        if (KeyCode == KeyDown) y = static_cast<float>(y - std::abs(py));
        placeFixedPoint(wb, i, x, y);
        DrawSelectedCGFixedPoint(wb, d, i);
        return true;
    }
    return digitKey(wb, d, KeyCode, Shift);
}

void picCGDesign_KeyUp(Workbench& wb, DesignPictures& /*d*/, int KeyCode, int /*Shift*/) {
    if (!wb.CGKeyMoving || KeyCode < KeyLeft || KeyCode > KeyDown) return;
    wb.CGKeyMoving = false;
    const int i = wb.SelectedMap;
    wb.ResultFP = {wb.CurrentIFS.FPx[i], wb.CurrentIFS.FPy[i]};
    SetUndoCaption(wb, UndoMoveCaption);
    CommitUndo(wb);
    CGMatrix(wb, i);
}

}  // namespace quillane
