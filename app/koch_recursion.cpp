#include "app/koch_recursion.h"

#include <algorithm>
#include <cmath>

#include "generators/koch_curve.h"
#include "render/deterministic.h"

namespace quillane {
namespace {

// Lines between yields: a pass of a million lines stays answerable without paying per line.
constexpr int64_t LinesPerYield = 4096;

struct PassSink {
    Workbench& wb;
    FractalPictures& pics;
    Host& host;
    bool recolor = true;
    Color color = Black;
    double total = 1;
    int64_t count = 0;

    void piece(int i) {
        if (!recolor) return;
        color = wb.menu(MenuTable::key("mnuDrawDetColorItems", 1)).checked
                    ? pics.Det.DetSingleColor
                    : wb.FunctionColor[static_cast<size_t>(i - 1) % wb.FunctionColor.size()];
    }
    bool line(double x1, double y1, double x2, double y2) {
        pics.picImage.line(x1, y1, x2, y2, color);
        pics.picfractal.line(x1, y1, x2, y2, color);
        if (++count % LinesPerYield != 0) return true;
        pics.Det.pgrIterate = static_cast<int>(std::min(100.0, 100.0 * static_cast<double>(count) / total));
        host.yield();
        return !pics.Det.IterationAbort;
    }
};

}  // namespace

bool KochRecursivePass(Workbench& wb, FractalPictures& pics, Host& host, int n, float c) {
    if (!wb.UseKochRecursion || !wb.KochRecursionAllowed) return false;
    const std::vector<float> turns = KochTurns(n);
    RasterSurface& view = pics.picfractal;
    const double pixel = view.width() > 0 ? std::abs(view.scaleRight() - view.scaleLeft()) / view.width() : 0;
    const int L = KochRecursionLevel(wb.IterationNumber, KochRecursionLimits(n, wb.KochRatio, pixel));

    const bool overlay = wb.menu("mnuDrawOverlay").checked;
    PassSink sink{wb, pics, host};
    sink.total = std::pow(n + 1.0, L + 1);
    sink.recolor = !overlay;
    // In overlay mode each level keeps one colour, as the overlay level of the maps does.
    sink.color =
        overlay
            ? wb.FunctionColor[static_cast<size_t>(std::max(wb.IterationNumber, 0)) % wb.FunctionColor.size()]
            : pics.Det.DetSingleColor;
    pics.Det.pgrIterate = 0;

    const int width = std::max(view.drawWidth(), 1);
    const int imageWidth = pics.picImage.drawWidth();
    const int viewWidth = view.drawWidth();
    pics.picImage.setDrawWidth(width);
    view.setDrawWidth(width);
    if (!overlay) {
        pics.picImage.clear();
        view.clear();
        if (pics.PictureOverlaid) PaintPlacedPicture(view, pics);
    }
    double x = 0, y = 0;
    KochSegment(turns, L + 1, x, y, 0.0, 1.0, static_cast<double>(c), sink);
    pics.picImage.setDrawWidth(imageWidth);
    view.setDrawWidth(viewWidth);
    return true;
}

void InstallKochRecursion(FractalPictures& pics, int n, float c) {
    pics.Det.RecursiveDrawings[1] = [n, c](Workbench& wb, FractalPictures& p, Host& host) {
        return KochRecursivePass(wb, p, host, n, c);
    };
}

}  // namespace quillane
