#include "cli/figures.h"

#include <algorithm>
#include <vector>

#include "render/deterministic.h"
#include "render/fractal_pictures.h"

namespace quillane::cli {
namespace {

void drawFigure(RasterSurface& s, const std::string& figure, Color c) {
    const std::vector<WorldPoint> square{{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    if (figure == "polygon") s.polygon(square, c, false);
    if (figure == "square") s.polygon(square, c, true);
    if (figure == "triangle") s.polygon({{0, 0}, {1, 0}, {0.5, 1}}, c, true);
    if (figure == "line") s.line(0, 0, 1, 0, c);
    if (figure == "circle") s.circle(0.5, 0.5, 0.5, c, true);
}

}  // namespace

DetFigureDrawer FigureDrawerFor(const std::string& figure) {
    return [figure](Workbench& wb, FractalPictures& pics, Host&, int, bool, bool ResetWindow) {
        if (ResetWindow) {
            // The figure lies in the unit square; the window grows to hold it.
            const WorldWindow w = wb.Window;
            SetUpDeterministicWindow(wb, pics, std::min(w.xmin, 0.0f), std::max(w.xmax, 1.0f),
                                     std::min(w.ymin, 0.0f), std::max(w.ymax, 1.0f), false);
        }
        pics.picImage3.setBackColor(pics.picfractal.backColor());
        pics.picImage3.clear();
        pics.picfractal.clear();
        drawFigure(pics.picfractal, figure, pics.Det.DetSingleColor);
        drawFigure(pics.picImage3, figure, pics.Det.DetSingleColor);
        return true;
    };
}

}  // namespace quillane::cli
