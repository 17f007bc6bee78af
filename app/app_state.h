#pragma once
// What the windows of the program share: the workbench and the pictures of the fractal and design windows.
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "render/fractal_pictures.h"

namespace quillane {

struct AppState {
    Workbench wb;
    FractalPictures pics;
    DesignPictures design;
};

}  // namespace quillane
