// One deterministic level with IFS colours: a source about 30% set, scattered or clustered, 3 or 12 maps,
// 1000 to 4000 pixels.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/deterministic.h"

namespace quillane {
namespace {

// A scattered source: about 30% of the pixels set, in no pattern the scan could exploit.
void scatteredSource(RasterSurface& s) {
    uint32_t h = 2463534242u;
    for (int r = 0; r < s.height(); ++r)
        for (int c = 0; c < s.width(); ++c) {
            h ^= h << 13;
            h ^= h >> 17;
            h ^= h << 5;
            if (h % 100 < 30) s.setPixel(c, r, RGB(0, 0, 0));
        }
}

// A clustered source, as the levels of a drawing are: a filled disc over about 30% of the picture.
void clusteredSource(RasterSurface& s) {
    s.circle(0.5, 0.5, 0.34, RGB(0, 0, 0), true);
}

// Arguments: side in pixels, maps, source (0 scattered, 1 clustered).
void DeterministicLevel(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    const int maps = static_cast<int>(state.range(1));
    Workbench wb;
    wb.CurrentIFS = maps == 3 ? SierpinskiTriangleIFS() : GridIFS(maps);
    wb.txtMaps = std::to_string(maps);
    wb.RandomMode = false;
    wb.Menu.setChecked(MenuTable::key("mnuColors", 0), true);
    wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), true);
    wb.Window = {-0.05f, 1.05f, -0.05f, 1.05f};
    FractalPictures pics;
    pics.resize(side, White);
    ApplyWindow(pics, wb.Window);
    if (state.range(2) == 0)
        scatteredSource(pics.picImage3);
    else
        clusteredSource(pics.picImage3);
    const RasterSurface source = pics.picImage3;
    ScriptedHost host;
    for (auto _ : state) {
        state.PauseTiming();
        pics.picImage3.takeImage(source);
        wb.IterationNumber = 0;
        state.ResumeTiming();
        Iterate(wb, pics, host, -1);
    }
    state.counters["Mpixels/s"] = benchmark::Counter(
        static_cast<double>(side) * side * state.iterations() / 1e6, benchmark::Counter::kIsRate);
}
BENCHMARK(DeterministicLevel)
    ->Args({1000, 3, 0})
    ->Args({2000, 3, 0})
    ->Args({4000, 3, 0})
    ->Args({1000, 12, 0})
    ->Args({4000, 12, 0})
    ->Args({1000, 3, 1})
    ->Args({2000, 3, 1})
    ->Args({4000, 3, 1})
    ->Args({1000, 12, 1})
    ->Args({4000, 12, 1})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace quillane
