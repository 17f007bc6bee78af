#include "render/engine_workload.h"

#include "core/sample_systems.h"
#include "render/color_stealing.h"

namespace quillane {

void SetUpEngineWorkload(Workbench& wb, FractalPictures& pics, int maps, int side) {
    wb.CurrentIFS = maps == 3 ? SierpinskiTriangleIFS() : GridIFS(maps);
    wb.txtMaps = std::to_string(maps);
    wb.Window = {-0.05f, 1.05f, -0.05f, 1.05f};
    WriteWindowText(wb);
    wb.Rng.pin(12345);
    wb.DrawingStarted = false;
    wb.PointCount = 0;
    pics.resize(side, White);
    ApplyWindow(pics, wb.Window);
}

void UseColorModeWorkload(Workbench& wb, FractalPictures& pics, int mode) {
    for (int k = 0; k < 3; ++k) wb.Menu.setChecked(MenuTable::key("mnuColors", k), false);
    const int item = mode == 7 ? 2 : mode > 0 ? 1 : 0;
    wb.Menu.setChecked(MenuTable::key("mnuColors", item), true);
    if (mode >= 1 && mode <= 6) pics.Det.optColoring = mode;
    wb.AttractorXMin = wb.AttractorYMin = 0;
    wb.AttractorXMax = wb.AttractorYMax = 1;
    if (mode == 7) {
        RasterSurface picture;
        picture.resize(500, 500);
        for (int r = 0; r < 500; ++r)
            for (int c = 0; c < 500; ++c) picture.setPixel(c, r, RGB(c / 2, r / 2, (c + r) / 4));
        ConfigureComboList(wb, pics.Stealing);
        SetColorStealingPicture(wb, pics.Stealing, picture);
        wb.Rng.pin(12345);
    }
}

void UseTileWorkload(FractalPictures& pics, int radius, bool separateColors) {
    pics.Tiling.SettingsVisible = true;
    pics.Tiling.txtT = {"0.25", "0", "0", "0.25"};
    pics.Tiling.cmbRadius = radius;
    pics.Tiling.optColor2 = separateColors;
}

}  // namespace quillane
