#pragma once
// frmColorStealing, "Color Stealing Options": the list of colouring IFS, the picture to steal from
// and its fit into the window, the trace of the colouring orbit, and the window's files.
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/host.h"
#include "core/workbench.h"
#include "render/color_stealing.h"
#include "render/color_stealing_state.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr const char* ColorStealingCaption = "Color Stealing Options";
inline constexpr const char* OpenImageFileTitle = "Open Image File";
inline constexpr const char* SaveTraceTitle = "Save Image";
inline constexpr const char* ImageReadErrorMessage = "The picture could not be read.\n";
inline constexpr int ColorStealingWindowItem = 14;  // mnuWin(14) "Color Stealing Options"
// The default picture is "default." with the first of these found in the program's folder.
inline constexpr std::array<const char*, 4> DefaultPictureExtensions = {"jpg", "gif", "png", "bmp"};

// What the window keeps beside the drawing's ColorStealingState.
struct ColorStealingForm {
    RasterSurface picHidden;  // the picture at full size
    std::vector<ColoringCandidate> listColoringIFS;
    int ListIndex = -1;
    // picTest: the area the picture is fitted into, in pixels.
    int picTestWidth = 320, picTestHeight = 240;
    bool ShowingFullSize = false;  // cmdShow: the picture in place of the controls
};

// The filters of cmdFile, in their order.
std::vector<FileFilter> ColorStealingImageFilters();

// Rebuilds listColoringIFS and takes its first line.
void ConfigureComboList(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f);
// Choosing a line of listColoringIFS; an index outside the list changes nothing.
void listColoringIFS_Click(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f, int index);
// The size picHidden takes in picTest: its own, or shrunk with its proportions kept, first to the
// width, then to the height.
void FitStealingPicture(int width, int height, int maxWidth, int maxHeight, int& fitWidth, int& fitHeight);
// picImage (and picTrace with chkTrace) from picHidden fitted into picTest, then setCSscale.
void SetColorStealingWindows(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f);

// LoadCSImageFile: "default." plus the extension from the program's folder into picHidden. False,
// and nothing changed, when the file cannot be read.
bool LoadCSImageFile(ColorStealingForm& f, const std::string& programDir, const std::string& Extension);
// The first default picture found, fitted into the window. False when there is none.
bool LoadDefaultStealingPicture(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f,
                                const std::string& programDir);

// cmdFile: a picture chosen in the open dialog becomes picHidden and is fitted. A picture that cannot
// be read is reported and changes nothing.
bool cmdFile_Click(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f, Host& host);
// cmdRefresh, "Refresh List".
void cmdRefresh_Click(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f);
// cmdSave: the trace picture, in the format its extension names. True when a file was written.
bool cmdSave_Click(const ColorStealingState& cs, Host& host, int& FilterIndex);

// chkTrace: on, picTrace starts as a copy of picImage and is shown in its place; off, picImage is shown.
void chkTrace_Click(ColorStealingState& cs, bool checked);
const RasterSurface& ShownStealingPicture(const ColorStealingState& cs);
// picTraceColor: the colour dialog on the present colour. True when a colour was chosen.
bool picTraceColor_Click(ColorStealingState& cs, Host& host);
// chkMethod, "Equal Scale": the picture's world window is found anew.
void chkMethod_Click(Workbench& wb, ColorStealingState& cs, bool checked);

// mnuEditPaste with the window active: a clipboard bitmap becomes picHidden and is fitted. False
// when the clipboard holds no bitmap or a drawing runs.
bool PasteStealingPicture(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f,
                          const std::optional<RasterSurface>& clipboard);

}  // namespace quillane
