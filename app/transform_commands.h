#pragma once
// The design commands on the selected function: reflections, rotation, scale, stretch and shear. Each
// keeps OriginalMap, computes the new map into the slot and ResultMap, rewrites the table row and
// commits its undo caption. The caller redraws. Nothing while a drawing runs or nothing is selected.
#include "core/host.h"
#include "core/workbench.h"

namespace quillane {

inline constexpr const char* ScaleNotPositiveTitle = "Error";
inline constexpr const char* ScaleNotPositiveMessage = "Scale value must be positive";

// The reflection itself: SaveOriginalIFS, mirror in the middle of the present box, table row, and the
// direction kept. Undo and redo of a reflection run this again.
void ReflectSelectedMap(Workbench& wb, int Direction);
// The command: -1 horizontal, +1 vertical.
void FlipPoly(Workbench& wb, int Direction);
void mnuDesignFlipHor_Click(Workbench& wb);
void mnuDesignFlipVert_Click(Workbench& wb);

// A rotation of the selected map by `angle` degrees about its centroid or the middle of its box.
void RotateIFSDesign(Workbench& wb, double angle);

// frmScale's OK with the percentage: a..d times it / 100; the image of the origin stays.
void ScaleDesignMap(Workbench& wb, Host& host, float percent);

// frmSkew's OK: stretch percentages and shear angles in degrees. Sets its caption and enables undo
// without counting a change.
struct SkewValues {
    float StrHori = 100, StrVert = 100, SkewHori = 0, SkewVert = 0;
};
void StretchShearMap(Workbench& wb, const SkewValues& v);

}  // namespace quillane
