// One mouse move of a drag in the design window: the step, the table row and the full redraw with
// the ghost, on a 600 x 600 picdesign. The argument is the number of maps.
#include <benchmark/benchmark.h>

#include "core/function_table.h"
#include "core/initial_polygons.h"
#include "core/menu_tree.h"
#include "design/design_drawing.h"
#include "app/design_gestures.h"
#include "app/design_view.h"

namespace quillane {
namespace {

void setUp(Workbench& wb, DesignPictures& d, int maps) {
    InitializeMenuState(wb.Menu);
    wb.InitialPolygon = BuiltInPolygon(0);
    wb.CurrentIFS.nMaps = static_cast<int16_t>(maps);
    for (int i = 0; i < maps; ++i) {
        wb.CurrentIFS.a[i] = wb.CurrentIFS.d[i] = 0.08f;
        wb.CurrentIFS.e[i] = 0.1f * static_cast<float>(i % 10);
        wb.CurrentIFS.f[i] = 0.1f * static_cast<float>(i / 10);
        wb.CurrentIFS.p[i] = 1.0f / static_cast<float>(maps);
    }
    WriteTableRows(wb);
    d.resize(600, 600, wb.DesignBackColor);
    ApplyDesignWindow(d, wb.DesignWindow);
    DrawDesign(wb, d, false);
}

void BM_DesignDragStep(benchmark::State& state) {
    Workbench wb;
    DesignPictures d;
    setUp(wb, d, static_cast<int>(state.range(0)));
    DesignGesture g;
    DesignMouseDown(wb, d, g, 0.04f, 0, 0);  // bottom edge of function 1
    float x = 0.1f;
    for (auto _ : state) {
        x = x > 0.5f ? 0.1f : x + 0.01f;
        DesignMouseMove(wb, d, g, x, 0.2f, 0, true);
        benchmark::DoNotOptimize(d.picdesign.data());
    }
}
BENCHMARK(BM_DesignDragStep)->Arg(3)->Arg(100)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillane
