#pragma once
// A workbench with an IFS, its table boxes written, and square pictures on a chosen window.
#include <string>

#include "core/function_table.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane::testing {

struct OverlayBench {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;

    explicit OverlayBench(const IFSEntry& ifs, WorldWindow w = {-0.05f, 1.05f, -0.05f, 1.05f},
                          int side = 100) {
        InitializeMenuState(wb.Menu);
        wb.CurrentIFS = ifs;
        wb.txtMaps = std::to_string(ifs.nMaps);
        wb.Window = w;
        WriteWindowText(wb);
        WriteTableRows(wb);
        wb.Rng.pin(5);
        pics.resize(side, White);
        ApplyWindow(pics, wb.Window);
    }
    int differingPixels(const RasterSurface& a, const RasterSurface& b) const {
        int n = 0;
        for (int r = 0; r < a.height(); ++r)
            for (int c = 0; c < a.width(); ++c) n += a.pixel(c, r) != b.pixel(c, r);
        return n;
    }
    int pixelsOf(const RasterSurface& s, Color c) const {
        int n = 0;
        for (int r = 0; r < s.height(); ++r)
            for (int col = 0; col < s.width(); ++col) n += s.pixel(col, r) == c;
        return n;
    }
};

}  // namespace quillane::testing
