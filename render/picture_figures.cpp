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

void mnuDrawAddFigure_Click(Workbench& wb, FractalPictures& pics, Host& host, InitialFigures& figs, int Index) {
    if (wb.RandomMode || wb.DrawingActive || Index < 0 || Index > ClipboardFigure) return;
    const int16_t formerFigure = wb.DetFigure;
    const bool formerOverlaid = pics.PictureOverlaid;
    const FloatingPicture formerFloating = pics.Floating;
    wb.UndoWindow = wb.Window;
    if (!DrawDetWindowFigure(wb, pics, host, Index, true, true)) {
        wb.DetFigure = formerFigure;
        pics.PictureOverlaid = formerOverlaid;
        pics.Floating = formerFloating;
        return;
    }
    // A former picture figure goes unless the new figure is a picture itself.
    if (formerFigure > 6 && Index <= 6) ClearFractalPicPaste(pics);
    ResetDetFigure(wb, Index);
    wb.FitWindow = wb.Window;
    FigureColorItems(wb, figs, Index);
    pics.picImage2.takeImage(pics.picfractal);
    wb.IterationNumber = 0;
    pics.Det.CountSuffix.clear();
    wb.Menu.setEnabled("mnuZoom", true);
    wb.Menu.setEnabled("mnuDrawZoom", true);
    pics.picCount = "0";
}

bool PasteFractalFigure(Workbench& wb, FractalPictures& pics, Host& host, InitialFigures& figs) {
    if (wb.RandomMode || wb.DrawingActive || pics.Floating.Visible || !pics.Det.ClipboardBitmap) return false;
    mnuDrawAddFigure_Click(wb, pics, host, figs, ClipboardFigure);
    return wb.DetFigure == ClipboardFigure;
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
