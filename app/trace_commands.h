#pragma once
// The trace commands of the fractal window: the menu, the digit keys, the start point and the dot size.
#include <optional>
#include <string>

#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr const char* TraceTurnOnCaption = "&Turn Trace On";
inline constexpr const char* TraceTurnOffCaption = "&Turn Trace Off";
inline constexpr const char* TraceOnText = " Trace On";
inline constexpr const char* TraceOffText = " Trace Off";
inline constexpr const char* TracePointErrorText = "Cannot evaluate expression for the initial point.  ";
// cmbSize of frmTracePointSize: the dot radii offered, in pixels.
inline constexpr int TraceDotSizes[] = {1, 2, 3, 4, 5, 6, 8, 10};

// Turns trace on or off, only while no drawing runs.
void mnuTrace_Click(Workbench& wb, FractalPictures& pics);
// The menu and the display in the off state.
void ResetTraceMenu(Workbench& wb, FractalPictures& pics);
// Digit keys while tracing; Shift and two digits reach the maps above 9. True when a step was taken.
bool HandleTrace(Workbench& wb, FractalPictures& pics, int KeyCode, int Shift);
// frmTracePoint's OK: both boxes through the evaluator; the point, or a message titled "Error".
std::optional<std::pair<float, float>> EvaluateTracePoint(const std::string& txtX, const std::string& txtY,
                                                          Host& host);
// The dialog's point, or Ctrl + right click on the picture: the walk starts there.
void SetTracePointAt(Workbench& wb, FractalPictures& pics, float x, float y);
// Ctrl + right click while trace is on; false when the click is the pop-up menu's.
bool TraceRightClick(Workbench& wb, FractalPictures& pics, double x, double y, int shiftMask);
void mnuColorTrace_Click(Workbench& wb);
void mnuBlackTrace_Click(Workbench& wb);
// frmTracePointSize's OK with the chosen radius.
void SetTraceDotSize(Workbench& wb, int size);

}  // namespace quillane
