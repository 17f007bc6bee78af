#pragma once
// The built-in colouring IFS of colour stealing: each map sends the unit square to a part of it
// whose area is the probability of the matching drawing map, so the picture is used evenly.
#include <vector>

#include "core/ifs_entry.h"

namespace quillane {

inline constexpr const char* UnitSquareTitle = "Unit Square  ";

// One map's part of the unit square: lower left corner and sides.
struct UnitSquareCell {
    double x = 0, y = 0, width = 0, height = 0;
};

// The parts for four or more maps. The maps fill rows from the bottom, in order: ceil(sqrt(n)) rows,
// row k holding maps k*n/rows up to (k+1)*n/rows. A row is as high as the sum of its maps'
// probabilities and each map's cell in it as wide as its share of that sum, so cell i has area p(i)
// and the cells tile the square. Probabilities are taken in proportion to their sum; where a sum is
// not positive the shares are equal.
std::vector<UnitSquareCell> UnitSquareGrid(const float* p, int n);

// The colouring IFS for the first n maps of `drawing`, named "Unit Square  ", with the drawing
// maps' probabilities. Two and three maps use their fixed strips; more maps a scaling with its own
// translation onto each grid cell.
IFSEntry UnitSquareIFS(const IFSEntry& drawing, int n);

}  // namespace quillane
