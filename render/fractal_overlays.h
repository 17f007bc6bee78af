#pragma once
// The overlays of the fractal window: the grid, the axes with unit ticks and the fixed points of the
// maps. They go on picfractal only, never on picImage2, so repainting from picImage2 removes them.
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// The grid's colour: basic colour 7, light grey.
inline constexpr Color FractalGridColor = RGB(192, 192, 192);
// The radius of a fixed point's dot in pixels.
inline constexpr double FixedPointRadiusPixels = 4;
// More grid lines than this many per pixel of the picture would be a solid fill; such a grid is left out.
inline constexpr int MaxGridLinesPerPixel = 1;
// The inch of the tick length, in pixels of the screen the picture is made for.
inline constexpr double TickPixelsPerInch = 96;

// Every overlay that is switched on: the grid, then the axes, then the fixed points.
void FractalGridAxesFP(const Workbench& wb, FractalPictures& pics);
// The grid when mnudrawFractalGrid is checked, then DrawAxesFPs.
void drawFractalGrid(const Workbench& wb, FractalPictures& pics);
// The axes and the fixed points that are switched on, in copy pen.
void DrawAxesFPs(const Workbench& wb, FractalPictures& pics);
// The two axes in AxisThickness and FractalAxisColor, with their ticks.
void DrawFractalAxes(const Workbench& wb, RasterSurface& p);
// Ticks at the whole numbers, 0.1 inch long whatever the zoom.
void FractalAxesTick(const Workbench& wb, RasterSurface& p, double pixelsPerInch);
// A dot of 4 pixels at the fixed point of each map whose det is not 0.
void DrawFixedPoints(const Workbench& wb, RasterSurface& p);

// The fixed point of a map, or false when its det is 0.
bool MapFixedPoint(float a, float b, float c, float d, float e, float f, float& x, float& y);

// Takes every overlay off by repainting from picImage2, keeps the trace dots by an AND with picMask,
// and draws again the overlays still switched on.
void RedrawOverlays(const Workbench& wb, FractalPictures& pics);
// After a new picture: the overlays, and the trace dot at its initial point when there is one.
void ShowOverlays(Workbench& wb, FractalPictures& pics);

// The spacing keys' ring 0.05, 0.1, 0.125, 0.25: one step coarser (up) or finer.
void StepGridSpacing(float& x, float& y, bool coarser);

}  // namespace quillane
