#pragma once
// The arithmetic of the design window's mouse and key gestures: handles, picking, the drag threshold,
// the resize steps, rotation and shear by mouse, the arrow-key nudges, and their status texts. Pure
// functions over the workbench, the polygon images and the bounding boxes; no drawing, no state
// machine. Pixel tolerances come in world units of one pixel, measured along x unless said.
#include <optional>
#include <string>
#include <vector>

#include "core/workbench.h"
#include "design/design_pictures.h"
#include "design/polygon_image.h"

namespace quillane {

// In pixels, converted to world units where used (HandleSize and CloseTolerance are beside the
// design window's pictures).
inline constexpr int PickTolerance = 3;
inline constexpr int DragThreshold = 4;

// Step sizes of the gestures, in degrees.
inline constexpr double MouseRotationStep = 0.1;
inline constexpr double ShearStep = 0.5;
inline constexpr double KeyRotationStep = 0.5;

inline constexpr const char* DegreeSign = "\xC2\xB0";

// The handle under (x, y) of `box`, tested 1, 3, 2, 4, 5, 6, 7, 8 with the same half-size
// t = (Size + 1.2 LineThickness) pixels on both axes; 0 for none.
int HitHandle(const BoundingBox& box, double x, double y, int Size, int LineThickness, double pixelX);

// Whether a press at (px, py) lies on the boundary of a polygon image. The box of each segment grows
// by PickTolerance pixels along x and along y. The cross product is not divided by the segment's
// length on purpose: long segments are harder to hit.
bool OnBoundary(const DesignPolygon& image, double px, double py, double pixelX, double pixelY);

// What a press of the left button hits in IFS mode. `images` are the drawn PolygonImage(i); `box` is
// BoundingBox of SelectedMap.
struct PressHit {
    int function = -1;  // -1: empty space
    int handle = 0;     // HandleId
};
PressHit PickAtPress(const Workbench& wb, const std::vector<DesignPolygon>& images, const BoundingBox& box,
                     double x, double y, double pixelX, double pixelY);

// Whether the mouse has left the press point far enough for a drag to begin.
bool PastDragThreshold(double pressX, double pressY, double x, double y, double pixelX);

// The centre of rotations of function i: the centroid of its image of the built-in triangle when the
// initial polygon is a triangle, else the middle of `box`.
void RotationCentreOf(const Workbench& wb, int i, const BoundingBox& box, float& cx, float& cy);

// The texts of picCoord.
std::string DegreeText(double degrees);     // " 12.3° " / "-4.5° "
std::string MoveText(double dx, double dy);  // "dx:0.100; dy:-0.200"

// A gesture step's outcome: the map (ResultMap), and what picCoord shows.
struct GestureStep {
    IFSFunction map;
    std::string text;
};

// Move by mouse: the offset from the press is added to e0, f0 of the original map.
GestureStep MoveStep(const IFSFunction& original, float pressX, float pressY, float x, float y);

// Resize by handle 1..8 with the box of the press; `equal` is Shift held at the press.
GestureStep ResizeStep(const IFSFunction& original, const BoundingBox& box, int HandleId, bool equal, float x,
                       float y);

// A rotation by mouse, begun at the press.
struct RotationStart {
    float cx = 0, cy = 0;  // RotationCentre
    double vx = 0, vy = 0, length = 0;
};
RotationStart BeginRotation(const Workbench& wb, int i, const BoundingBox& box, float pressX, float pressY);
// The angle in degrees, in steps of 0.1, signed by the turn from the start vector.
double RotationAngle(const RotationStart& r, float x, float y);
GestureStep RotationStep(const IFSFunction& original, const RotationStart& r, float x, float y);

// ComputeMouseShear: handles 5..8 with the box of the press, in steps of 0.5 degree.
GestureStep ComputeMouseShear(const IFSFunction& original, const BoundingBox& box, int HandleId, float x,
                              float y);

// Arrow keys. Key codes 37 left, 38 up, 39 right, 40 down.
// KeyMove: one pixel from the present map; the text is relative to the original.
GestureStep KeyMove(const IFSFunction& present, const IFSFunction& original, int KeyCode, float pixelX,
                    float pixelY);
// KeyShear: KeyShearV (up/down) or KeyShearH (left/right) change by 0.5 and the shear of the total is
// applied to the original map with the box of the gesture's start.
GestureStep KeyShear(const IFSFunction& original, const BoundingBox& box, int KeyCode, double& KeyShearV,
                     double& KeyShearH);
// ArrowKeyRotate: KeyRotation changes by 0.5; the present map turns by 0.5 degree about its centre.
GestureStep ArrowKeyRotate(const Workbench& wb, int i, int KeyCode, double& KeyRotation);

// The mouse cursor over a handle, with or without Ctrl.
enum class DesignCursor { Normal, Move, SizeNESW, SizeNWSE, SizeVertical, SizeHorizontal, Rotate };
DesignCursor HandleCursor(int HandleId, bool ctrl);

}  // namespace quillane
