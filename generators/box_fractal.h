#pragma once
// The box fractal: the unit square cut into n by n boxes; every kept box becomes one map.
#include <array>
#include <cstdint>

#include "core/ifs_entry.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr double BoxArea = 3000;  // the drawing area's side in its own units
inline constexpr Color BoxRed = 255;

struct BoxFractal {
    int n = 2;
    int16_t BoxSize = 1500;
    // BoxOn(row + 10 col); the drawing also sets the flag of row n, column 0 (see DrawBoxes2).
    std::array<bool, 111> BoxOn{};
    int BoxCount = 4;
};

// The side of a box for n = 2..10; other n are held to that range.
int16_t GetBoxSize(int n);
// Draws the full grid of n by n boxes into picBox (scaled 0..3000 both ways, y down) and sets every
// flag. The loop runs to n^2 inclusive, as it always has: the extra step sets BoxOn(n) too.
void DrawBoxes2(BoxFractal& box, RasterSurface& picBox, int n);
// A left-button release at (x, y) in area units: the box under it is removed or restored. Points
// outside the grid change nothing. Returns whether a box changed.
bool ClickBox(BoxFractal& box, RasterSurface& picBox, double x, double y);
// The maps of the kept boxes, rows from the top, left to right, with their probabilities. The step
// k = n^2 may write one more map behind the last in use (slot BoxCount); nMaps does not count it.
IFSEntry BoxMaps(const BoxFractal& box);

}  // namespace quillane
