#pragma once
// Our own writer of 24-bit bitmap files: bitmaps do not go through the picture library.
#include <string>

#include "render/raster_surface.h"

namespace quillane {

// Writes the picture as an uncompressed 24-bit bitmap, replacing the target only when complete.
bool SaveBitmapFile(const RasterSurface& picture, const std::string& path, std::string& error);

}  // namespace quillane
