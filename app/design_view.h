#pragma once
// The design window's view: scale to fit, scale to the fractal window, zoom, shift, resize.
#include <string>

#include "core/host.h"
#include "core/table_editing.h"
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr const char* DesignShiftCaptions[4] = {"Shift Left", "Shift Right", "Shift Down", "Shift Up"};

// Gives the three areas the mapping of w: top left (xmin, ymax), bottom right (xmax, ymin).
void ApplyDesignWindow(DesignPictures& d, const WorldWindow& w);
// DesignWindow into txtDesign.
void WriteDesignText(Workbench& wb);
// txtDesign read with Val into DesignWindow, and applied to the three areas.
void ScaleDesignWindows(Workbench& wb, DesignPictures& d);

// The fitted window of the initial polygon and every function's image (computes BoundingBox).
WorldWindow DesignWinScale(Workbench& wb, DesignPictures& d);
// Home, "&Scale to Fit": fits, redraws with the selection, resets undo, writes txtDesign.
void DesignScale(Workbench& wb, DesignPictures& d);
// "&Scale to Fractal Window": the fractal window's bounds, the area padded as the fractal picture.
void mnuDesignMatch_Click(Workbench& wb, DesignPictures& d, const FractalPictures& pics);
// +1 zoom out, -1 zoom in, by 5% of a span that each second step sees already changed.
void DesignWinZoom(Workbench& wb, DesignPictures& d, int Direction);
// 37 left, 38 up, 39 right, 40 down: 1% of the span.
void ShiftDesignWin(Workbench& wb, DesignPictures& d, int KeyCode);
// MnuDesignShiftDir(Index): 0 left, 1 right, 2 down, 3 up.
void MnuDesignShiftDir_Click(Workbench& wb, DesignPictures& d, int Index);
// The redraw after a view change: the design with its selection, or in polygon mode the path so far.
void RedrawDesignView(Workbench& wb, DesignPictures& d);
// Redraw after a change of what is shown; DesignGrid and DesignFixedPoints also invert their check.
void DesignAxes(Workbench& wb, DesignPictures& d);
void DesignGrid(Workbench& wb, DesignPictures& d);
void DesignFixedPoints(Workbench& wb, DesignPictures& d);
// mnuDesignLine(Index): LineThickness is twice the index.
void mnuDesignLine_Click(Workbench& wb, DesignPictures& d, int Index);
// After any command: redraws when the working IFS, its colours or the polygon changed since the last
// time, so the table and the design show the same numbers. True when it redrew.
bool RedrawDesignIfChanged(Workbench& wb, DesignPictures& d);
// A new size of the window keeps DesignWindow; returns the size text "w x h".
std::string ResizeDesignWin(Workbench& wb, DesignPictures& d, int width, int height);

// txtDesign's commit: the texts and DesignWindow. The design window redraws itself on Changed.
BoxCommit txtDesign_Commit(Workbench& wb, Host& host);

}  // namespace quillane
