#pragma once
// Taking an entry of the fractal list as the working IFS, with the view that follows from it, and the
// other commands that replace the working IFS as a whole.
#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// A click on the list entry of menu item `index` (5 and up: entry index - 4). Asks before an
// unsaved IFS is replaced; an entry whose item is disabled (chaos game mode, no chaos game) is not
// taken. Returns whether the entry was taken.
bool mnuNamesEntry_Click(Workbench& wb, FractalPictures& pics, Host& host, int index);

// What follows a new CurrentIFS from the list (an entry taken, a list opened): no edits pending, undo
// reset, recursion flags cleared, both drawing types enabled, the Code menu ticking the form in use,
// the table's texts rewritten in that form, and setscale with redraw.
void ShowTakenIFS(Workbench& wb, FractalPictures& pics, Host& host);

// mnuNewIFS: NewIFS, then undo reset and the fractal pictures cleared. False when the person
// cancelled at the save question.
bool mnuNewIFS_Click(Workbench& wb, FractalPictures& pics, Host& host);

}  // namespace quillane
