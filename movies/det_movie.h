#pragma once
// The deterministic movie: one page for the present picture and one per level, as an animated GIF.
#include <cstdint>
#include <string>

#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

struct DetMovieResult {
    bool written = false;
    int pages = 0;
    std::string error;
};

// Levels from the present picture; a stop (IterationAbort) during a level ends the loop after that
// level's page and the movie is closed as usual.
DetMovieResult WriteDeterministicMovie(Workbench& wb, FractalPictures& pics, Host& host, int32_t levels,
                                       int32_t frameTime, int32_t loop, const std::string& path);

}  // namespace quillane
