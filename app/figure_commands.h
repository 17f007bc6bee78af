#pragma once
// The Draw menu's Add Figure items and the paste of a picture figure: a new initial set at level 0.
#include <optional>

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


// The figure a dialog starts from when none was drawn before.
FigureParameters DefaultFigureParameters(int figure);
// With ResetWindow: the figure's bounding box extended by its pen width in world units, set up as the
// deterministic window (which squares it when it leaves the typed window). No other margin.
void FitFigureWindow(Workbench& wb, FractalPictures& pics, const FigureParameters& p);
// The figure drawer of figures 0 to 6 after its dialog: the parameters (or the remembered or default
// ones), the window fitted when asked, and the figure drawn as DetFigure.
void DrawDrawnFigure(Workbench& wb, FractalPictures& pics, InitialFigures& figs, int figure,
                     std::optional<FigureParameters> p, bool resetWindow);

}  // namespace quillane
