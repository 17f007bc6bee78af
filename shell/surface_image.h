#pragma once
// RasterSurface pictures to and from Qt images, and the system clipboard's bitmap.
#include <QImage>
#include <optional>

#include "render/raster_surface.h"

namespace quillane {

// A Qt image over the surface's pixels, copied so it outlives the surface.
QImage ImageOfSurface(const RasterSurface& surface);
// A surface with the image's pixels (any format; transparency is dropped).
RasterSurface SurfaceOfImage(const QImage& image);
// The clipboard's bitmap, or nothing when it holds none.
std::optional<RasterSurface> ClipboardBitmap();
// Puts the picture on the clipboard as a bitmap.
void CopySurfaceToClipboard(const RasterSurface& surface);

}  // namespace quillane
