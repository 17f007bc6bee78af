// The tile loop beside the plain loop on the standard workload (the Sierpinski triangle on a 1000 x 1000
// picture), both pictures written. points/s counts iterations, copies/s the copies set per second.
#include <benchmark/benchmark.h>

#include "core/scripted_host.h"
#include "render/engine_workload.h"
#include "render/play_game.h"

namespace quillane {
namespace {

void runTiles(benchmark::State& state, int radius, bool tiles) {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;
    SetUpEngineWorkload(wb, pics, 3, 1000);
    if (tiles) UseTileWorkload(pics, radius, state.range(1) != 0);
    const int side = tiles ? 2 * radius + 1 : 1;
    int64_t plotted = 0;
    for (auto _ : state) {
        wb.DrawingStarted = false;
        wb.PointCount = 0;
        PlayGame(wb, pics, host, 0, 2000000);
        plotted += wb.PointCount - WarmUpIterations;
    }
    state.counters["points/s"] =
        benchmark::Counter(static_cast<double>(plotted), benchmark::Counter::kIsRate);
    state.counters["copies/s"] =
        benchmark::Counter(static_cast<double>(plotted) * side * side, benchmark::Counter::kIsRate);
}

void PlainLoopBeside(benchmark::State& state) {
    runTiles(state, 0, false);
}
BENCHMARK(PlainLoopBeside)->Args({0, 0})->Unit(benchmark::kMillisecond)->UseRealTime();

void TileLoop(benchmark::State& state) {
    runTiles(state, static_cast<int>(state.range(0)), true);
}
BENCHMARK(TileLoop)
    ->ArgsProduct({{0, 1, 2}, {0, 1}})
    ->ArgNames({"radius", "tileColors"})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace quillane
