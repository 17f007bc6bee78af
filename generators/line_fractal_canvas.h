#pragma once
// The canvas and preview of the line fractal window: its view, grid, polyline with markers and half
// arrows, and the preview of the curve. Pictures are RasterSurfaces, so all of it is testable.
#include <array>
#include <string>

#include "core/colors.h"
#include "generators/line_fractal.h"
#include "generators/line_fractal_file.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr Color SegmentRed = RGB(255, 0, 0);
inline constexpr Color SegmentNoLetter = RGB(225, 133, 0);
inline constexpr Color SegmentForward = RGB(255, 133, 0);
inline constexpr Color SegmentBack = RGB(30, 144, 255);
inline constexpr Color GridGrey = RGB(192, 192, 192);  // QBColor 7
inline constexpr int TwipsPerPixel = 15;
inline constexpr float ViewStep = 0.05f;
inline constexpr const char* ViewKeysStatus =
    "Zoom: Page Up/Down       Shift: arrow keys       Restore: Home       Set Grid Size: ctrl-alt-G       "
    "Set Point: ctrl-alt-P";
inline constexpr const char* OrientWarning =
    "Use design polygon (outline) as initial set, with design polygon being horizontal or vertical "
    "line (default choices).";
inline constexpr std::array<const char*, 4> OrientCaptions{"F = Fwd, Left", "B = Back, Left",
                                                           "G = Fwd, Right", "A = Back, Right"};

struct LineCanvasView {
    float xmin = -0.02f, xmax = 1.02f, ymin = -0.52f, ymax = 0.52f;
    float GridX = 0.05f, GridY = 0.05f;
    bool chkGrid = false;
    int SelectedPoint = -1;
    float MarkerRadius = 0;
};

enum class ViewKey { PageDown, PageUp, Up, Down, Left, Right, Home };

// The canvas (and picgrid) get the view and MarkerRadius follows the canvas width.
void ApplyCanvasView(LineCanvasView& v, RasterSurface& canvas, RasterSurface& picgrid);
// The four lblScale texts: xmin, xmax, ymin, ymax, each 0.02 inside, "0.00".
std::array<std::string, 4> ScaleLabels(const LineCanvasView& v);
// One view key; the view after it. Home gives the default view also in vertical mode.
void MoveView(LineCanvasView& v, ViewKey key);
// optDirection: the view turns with the vertices.
void TurnView(LineCanvasView& v, int direction);
// A resize: in vertical mode the view becomes the fixed vertical one.
void ResizeView(LineCanvasView& v, int direction);
// The view that shows a file's points.
void FitView(LineCanvasView& v, const PointsFile& file);

// The colour of segment i by its length and letter.
Color SegmentColor(const LineFractal& g, int i);
// picgrid: the grid lines, every 0.25 solid at the default spacing, else dotted.
void DrawGrid(RasterSurface& picgrid, const LineCanvasView& v);
// The canvas: the grid (when on) as background, then segments, markers, the selected vertex filled
// and, with orientation, a half arrow on every segment.
void DrawPolyline(RasterSurface& canvas, const RasterSurface& picgrid, const LineFractal& g,
                  const LineCanvasView& v);
// picPreview: its view by the direction, then the curve at `depth` in black.
void SetPreviewView(RasterSurface& picPreview, int direction);
void DrawPreview(RasterSurface& picPreview, LineFractal& g, int depth);
// The inner vertex (1 .. nSegments - 1) within 0.015 of (x, y), or -1.
int HitVertex(const LineFractal& g, float x, float y);

}  // namespace quillane
