#pragma once
// Selecting a function in the design window: drawn thick with its handles, and the Design menu's
// commands on a selection enabled to match.
#include "core/workbench.h"
#include "design/design_pictures.h"

namespace quillane {

void DrawSelectedIFS(Workbench& wb, DesignPictures& d, int i, bool Preview);
void AdjustDesignMenu(Workbench& wb, bool Enabled);
void RefreshFunctions(Workbench& wb);

}  // namespace quillane
