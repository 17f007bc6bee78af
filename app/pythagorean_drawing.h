#pragma once
// The Pythagorean tree drawn box by box in a deterministic pass, in outline or filled.
#include <memory>

#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// What the filled drawing takes from frmPolygonFIll2.
struct PythagoreanRecursion {
    bool BorderVisible = true;  // optVisible
};

// 1 outlines (the polygon outline figure), 2 filled boxes (the filled polygon figure), 0 none.
int PythTreeMode(const Workbench& wb);

// PythagoreanTree: the tree of boxes into picfractal and picImage at the pass's level. False when the
// IFS is no Pythagorean tree, no mode is set, or the level is past the recursion's reach (slot 3 of
// RecursionOff is then set and the plain level takes over).
bool PythagoreanTree(const PythagoreanRecursion& flags, Workbench& wb, FractalPictures& pics, Host& host);
// Adds the Pythagorean tree's recursive drawing to the deterministic pass.
std::shared_ptr<PythagoreanRecursion> InstallPythagoreanDrawing(FractalPictures& pics);

}  // namespace quillane
