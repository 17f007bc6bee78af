#include "render/fractal_pictures.h"

#include "core/numbers.h"
#include "render/deterministic.h"
#include "render/floating_picture.h"
#include "render/fractal_overlays.h"
#include "render/scale.h"

namespace quillane {

void FractalPictures::resize(int side, Color back) {
    for (RasterSurface* s :
         {&picfractal, &picImage2, &picImage3, &picImageShift, &picImage, &picMask, &picMaskShift, &picImage4}) {
        s->setBackColor(back);
        s->resize(side, side);
    }
}

void ApplyWindow(FractalPictures& pics, const WorldWindow& w) {
    for (RasterSurface* s : {&pics.picfractal, &pics.picImage2, &pics.picImage3, &pics.picImageShift,
                             &pics.picImage, &pics.picMask, &pics.picMaskShift, &pics.picImage4}) {
        s->setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    }
}

void ScalefrmFractalWindows(Workbench& wb, FractalPictures& pics, float& xmin, float& xmax, float& ymin,
                            float& ymax, bool AddMargin) {
    const float tymax = static_cast<float>(Val(wb.txtWin[0]));
    const float tymin = static_cast<float>(Val(wb.txtWin[1]));
    const float txmin = static_cast<float>(Val(wb.txtWin[2]));
    const float txmax = static_cast<float>(Val(wb.txtWin[3]));
    const bool inside = xmin >= txmin && xmax <= txmax && ymin >= tymin && ymax <= tymax;
    if (inside) {
        xmin = txmin;
        xmax = txmax;
        ymin = tymin;
        ymax = tymax;
    } else {
        if (txmin < xmin) xmin = txmin;
        if (txmax > xmax) xmax = txmax;
        if (tymin < ymin) ymin = tymin;
        if (tymax > ymax) ymax = tymax;
        SquareWindow(xmin, xmax, ymin, ymax);
        if (AddMargin) AddWindowMargin(xmin, xmax, ymin, ymax);
    }
    wb.Window = {xmin, xmax, ymin, ymax};
    if (!inside) WriteWindowText(wb);
    // picImageShift keeps its picture and its old scale: a shift of the view slides it from there.
    const int side = pics.picfractal.width();
    const Color back = pics.picfractal.backColor();
    for (RasterSurface* s : {&pics.picfractal, &pics.picImage2, &pics.picImage, &pics.picMask,
                             &pics.picImage3, &pics.picImage4}) {
        s->setBackColor(back);
        s->resize(side, side);
        s->setScale(xmin, ymax, xmax, ymin);
    }
}

void ClearImage(Workbench& wb, FractalPictures& pics, bool KeepPicture) {
    for (RasterSurface* s :
         {&pics.picfractal, &pics.picImage, &pics.picImage2, &pics.picMask, &pics.picImageShift})
        s->clear();
    pics.TraceDots.clear();
    wb.DrawingActive = false;
    wb.PointCount = 0;
    pics.picCount.clear();
    pics.Selection.SelectionActive = false;
    wb.Menu.setCaption("mnuZoom", ZoomInCaption);
    if (!wb.RandomMode) {
        ClearImageDeterministicBranch(wb, pics);
        return;
    }
    if (!KeepPicture && !pics.Floating.Visible) pics.PictureOverlaid = false;
    if (pics.Floating.Visible) PlaceFractalSelection(wb, pics);
    // A kept picture floats again at its place, to be moved or placed anew.
    if (KeepPicture && pics.PictureOverlaid) FloatPlacedPictureAgain(pics);
    ShowOverlays(wb, pics);
}

void RestoreSelectionPen(FractalPictures& pics) {
    const FractalSelection& s = pics.Selection;
    pics.picfractal.setDrawMode(s.SavedDrawMode);
    pics.picfractal.setDrawStyle(s.SavedDrawStyle);
    pics.picfractal.setDrawWidth(s.SavedDrawWidth);
}

void ClearSelectionRect(Workbench& wb, FractalPictures& pics) {
    FractalSelection& s = pics.Selection;
    RedrawOverlays(wb, pics);
    // The repaint took any rectangle or line of a drag with it, so the drag ends too.
    if (s.SelectionDragging || s.DrawingLine) RestoreSelectionPen(pics);
    s.SelectionDragging = false;
    s.DrawingLine = false;
    s.SelectionActive = false;
    wb.Menu.setCaption("mnuZoom", ZoomInCaption);
}

}  // namespace quillane
