#include "app/figure_commands.h"

#include <variant>

#include "render/deterministic.h"
#include "render/floating_picture.h"
#include "render/picture_figures.h"

namespace quillane {

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

FigureParameters DefaultFigureParameters(int figure) {
    switch (figure) {
        case 0:
            return PolygonOutlineFigure{};
        case 1:
            return PolygonFilledFigure{};
        case 2:
            return LineFigure{};
        case 3:
            return TriangleFigure{};
        case 4:
            return RectangleFigure{};
        case 5:
            return RegularPolygonFigure{};
        default:
            return CircleFigure{};
    }
}

void FitFigureWindow(Workbench& wb, FractalPictures& pics, const FigureParameters& p) {
    const int penWidth = std::visit([](const auto& f) { return f.penWidth; }, p);
    const WorldWindow w = FigureFitWindow(p, wb.InitialPolygon, PenWidthInWorld(pics.picfractal, penWidth));
    SetUpDeterministicWindow(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
}

void DrawDrawnFigure(Workbench& wb, FractalPictures& pics, InitialFigures& figs, int figure,
                     std::optional<FigureParameters> p, bool resetWindow) {
    if (!p) p = figs.last[figure];
    if (!p) p = DefaultFigureParameters(figure);
    if (resetWindow) FitFigureWindow(wb, pics, *p);
    AcceptFigure(wb, figs, figure, p, wb.InitialPolygon, pics.picfractal, pics.picImage3);
}

}  // namespace quillane
