#pragma once
// The design commands that add or take away a function: New, Duplicate, Clear. Each changes
// CurrentIFS, the function table's texts, the selection and the menu; the caller redraws.
#include "core/host.h"
#include "core/workbench.h"
#include "app/undo.h"  // the captions of the commits

namespace quillane {

// Adds a half-size copy of the initial polygon: at random in the lower left of the window (10% to 50%
// of each span, two draws), or, with Random false, at e0, f0 of OriginalMap as Redo needs. Selects it.
void NewDesignPoly(Workbench& wb, Host& host, bool Random);
// A new function's random place, kept in e and f of OriginalMap: two draws, each at 10% to 50% of the
// design window's span from its low end.
void PlaceNewFunction(Workbench& wb);
// A copy of the selected function's matrix, placed as New does but with one draw for both e and f.
void DuplicateMap(Workbench& wb, Host& host, bool Random);
// Takes function k out; the later ones move down, their colours with them, and k's colour goes to the
// freed slot. The whole IFS is kept in SavedIFS and k in ClearedMap.
void ClearMap(Workbench& wb, Host& host, int k);

// The commands, each with its commit. Nothing while a drawing runs or in chaos game mode, whose
// versions are separate.
void mnuDesignNew_Click(Workbench& wb, Host& host);
void mnuDesignDuplicate_Click(Workbench& wb, Host& host);
void mnuDesignClear_Click(Workbench& wb, Host& host);

}  // namespace quillane
