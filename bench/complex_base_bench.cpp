// The complex bases' base method on a 1000 x 1000 picture: all 2^22 - 1 sums of powers, in the IFS
// colour and by pixel counts, to set beside the random loop's points per second (RandomEngine/3).
#include <benchmark/benchmark.h>

#include "app/complex_base_commands.h"
#include "app/generator_run.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"
#include "render/play_game.h"

namespace quillane {
namespace {

void BaseMethod(benchmark::State& state) {
    AppState s;
    ScriptedHost host;
    InitializeMenuState(s.wb.Menu);
    mnuDesignExample_Click(s.wb, s.Generator, host, ComplexBasesExample);
    ComplexForm form;  // 0.65 - 0.3i
    form.optDrawBase = true;
    form.optPixelColor = state.range(0) == 1;
    ComplexCreate(s, host, form);
    s.pics.resize(1000, White);
    ApplyWindow(s.pics, s.wb.Window);
    int64_t plotted = 0;
    for (auto _ : state) {
        s.wb.DrawingStarted = false;
        PlayGame(s.wb, s.pics, host, 0, 0);
        plotted += s.Complex.ComplexPointCount;
    }
    state.counters["points/s"] =
        benchmark::Counter(static_cast<double>(plotted), benchmark::Counter::kIsRate);
}
BENCHMARK(BaseMethod)->Arg(0)->Arg(1)->ArgName("pixelColor")->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace quillane
