#pragma once
// The picture figures of the deterministic drawing: 7 a picture file, 8 the clipboard's bitmap. The
// picture floats over the fractal window until it is placed; then it is the level-0 image.
#include "core/host.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"
#include "render/initial_figures.h"

namespace quillane {

inline constexpr int PictureFileFigure = 7;
inline constexpr int ClipboardFigure = 8;

// DrawDetWindowFigure for figures 7 and 8. With ShowDialog a new picture is taken (file dialog, or
// the clipboard); false, with everything as it was, when none came. Without it the picture is shown
// floating again unless it is placed.
bool DrawPictureFigure(Workbench& wb, FractalPictures& pics, Host& host, int Figure, bool ShowDialog,
                       bool ResetWindow);

// LoadCSImageFile's search: "default." with the first of jpg, gif, png, bmp that exists in `folder`;
// empty when there is none.
std::string DefaultPictureFile(const std::string& folder);
// Loads that default picture into `picture`; false when there is none or it cannot be read.
bool LoadCSImageFile(const std::string& folder, const std::string& Extension, RasterSurface& picture);

}  // namespace quillane
