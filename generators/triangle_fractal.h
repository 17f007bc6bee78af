#pragma once
// The triangle fractal: an equilateral triangle cut into n^2 triangles, upright and inverted; every
// kept triangle becomes one map.
#include <array>

#include "core/ifs_entry.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr Color TriangleRed = 255;

struct TriangleFractal {
    int n = 2;
    // TriangleOff(19 row + pos): row 0 at the bottom, even pos upright, odd pos inverted.
    std::array<bool, 190> TriangleOff{};
    int TriangleCount = 4;
};

struct TriangleCell {
    int row = -1;
    int pos = -1;  // -1: no cell found at that height
};

// Clears picCanvas, sets its coordinates and draws the whole grid red; every triangle kept.
void DrawTriangles(TriangleFractal& tri, RasterSurface& picCanvas, int n);
// The cell under (x, y) by the strip arithmetic of the window; row -1 when the point is not strictly
// inside the outer triangle.
TriangleCell TriangleAt(const TriangleFractal& tri, double x, double y);
// A click (any button but the right) at (x, y): the colour under the point decides; a grid line
// changes nothing. Returns whether a triangle changed.
bool ClickTriangle(TriangleFractal& tri, RasterSurface& picCanvas, double x, double y);
// The maps of the kept triangles, row by row from the bottom, with their probabilities.
IFSEntry TriangleMaps(const TriangleFractal& tri);

}  // namespace quillane
