#pragma once
// The two modes of the design window as the menus show them: IFS mode, with maps drawn as polygons,
// and chaos game mode, with fixed points and recipes. Opening a list and New IFS come back to IFS
// mode through here, so these live beside the file commands.
#include <string>

#include "core/menu_tree.h"
#include "core/workbench.h"

namespace quillane {

inline constexpr const char* SaveCurrentCGCaption = "Save &Current Chaos Game to File..";
inline constexpr const char* SaveIFSCGCaption = "&Save Chaos Game Fractals List";
inline constexpr const char* SaveIFSasCGCaption = "Save Chaso Game Fractals List &As...";
inline constexpr const char* OpenCGCaption = "&Open Chaos Game File...";
inline constexpr const char* FileAppendCGCaption = "Appen&d Chaos Game File...";
inline constexpr const char* NewChaosGameButton = "New Chaos Game";
inline constexpr const char* OpenChaosGameButton = "Open Chaos Game file";


// The file items and the first two frame buttons name chaos games in that mode, IFS files otherwise.
void ModeFileCaptions(Workbench& wb, bool chaosGame);
// Shows the IFS-mode transformation items (Visible) or, the other way round, mnuDesignCGMoves.
void CGDesignMenus(Workbench& wb, bool Visible);
// Back to IFS mode.
void SetupIFSDesign(Workbench& wb);
// The menus, buttons and captions of chaos game mode, as a new chaos game and a chaos game list
// opened afresh set them.
void SetupChaosGameDesign(Workbench& wb);

}  // namespace quillane
