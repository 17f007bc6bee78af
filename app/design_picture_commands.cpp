#include "app/design_picture_commands.h"

#include "app/background_commands.h"
#include "app/design_keys.h"
#include "app/design_view.h"
#include "app/fractal_view.h"
#include "core/menu_tree.h"

namespace quillane {
namespace {

constexpr int KeyBackspace8 = 8;
constexpr int KeyDelete46 = 46;

constexpr int CtrlAlt = ShiftMaskCtrl | ShiftMaskAlt;

// Opens the picture as a floating selection over picdesign.
void floatPicture(Workbench& wb, DesignPictures& d, const RasterSurface& picture) {
    d.picImagePaste = RasterSurface(picture.width(), picture.height(), picture.backColor());
    d.picImagePaste.takeImage(picture);
    d.Floating.ResizeHandles = true;
    PasteTo(DesignPasteArea(d));
    d.PastePlaced = false;
    wb.Menu.setEnabled("mnuDesignClearPict", true);
    wb.Menu.setChecked("mnuPicPastePopUpResize", true);
}

void redraw(Workbench& wb, DesignPictures& d) {
    if (!d.Poly.PolygonMode) RedrawDesignView(wb, d);
}

}  // namespace

PasteArea DesignPasteArea(DesignPictures& d) {
    return {&d.picdesign, &d.picPaste, &d.picImagePaste, &d.Floating, &d.picCoord};
}

bool DesignPasteShowing(const DesignPictures& d) {
    return d.Floating.Visible;
}

bool mnuDesignLoadPicture_Click(Workbench& wb, DesignPictures& d, Host& host) {
    if (d.Poly.PolygonMode && d.Poly.PolygonPointCount > 0) return false;
    const std::optional<RasterSurface> picture = AskPictureFile(host);
    if (!picture) return false;
    floatPicture(wb, d, *picture);
    return true;
}

bool PasteDesignPicture(Workbench& wb, DesignPictures& d, const RasterSurface* clipboard) {
    if (!clipboard || d.Poly.PolygonMode || DesignPasteShowing(d)) return false;
    wb.MapSelected = false;
    floatPicture(wb, d, *clipboard);
    return true;
}

void PlaceDesignSelection(Workbench& wb, DesignPictures& d) {
    if (!DesignPasteShowing(d)) return;
    double x = 0, y = 0;
    FloatingOrigin(DesignPasteArea(d), x, y);
    // The picture replaces any placed before it, on a clean background.
    for (RasterSurface* s : {&d.picdesign, &d.picCGDesign}) {
        s->removePicture();
        s->clear();
        try {
            s->paint(d.picPaste, x, y, RasterOp::Copy);
        } catch (const SurfaceOverflow&) {
        }
        s->keepAsPicture();
    }
    d.Floating.Visible = false;
    d.picPaste = RasterSurface();
    d.PastePlaced = true;
    d.PictureInPlace = true;
    wb.Menu.setChecked("mnuPicPastePopUpResize", false);
    d.picCoord.clear();
    redraw(wb, d);
}

bool LiftDesignPicture(Workbench& wb, DesignPictures& d) {
    if (!d.PictureInPlace || DesignPasteShowing(d)) return false;
    for (RasterSurface* s : {&d.picdesign, &d.picCGDesign}) s->removePicture();
    d.PictureInPlace = false;
    d.PastePlaced = false;
    d.Floating.Visible = true;
    d.Floating.ResizeHandles = true;
    PicPasteResize(DesignPasteArea(d));
    d.picCoord = PasteCornersText(DesignPasteArea(d));
    wb.Menu.setChecked("mnuPicPastePopUpResize", true);
    redraw(wb, d);
    return true;
}

void ClearDesignPicture(Workbench& wb, DesignPictures& d) {
    d.picImage.clear();
    for (RasterSurface* s : {&d.picdesign, &d.picCGDesign}) s->removePicture();
    d.PictureInPlace = false;
    d.PastePlaced = false;
    d.Floating.Visible = false;
    wb.Menu.setEnabled("mnuDesignClearPict", false);
    redraw(wb, d);
}

void DropDesignSelection(Workbench& wb, DesignPictures& d) {
    d.Floating.Visible = false;
    d.Floating.ResizeHandles = false;
    wb.Menu.setChecked("mnuPicPastePopUpResize", false);
    d.picCoord.clear();
    wb.Menu.setEnabled("mnuDesignClearPict", false);
}

bool DesignPictureKeyDown(Workbench& wb, DesignPictures& d, int KeyCode, int Shift) {
    const bool erase = KeyCode == KeyBackspace8 || KeyCode == KeyDelete46;
    if (erase && DesignPasteShowing(d)) {
        DropDesignSelection(wb, d);
        return true;
    }
    if (erase && d.PictureInPlace) {
        ClearDesignPicture(wb, d);
        return true;
    }
    if (KeyCode == KeyEscape27 && DesignPasteShowing(d)) {
        PlaceDesignSelection(wb, d);
        return true;
    }
    if (KeyCode == 'R' && Shift == CtrlAlt && DesignPasteShowing(d)) {
        d.Floating.ResizeHandles = !d.Floating.ResizeHandles;
        wb.Menu.setChecked("mnuPicPastePopUpResize", d.Floating.ResizeHandles);
        return true;
    }
    return false;
}

}  // namespace quillane
