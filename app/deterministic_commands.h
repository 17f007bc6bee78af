#pragma once
// The Draw menu's choice of the random or the deterministic drawing, and the fractal window's keys
// that draw one map's level.
#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// mnuDrawType: index 0 Random, 1 Deterministic.
void mnuDrawType_Click(Workbench& wb, FractalPictures& pics, Host& host, int Index);
// The digit keys in Deterministic mode: a digit applies that map alone; Shift and two digits reach
// maps above 9. True when the key was handled.
bool DeterministicDigitKey(Workbench& wb, FractalPictures& pics, Host& host, int keyCode, int shiftMask);
// Key-up on the fractal window.
void FractalKeyUp(Workbench& wb, FractalPictures& pics);

}  // namespace quillane
