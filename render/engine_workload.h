#pragma once
// The drawing engine's standard workload, shared by the benchmarks and quillane-cli --bench.
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// Sets up an IFS of `maps` maps (3: the Sierpinski triangle, else a grid) in a `side` square
// picture at its window, ready for PlayGame with a pinned seed.
void SetUpEngineWorkload(Workbench& wb, FractalPictures& pics, int maps, int side);

}  // namespace quillane
