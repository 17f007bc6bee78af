#include "app/picture_commands.h"

#include "core/numbers.h"
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "render/bmp_file.h"
#include "render/image_file.h"

namespace quillane {

namespace {
constexpr const char* Extensions[4] = {".gif", ".png", ".jpg", ".bmp"};
}

std::vector<FileFilter> PictureSaveFilters() {
    return {{"GIF images (*.gif)", "*.gif"},
            {"PNG images (*.png)", "*.png"},
            {"JPEG images (*.jpg)", "*.jpg"},
            {"Bitmap images (*.bmp)", "*.bmp"}};
}

std::string PictureFileNameFor(const std::string& name, int filterIndex) {
    if (filterIndex < 1 || filterIndex > 4) filterIndex = 1;
    const std::string ext = Extensions[filterIndex - 1];
    const std::string tail = name.size() >= 4 ? ToLower(name.substr(name.size() - 4)) : ToLower(name);
    return tail == ext ? name : name + ext;
}

bool SavePictureAs(const RasterSurface& picture, const std::string& path, int filterIndex,
                   std::string& error) {
    if (filterIndex == 4) return SaveBitmapFile(picture, path, error);
    return SaveImageFile(picture, path, error);
}

bool SavePictureCommand(const RasterSurface& picture, Host& host, const std::string& title, int& FilterIndex,
                        const std::string& initialName) {
    int filter = FilterIndex;
    FileDialogRequest request;
    request.title = title;
    request.filters = PictureSaveFilters();
    request.folderKey = "SavePicture";
    request.chosenFilter = &filter;
    request.initialFilter = FilterIndex;
    request.initialName = initialName;
    const auto name = host.saveFileName(request);
    if (!name) return false;
    FilterIndex = filter;
    const std::string path = PictureFileNameFor(*name, filter);
    std::string error;
    if (!SavePictureAs(picture, path, filter, error)) {
        host.warn("Error", ImageSaveFailedMessage);
        return false;
    }
    return true;
}

std::string DesignPictureName(const Workbench& wb) {
    return Trim(wb.CurrentIFS.Name) + (wb.DesignMode == 1 ? " CG design" : " design");
}

bool mnuFileSaveDesign_Click(Workbench& wb, const DesignPictures& d, Host& host) {
    return SavePictureCommand(d.shownPicture(wb.DesignMode == 1), host, SaveDesignTitle, wb.SavePictureFilter,
                              DesignPictureName(wb));
}

}  // namespace quillane
