#pragma once
// Colour stealing's logic: the candidates for the colouring IFS, the picture's world window
// (setCSscale) and the check a drawing in colour mode 7 makes before it starts.
#include <string>
#include <vector>

#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr const char* ColoringMismatchMessage =
    "The coloring IFS and drawing IFS do not\nhave the same number of functions.\n\n"
    "Refresh the list and select a new coloring IFS.";

// One line of listColoringIFS: the unit square, a list entry, or the current IFS (place 0).
struct ColoringCandidate {
    std::string title;
    bool unitSquare = false;
    int place = 0;  // the entry's place in FractalList, 0 for the current IFS
};

// The list as ConfigureComboList builds it: "Unit Square  " for two or more maps, each list entry with
// as many functions as the current IFS, then the current IFS itself when it is not in the list or
// has been modified, under the table's title without its "*".
std::vector<ColoringCandidate> ColoringIFSCandidates(const Workbench& wb);
// Choosing a line: the unit-square IFS, or a copy of the record followed by setCSscale.
void ChooseColoringIFS(Workbench& wb, ColorStealingState& cs, const ColoringCandidate& choice);
// Rebuilds the list and takes its first line.
void ConfigureComboList(Workbench& wb, ColorStealingState& cs);

// CSWindow from the attractor of the colouring IFS, applied to picImage (and picTrace with chkTrace).
void setCSscale(Workbench& wb, ColorStealingState& cs);
// The picture to steal from, at its own size (the command line has no window to fit it to).
void SetColorStealingPicture(Workbench& wb, ColorStealingState& cs, const RasterSurface& picture);

// The set-up of colour mode 7 for n drawing maps. False, after the message, when the colouring IFS has
// another number of maps and the stealing window is shown; hidden, the window's list is rebuilt.
bool SettleColoringIFS(Workbench& wb, FractalPictures& pics, Host& host, int n);

}  // namespace quillane
