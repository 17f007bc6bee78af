#pragma once
// A chaos game shown as an IFS (its maps in the matrix or the scale/rotation form) is locked: its maps
// follow from its rules, so neither the design nor the table may change them until the fixed point
// form is back. Undo is parked meanwhile and comes back with the unlock.
#include <functional>

#include "core/workbench.h"
#include "design/design_pictures.h"

namespace quillane {

inline constexpr const char* LockedDesignCaption = "Design (IFS) LOCKED";
inline constexpr const char* LockedScaleCGCaption = "Chaos Game Design (LOCKED)";

// chkStep, picStep, txtS, txtRotate, sliScale, sliRotate and cmbFP of frmScaleCG.
void StatusFrmScaleCGControls(Workbench& wb, bool Enabled);
void LockDesign(Workbench& wb, DesignPictures& d);
// Undoes what LockDesign set, Undo's state included. Nothing happens when nothing is locked.
void UnlockDesign(Workbench& wb);
// A change of form (mnuMatrix, mnuRotation, mnuCodeMatrixFormat, mnuCodeFP): a chaos game shown in
// the fixed point form and then in another gets locked; the fixed point form back unlocks it.
void ChangeFunctionForm(Workbench& wb, DesignPictures& d, const std::function<void()>& change);

}  // namespace quillane
