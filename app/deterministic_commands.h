#pragma once
// The Draw menu's choice of the random or the deterministic drawing, and the fractal window's keys
// that draw one map's level.
#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"
#include "render/initial_figures.h"

namespace quillane {

// mnuDrawType: index 0 Random, 1 Deterministic.
void mnuDrawType_Click(Workbench& wb, FractalPictures& pics, Host& host, int Index);
// The digit keys in Deterministic mode: a digit applies that map alone; Shift and two digits reach
// maps above 9. True when the key was handled.
bool DeterministicDigitKey(Workbench& wb, FractalPictures& pics, Host& host, int keyCode, int shiftMask);
// Key-up on the fractal window.
void FractalKeyUp(Workbench& wb, FractalPictures& pics);

// "&Overlay Images": each level keeps the earlier ones, in the colour of its function. Offered in
// Deterministic mode only, and not while a level runs.
void mnuDrawOverlay_Click(Workbench& wb);
// "Use IFS Color Scheme" (0) or "Use Image Colors" (1). The choice replaces one a picture figure
// remembered, as the figure dialogs' check box does.
void mnuDrawDetColorItems_Click(Workbench& wb, InitialFigures& figs, int Index);

}  // namespace quillane
