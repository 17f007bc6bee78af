#pragma once
// Picture files: PNG, BMP, GIF and JPEG to and from a RasterSurface.
#include <string>

#include "render/raster_surface.h"

namespace quillane {

// Writes the picture in the format named by the file's extension, in any case: .png, .bmp, .gif
// (8 bits, quantised), .jpg or .jpeg. The file appears only when it has been written completely.
// False, with a reason in `error`, when it could not be written.
// Starts FreeImage once with its messages caught, and forgets the last message. Every user of the
// library calls it first: the library has one message handler for the whole program.
void StartFreeImage();
// `text`, followed by what FreeImage reported since StartFreeImage in brackets, when it reported anything.
std::string WithFreeImageMessage(std::string text);

bool SaveImageFile(const RasterSurface& picture, const std::string& path, std::string& error);

// Reads a picture file of any format the library knows into `picture`, which takes the picture's
// size; a scale that was set stays. On failure `picture` is left as it was.
bool LoadImageFile(const std::string& path, RasterSurface& picture, std::string& error);

}  // namespace quillane
