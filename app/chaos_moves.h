#pragma once
// frmScaleCG, "Chaos Game Moves": the recipe of one fixed point in checks, boxes and sliders. The
// controls' state is wb.ScaleCG; each change rebuilds the matrix at once, the caller redraws.
#include <optional>
#include <string>

#include "core/host.h"
#include "core/workbench.h"

namespace quillane {

inline constexpr const char* ScaleCGTitle = "Chaos Game Moves";
inline constexpr const char* RotateCGTitle = "Chaos Game Rotation";
inline constexpr const char* ScaleCGErrorTitle = "Error";
inline constexpr const char* ScaleNotEvaluated = "Cannot evaluate expression for the scaling factor.   ";
inline constexpr const char* ScaleNegative = "Scaling factor must be positive.  ";
inline constexpr const char* RotateNotEvaluated = "Cannot evaluate expression for rotation angle. ";
inline constexpr const char* StepLetters = " SRHV";  // chkStep(k) stands for StepLetters[k]

// Opening: SavedIFS (by the caller), the table locked, the selected function or the combo's.
void OpenScaleCG(Workbench& wb);
// The selected function's values into all controls, without reactions.
void SetFPSettings(Workbench& wb, bool RefillList);
// cmbFP chose function i.
void cmbFP_Click(Workbench& wb, int i);
// A check changed: the letter goes into the first blank step, or out with the later ones packed up.
void chkStep_Click(Workbench& wb, int k, bool on);
// picStep(k) clicked: mark, unmark, or swap with the marked box.
void picStep_Click(Workbench& wb, int k);
// Key codes of the sliders: 33 Page Up, 34 Page Down, 37 Left, 39 Right. True when the key moved it.
bool sliScale_KeyDown(Workbench& wb, int KeyCode);
bool sliRotate_KeyDown(Workbench& wb, int KeyCode);
// A slider moved to a value by the mouse.
void sliScale_Change(Workbench& wb, int value);
void sliRotate_Change(Workbench& wb, int value);
// Enter in txtS / txtRotate: evaluates, or shows the message (the box keeps its text). Quiet (leaving
// the box): no message, and the old text comes back on failure.
bool txtS_Commit(Workbench& wb, Host& host, bool Quiet);
bool txtRotate_Commit(Workbench& wb, Host& host, bool Quiet);
// Esc in the boxes: the present value again.
void txtS_Escape(Workbench& wb);
void txtRotate_Escape(Workbench& wb);
void cmdApply_Click(Workbench& wb);
// OK and the close box.
void cmdOk_Click(Workbench& wb);
void cmdCancel_Click(Workbench& wb, Host& host);

}  // namespace quillane
