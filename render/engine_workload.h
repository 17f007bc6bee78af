#pragma once
// The drawing engine's standard workload, shared by the benchmarks and quillane-cli --bench.
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// Sets up an IFS of `maps` maps (3: the Sierpinski triangle, else a grid) in a `side` square
// picture at its window, ready for PlayGame with a pinned seed.
void SetUpEngineWorkload(Workbench& wb, FractalPictures& pics, int maps, int side);

// Puts the workload in colour mode `mode` (0 to 7) through the menus and the gradient option, with
// the attractor bounds of the unit square; mode 7 steals from a 500 x 500 picture of colour bands
// through the unit-square colouring IFS.
void UseColorModeWorkload(Workbench& wb, FractalPictures& pics, int mode);

// Puts the workload in tile mode: the tiling settings open at `radius`, tile vectors (0.25, 0) and
// (0, 0.25) so that most copies fall on the picture, in separate tile colours or the fractal's own.
void UseTileWorkload(FractalPictures& pics, int radius, bool separateColors);

}  // namespace quillane
