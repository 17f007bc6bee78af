#pragma once
// Finding the fractal window from the attractor.
#include "core/host.h"
#include "core/workbench.h"

namespace quillane {

struct FractalPictures;

inline constexpr const char* ProbabilitiesMessage = "Probabilities do not add to 1";
inline constexpr const char* ScaleOverflowMessage = "Overflow error.\nIFS may be expanding.";
inline constexpr const char* ScaleProblemMessage =
    "Problem encountered while computing scale.\nCheck probabilities or set the scale manually.";

// The window steps that follow sampling: round outward, widen degenerate sides, make square.
void SquareWindow(float& xmin, float& xmax, float& ymin, float& ymax);
// The 5% margin on all four edges.
void AddWindowMargin(float& xmin, float& xmax, float& ymin, float& ymax);

// Samples the attractor of CurrentIFS and sets the fractal window from it, unless the scale is
// frozen. With Redraw and pictures given, applies the window and clears the image.
// Returns false when a message ended it; the window then stays as it was.
bool setscale(Workbench& wb, Host& host, bool Redraw = false, FractalPictures* pics = nullptr);

}  // namespace quillane
