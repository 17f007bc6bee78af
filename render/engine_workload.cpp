#include "render/engine_workload.h"

#include "core/sample_systems.h"

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

}  // namespace quillane
