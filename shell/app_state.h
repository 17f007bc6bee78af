#pragma once
// What the windows of the program share: the workbench and the fractal window's pictures.
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

struct AppState {
    Workbench wb;
    FractalPictures pics;
};

}  // namespace quillane
