#include "app/fractal_view.h"

#include <algorithm>

#include "core/numbers.h"
#include "render/deterministic.h"
#include "render/fractal_overlays.h"
#include "render/play_game.h"
#include "render/scale.h"

namespace quillane {

namespace {

bool refusedAsFrozen(const Workbench& wb, Host& host) {
    if (!wb.menu("mnuDrawFreezeScale").checked) return false;
    host.warn(ScaleFrozenTitle, ScaleFrozenMessage);
    return true;
}

void offerZoomUndo(Workbench& wb) {
    wb.Menu.setCaption("mnuUndo", UndoZoomCaption);
    wb.Menu.setEnabled("mnuUndo", true);
    wb.Menu.setEnabled(UndoToolButton, true);
    wb.ZoomUndoSource = 1;
}

// Writes the boxes first, so that ScalefrmFractalWindows takes the window as it stands.
void showWindow(Workbench& wb, FractalPictures& pics, const WorldWindow& w) {
    wb.Window = w;
    WriteWindowText(wb);
    float xmin = w.xmin, xmax = w.xmax, ymin = w.ymin, ymax = w.ymax;
    ScalefrmFractalWindows(wb, pics, xmin, xmax, ymin, ymax, false);
}

// Each edge moves outward by percent/100 of the side, halved.
WorldWindow grown(const WorldWindow& w, int percent) {
    const double s = percent / 100.0;
    const double dx = (static_cast<double>(w.xmax) - w.xmin) * s / 2;
    const double dy = (static_cast<double>(w.ymax) - w.ymin) * s / 2;
    return {static_cast<float>(w.xmin - dx), static_cast<float>(w.xmax + dx), static_cast<float>(w.ymin - dy),
            static_cast<float>(w.ymax + dy)};
}

// Restore: the fitted window of the attractor, or of the deterministic figure.
WorldWindow restoredWindow(Workbench& wb, Host& host) {
    if (!wb.RandomMode) return wb.FitWindow;
    setscale(wb, host);
    wb.DrawingStarted = false;
    return wb.Window;
}

WorldWindow shifted(const WorldWindow& w, int keyCode) {
    const double dx = (static_cast<double>(w.xmax) - w.xmin) * 0.01;
    const double dy = (static_cast<double>(w.ymax) - w.ymin) * 0.01;
    double mx = 0, my = 0;
    if (keyCode == KeyLeft) mx = -dx;
    if (keyCode == KeyRight) mx = dx;
    if (keyCode == KeyUp) my = dy;
    if (keyCode == KeyDown) my = -dy;
    return {static_cast<float>(w.xmin + mx), static_cast<float>(w.xmax + mx), static_cast<float>(w.ymin + my),
            static_cast<float>(w.ymax + my)};
}

void paintPlacedPicture(FractalPictures& pics) {
    try {
        pics.picfractal.paint(pics.picPaste, pics.PasteX, pics.PasteY, RasterOp::Copy);
    } catch (const SurfaceOverflow&) {
        // A placed picture that far outside the view has nothing to show in it.
    }
}

// Paints `source` where its own coordinate origin lies in the coordinates of `dest`.
void slideInto(RasterSurface& dest, const RasterSurface& source) {
    try {
        dest.paint(source, source.scaleLeft(), source.scaleTop(), RasterOp::Copy);
    } catch (const SurfaceOverflow&) {
        // An origin that far away leaves nothing of the old picture in view.
    }
}

void showCountOf(const Workbench& wb, FractalPictures& pics) {
    if (wb.PointCount > WarmUpIterations)
        pics.picCount = std::to_string(wb.PointCount - WarmUpIterations);
    else
        pics.picCount.clear();
}

// The random drawing after a zoom. `before` is the picture of the old view: it has to end in picImage3
// for Undo Zoom, which PlayGame's restart does by copying picImage2 there.
void redrawRandomZoom(Workbench& wb, FractalPictures& pics, Host& host, const RasterSurface& before,
                      bool restart) {
    wb.PointCount = 0;
    pics.picfractal.clear();
    pics.picCount.clear();
    if (pics.PictureOverlaid) paintPlacedPicture(pics);
    const WorldWindow& w = wb.Window;
    pics.picImageShift.setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    pics.picImageShift.takeImage(pics.picfractal);
    if (restart) {
        pics.picImage2.takeImage(before);
        PlayGame(wb, pics, host, 1, 0);
    } else {
        pics.picImage2.takeImage(pics.picfractal);
        pics.picImage3.takeImage(before);
        ShowOverlays(wb, pics);
    }
}

void restoreUndonePicture(Workbench& wb, FractalPictures& pics, const RasterSurface& before) {
    if (before.width() != pics.picfractal.width() || before.height() != pics.picfractal.height()) {
        // The window was resized since the zoom; that picture no longer fits.
        wb.PointCount = 0;
    } else {
        pics.picfractal.takeImage(before);
        pics.picImage2.takeImage(before);
        wb.PointCount = pics.SavedPointCount;
    }
    const WorldWindow& w = wb.Window;
    pics.picImageShift.setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    pics.picImageShift.takeImage(pics.picImage2);
    ShowOverlays(wb, pics);
    showCountOf(wb, pics);
}

// A placed picture under a drawn figure cannot follow a shift, so the shift is refused then.
void shiftDeterministic(Workbench& wb, FractalPictures& pics, Host& host, int KeyCode) {
    if (pics.PictureOverlaid && wb.DetFigure < 7) return;
    pics.Selection.SelectionActive = false;
    wb.Menu.setCaption("mnuZoom", ZoomInCaption);
    pics.SavedPointCount = wb.PointCount;
    ResetUndoMenu(wb);
    wb.UndoWindow = wb.Window;
    pics.picImage3.takeImage(pics.picImage4);
    pics.picImage3.setScale(pics.picImage4.scaleLeft(), pics.picImage4.scaleTop(),
                            pics.picImage4.scaleRight(), pics.picImage4.scaleBottom());
    const RasterSurface level = pics.picImage;
    showWindow(wb, pics, shifted(wb.UndoWindow, KeyCode));
    pics.LastChangeWasZoom = false;
    slideInto(pics.picfractal, pics.picImageShift);
    pics.picImage2.takeImage(pics.picfractal);
    if (wb.menu("mnuDrawOverlay").checked) {
        slideInto(pics.picImage3, level);
        pics.picImage.takeImage(pics.picImage3);
    } else {
        pics.picImage3.takeImage(pics.picImage2);
    }
    FractalGridAxesFP(wb, pics);
    host.yield();
}

}  // namespace

void ZoomOut(Workbench& wb, FractalPictures& pics, Host& host, int Percent, bool PushUndo) {
    if (!wb.RandomMode && wb.DrawingActive) return;
    if (refusedAsFrozen(wb, host)) return;
    pics.SavedPointCount = wb.PointCount;
    ClearSelectionRect(wb, pics);
    wb.UndoWindow = wb.Window;
    const RasterSurface before = pics.picImage2;
    showWindow(wb, pics, Percent == -1 ? restoredWindow(wb, host) : grown(wb.Window, Percent));
    pics.LastChangeWasZoom = true;
    if (wb.RandomMode)
        redrawRandomZoom(wb, pics, host, before, Percent != -1 && wb.DrawingStarted);
    else
        RedrawDeterministicView(wb, pics, host);
    if (PushUndo) offerZoomUndo(wb);
}

void ZoomIn(Workbench& wb, FractalPictures& pics, Host& host) {
    if (refusedAsFrozen(wb, host)) return;
    if (!pics.Selection.SelectionActive) {
        ZoomOut(wb, pics, host, -5, true);
        return;
    }
    const FractalSelection sel = pics.Selection;
    ClearSelectionRect(wb, pics);
    wb.UndoWindow = wb.Window;
    // Undo Zoom gives the count back with the picture, so it is kept here as for the other zooms.
    pics.SavedPointCount = wb.PointCount;
    const RasterSurface before = pics.picImage2;
    pics.picfractal.clear();
    const WorldWindow w{static_cast<float>(std::min(sel.SelX1, sel.SelX2)),
                        static_cast<float>(std::max(sel.SelX1, sel.SelX2)),
                        static_cast<float>(std::min(sel.SelY1, sel.SelY2)),
                        static_cast<float>(std::max(sel.SelY1, sel.SelY2))};
    showWindow(wb, pics, w);
    offerZoomUndo(wb);
    pics.LastChangeWasZoom = true;
    if (!wb.RandomMode) {
        RedrawDeterministicView(wb, pics, host);
        return;
    }
    pics.picImage2.takeImage(before);
    PlayGame(wb, pics, host, 1, 0);
}

void mnuZoom_Click(Workbench& wb, FractalPictures& pics, Host& host) {
    // A deterministic image cannot be zoomed once its levels have begun; it needs a fresh start.
    if (!wb.RandomMode && wb.IterationNumber > 0) return;
    ZoomIn(wb, pics, host);
}

void ShiftDrawWin(Workbench& wb, FractalPictures& pics, Host& host, int KeyCode) {
    if (refusedAsFrozen(wb, host)) return;
    if (KeyCode < KeyLeft || KeyCode > KeyDown) return;
    if (!wb.RandomMode) {
        shiftDeterministic(wb, pics, host, KeyCode);
        return;
    }
    pics.Selection.SelectionActive = false;
    wb.Menu.setCaption("mnuZoom", ZoomInCaption);
    pics.SavedPointCount = wb.PointCount;
    ResetUndoMenu(wb);
    wb.UndoWindow = wb.Window;
    showWindow(wb, pics, shifted(wb.UndoWindow, KeyCode));
    pics.LastChangeWasZoom = false;
    // The count and the warm-up start again while the orbit's point stays.
    wb.PointCount = 0;
    slideInto(pics.picImage3, pics.picImage);
    slideInto(pics.picfractal, pics.picImageShift);
    pics.picImage2.takeImage(pics.picfractal);
    ShowOverlays(wb, pics);
    host.yield();
}

void RestoreFractalScale(Workbench& wb, FractalPictures& /*pics*/) {
    wb.Window = wb.UndoWindow;
    WriteWindowText(wb);
}

void UndoZoom(Workbench& wb, FractalPictures& pics, Host& /*host*/) {
    const MenuItemState& undo = wb.menu("mnuUndo");
    if (wb.DrawingActive || !undo.enabled || ToLower(undo.caption) != ToLower(UndoZoomCaption)) return;
    if (wb.ZoomUndoSource != 1) return;
    const RasterSurface before = pics.picImage3;
    RestoreFractalScale(wb, pics);
    ResetUndoMenu(wb);
    float xmin = wb.Window.xmin, xmax = wb.Window.xmax, ymin = wb.Window.ymin, ymax = wb.Window.ymax;
    ScalefrmFractalWindows(wb, pics, xmin, xmax, ymin, ymax, false);
    restoreUndonePicture(wb, pics, before);
}

void mnuCalcScale_Click(Workbench& wb, FractalPictures& pics, Host& host) {
    if (wb.DrawingActive) return;
    wb.DrawingStarted = false;
    if (!wb.RandomMode) {
        CalcScaleDeterministic(wb, pics, host);
        return;
    }
    setscale(wb, host, true, &pics);
}

void mnuDrawFreezeScale_Click(Workbench& wb) {
    const bool frozen = !wb.menu("mnuDrawFreezeScale").checked;
    wb.Menu.setChecked("mnuDrawFreezeScale", frozen);
    for (const char* k :
         {"mnuCalcScale", "mnuDrawScaleDesign", "mnuDrawShift", "mnuDrawZoom", "mnuZoom", "mnuDrawRestore"})
        wb.Menu.setEnabled(k, !frozen);
}

void mnuDrawScaleDesign_Click(Workbench& wb, FractalPictures& pics, Host& host) {
    if (wb.DrawingActive || wb.menu("mnuDrawFreezeScale").checked) return;
    wb.Window = wb.DesignWindow;
    pics.Det.DetWindow = wb.DesignWindow;
    pics.Det.DetWindowStored = true;
    wb.txtWin = wb.txtDesign;
    float xmin = wb.Window.xmin, xmax = wb.Window.xmax, ymin = wb.Window.ymin, ymax = wb.Window.ymax;
    ScalefrmFractalWindows(wb, pics, xmin, xmax, ymin, ymax, false);
    if (wb.RandomMode) {
        ClearImage(wb, pics, false);
        return;
    }
    pics.picfractal.clear();
    DrawDetFigure(wb, pics, host, false);
    pics.picImage2.takeImage(pics.picfractal);
    FractalGridAxesFP(wb, pics);
}

}  // namespace quillane
