#include "app/background_commands.h"

#include "render/image_file.h"

namespace quillane {

std::optional<RasterSurface> AskPictureFile(Host& host) {
    FileDialogRequest request;
    request.title = "Open Image File";
    request.filters = {{"Images (*.gif; *.png; *.jpg; *.jpeg; *.bmp)", "*.bmp; *.gif; *.jpg; *.jpeg; *.png"},
                       {"GIF images (*.gif)", "*.gif"},
                       {"PNG images (*.png)", "*.png"},
                       {"JPG images (*.jpg, *.jpeg)", "*.jpg; *.jpeg"},
                       {"bitmap images (*.bmp)", "*.bmp"}};
    request.folderKey = PictureFolderKey;
    const std::optional<std::string> name = host.openFileName(request);
    if (!name || name->empty()) return std::nullopt;
    RasterSurface picture;
    std::string error;
    if (!LoadImageFile(*name, picture, error)) {
        host.warn(LoadPictureErrorTitle, "The picture could not be read.\n" + error);
        return std::nullopt;
    }
    return picture;
}

void mnuDrawLoadPicture_Click(Workbench& wb, FractalPictures& pics, Host& host) {
    if (!BackgroundPictureAllowed(wb)) return;
    const std::optional<RasterSurface> picture = AskPictureFile(host);
    if (!picture) return;
    FloatPicture(pics, *picture);
    pics.picCoord = PasteCornersText(pics);
}

void mnuDrawClearBGPic_Click(Workbench& wb, FractalPictures& pics) {
    if (!pics.PictureOverlaid && !pics.Floating.Visible) return;
    ClearFractalPicPaste(pics);
    if (wb.RandomMode) {
        ClearImage(wb, pics, false);
        wb.DrawingStarted = false;
    }
}

void mnuEditPasteBackground_Click(Workbench& wb, FractalPictures& pics, const RasterSurface* clipboard) {
    if (!clipboard || !BackgroundPictureAllowed(wb)) return;
    FloatPicture(pics, *clipboard);
    pics.picCoord = PasteCornersText(pics);
}

}  // namespace quillane
