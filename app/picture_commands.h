#pragma once
// Saving the fractal and design pictures to files.
#include <string>

#include "core/host.h"
#include "core/workbench.h"
#include "render/raster_surface.h"

namespace quillane {

struct DesignPictures;

inline constexpr const char* SaveFractalTitle = "Save Fractal Image";
inline constexpr const char* SaveImageTitle = "Save Image";
inline constexpr const char* ImageSaveFailedMessage = "Image save failed";

// The four filters of the picture save dialog, in their order.
std::vector<FileFilter> PictureSaveFilters();
// The file name for filter 1 to 4: ".gif", ".png", ".jpg" or ".bmp" added unless the name ends with it
// (the last four characters compared in lower case).
std::string PictureFileNameFor(const std::string& name, int filterIndex);
// Writes a picture for filter 1 to 4; bitmaps by our own writer, the others through the library.
bool SavePictureAs(const RasterSurface& picture, const std::string& path, int filterIndex,
                   std::string& error);

// mnuSaveFractal (title "Save Fractal Image") and mnuPopupSave (title "Save Image") for a picture:
// asks for a name, adds the extension, writes; "Image save failed" when the write fails.
// The dialog opens on FilterIndex (1 to 4), which keeps the filter chosen, as the folder is kept, until
// the program ends. Returns whether a file was written.
bool SavePictureCommand(const RasterSurface& picture, Host& host, const std::string& title, int& FilterIndex,
                        const std::string& initialName = "");

inline constexpr const char* SaveDesignTitle = "Save Design Image";
// mnuFileSaveDesign: the picture the design window shows, offered as the IFS name with " design",
// or " CG design" for a chaos game.
std::string DesignPictureName(const Workbench& wb);
bool mnuFileSaveDesign_Click(Workbench& wb, const DesignPictures& d, Host& host);

}  // namespace quillane
