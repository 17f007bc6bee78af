#pragma once
// The Koch curve drawn by its own recursion in the fractal window, in place of a deterministic level.
#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// One pass at level IterationNumber: the curve of n edges and edge length c to the next level, limited
// by the pixel size and a million lines, into picfractal and picImage. False (nothing drawn) unless
// UseKochRecursion and KochRecursionAllowed hold.
bool KochRecursivePass(Workbench& wb, FractalPictures& pics, Host& host, int n, float c);
// The deterministic drawing takes the pass for the curve Create IFS built last.
void InstallKochRecursion(FractalPictures& pics, int n, float c);

}  // namespace quillane
