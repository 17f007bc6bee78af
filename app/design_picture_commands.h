#pragma once
// A picture behind the design: loaded from a file or pasted, it floats over picdesign with grab
// handles until placed; placed, it stays behind every redraw until cleared or lifted again.
#include "core/host.h"
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "render/floating_picture.h"

namespace quillane {

// The design window's floating picture over picdesign.
PasteArea DesignPasteArea(DesignPictures& d);
// A paste selection shows (floating, not placed).
bool DesignPasteShowing(const DesignPictures& d);

// "&Load Picture": refused while polygon points exist; the file floats over the design by PasteTo.
bool mnuDesignLoadPicture_Click(Workbench& wb, DesignPictures& d, Host& host);
// mnuEditPaste with a bitmap on the clipboard (nullptr: none), outside polygon mode and with no
// selection showing: the same from the clipboard, with no map selected.
bool PasteDesignPicture(Workbench& wb, DesignPictures& d, const RasterSurface* clipboard);
// A click outside, Esc, or "Finalize Position": the picture goes behind the design.
void PlaceDesignSelection(Workbench& wb, DesignPictures& d);
// Esc with a placed picture: it floats again as a copy from picImagePaste, where it lay.
bool LiftDesignPicture(Workbench& wb, DesignPictures& d);
// "&Clear Picture": no picture behind either design area, no selection.
void ClearDesignPicture(Workbench& wb, DesignPictures& d);
// Backspace or Delete with a selection showing: it goes, handles and picCoord with it.
void DropDesignSelection(Workbench& wb, DesignPictures& d);
// The rows of the design window's key table about the picture, in their order (Backspace, Delete,
// Esc, Ctrl+Alt+R). True when the key acted.
bool DesignPictureKeyDown(Workbench& wb, DesignPictures& d, int KeyCode, int Shift);

}  // namespace quillane
