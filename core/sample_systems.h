#pragma once
// A few IFS built in code, for benchmarks and tests that need a known attractor.
#include "core/ifs_entry.h"

namespace quillane {

// Three maps of scale 1/2 towards the corners (0,0), (1,0), (1/2,1).
IFSEntry SierpinskiTriangleIFS();
// n maps of scale 1/k on a k x k grid of the unit square (k = ceil(sqrt(n))), equal probabilities.
IFSEntry GridIFS(int n);

}  // namespace quillane
