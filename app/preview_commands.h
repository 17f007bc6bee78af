#pragma once
// "&Show Preview" (Ctrl+P) and frmPreview: a quick random drawing of the working IFS in the fractal
// window's view, beside the design, redrawn whenever the maps, their colours or the view change.
#include <string>

#include "core/colors.h"
#include "core/ifs_entry.h"
#include "core/workbench.h"
#include "render/raster_surface.h"

namespace quillane {

struct AppState;

inline constexpr int PreviewWindowItem = 3;  // mnuWin(3) "&Preview"

struct PreviewState {
    RasterSurface picPreview;
    int PreviewPoints = 2000;
    std::string Status = "2000 (+/- inc/dec)";
    // What the last Draw showed, so a refresh draws only after a change.
    struct Shown {
        IFSEntry ifs;
        FunctionColors colors{};
        WorldWindow window;
        int points = 0;
        int width = 0, height = 0;
        bool operator==(const Shown&) const = default;
    } LastShown;
};

// Toggles the check, and the Window menu entry with it; a hidden preview is cleared. Returns whether
// the preview shows now.
bool mnuDesignPreview_Click(AppState& s);
// Draw: picPreview takes the fractal window's view and the points are drawn.
void PreviewDraw(AppState& s);
// Draws when something the picture depends on changed since the last Draw. True when it drew.
bool PreviewRefresh(AppState& s);
// Key up of "+" (1) or "-" (-1): the count changes within its limits, the status follows, redraw.
void PreviewKeyUp(AppState& s, int direction);
// The close box: hidden, cleared, the item unchecked.
void PreviewClosed(AppState& s);

}  // namespace quillane
