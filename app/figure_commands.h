#pragma once
// The Draw menu's Add Figure items and the paste of a picture figure: a new initial set at level 0.
#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"
#include "render/initial_figures.h"

namespace quillane {

// mnuDrawAddFigure(Index): a new initial set, level 0.
void mnuDrawAddFigure_Click(Workbench& wb, FractalPictures& pics, Host& host, InitialFigures& figs, int Index);

// mnuEditPaste on the fractal window: in Deterministic mode, with no picture floating and a bitmap on
// the clipboard, the clipboard becomes the initial set.
bool PasteFractalFigure(Workbench& wb, FractalPictures& pics, Host& host, InitialFigures& figs);


}  // namespace quillane
