// The recursive drawing of a 15-segment line fractal at its limit on 1000 x 1000 pixels: a zigzag
// stopped by the pixel limit, and a generator with one long segment stopped by the count limit
// (15^5 lines).
#include <benchmark/benchmark.h>

#include "app/line_fractal_commands.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"

namespace quillane {
namespace {

LineFractal fifteenSegments(bool longFirst) {
    LineFractal g;
    g.nSegments = 15;
    for (int i = 0; i <= 15; ++i) {
        const float t = static_cast<float>(i) / 15;
        g.GeneratorPoints[static_cast<size_t>(i)] = {t, i % 2 ? 0.05f : -0.05f};
    }
    if (longFirst) {
        g.GeneratorPoints[1] = {0.75f, 0.3f};
        for (int i = 2; i <= 15; ++i) {
            const float t = static_cast<float>(i - 1) / 14;
            g.GeneratorPoints[static_cast<size_t>(i)] = {0.75f + 0.25f * t, 0.3f * (1 - t)};
        }
    }
    g.GeneratorPoints[0] = {0, 0};
    g.GeneratorPoints[15] = {1, 0};
    g.txtOrient = std::string(15, 'F');
    return g;
}

void LineFractalRecursion(benchmark::State& state) {
    AppState s;
    InitializeMenuState(s.wb.Menu);
    ScriptedHost host;
    s.pics.resize(1000, White);
    ApplyWindow(s.pics, WorldWindow{-0.05f, 1.05f, -0.55f, 0.55f});
    s.Line.Generator = fifteenSegments(state.range(0) == 1);
    s.Line.Generator.MaxRatio = LineFractalMaps(s.Line.Generator).MaxRatio;
    s.Line.UseLineRecursion = s.Line.LineRecursionAllowed = true;
    s.wb.IterationNumber = 100;
    int64_t lines = 0;
    for (auto _ : state) {
        LineRecursionPass(s.Line, s.wb, s.pics, host);
        InitializeGenerator(s.Line.Generator);
        const double pixel = s.pics.picfractal.pixelsToWorldX(1);
        lines = LineCount(s.Line.Generator, LimitRecursionLevel(s.Line.Generator, 100, pixel) + 1);
        benchmark::DoNotOptimize(s.pics.picfractal.data());
    }
    state.counters["lines"] = static_cast<double>(lines);
}
BENCHMARK(LineFractalRecursion)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillane
