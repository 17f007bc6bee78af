#pragma once
// The chaos game recipe of a function and the probabilities that follow from the maps' areas.
#include "core/ifs_entry.h"

namespace quillane {

class Workbench;

// Builds a..f of function i of `ifs` from its recipe (Step, Scale, Angle, FPx, FPy).
// Marks the entry as having a chaos game; does not touch probabilities.
void CGMatrixOf(IFSEntry& ifs, int i);

// The full command on CurrentIFS: the recipe to matrix, then proportional probabilities.
void CGMatrix(Workbench& wb, int i);

// Probabilities in proportion to the areas |ad - bc|; maps of (nearly) no area get 0.01
// before the division so they are still visited. Returns the sum of the new p.
double PropProbOf(IFSEntry& ifs);
// PropProb on CurrentIFS, refreshing lblProbSum.
void PropProb(Workbench& wb);

}  // namespace quillane
