#pragma once
// The overlay commands of the fractal window: axes, fixed points, grid, their sizes and colours.
#include <optional>
#include <string>

#include "app/grid_size.h"
#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// frmGridSize takes spacings in this range on the fractal window, so a grid stays a grid.
inline constexpr float MinFractalGridSpacing = 0.001f;
inline constexpr float MaxFractalGridSpacing = 1000.0f;
inline constexpr const char* GridSizeRangeText = "Grid size must be between 0.001 and 1000.  ";
// cmbThickness of frmAxisSize: list index + 1 is the width in pixels.
inline constexpr int AxisThicknessChoices = 5;

// Toggle mnuAxes / mnuFixedPoints: on draws over the picture, off repaints without it.
void FractalAxes(Workbench& wb, FractalPictures& pics);
void FractalFixedPoints(Workbench& wb, FractalPictures& pics);
// After mnudrawFractalGrid has been toggled: the picture again with the grid as it now stands.
void FractalGrid(Workbench& wb, FractalPictures& pics);
// Ctrl+G, the menu item and the toolbar button: toggles the grid and redraws.
void mnudrawFractalGrid_Click(Workbench& wb, FractalPictures& pics);
// The plus and minus keys while the grid is shown; false when the grid is hidden.
bool GridSpacingKey(Workbench& wb, FractalPictures& pics, bool coarser);
// The fractal window's range for both spacings; outside it the message titled "Error".
bool CheckFractalGridRange(const GridSpacing& g, Host& host);
// frmGridSize's OK on the fractal window: the range check, then the grid is shown at that spacing.
bool FractalGridSize(Workbench& wb, FractalPictures& pics, const GridSpacing& g, Host& host);
// frmAxisSize's OK with the cmbThickness list index.
void SetAxisThickness(Workbench& wb, FractalPictures& pics, int listIndex);
// "Axes" and "Background" of D&raw > Colors.
void mnuDrawAxisColor_Click(Workbench& wb, FractalPictures& pics, Host& host);
void mnuDrawBackColor_Click(Workbench& wb, Host& host);
void mnuColorFP_Click(Workbench& wb, FractalPictures& pics, bool colored);

}  // namespace quillane
