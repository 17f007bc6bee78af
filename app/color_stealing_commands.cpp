#include "app/color_stealing_commands.h"

#include <algorithm>
#include <filesystem>

#include "app/picture_commands.h"
#include "render/floating_picture.h"
#include "render/image_file.h"

namespace quillane {

std::vector<FileFilter> ColorStealingImageFilters() {
    return {{"Images (*.gif; *.png; *.jpg; *.jpeg; *.bmp)", "*.bmp;*.gif;*.jpg;*.jpeg;*.png"},
            {"GIF images (*.gif)", "*.gif"},
            {"PNG images (*.png)", "*.png"},
            {"JPEG images (*.jpg; *.jpeg)", "*.jpg; *.jpeg"},
            {"Bitmap images (*.bmp)", "*.bmp"}};
}

void ConfigureComboList(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f) {
    f.listColoringIFS = ColoringIFSCandidates(wb);
    f.ListIndex = -1;
    listColoringIFS_Click(wb, cs, f, 0);
}

void listColoringIFS_Click(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f, int index) {
    if (index < 0 || index >= static_cast<int>(f.listColoringIFS.size())) return;
    f.ListIndex = index;
    ChooseColoringIFS(wb, cs, f.listColoringIFS[static_cast<size_t>(index)]);
}

void FitStealingPicture(int width, int height, int maxWidth, int maxHeight, int& fitWidth, int& fitHeight) {
    double w = std::max(width, 1), h = std::max(height, 1);
    if (w > maxWidth) {
        h = h * maxWidth / w;
        w = maxWidth;
    }
    if (h > maxHeight) {
        w = w * maxHeight / h;
        h = maxHeight;
    }
    fitWidth = std::max(1, static_cast<int>(w));
    fitHeight = std::max(1, static_cast<int>(h));
}

void SetColorStealingWindows(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f) {
    if (f.picHidden.width() <= 0 || f.picHidden.height() <= 0) return;
    int w = 0, h = 0;
    FitStealingPicture(f.picHidden.width(), f.picHidden.height(), std::max(f.picTestWidth, 1),
                       std::max(f.picTestHeight, 1), w, h);
    cs.picImage = StretchPicture(f.picHidden, w, h);
    if (cs.chkTrace) cs.picTrace = cs.picImage;
    setCSscale(wb, cs);
}

bool LoadCSImageFile(ColorStealingForm& f, const std::string& programDir, const std::string& Extension) {
    const std::filesystem::path path = std::filesystem::path(programDir) / ("default." + Extension);
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) return false;
    std::string error;
    return LoadImageFile(path.string(), f.picHidden, error);
}

bool LoadDefaultStealingPicture(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f,
                                const std::string& programDir) {
    for (const char* ext : DefaultPictureExtensions) {
        if (LoadCSImageFile(f, programDir, ext)) {
            SetColorStealingWindows(wb, cs, f);
            return true;
        }
    }
    return false;
}

bool cmdFile_Click(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f, Host& host) {
    FileDialogRequest request;
    request.title = OpenImageFileTitle;
    request.filters = ColorStealingImageFilters();
    request.folderKey = "ColorStealingPicture";
    const auto name = host.openFileName(request);
    if (!name || name->empty()) return false;
    RasterSurface picture;
    std::string error;
    if (!LoadImageFile(*name, picture, error)) {
        host.warn("Error", ImageReadErrorMessage + error);
        return false;
    }
    f.picHidden = std::move(picture);
    SetColorStealingWindows(wb, cs, f);
    return true;
}

void cmdRefresh_Click(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f) {
    ConfigureComboList(wb, cs, f);
}

bool cmdSave_Click(const ColorStealingState& cs, Host& host, int& FilterIndex) {
    return SavePictureCommand(cs.picTrace, host, SaveTraceTitle, FilterIndex);
}

void chkTrace_Click(ColorStealingState& cs, bool checked) {
    cs.chkTrace = checked;
    // The copy keeps picImage's world, so the orbit's dots land where its colours are read.
    if (checked) cs.picTrace = cs.picImage;
}

const RasterSurface& ShownStealingPicture(const ColorStealingState& cs) {
    return cs.chkTrace ? cs.picTrace : cs.picImage;
}

bool picTraceColor_Click(ColorStealingState& cs, Host& host) {
    const auto color = host.chooseColor(cs.picTraceColor);
    if (!color) return false;
    cs.picTraceColor = *color;
    return true;
}

void chkMethod_Click(Workbench& wb, ColorStealingState& cs, bool checked) {
    cs.chkMethod = checked;
    setCSscale(wb, cs);
}

bool PasteStealingPicture(Workbench& wb, ColorStealingState& cs, ColorStealingForm& f,
                          const std::optional<RasterSurface>& clipboard) {
    if (wb.DrawingActive || !clipboard || clipboard->width() <= 0 || clipboard->height() <= 0) return false;
    f.picHidden = *clipboard;
    SetColorStealingWindows(wb, cs, f);
    return true;
}

}  // namespace quillane
