// The drawing commands of the fractal window and its keys.
#include <string>

#include "app/deterministic_commands.h"
#include "app/fractal_view.h"
#include "app/overlay_commands.h"
#include "app/trace_commands.h"
#include "render/deterministic.h"
#include "render/floating_picture.h"
#include "render/play_game.h"
#include "render/trace.h"

namespace quillane {

namespace {

constexpr int CtrlAlt = ShiftMaskCtrl | ShiftMaskAlt;

bool deterministicDrawing(const Workbench& wb) {
    return !wb.RandomMode && wb.DrawingActive;
}

void deleteKey(Workbench& wb, FractalPictures& pics, int shiftMask) {
    const bool keep =
        (shiftMask & ShiftMaskCtrl) != 0 && wb.RandomMode && pics.PictureOverlaid && !pics.Floating.Visible;
    ClearImage(wb, pics, keep);
    wb.DrawingActive = false;
    wb.DrawingStarted = false;
}

// A floating picture stays on its pixels while the view moves, so its corners change.
void showFloatingCorners(FractalPictures& pics) {
    if (pics.Floating.Visible) pics.picCoord = PasteCornersText(pics);
}

}  // namespace

// The window shows itself and takes the focus before this runs; the yield lets it paint first.
namespace {

// The boxes show the window, and a Draw must paint that window: a change that set the window without
// rescaling the pictures (a new number of maps, a sampled scale) starts a new picture in it.
void followWindow(Workbench& wb, FractalPictures& pics) {
    const WorldWindow& w = wb.Window;
    const RasterSurface& p = pics.picfractal;
    if (static_cast<float>(p.scaleLeft()) == w.xmin && static_cast<float>(p.scaleRight()) == w.xmax &&
        static_cast<float>(p.scaleTop()) == w.ymax && static_cast<float>(p.scaleBottom()) == w.ymin)
        return;
    float xmin = w.xmin, xmax = w.xmax, ymin = w.ymin, ymax = w.ymax;
    ScalefrmFractalWindows(wb, pics, xmin, xmax, ymin, ymax, false);
    ClearImage(wb, pics, pics.PictureOverlaid && !pics.Floating.Visible);
}

}  // namespace

void mnuRun_Click(Workbench& wb, FractalPictures& pics, Host& host) {
    if (wb.DrawingActive) return;
    PlaceFractalSelection(wb, pics);
    if (wb.RandomMode) followWindow(wb, pics);
    host.yield();
    // A drawing source that takes PlayGame over keeps its own caption and runs in either mode.
    if (pics.PlotSource) {
        PlayGame(wb, pics, host, 0, 0);
        return;
    }
    if (!wb.RandomMode) {
        wb.FractalCaption = DeterministicCaption;
        Iterate(wb, pics, host, -1);
        return;
    }
    wb.FractalCaption = "Fractal (Random)";
    PlayGame(wb, pics, host, 0, 0);
}

void mnuStop_Click(Workbench& wb) {
    wb.DrawingActive = false;
}

void mnuClear_Click(Workbench& wb, FractalPictures& pics) {
    wb.DrawingActive = false;
    ClearImage(wb, pics, false);
    wb.DrawingStarted = false;
}

void DrawFixedNumber(Workbench& wb, FractalPictures& pics, Host& host, int32_t count) {
    // The count is remembered per drawing type.
    if (!wb.RandomMode) {
        pics.Det.LastLevels = count < 0 ? -count : count;
        host.yield();
        IterateLevels(wb, pics, host, pics.Det.LastLevels);
        return;
    }
    pics.LastFixedCount = count;
    followWindow(wb, pics);
    host.yield();
    PlayGame(wb, pics, host, 0, count);
}

namespace {

bool keyRows(Workbench& wb, FractalPictures& pics, Host& host, int keyCode, int shiftMask) {
    switch (keyCode) {
        case KeyQ:
            wb.DrawingActive = false;
            pics.Det.IterationAbort = true;
            return true;
        case KeyD:
            if (shiftMask != CtrlAlt) break;
            DrawFixedNumber(wb, pics, host, wb.RandomMode ? pics.LastFixedCount : pics.Det.LastLevels);
            return true;
        case KeyPageUp:
            if (pics.Selection.SelectionActive)
                ZoomIn(wb, pics, host);
            else
                ZoomOut(wb, pics, host, -5, true);
            showFloatingCorners(pics);
            return true;
        case KeyPageDown:
            ZoomOut(wb, pics, host, 5, true);
            showFloatingCorners(pics);
            return true;
        case KeyHome:
            ZoomOut(wb, pics, host, -1, true);
            showFloatingCorners(pics);
            return true;
        case KeyLeft:
        case KeyUp:
        case KeyRight:
        case KeyDown:
            if (deterministicDrawing(wb)) break;
            ShiftDrawWin(wb, pics, host, keyCode);
            showFloatingCorners(pics);
            return true;
        case KeyDelete:
            if (deterministicDrawing(wb)) break;
            deleteKey(wb, pics, shiftMask);
            return true;
        case 'A':
            if (shiftMask == ShiftMaskCtrl) {
                FractalAxes(wb, pics);
                return true;
            }
            if (shiftMask == CtrlAlt && !deterministicDrawing(wb)) {
                pics.KeyDialog = "frmAxisSize";
                return true;
            }
            break;
        case 'F':
            if (shiftMask != ShiftMaskCtrl) break;
            FractalFixedPoints(wb, pics);
            return true;
        case 'G':
            if (shiftMask == ShiftMaskCtrl) {
                mnudrawFractalGrid_Click(wb, pics);
                return true;
            }
            if (shiftMask == CtrlAlt && !deterministicDrawing(wb)) {
                pics.KeyDialog = "frmGridSize";
                return true;
            }
            break;
        case KeyPlus:
        case KeyAdd:
            if (GridSpacingKey(wb, pics, true)) return true;
            break;
        case KeyMinus:
        case KeySubtract:
            if (GridSpacingKey(wb, pics, false)) return true;
            break;
        case 'P':
            if (shiftMask == CtrlAlt && wb.TraceEnabled) {
                pics.KeyDialog = "frmTracePoint";
                return true;
            }
            break;
        default:
            break;
    }
    // Rows that share their keys with the rows above, in the table's order.
    if (keyCode == KeyEsc) {
        if (pics.Floating.Visible) {
            PlaceFractalSelection(wb, pics);
            return true;
        }
        if (LiftPlacedPicture(wb, pics)) return true;
    }
    if (keyCode == 'P' && shiftMask == CtrlAlt && pics.Floating.Visible && !wb.TraceEnabled) {
        pics.KeyDialog = "picPasteSetPosition";
        return true;
    }
    if (keyCode == KeyR && shiftMask == CtrlAlt && pics.Floating.Visible) {
        pics.Floating.ResizeHandles = !pics.Floating.ResizeHandles;
        wb.Menu.setChecked("mnuPicPastePopUpResize", pics.Floating.ResizeHandles);
        return true;
    }
    if (wb.TraceEnabled && wb.TracePointSet && !wb.DrawingActive) {
        if (keyCode == KeySpace) {
            TraceStep(wb, pics, -1);
            return true;
        }
        return HandleTrace(wb, pics, keyCode, shiftMask);
    }
    if (wb.RandomMode || wb.DrawingActive) return false;
    PlaceFractalSelection(wb, pics);
    return DeterministicDigitKey(wb, pics, host, keyCode, shiftMask);
}

}  // namespace

bool FractalKeyDown(Workbench& wb, FractalPictures& pics, Host& host, int keyCode, int shiftMask) {
    if (shiftMask == (ShiftMaskCtrl | ShiftMaskShift)) pics.Det.KeepFirstColor = true;
    // The toolkit gives one event per keystroke, so there is no second (character) event of the same
    // stroke for KeyHandled to drop; it is kept for what reads it until the key comes up.
    const bool handled = keyRows(wb, pics, host, keyCode, shiftMask);
    if (handled) wb.KeyHandled = true;
    return handled;
}

void ResizeFractalWin(Workbench& wb, FractalPictures& pics, int side) {
    wb.DrawingActive = false;
    pics.resize(side, pics.picfractal.backColor());
    float xmin = wb.Window.xmin, xmax = wb.Window.xmax, ymin = wb.Window.ymin, ymax = wb.Window.ymax;
    ScalefrmFractalWindows(wb, pics, xmin, xmax, ymin, ymax, false);
    pics.picImageShift.setScale(xmin, ymax, xmax, ymin);
    ClearImage(wb, pics, false);
    wb.DrawingStarted = false;
}

std::string FractalSizeText(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

}  // namespace quillane
