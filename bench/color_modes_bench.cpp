// The random drawing engine in each colour mode on the standard workload (1000 x 1000 picture, 3 and
// 100 maps), to set beside colour mode 0.
#include <benchmark/benchmark.h>

#include "core/scripted_host.h"
#include "render/engine_workload.h"
#include "render/play_game.h"

namespace quillane {
namespace {

void RandomEngineColorMode(benchmark::State& state) {
    const int mode = static_cast<int>(state.range(0));
    const int maps = static_cast<int>(state.range(1));
    const int points = 5000000;
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;
    SetUpEngineWorkload(wb, pics, maps, 1000);
    UseColorModeWorkload(wb, pics, mode);
    int64_t plotted = 0;
    for (auto _ : state) {
        wb.DrawingStarted = false;
        wb.PointCount = 0;
        PlayGame(wb, pics, host, 0, points);
        plotted += wb.PointCount - WarmUpIterations;
    }
    state.counters["points/s"] =
        benchmark::Counter(static_cast<double>(plotted), benchmark::Counter::kIsRate);
}
BENCHMARK(RandomEngineColorMode)
    ->ArgsProduct({{0, 1, 2, 3, 4, 5, 6, 7}, {3, 100}})
    ->ArgNames({"mode", "maps"})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace quillane
