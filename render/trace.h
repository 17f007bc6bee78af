#pragma once
// The trace walk: a dot at the present point, and one map per step, in picfractal, picMask and picImage.
// picImage2 never takes a dot, so the drawing comes back from it untouched.
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// Draws the start dot on the drawing without former dots, and arms the walk there.
void SetTracePoint(Workbench& wb, FractalPictures& pics, float& x, float& y);
// How many dots of one walk are kept for repainting.
inline constexpr size_t MaxTraceDots = 1000000;
// Paints the kept dots into picfractal again, each in its own colour.
void RepaintTraceDots(FractalPictures& pics);
// One step: Map -1 takes a map at random by probability, else the map numbered from 1.
void TraceStep(Workbench& wb, FractalPictures& pics, int Map);
// The map a random step takes for r: the first whose probability sum reaches r, or -1 if none does.
int TraceRandomMap(const float* p, int n, double r);

}  // namespace quillane
