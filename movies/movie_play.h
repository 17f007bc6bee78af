#pragma once
// The play loop of the transformation movie (MakeMovie's order of frames), apart from what a frame
// shows: the caller draws each frame, writes it where it must and says whether that went well.
#include <functional>

#include "core/host.h"

namespace quillane {

enum class MovieMode { Forward = 1, Backward = 2, StepForward = 3, StepBackward = 4, Redraw = 5 };
enum class MovieEnd { Finished, Stopped, Failed };

struct MoviePlayState {
    int CurrentFrame = 0;
    bool MovieStopped = true;
    int CycleOn = 0;  // mnuOptionsCycle: 0 or 1
    bool SingleStepTaken = false;
};

// Draws frame `frame`; `fileCounter` numbers the files of a pass that writes them. False stops the
// pass as a failure.
using MovieFrameAction = std::function<bool(int frame, int fileCounter)>;

// Plays frames 1 .. nTransitions + 1 in the order of the mode, yielding after each; a yield in which
// MovieStopped is set ends the pass. With cycling, a forward pass shows the last frame twice and runs
// back to the first.
MovieEnd MakeMovie(MoviePlayState& s, int nTransitions, MovieMode mode, Host& host,
                   const MovieFrameAction& showFrame);

}  // namespace quillane
