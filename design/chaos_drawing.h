#pragma once
// Drawing picCGDesign: the fixed points, and the path each recipe takes from the reference point.
#include <vector>

#include "core/workbench.h"
#include "design/design_pictures.h"

namespace quillane {

// One move of a recipe: from (x0, y0) to (x1, y1). A rotation has a nonzero `turn` (radians).
struct CGMove {
    char letter = ' ';
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    double turn = 0;
};
// The moves of function i from the reference point, in order; steps that move nothing are left out
// ("S" with a Scale outside 0..1, "R" with Angle 0, blanks and other letters).
std::vector<CGMove> CGPathOf(const Workbench& wb, int i);

void DrawCGFixedPoints(Workbench& wb, DesignPictures& d);
// i = -1 for all functions.
void DrawCGDesign(Workbench& wb, DesignPictures& d, int i, bool Preview);
void DrawSelectedCGFixedPoint(Workbench& wb, DesignPictures& d, int i);
// The redraw after a chaos game command: all paths, and the selection when there is one.
void RedrawCGDesign(Workbench& wb, DesignPictures& d);

}  // namespace quillane
