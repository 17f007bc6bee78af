#pragma once
// The one level of undo has no store of its own: the caption of mnuUndo says what the next Undo does.
// So resetting it is a change of the model, which a deterministic level or a new selection makes too.
#include "core/workbench.h"

namespace quillane {

inline constexpr const char* UndoCaption = "&Undo";
// The main toolbar's undo button follows mnuUndo.
inline constexpr const char* UndoToolButton = "tbrMain(8)";

// Caption "&Undo", disabled.
void ResetUndoMenu(Workbench& wb);

}  // namespace quillane
