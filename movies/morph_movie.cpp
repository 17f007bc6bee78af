#include "movies/morph_movie.h"

#include <chrono>

#include "movies/animated_gif_writer.h"
#include "movies/movie_frame.h"

namespace quillane {

MovieEnd WriteMorphMovie(MovieMorph& m, MoviePlayState& play, const MorphMovieOptions& o, Host& host,
                         Random& rng, std::string& error, MovieTimes* times, const MovieFrameHook& hook) {
    AnimatedGifWriter writer;
    if (!writer.open(o.path, o.loop, o.frameTime)) {
        error = writer.error();
        return MovieEnd::Failed;
    }
    RasterSurface picMovie(o.size, o.size, o.back);
    ApplyMovieView(picMovie, o.view);
    double drawMs = 0;
    const MovieEnd end = MakeMovie(play, m.nTransitions, MovieMode::Forward, host, [&](int frame, int) {
        const auto start = std::chrono::steady_clock::now();
        ComputeFrame(m, frame);
        DrawMovieFrame(picMovie, m.FrameIFS, m.InitialIFS, m.MovieMaps, o.iterations, o.colors, rng);
        drawMs += std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
        if (!writer.appendPage(picMovie)) return false;
        return !hook || hook(frame, picMovie);
    });
    if (times) *times = {drawMs, writer.quantiseMs(), writer.writeMs()};
    if (end != MovieEnd::Finished) {
        error = end == MovieEnd::Failed ? writer.error() : std::string();
        writer.abandon();
        return end;
    }
    if (!writer.close()) {
        error = writer.error();
        return MovieEnd::Failed;
    }
    if (times) times->writeMs = writer.writeMs();
    return MovieEnd::Finished;
}

}  // namespace quillane
