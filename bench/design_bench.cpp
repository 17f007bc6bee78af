// A full redraw of the design window, as every mouse move of a gesture does: 100 maps of the
// oriented square on a 1000 x 1000 picdesign, with axes, and once more with grid and fixed points.
#include <benchmark/benchmark.h>

#include "core/menu_tree.h"
#include "design/design_drawing.h"
#include "app/design_view.h"

namespace quillane {
namespace {

void setUp(Workbench& wb, DesignPictures& d) {
    InitializeMenuState(wb.Menu);
    wb.CurrentIFS.nMaps = 100;
    for (int i = 0; i < 100; ++i) {
        const float s = 0.08f + 0.001f * static_cast<float>(i % 7);
        wb.CurrentIFS.a[i] = s;
        wb.CurrentIFS.b[i] = -0.02f;
        wb.CurrentIFS.c[i] = 0.02f;
        wb.CurrentIFS.d[i] = s;
        wb.CurrentIFS.e[i] = 0.1f * static_cast<float>(i % 10);
        wb.CurrentIFS.f[i] = 0.1f * static_cast<float>(i / 10);
    }
    d.resize(1000, 1000, wb.DesignBackColor);
    ApplyDesignWindow(d, wb.DesignWindow);
}

void BM_DesignRedraw100Maps(benchmark::State& state) {
    Workbench wb;
    DesignPictures d;
    setUp(wb, d);
    if (state.range(0) != 0) {
        wb.Menu.setChecked("mnuDesignGrid", true);
        wb.Menu.setChecked("mnuDesignFP", true);
    }
    for (auto _ : state) {
        DrawDesign(wb, d, false);
        benchmark::DoNotOptimize(d.picdesign.data());
    }
}
BENCHMARK(BM_DesignRedraw100Maps)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillane
