#pragma once
// What colour stealing keeps for the drawing: the picture, the colouring IFS that runs in step with
// the drawing IFS over it, and the trace of that second orbit. The window that chooses them fills it.
#include <functional>

#include "core/ifs_entry.h"
#include "core/workbench.h"
#include "render/raster_surface.h"

namespace quillane {

struct ColorStealingState {
    IFSEntry ColoringIFS;
    WorldWindow CSWindow;
    RasterSurface picImage;  // the picture scaled to fit, with CSWindow as its world
    RasterSurface picTrace;  // a copy of picImage that receives the orbit dots
    bool chkTrace = false;
    Color picTraceColor = Black;
    bool chkMethod = false;  // "Equal Scale"
    // frmColorStealing is shown: a mismatched colouring IFS then stops the drawing with a message
    // instead of being replaced silently.
    bool Visible = false;
    // The window's list rebuild; without a window the drawing falls back to the unit-square IFS.
    std::function<void()> ConfigureComboList;
};

}  // namespace quillane
