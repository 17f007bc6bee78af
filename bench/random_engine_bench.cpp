// The random drawing engine on a 1000 x 1000 picture, colour mode 0, both pictures written.
#include <benchmark/benchmark.h>

#include "core/scripted_host.h"
#include "render/engine_workload.h"
#include "render/play_game.h"

namespace quillane {
namespace {

void RandomEngine(benchmark::State& state) {
    const int maps = static_cast<int>(state.range(0));
    const int points = 20000000;
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;
    SetUpEngineWorkload(wb, pics, maps, 1000);
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
BENCHMARK(RandomEngine)->Arg(3)->Arg(100)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace quillane
