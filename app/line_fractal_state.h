#pragma once
// What the line fractal window shares with the deterministic drawing: its polyline and the flags that
// let a deterministic level draw the curve by recursion.
#include "generators/line_fractal.h"

namespace quillane {

struct LineFractalState {
    LineFractal Generator;
    bool UseLineRecursion = false;      // chkRecursion, once Create IFS ran
    bool LineRecursionAllowed = false;  // the last build had no orientation
    bool SavedDirtyFlag = false;        // IFSModified before the build
};

}  // namespace quillane
