#include "core/window_positions.h"

#include <algorithm>

#include "core/numbers.h"

namespace quillane {

WindowPositions SetDefaultWindowPositions(int frameWidth) {
    WindowPositions p;
    p.functions = {0, 0, 10010, 7500};
    p.fractal.width = 5200;
    p.fractal.height = 6000;
    p.fractal.left = p.functions.left + p.functions.width - p.fractal.width + 800;
    p.fractal.top = 0;
    p.design.width = 5955;
    p.design.height = 6000;
    p.design.left = p.fractal.left;
    p.design.top = p.fractal.top + p.fractal.height - p.design.height + 800;
    p.tilingOptions = {900, 100, 0, 0};
    p.preview = {frameWidth, 0, 2925, 3315};
    p.colorStealing = {100, 100, 9300, 5985};
    return p;
}

WindowPlace MainWindowsExtent(const WindowPositions& p) {
    WindowPlace e;
    for (const WindowPlace& w : {p.functions, p.fractal, p.design}) {
        e.width = std::max(e.width, w.right());
        e.height = std::max(e.height, w.bottom());
    }
    return e;
}

int TwipsToPixels(int twips, double pixelsPerInch) {
    return CInt(twips * pixelsPerInch / TwipsPerInch);
}

int PixelsToTwips(int pixels, double pixelsPerInch) {
    return CInt(pixels * TwipsPerInch / pixelsPerInch);
}

}  // namespace quillane
