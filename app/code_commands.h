#pragma once
// The Code menu: the function forms, the matrix format, the arrangement of fixed points and the
// IFS palette's files.
#include "core/host.h"
#include "core/workbench.h"
#include "core/function_forms.h"

namespace quillane {

// The radio commands of the forms; each does nothing when it is checked already.
void mnuMatrix_Click(Workbench& wb);
void mnuRotation_Click(Workbench& wb);
void mnuCodeFP_Click(Workbench& wb);
// Refuses with a warning for 36 functions or more.
void mnuCodeMatrixFormat_Click(Workbench& wb, Host& host);
// The fixed points at the corners of a regular polygon with unit sides, the matrices rebuilt from the
// recipes and the probabilities made proportional; the rows are rewritten.
void mnuCodeArrangeFP_Click(Workbench& wb);

// mnuCodeLoadPalette: the colours of a chosen .map file, all or nothing; true when they changed.
bool mnuCodeLoadPalette_Click(Workbench& wb, Host& host);
// mnuCodeSavePalette: writes FunctionColor to a chosen file, ".map" appended when missing.
bool mnuCodeSavePalette_Click(Workbench& wb, Host& host);

}  // namespace quillane
