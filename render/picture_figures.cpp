#include "render/picture_figures.h"

#include <filesystem>
#include <optional>

#include "render/deterministic.h"
#include "render/floating_picture.h"
#include "render/image_file.h"

namespace quillane {

namespace {

std::optional<RasterSurface> newPicture(FractalPictures& pics, Host& host, int Figure) {
    if (Figure == ClipboardFigure) {
        if (!pics.Det.ClipboardBitmap) return std::nullopt;
        return pics.Det.ClipboardBitmap();
    }
    const std::optional<std::string> name = ChoosePictureFile(host);
    if (!name) return std::nullopt;
    RasterSurface picture;
    std::string error;
    if (!LoadImageFile(*name, picture, error)) {
        host.warn(LoadPictureErrorTitle, "The picture could not be read.\n" + error);
        return std::nullopt;
    }
    return picture;
}

void clearFigureAreas(FractalPictures& pics) {
    pics.picImage3.setBackColor(pics.picfractal.backColor());
    pics.picImage3.clear();
    pics.picfractal.clear();
}

}  // namespace

bool DrawPictureFigure(Workbench& wb, FractalPictures& pics, Host& host, int Figure, bool ShowDialog,
                       bool ResetWindow) {
    std::optional<RasterSurface> picture;
    if (ShowDialog) {
        picture = newPicture(pics, host, Figure);
        if (!picture) return false;
    }
    if (ResetWindow) {
        const WorldWindow w = wb.Window;
        SetUpDeterministicWindow(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
    }
    clearFigureAreas(pics);
    if (picture) {
        pics.PictureOverlaid = false;
        FloatPicture(pics, *picture);
    } else if (pics.PictureOverlaid) {
        for (RasterSurface* s : {&pics.picfractal, &pics.picImage3})
            s->paint(pics.picPaste, pics.PasteX, pics.PasteY, RasterOp::Copy);
    } else if (pics.picImagePaste.width() > 0) {
        pics.Floating.Visible = true;
        PicPasteResize(pics);
    }
    if (pics.Floating.Visible) pics.picCoord = PasteCornersText(pics);
    return true;
}

std::string DefaultPictureFile(const std::string& folder) {
    for (const char* ext : {"jpg", "gif", "png", "bmp"}) {
        const std::filesystem::path p = std::filesystem::path(folder) / (std::string("default.") + ext);
        std::error_code ec;
        if (std::filesystem::exists(p, ec)) return p.string();
    }
    return {};
}

bool LoadCSImageFile(const std::string& folder, const std::string& Extension, RasterSurface& picture) {
    const std::filesystem::path p = std::filesystem::path(folder) / ("default." + Extension);
    std::string error;
    return LoadImageFile(p.string(), picture, error);
}

}  // namespace quillane
