#pragma once
// A whole transformation movie written as an animated GIF: each frame drawn, reduced to 8 bits and
// appended; a stopped or failed movie leaves no file.
#include <cstdint>
#include <functional>
#include <string>

#include "core/colors.h"
#include "core/host.h"
#include "core/random.h"
#include "core/workbench.h"
#include "movies/movie_morph.h"
#include "movies/movie_play.h"
#include "render/raster_surface.h"

namespace quillane {

struct MorphMovieOptions {
    int size = 400;              // picMovie: both sides, in pixels
    int32_t iterations = 10000;  // txtIterations
    int32_t frameTime = 100;     // txtTime, milliseconds
    int32_t loop = 0;            // txtLoop; 0 repeats indefinitely
    std::string path;
    FunctionColors colors{};
    Color back = White;
    WorldWindow view;  // FractalView
};

struct MovieTimes {
    double drawMs = 0, quantiseMs = 0, writeMs = 0;
};

// Called after each frame has been drawn into `picMovie`, with the frame's number; false fails the movie.
using MovieFrameHook = std::function<bool(int frame, const RasterSurface& picMovie)>;

// MakeMovie(1, True) into an animated GIF. `error` gets the reason of a failure.
MovieEnd WriteMorphMovie(MovieMorph& m, MoviePlayState& play, const MorphMovieOptions& o, Host& host,
                         Random& rng, std::string& error, MovieTimes* times = nullptr,
                         const MovieFrameHook& hook = {});

}  // namespace quillane
