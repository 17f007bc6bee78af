#pragma once
// Pythagorean trees: a square with a right triangle on top whose legs carry smaller squares, as an IFS
// of two maps with the square itself, and the tree drawn box by box.
#include <functional>
#include <string>

#include "core/colors.h"
#include "core/ifs_entry.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr int PythMinAngle = 1;
inline constexpr int PythMaxAngle = 89;

// Whether the angle is accepted (1 to 89 degrees, fractions allowed).
bool PythAngleAccepted(float angle);

// Maps 1 and 2 (the squares on the left and right legs) and map 3, the square itself.
IFSEntry PythagoreanIFS(float angle, const std::string& thetaText);

// Whether the IFS has the form of a Pythagorean tree.
bool CheckPythTree(const IFSEntry& ifs);

// The corners of the box of side `side` standing at (x, y) turned by `angle`: P1, P2, P3, P4.
struct PythBox {
    double x[4], y[4];
};
PythBox PythBoxCorners(double x, double y, double side, double angle);

// What PythTreeBoxFilled draws with, as for the binary tree.
struct BoxPainter {
    RasterSurface* picfractal = nullptr;
    RasterSurface* picImage = nullptr;
    bool filled = false;
    bool border = true;  // filled boxes: the outline drawn over the fill
    std::function<Color(int depth, int colour)> colourOf;
    std::function<bool()> step;
};

// The angle phi of the IFS (atan(c1 / a1)) and the depth at which the bigger child falls under a pixel.
double PythPhi(const IFSEntry& ifs);
int PythTreeDepthLimit(double phi, double pixel);

// One box and, while depth > 0, its two children. False when the drawing was stopped.
bool PythTreeBoxFilled(double phi, BoxPainter& paint, int depth, double x, double y, double side,
                       double angle, int colour);

}  // namespace quillane
