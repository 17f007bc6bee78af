#pragma once
// The deterministic algorithm: an initial set held as a picture is replaced level by level by the
// union of its images under the maps. Plain logic over the workbench and the fractal pictures.
#include <cstdint>

#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr const char* DeterministicCaption = "Fractal (Deterministic)";
inline constexpr const char* RandomCaption = "Fractal (Random)";
inline constexpr const char* RecursionSuffix = " w/Rec";

// The colour mode of a deterministic level: 0 IFS colours, 1 to 4 gradients, 5 and 6
// DetSingleColor, 7 the random gradient.
int DeterministicColorMode(const Workbench& wb, const FractalPictures& pics);

// One level. Which -1 applies all maps, i >= 0 map i alone.
void Iterate(Workbench& wb, FractalPictures& pics, Host& host, int Which);
// "Draw This Many..." and Ctrl+Alt+D: that many levels, yielding between them, until Q.
void IterateLevels(Workbench& wb, FractalPictures& pics, Host& host, int32_t levels);

// Unless the scale is frozen, applies the window to all pictures; then clears picfractal.
void SetUpDeterministicWindow(Workbench& wb, FractalPictures& pics, float xmin, float xmax, float ymin,
                              float ymax, bool Flag);
// Draws a figure through the figure drawer and stores the window as the one to return to.
// False when the person cancelled the figure's dialog.
bool DrawDetWindowFigure(Workbench& wb, FractalPictures& pics, Host& host, int Figure, bool ShowDialog,
                         bool ResetWindow);
// Redraws the figure DetFigure without a dialog.
void DrawDetFigure(Workbench& wb, FractalPictures& pics, Host& host, bool Flag);
// Back to level 0 with the figure drawn again.
void ResetDeterministic(Workbench& wb, FractalPictures& pics, Host& host);
// DetFigure and the check marks of mnuDrawAddFigure.
void ResetDetFigure(Workbench& wb, int Figure);
// ClearImage in Deterministic mode: level 0, the figure drawn again.
void ClearDeterministicImage(Workbench& wb, FractalPictures& pics, Host& host);
// ClearImage's Deterministic branch, which shows no dialog.
void ClearImageDeterministicBranch(Workbench& wb, FractalPictures& pics);
// The redraw after a view change in Deterministic mode.
void RedrawDeterministicView(Workbench& wb, FractalPictures& pics, Host& host);
// "&Scale to Fit" in Deterministic mode.
void CalcScaleDeterministic(Workbench& wb, FractalPictures& pics, Host& host);


// Whether "Freeze Scale" keeps the window as it is.
bool ScaleFrozen(const Workbench& wb);
// picCount shows the level and its suffix.
void ShowDetLevel(const Workbench& wb, FractalPictures& pics);
// Level 0: the zoom commands work again and the display shows 0.
void BackToLevelZero(Workbench& wb, FractalPictures& pics);
// The placed picture painted where it stands.
void PaintPlacedPicture(RasterSurface& dest, const FractalPictures& pics);
// picImageShift takes the picture with the window's mapping, for a later shift of the view.
void TakeShiftImage(const Workbench& wb, FractalPictures& pics);

}  // namespace quillane
