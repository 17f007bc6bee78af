#include "movies/movie_play.h"

namespace quillane {
namespace {

struct Start {
    int frame = 1, step = 1;
};

Start startOf(MoviePlayState& s, int last, MovieMode mode) {
    switch (mode) {
        case MovieMode::Forward:
            return {1, 1};
        case MovieMode::Backward:
            return {last, -1};
        case MovieMode::StepForward: {
            const int cur = s.CurrentFrame;
            const int frame = !s.SingleStepTaken || cur < 1 || cur >= last ? 1 : cur + 1;
            s.SingleStepTaken = true;
            return {frame, 1};
        }
        case MovieMode::StepBackward: {
            const int cur = s.CurrentFrame;
            const int frame = !s.SingleStepTaken || cur <= 1 || cur > last ? last : cur - 1;
            s.SingleStepTaken = true;
            return {frame, -1};
        }
        case MovieMode::Redraw:
            break;
    }
    return {s.CurrentFrame < 1 ? 1 : s.CurrentFrame, 0};
}

}  // namespace

MovieEnd MakeMovie(MoviePlayState& s, int nTransitions, MovieMode mode, Host& host,
                   const MovieFrameAction& showFrame) {
    const int last = (nTransitions < 1 ? 1 : nTransitions) + 1;
    auto [frame, step] = startOf(s, last, mode);
    const bool single = static_cast<int>(mode) > 2;
    int arrivals = 0;
    int fileCounter = 1;
    s.MovieStopped = false;
    MovieEnd end = MovieEnd::Finished;
    while (frame >= 1 && frame <= last) {
        if (s.MovieStopped) {
            end = MovieEnd::Stopped;
            break;
        }
        if (!showFrame(frame, fileCounter)) {
            end = MovieEnd::Failed;
            break;
        }
        s.CurrentFrame = frame;
        if (s.CycleOn == 1 && frame == last && !single) {
            // The last frame is shown twice, then the movie runs back to the first.
            step = ++arrivals == 1 ? 0 : -1;
        }
        fileCounter += s.CycleOn + (1 - s.CycleOn) * step;
        frame += step;
        host.yield();
        if (single) break;
    }
    s.MovieStopped = true;
    return end;
}

}  // namespace quillane
