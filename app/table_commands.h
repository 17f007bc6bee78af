#pragma once
// The function table's commands that reach the undo menu or the fractal window's scale: committing a
// box, the undo of a text entry, the count txtMaps, the window boxes txtWin, the probability commands.
#include <optional>

#include "core/host.h"
#include "core/table_editing.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr const char* UndoTextEntryCaption = "&Undo Text Entry";

// A row box got the focus: its row's a, b, c, d are kept (EnterBox) and its function becomes the
// selected one. Selecting another function than the selected one resets the undo menu.
void BoxGotFocus(Workbench& wb, int Column, int Row);

// Enter or focus loss of a row box. Stores a changed value (fractions such as "1/3" evaluated),
// counts one edit, offers "&Undo Text Entry" and shows the text in its display format; lblProbSum
// follows a probability box. Returns true when CurrentIFS changed: the design then shows the row's
// function as selected (and, in chaos game mode, the chaos game design and its fixed point).
bool HandleTextBoxChange(Workbench& wb, int Column, int Row);

// "&Undo Text Entry": the values before the entry come back, the box of TextUndoField shows
// TextUndoValue in "0.000", ChangeCount goes down by one and the undo menu is reset (no redo).
// Returns the box whose text the window selects, or nothing when the caption is another one or a
// drawing is active.
std::optional<BoxAddress> UndoTextEntry(Workbench& wb);

// What the window does after a commit of txtMaps.
struct MapsCommit {
    BoxCommit outcome = BoxCommit::Unchanged;
    bool beep = false;            // a refused value on focus loss: no box, only a beep
    std::optional<int> focusRow;  // exactly one function added: focus to its txta
};
// Enter (focusLost false) or focus loss of txtMaps: 1..100 functions; added functions are copies of
// the function of a fresh IFS; probabilities proportional; one counted edit; setscale.
MapsCommit txtMaps_Commit(Workbench& wb, Host& host, bool focusLost);

// txtWin's commit: the typed window is set, the pictures rescaled and cleared.
BoxCommit txtWin_Commit(Workbench& wb, FractalPictures& pics, Host& host);

// Equal probabilities. On a change: one counted edit, setscale, undo menu reset. lblProbSum "1.000".
// Returns whether a probability changed (the design preview then redraws when it is shown).
bool mnuProb_Click(Workbench& wb, Host& host);
// Proportional probabilities, acting on changes as mnuProb_Click does. All maps of area 0 end it
// without any change.
bool mnuProbCalc_Click(Workbench& wb, Host& host);

}  // namespace quillane
