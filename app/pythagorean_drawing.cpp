#include "app/pythagorean_drawing.h"

#include <algorithm>

#include "app/binary_tree_drawing.h"
#include "generators/pythagorean.h"

namespace quillane {
namespace {

// The recursion ends at a pass level beyond this while the boxes are still above a pixel: the
// plain level is then cheaper than 2^level boxes.
constexpr int RecursionLevelLimit = 15;

// Puts the pen width of both pictures back when the drawing ends.
class PenWidths {
  public:
    PenWidths(RasterSurface& a, RasterSurface& b, int width)
        : a_(a), b_(b), wa_(a.drawWidth()), wb_(b.drawWidth()) {
        a.setDrawWidth(width);
        b.setDrawWidth(width);
    }
    ~PenWidths() {
        a_.setDrawWidth(wa_);
        b_.setDrawWidth(wb_);
    }
    PenWidths(const PenWidths&) = delete;
    PenWidths& operator=(const PenWidths&) = delete;

  private:
    RasterSurface &a_, &b_;
    int wa_, wb_;
};

}  // namespace

int PythTreeMode(const Workbench& wb) {
    if (wb.DetFigure == 0) return 1;
    if (wb.DetFigure == 1) return 2;
    return 0;
}

bool PythagoreanTree(const PythagoreanRecursion& flags, Workbench& wb, FractalPictures& pics, Host& host) {
    const int mode = PythTreeMode(wb);
    if (mode <= 0 || wb.RecursionOff[PythagoreanSlot] || !CheckPythTree(wb.CurrentIFS)) return false;
    const double phi = PythPhi(wb.CurrentIFS);
    const int limit = PythTreeDepthLimit(phi, PixelSize(pics));
    RecursiveTreeRun run(wb, pics, host);
    if (run.level > RecursionLevelLimit && run.level < limit - 1) {
        wb.RecursionOff[PythagoreanSlot] = true;
        return false;
    }
    if (limit - 1 <= run.level) run.level = std::max(limit - 1, 0);
    run.maximum = int64_t{1} << std::min(run.level + 2, 62);
    const int width = pics.picfractal.drawWidth() + (mode == 2 ? 1 : 0);
    PenWidths pens(pics.picfractal, pics.picImage, width);
    run.clearPictures();
    BoxPainter paint;
    paint.picfractal = &pics.picfractal;
    paint.picImage = &pics.picImage;
    paint.filled = mode == 2;
    paint.border = flags.BorderVisible;
    paint.colourOf = [&run](int d, int c) { return run.colourOf(d, c); };
    paint.step = [&run] { return run.step(); };
    PythTreeBoxFilled(phi, paint, run.level + 1, 0, 0, 1, 0, 2);
    return true;
}

std::shared_ptr<PythagoreanRecursion> InstallPythagoreanDrawing(FractalPictures& pics) {
    auto flags = std::make_shared<PythagoreanRecursion>();
    pics.Det.RecursiveDrawings[PythagoreanSlot] = [flags](Workbench& wb, FractalPictures& p, Host& host) {
        return PythagoreanTree(*flags, wb, p, host);
    };
    return flags;
}

}  // namespace quillane
