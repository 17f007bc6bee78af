// The preview beside the design, drawn after every step of a gesture: 10,000 points of the fern and of
// 100 maps on a 300 x 300 picture. The design's redraw budget leaves it under 2 ms.
#include <benchmark/benchmark.h>

#include "core/sample_systems.h"
#include "render/preview_drawing.h"

namespace quillane {
namespace {

IFSEntry fern() {
    IFSEntry ifs;
    const float m[4][7] = {{0, 0, 0, 0.16f, 0, 0, 0.01f},
                           {0.85f, 0.04f, -0.04f, 0.85f, 0, 1.6f, 0.85f},
                           {0.2f, -0.26f, 0.23f, 0.22f, 0, 1.6f, 0.07f},
                           {-0.15f, 0.28f, 0.26f, 0.24f, 0, 0.44f, 0.07f}};
    for (int i = 0; i < 4; ++i) {
        ifs.a[i] = m[i][0], ifs.b[i] = m[i][1], ifs.c[i] = m[i][2], ifs.d[i] = m[i][3];
        ifs.e[i] = m[i][4], ifs.f[i] = m[i][5], ifs.p[i] = m[i][6];
    }
    ifs.nMaps = 4;
    return ifs;
}

void Preview(benchmark::State& state) {
    const IFSEntry ifs = state.range(0) == 4 ? fern() : GridIFS(100);
    FunctionColors colors{};
    for (size_t i = 0; i < colors.size(); ++i) colors[i] = static_cast<Color>(0x102030 * (i + 1)) & 0xFFFFFF;
    RasterSurface pic(300, 300, White);
    if (state.range(0) == 4)
        pic.setScale(-3, 10.5, 3, -0.5);
    else
        pic.setScale(0, 1, 1, 0);
    Random rng;
    rng.pin(1);
    for (auto _ : state) {
        DrawPreview(ifs, colors, PreviewPointsMax, rng, pic);
        benchmark::DoNotOptimize(pic.data());
    }
}
BENCHMARK(Preview)->Arg(4)->Arg(100)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quillane
