#pragma once
// The preview beside the design: a quick random drawing of the working IFS in the fractal window's
// view, redrawn after every change of the maps.
#include <string>

#include "core/colors.h"
#include "core/ifs_entry.h"
#include "core/random.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr int PreviewPointsDefault = 2000;
inline constexpr int PreviewPointsMin = 500;
inline constexpr int PreviewPointsMax = 10000;
inline constexpr int PreviewPointsStep = 500;
inline constexpr const char* PreviewStatusSuffix = " (+/- inc/dec)";

// Draw: count points from (0, 0), the first 50 unplotted, each by the first map whose running sum of
// p is not below the draw rounded to 4 decimals; the last map when none is. Dots 2 pixels wide.
void DrawPreview(const IFSEntry& ifs, const FunctionColors& colors, int PreviewPoints, Random& rng,
                 RasterSurface& picPreview);
// "+" (direction 1) or "-" (-1): the count moved by 500 within 500 .. 10000.
int StepPreviewPoints(int PreviewPoints, int direction);
// The status bar: "2000 (+/- inc/dec)".
std::string PreviewStatusText(int PreviewPoints);
// The new height of the whole window that gives the picture area the aspect of w, when the area is
// areaWidth by areaHeight pixels inside a window windowHeight high.
int PreviewWindowHeight(int windowHeight, int areaWidth, int areaHeight, double xSpan, double ySpan);

}  // namespace quillane
