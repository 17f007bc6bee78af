#pragma once
// The pixel scan of one deterministic level: every set pixel of picImage3 is carried by the maps into
// picImage (and picImage4, or picMask for an overlay level), row by row with a yield after each row.
#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

enum class ScanKind {
    ImageColors,  // each image takes the colour of its source pixel
    IfsColors,    // colour mode 0: the map's colour, lower map numbers on top
    SingleColor,  // modes 5 and 6: DetSingleColor
    Gradient,     // modes 1 to 4 by the colouring position, 7 a random strip
    Overlay,      // one colour (or the source colour) per level into picImage and picMask
    Tiled,        // each image with its tile copies, coloured as IfsColors, SingleColor or Gradient
};

struct ScanRequest {
    ScanKind kind = ScanKind::IfsColors;
    int which = -1;       // -1 all maps, else that map alone
    Color color = Black;  // SingleColor and the overlay level's colour
    bool overlayImageColors = false;
    int gradientMode = 1;
    // False when picImage4 will simply take the picImage image afterwards (no placed picture under it).
    bool writeShown = true;
    // The tiling settings window is open: every image is set with its copies (the kind gives their colour
    // under optColor1; optColor2 gives each copy its tile colour).
    bool tiled = false;
};

// Runs the rows 1 to N - 1 into a picImage cleared for this level. False when IterationAbort (or a change of
// the pictures during a yield) ended it early.
bool ScanLevel(Workbench& wb, FractalPictures& pics, Host& host, const ScanRequest& request);

}  // namespace quillane
