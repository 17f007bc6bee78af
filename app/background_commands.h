#pragma once
// The picture under the random drawing: loaded from a file or pasted, floating until placed, cleared.
#include <optional>

#include "core/host.h"
#include "core/workbench.h"
#include "render/floating_picture.h"

namespace quillane {

// The picture file dialog of the Load Picture commands, read through FreeImage. Nothing when cancelled,
// or when the file cannot be read (after its message).
std::optional<RasterSurface> AskPictureFile(Host& host);
// mnuDrawLoadPicture: a picture file to float over a random drawing.
void mnuDrawLoadPicture_Click(Workbench& wb, FractalPictures& pics, Host& host);
// mnuDrawClearBGPic.
void mnuDrawClearBGPic_Click(Workbench& wb, FractalPictures& pics);
// mnuEditPasteBackground with the clipboard's bitmap (nullptr when there is none).
void mnuEditPasteBackground_Click(Workbench& wb, FractalPictures& pics, const RasterSurface* clipboard);

}  // namespace quillane
