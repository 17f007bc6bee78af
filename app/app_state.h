#pragma once
// What the windows of the program share: the workbench and the pictures of the fractal and design windows.
#include <array>

#include "app/generator_run.h"
#include "app/line_fractal_state.h"
#include "app/preview_commands.h"
#include "core/gradient_colors.h"
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "generators/complex_base_plot.h"
#include "render/fractal_pictures.h"

namespace quillane {

struct AppState {
    Workbench wb;
    FractalPictures pics;
    DesignPictures design;
    // The seven default colours of the gradient window; a loaded gradient file becomes the default.
    std::array<Color, GradientColorSlots> GradientDefaults = DefaultGradient().picColors;
    // The generator window that is open, and what its Cancel restores.
    GeneratorRun Generator;
    PreviewState Preview;
    // The complex bases' own drawing: its base, digit row and counts.
    ComplexBaseState Complex;
    LineFractalState Line;
};

}  // namespace quillane
