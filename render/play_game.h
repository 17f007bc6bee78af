#pragma once
// The random iteration algorithm: the drawing loop at the heart of the program.
#include <cstdint>

#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr int32_t RunUntilStopped = 1000000000;
inline constexpr int32_t WarmUpIterations = 50;
inline constexpr const char* PressQCaption = "Press Q to quit";
inline constexpr const char* DrawingProblemTitle = "Problem in Drawing";
inline constexpr const char* DrawingOverflowMessage = "Overflow error.\nIFS may be expanding.";

// The iteration count at which a run with this Count stops.
int32_t PlayGameLimit(int32_t Count, int32_t PointCount);

// Restart 1 begins a new drawing in a changed view; Count 0 runs until stopped, -n draws until
// n points are plotted in all, +n draws n more. Stops when DrawingActive is cleared at a yield.
void PlayGame(Workbench& wb, FractalPictures& pics, Host& host, int16_t Restart, int32_t Count);

// The state every way out of a run leaves behind.
void FinishPlayGame(Workbench& wb, FractalPictures& pics);

}  // namespace quillane
