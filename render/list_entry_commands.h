#pragma once
// Taking an entry of the fractal list as the working IFS, with the view that follows from it.
#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

// A click on the list entry of menu item `index` (5 and up: entry index - 4). Asks before an
// unsaved IFS is replaced; returns whether the entry was taken.
bool mnuNamesEntry_Click(Workbench& wb, FractalPictures& pics, Host& host, int index);

}  // namespace quillane
