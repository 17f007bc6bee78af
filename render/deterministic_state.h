#pragma once
// What the deterministic drawing keeps between levels and between commands. Part of the fractal
// window's pictures, so a test that makes fresh pictures starts from a fresh state.
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/colors.h"
#include "core/workbench.h"
#include "render/raster_surface.h"

namespace quillane {

class Host;
struct FractalPictures;

// Draws initial figure `Figure` (0..8) into picfractal and picImage3; with ShowDialog it asks first.
// Returns false when the person cancelled; nothing has changed then.
using DetFigureDrawer = std::function<bool(Workbench& wb, FractalPictures& pics, Host& host, int Figure,
                                           bool ShowDialog, bool ResetWindow)>;
// The colour of a gradient mode (1..4, 7) at a colouring position in world units.
using DetGradientColor = std::function<Color(int mode, float x, float y)>;
// A generator's own drawing of its IFS in place of a level; true when it drew. Slot k goes with
// RecursionOff(k): 0 line fractal, 1 Koch, 2 binary tree, 3 Pythagorean tree.
using RecursiveDrawer = std::function<bool(Workbench& wb, FractalPictures& pics, Host& host)>;

struct DeterministicState {
    bool IterationAbort = false;
    bool KeepFirstColor = false;
    Color DetSingleColor = Black;
    // The selected optColoring button (1..7), read when mnuColors(1) is checked.
    int optColoring = 1;
    // The colour item that was checked when Deterministic took over; Random puts it back.
    int SavedColorItem = 0;
    int SavedOptColoring = 1;

    // pgrIterate: shown in place of picCoord during a level, its value a whole percentage.
    bool pgrIterateVisible = false;
    int pgrIterate = 0;
    bool picCoordVisible = true;
    bool picTraceVisible = false;
    std::string picTrace;
    // The suffix of the level number after a recursive drawing (" w/Rec").
    std::string CountSuffix;

    // The window of the last deterministic figure, to return to on a change to Deterministic.
    WorldWindow DetWindow;
    bool DetWindowStored = false;
    // "Draw This Many..." in Deterministic mode: the levels asked for last.
    int32_t LastLevels = 5;
    // The digit keys: a tens digit typed with Shift, waiting for its second digit.
    bool DigitPending = false;
    int TensDigit = 0;

    // Filled in by the figures; without a drawer a figure is an empty picture. A GradientColor given
    // here takes the place of the gradient of the workbench.
    DetFigureDrawer FigureDrawer;
    DetGradientColor GradientColor;
    std::array<RecursiveDrawer, 4> RecursiveDrawing;
    // The clipboard's bitmap for the clipboard figure; nothing when it holds none.
    std::function<std::optional<RasterSurface>()> ClipboardBitmap;

    // The scan's map-per-pixel table of the colour priority rule, kept from level to level so that a
    // level reuses its memory instead of having fresh pages zeroed.
    std::vector<uint8_t> ScanOwners;
};

}  // namespace quillane
