#pragma once
// Commands whose effect reaches more than one window: they run over AppState, so that the fractal
// picture and the design follow the working IFS in one place, not in each window's binding.
#include "app/app_state.h"
#include "app/file_commands.h"
#include "app/list_commands.h"
#include "app/undo.h"
#include "core/host.h"

namespace quillane {

// mnuOpen: a new list read shows its entry 1 in the fractal window, and the design fits it.
void mnuOpen_Click(AppState& s, Host& host);
// mnuMRU(index), and the view following a list it opened.
RecentOpen mnuMRU_Click(AppState& s, Host& host, int index);
// mnuNames(index): a list entry (5 and up) is taken and the design fits it; 0 to 3 edit the list.
void mnuNames_Click(AppState& s, Host& host, const ListDialogs& dialogs, int index);
// mnuNewChaosGame, with the design redrawn for the new game.
void mnuNewChaosGame_Click(AppState& s, Host& host);
// mnuDesignCGMoves: opens the moves of the selected fixed point (SavedIFS kept for Cancel). False when
// they do not apply (a drawing runs, or not in chaos game mode); the window then shows no dialog.
bool OpenChaosGameMoves(AppState& s);
// The fixed points move far: the design fits them again.
void mnuCodeArrangeFP_Click(AppState& s);
// The colours of the function indexes; the design shows them at once.
void mnuCodeLoadPalette_Click(AppState& s, Host& host);
void mnuSameColor_Click(AppState& s);
void mnuDefaultColors_Click(AppState& s);
// The design's axes on or off.
void mnuDesignAxes_Click(AppState& s);
// The "lines" button: thin, medium, thick in turn.
void DesignLineRing(AppState& s);
// Undo of both windows: the design's rows, and the zoom of whichever window zoomed last. A text
// entry's undo returns the box for the window to select.
UndoResult mnuUndo_Click(AppState& s, Host& host);
// The pasted picture's handles on or off.
void mnuPicPastePopUpResize_Click(AppState& s);

}  // namespace quillane
