#pragma once
// Chaos game mode of the design window: entering and leaving it, and the commands on fixed points and
// their recipes. These change CurrentIFS, the table's texts, the selection and the menu; the caller
// redraws picCGDesign (RedrawCGDesign) afterwards.
#include <string>

#include "app/design_mode.h"
#include "core/host.h"
#include "core/menu_tree.h"
#include "core/workbench.h"

namespace quillane {

inline constexpr const char* UndoMoveReferenceCaption = "&Undo Move Reference Point";
inline constexpr const char* RedoMoveReferenceCaption = "&Redo Move Reference Point";

// A new one-function chaos game with the reference point in the middle of DesignWindow. False when
// CheckSave was cancelled.
bool mnuNewChaosGame_Click(Workbench& wb, Host& host);

// A new fixed point with the recipe "S" 0.5: at random in the lower left, at (x, y) when both are
// below 10000, else at e0, f0 of OriginalMap as the first creation kept them. Selects it.
void newCGFixedPoint(Workbench& wb, Host& host, bool Random, float x, float y);
// Takes function k out; the whole IFS stays in SavedIFS and k in ClearedMap.
void CGClearMap(Workbench& wb, Host& host, int k);
// A copy of the selected function's recipe and fixed point, selected.
void CGDuplicateMap(Workbench& wb, Host& host);
// Undo of Clear: the IFS before it, with the cleared function selected again.
void CGUndoClear(Workbench& wb, Host& host);

// Adds Angle degrees to the first "R" of the selected recipe, or puts an "R" in its first blank step.
void RotateCGDesign(Workbench& wb, double Angle);
// The reflections' letter "H" or "V": added in the first blank, or, when the letter is there already,
// taken out again (through the moves window's check when that shows).
void ReflectCGDesign(Workbench& wb, const std::string& Letter);

// The commands of the Design menu in chaos game mode, each with its commit.
void CGDesignNew(Workbench& wb, Host& host);
void CGDesignDuplicate(Workbench& wb, Host& host);
void CGDesignClear(Workbench& wb, Host& host);

// Extends the bounds by the paths from the reference point, the circles of rotations and the fixed
// points, then rounds them out to one decimal.
void CGDesignScale(const Workbench& wb, float& xmax, float& xmin, float& ymax, float& ymin);

// Keeps the recipe of the selected function (steps, and Scale, Angle in e0, f0) before a change.
void SaveOriginalSteps(Workbench& wb);
// The same after the change, into ResultSteps and e, f of ResultMap.
void SaveResultSteps(Workbench& wb);
// Puts steps, Scale and Angle of the selected function back from a store, with its matrix and row.
void RestoreSteps(Workbench& wb, const std::array<std::string, 5>& steps, float scale, float angle);

}  // namespace quillane
