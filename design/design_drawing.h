#pragma once
// Drawing the design window: every function as the image of the initial polygon, the selection
// with its handles, fixed points, grid and axes.
#include <functional>

#include "core/workbench.h"
#include "design/design_pictures.h"

namespace quillane {

inline constexpr Color GridColor = 192 + 256 * 192 + 65536 * 192;  // palette index 7

// The pen colour of function i in the design window. A function coloured like the fractal
// background would vanish there, so it takes black (white on a black design, unless `forHandles`).
Color DesignColorOf(const Workbench& wb, int i, bool forHandles = false);

// A dashed line of 6 pixels on, 3 off.
void DashedLine(RasterSurface& s, double x1, double y1, double x2, double y2, Color c);

void DrawDesign(Workbench& wb, DesignPictures& d, bool Preview);
void DrawIFS(Workbench& wb, DesignPictures& d, int i, int ExtraWidth);
void DrawBoundingBox(Workbench& wb, DesignPictures& d, int i, int Size);
void BoundingBoxes(Workbench& wb, DesignPictures& d, int i);
// False when function i has no fixed point.
bool FixedPointOf(const Workbench& wb, int i, float& x, float& y);
void FixedPoints(Workbench& wb, DesignPictures& d, int i, int Size);
void DrawDesignFPs(Workbench& wb, DesignPictures& d);
void DrawDesignSetup(Workbench& wb, DesignPictures& d);
void DrawDesignAxes(Workbench& wb, DesignPictures& d);
// Calls draw for every multiple of step from floor(lo / step) to floor(hi / step). When they stand
// closer than a pixel (pixelsPerUnit is the picture's scale), one per pixel of that span instead: the
// same picture, without a billion lines for a design window a billion units wide.
void ForEachMultiple(double lo, double hi, double step, double pixelsPerUnit,
                     const std::function<void(double)>& draw);
void DesignAxesTick(Workbench& wb, DesignPictures& d);
void drawDesignGrid(Workbench& wb, DesignPictures& d, bool BothAreas);
// The selection as it stands, over a fresh drawing.
void RedrawSelection(Workbench& wb, DesignPictures& d);


}  // namespace quillane
