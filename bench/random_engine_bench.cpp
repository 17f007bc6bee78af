// The random drawing engine on a 1000 x 1000 picture with 3 and 100 maps, both pictures written: in
// colour mode 0, and in each colour mode to set beside it.
#include <benchmark/benchmark.h>

#include <optional>

#include "core/scripted_host.h"
#include "render/engine_workload.h"
#include "render/play_game.h"

namespace quillane {
namespace {

// `mode` set: the colour mode workload of that mode (0 included), else the plain workload.
void runEngine(benchmark::State& state, int maps, std::optional<int> mode, int points) {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;
    SetUpEngineWorkload(wb, pics, maps, 1000);
    if (mode) UseColorModeWorkload(wb, pics, *mode);
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

void RandomEngine(benchmark::State& state) {
    runEngine(state, static_cast<int>(state.range(0)), std::nullopt, 20000000);
}
BENCHMARK(RandomEngine)->Arg(3)->Arg(100)->Unit(benchmark::kMillisecond)->UseRealTime();

void RandomEngineColorMode(benchmark::State& state) {
    runEngine(state, static_cast<int>(state.range(1)), static_cast<int>(state.range(0)), 5000000);
}
BENCHMARK(RandomEngineColorMode)
    ->ArgsProduct({{0, 1, 2, 3, 4, 5, 6, 7}, {3, 100}})
    ->ArgNames({"mode", "maps"})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace quillane
