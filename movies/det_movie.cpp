#include "movies/det_movie.h"

#include "movies/animated_gif_writer.h"
#include "render/deterministic.h"
#include "render/floating_picture.h"

namespace quillane {

DetMovieResult WriteDeterministicMovie(Workbench& wb, FractalPictures& pics, Host& host, int32_t levels,
                                       int32_t frameTime, int32_t loop, const std::string& path) {
    DetMovieResult r;
    AnimatedGifWriter writer;
    pics.Det.IterationAbort = false;
    if (!writer.open(path, loop, frameTime)) {
        r.error = writer.error();
        return r;
    }
    if (wb.IterationNumber < 1) {
        if (pics.Floating.Visible)
            PlaceFractalSelection(wb, pics);
        else
            ClearDeterministicImage(wb, pics, host);
    }
    bool ok = writer.appendPage(pics.picfractal);
    for (int32_t i = 1; ok && i <= levels; ++i) {
        Iterate(wb, pics, host, -1);
        ok = writer.appendPage(pics.picfractal);
        host.yield();
        if (pics.Det.IterationAbort) break;
    }
    r.pages = writer.pageCount();
    if (!ok) {
        r.error = writer.error();
        writer.abandon();
        return r;
    }
    r.written = writer.close();
    if (!r.written) r.error = writer.error();
    return r;
}

}  // namespace quillane
