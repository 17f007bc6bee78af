#pragma once
// An application state for the tree generators: menus, pictures, the initial polygon drawn as the
// deterministic figure, and a scripted host.
#include <gtest/gtest.h>

#include "app/app_state.h"
#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"
#include "render/deterministic.h"
#include "render/initial_figures.h"

namespace quillane::testing {

// Figures 0 and 1: the initial polygon in outline or filled, in DetSingleColor.
inline bool drawPolygonFigure(Workbench& wb, FractalPictures& pics, Host&, int figure, bool, bool) {
    pics.picImage3.setBackColor(pics.picfractal.backColor());
    pics.picImage3.clear();
    pics.picfractal.clear();
    for (RasterSurface* s : {&pics.picfractal, &pics.picImage3}) {
        if (figure == 1)
            DrawInitialSetFilled(*s, wb.InitialPolygon,
                                 PolygonFilledFigure{true, 1, pics.Det.DetSingleColor});
        else
            DrawInitialSet(*s, wb.InitialPolygon, PolygonOutlineFigure{1, pics.Det.DetSingleColor});
    }
    return true;
}

class TreeState : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(s.wb.Menu);
        s.wb.Rng.pin(5);
        s.pics.resize(side(), White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        s.pics.Det.FigureDrawer = drawPolygonFigure;
    }
    virtual int side() const { return 200; }
    void deterministic() { mnuDrawType_Click(s.wb, s.pics, host, 1); }
    void level() { Iterate(s.wb, s.pics, host, -1); }
    int painted(const RasterSurface& p) const {
        int n = 0;
        for (int r = 0; r < p.height(); ++r)
            for (int c = 0; c < p.width(); ++c) n += (p.pixel(c, r) & 0xFFFFFF) != White;
        return n;
    }
    // The share of painted pixels of `a` that have a painted pixel of `b` within `reach` pixels.
    static double coveredBy(const RasterSurface& a, const RasterSurface& b, int reach) {
        int total = 0, near = 0;
        for (int r = 0; r < a.height(); ++r)
            for (int c = 0; c < a.width(); ++c) {
                if ((a.pixel(c, r) & 0xFFFFFF) == White) continue;
                ++total;
                bool found = false;
                for (int dr = -reach; dr <= reach && !found; ++dr)
                    for (int dc = -reach; dc <= reach && !found; ++dc) {
                        const int cc = c + dc, rr = r + dr;
                        found = cc >= 0 && rr >= 0 && cc < b.width() && rr < b.height() &&
                                (b.pixel(cc, rr) & 0xFFFFFF) != White;
                    }
                near += found;
            }
        return total ? static_cast<double>(near) / total : 0;
    }
    AppState s;
    ScriptedHost host;
};

}  // namespace quillane::testing
