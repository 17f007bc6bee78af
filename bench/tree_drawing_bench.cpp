// The recursive tree drawings on a 1000 x 1000 fractal window: the binary tree 16 generations deep and
// the filled Pythagorean tree 14 deep, as a deterministic pass draws them (colours, bar, yields).
#include <benchmark/benchmark.h>

#include "app/binary_tree_drawing.h"
#include "app/pythagorean_drawing.h"
#include "core/menu_tree.h"
#include "core/scripted_host.h"
#include "generators/binary_tree.h"
#include "generators/pythagorean.h"

namespace quillane {
namespace {

constexpr int Side = 1000;

void prepare(Workbench& wb, FractalPictures& pics, const IFSEntry& ifs, WorldWindow w, int depth) {
    InitializeMenuState(wb.Menu);
    wb.CurrentIFS = ifs;
    pics.resize(Side, White);
    for (RasterSurface* s : {&pics.picfractal, &pics.picImage}) s->setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    // The pass at level depth - 1 draws depth generations below the trunk.
    wb.IterationNumber = depth - 1;
    wb.DrawingActive = true;
}

void BinaryTreeDepth16(benchmark::State& state) {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;
    // A ratio of 0.75 keeps the 16th generation above a pixel, so the depth is not cut.
    prepare(wb, pics, SymmetricBinaryTreeIFS(40, 0.75f, TreeMethod::Deterministic, "40", "0.75"),
            {-2.2f, 2.2f, -0.2f, 4.2f}, 16);
    BinaryTreeRecursion flags;
    flags.UseTreeRecursion = true;
    for (auto _ : state) {
        const bool drawn = BinaryTreeRecursiveLevel(flags, wb, pics, host);
        benchmark::DoNotOptimize(drawn);
    }
    state.counters["branches"] = static_cast<double>((1 << 17) - 1);
}
BENCHMARK(BinaryTreeDepth16)->Unit(benchmark::kMillisecond);

void FilledPythagoreanDepth14(benchmark::State& state) {
    Workbench wb;
    FractalPictures pics;
    ScriptedHost host;
    prepare(wb, pics, PythagoreanIFS(40, "40"), {-3.2f, 4.2f, -0.5f, 6.9f}, 14);
    wb.DetFigure = 1;  // the filled polygon figure: filled boxes
    PythagoreanRecursion flags;
    for (auto _ : state) {
        const bool drawn = PythagoreanTree(flags, wb, pics, host);
        benchmark::DoNotOptimize(drawn);
    }
    state.counters["boxes"] = static_cast<double>((1 << 15) - 1);
}
BENCHMARK(FilledPythagoreanDepth14)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quillane
