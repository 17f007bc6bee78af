// The Koch curve (n = 3, c = 1/3) drawn by its own recursion at level 7 on 1000 x 1000 pixels: the
// pass of the deterministic drawing at counter 6, 4^7 = 16384 lines into two pictures.
#include <benchmark/benchmark.h>

#include "app/koch_recursion.h"
#include "core/scripted_host.h"
#include "generators/koch_curve.h"

namespace quillane {
namespace {

void KochRecursionLevel7(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    Workbench wb;
    wb.RandomMode = false;
    wb.Window = {-0.05f, 1.05f, -0.5f, 0.6f};
    wb.UseKochRecursion = true;
    wb.KochRecursionAllowed = true;
    const float c = static_cast<float>(1.0 / 3);
    wb.KochRatio = KochRatioFor(c);
    FractalPictures pics;
    pics.resize(side, White);
    ApplyWindow(pics, wb.Window);
    ScriptedHost host;
    int64_t lines = 0;
    for (auto _ : state) {
        wb.IterationNumber = 6;
        benchmark::DoNotOptimize(KochRecursivePass(wb, pics, host, 3, c));
        lines += 16384;
    }
    state.counters["lines/s"] = benchmark::Counter(static_cast<double>(lines), benchmark::Counter::kIsRate);
}
BENCHMARK(KochRecursionLevel7)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillane
