#include "app/overlay_commands.h"

#include "render/fractal_overlays.h"

namespace quillane {

namespace {

void toggle(Workbench& wb, FractalPictures& pics, const char* key) {
    const bool on = !wb.menu(key).checked;
    wb.Menu.setChecked(key, on);
    if (on)
        DrawAxesFPs(wb, pics);
    else
        RedrawOverlays(wb, pics);
}

}  // namespace

void FractalAxes(Workbench& wb, FractalPictures& pics) {
    toggle(wb, pics, "mnuAxes");
}

void FractalFixedPoints(Workbench& wb, FractalPictures& pics) {
    toggle(wb, pics, "mnuFixedPoints");
}

void FractalGrid(Workbench& wb, FractalPictures& pics) {
    RedrawOverlays(wb, pics);
}

void mnudrawFractalGrid_Click(Workbench& wb, FractalPictures& pics) {
    wb.Menu.setChecked("mnudrawFractalGrid", !wb.menu("mnudrawFractalGrid").checked);
    FractalGrid(wb, pics);
}

bool GridSpacingKey(Workbench& wb, FractalPictures& pics, bool coarser) {
    if (!wb.menu("mnudrawFractalGrid").checked) return false;
    StepGridSpacing(wb.GridSpacingX, wb.GridSpacingY, coarser);
    FractalGrid(wb, pics);
    return true;
}

bool CheckFractalGridRange(const GridSpacing& g, Host& host) {
    for (float v : {g.x, g.y}) {
        if (!(v >= MinFractalGridSpacing && v <= MaxFractalGridSpacing)) {
            host.warn("Error", GridSizeRangeText);
            return false;
        }
    }
    return true;
}

bool FractalGridSize(Workbench& wb, FractalPictures& pics, const GridSpacing& g, Host& host) {
    if (!CheckFractalGridRange(g, host)) return false;
    wb.GridSpacingX = g.x;
    wb.GridSpacingY = g.y;
    wb.Menu.setChecked("mnudrawFractalGrid", true);
    FractalGrid(wb, pics);
    return true;
}

void SetAxisThickness(Workbench& wb, FractalPictures& pics, int listIndex) {
    if (listIndex < 0 || listIndex >= AxisThicknessChoices) return;
    wb.AxisThickness = static_cast<int16_t>(listIndex + 1);
    if (wb.menu("mnuAxes").checked) {
        FractalAxes(wb, pics);
        FractalAxes(wb, pics);
    }
}

void mnuDrawAxisColor_Click(Workbench& wb, FractalPictures& pics, Host& host) {
    const std::optional<Color> c = host.chooseColor(wb.FractalAxisColor);
    if (!c) return;
    wb.FractalAxisColor = *c;
    wb.SettingsChanged = true;
    RedrawOverlays(wb, pics);
}

void mnuDrawBackColor_Click(Workbench& wb, Host& host) {
    const std::optional<Color> c = host.chooseColor(wb.FractalBackColor);
    if (!c) return;
    wb.FractalBackColor = *c;
    wb.SettingsChanged = true;
}

void mnuColorFP_Click(Workbench& wb, FractalPictures& pics, bool colored) {
    wb.Menu.setChecked("mnuColorFP", colored);
    wb.Menu.setChecked("mnuBlackFP", !colored);
    if (wb.menu("mnuFixedPoints").checked) RedrawOverlays(wb, pics);
}

}  // namespace quillane
