// The transformation movie written as an animated GIF: 50 frames of 400 x 400, 200,000 points a frame,
// from the Sierpinski triangle to a grid of four squares, with the time split into its three parts.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "movies/morph_movie.h"

namespace quillane {
namespace {

void MorphMovieGif(benchmark::State& state) {
    const auto path = std::filesystem::temp_directory_path() / "quillane-bench-movie.gif";
    MovieMorph m;
    InitialSetup(m, SierpinskiTriangleIFS(), GridIFS(4), false);
    m.nTransitions = 49;
    MorphMovieOptions o;
    o.size = 400;
    o.iterations = 200000 + 100;
    o.path = path.string();
    o.colors = FunctionColorDefaults();
    o.view = {-0.1f, 1.1f, -0.1f, 1.1f};
    ScriptedHost host;
    Random rng;
    rng.pin(1);
    MovieTimes total;
    for (auto _ : state) {
        MoviePlayState play;
        std::string error;
        MovieTimes t;
        if (WriteMorphMovie(m, play, o, host, rng, error, &t) != MovieEnd::Finished)
            state.SkipWithError(error.c_str());
        total.drawMs += t.drawMs;
        total.quantiseMs += t.quantiseMs;
        total.writeMs += t.writeMs;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["draw_s"] = total.drawMs / 1000 / n;
    state.counters["quantise_s"] = total.quantiseMs / 1000 / n;
    state.counters["write_s"] = total.writeMs / 1000 / n;
    std::filesystem::remove(path);
}
BENCHMARK(MorphMovieGif)->Unit(benchmark::kSecond)->Iterations(2);

}  // namespace
}  // namespace quillane
