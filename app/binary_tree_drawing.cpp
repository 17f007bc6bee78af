#include "app/binary_tree_drawing.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "generators/binary_tree.h"
#include "render/deterministic.h"

namespace quillane {
namespace {

struct Trunk {
    double x = 0, y = 0, length = 1, angle = Pi / 2;
};

// The trunk is the preset vertical line, or the person's own two-point line of the initial polygon.
Trunk trunkOf(const Workbench& wb) {
    Trunk t;
    const DesignPolygon& poly = wb.InitialPolygon;
    if (wb.DetFigure != 0 || poly.nPoints != 2 || poly.isPenLift(1) || poly.isPenLift(2)) return t;
    const double dx = static_cast<double>(poly.x[2]) - poly.x[1],
                 dy = static_cast<double>(poly.y[2]) - poly.y[1];
    const double length = std::hypot(dx, dy);
    if (!(length > 0)) return t;
    t.x = poly.x[1];
    t.y = poly.y[1];
    t.length = length;
    if (dx == 0)
        t.angle = dy > 0 ? Pi / 2 : 9.424777962 / 2;
    else
        t.angle = std::atan(dy / dx) + (dx < 0 ? Pi : 0);
    return t;
}

}  // namespace

RecursiveTreeRun::RecursiveTreeRun(Workbench& w, FractalPictures& p, Host& h)
    : wb(w),
      pics(p),
      host(h),
      level(std::max<int32_t>(w.IterationNumber, 0)),
      overlay(w.menu("mnuDrawOverlay").checked) {}

Color RecursiveTreeRun::colourOf(int depth, int colour) const {
    const auto& colours = wb.FunctionColor;
    if (overlay) {
        const int k = std::max(level - depth + 1, 0);
        return colours[static_cast<size_t>(k) % colours.size()];
    }
    const bool perFunction = !wb.menu(MenuTable::key("mnuDrawDetColorItems", 1)).checked;
    if (perFunction && colour >= 0 && colour < wb.CurrentIFS.nMaps)
        return colours[static_cast<size_t>(colour) % colours.size()];
    return pics.Det.DetSingleColor;
}

bool RecursiveTreeRun::step() {
    ++count;
    pics.Det.pgrIterate =
        static_cast<int>(std::min<int64_t>(100, count * 100 / std::max<int64_t>(maximum, 1)));
    host.yield();
    return wb.DrawingActive && !pics.Det.IterationAbort;
}

void RecursiveTreeRun::clearPictures() {
    pics.picImage.clear();
    if (overlay) return;
    pics.picfractal.clear();
    if (pics.PictureOverlaid) PaintPlacedPicture(pics.picfractal, pics);
}

double PixelSize(const FractalPictures& pics) {
    const RasterSurface& s = pics.picfractal;
    if (s.width() <= 0) return 0;
    return std::fabs(s.scaleRight() - s.scaleLeft()) / s.width();
}

bool BinaryTreeRecursiveLevel(const BinaryTreeRecursion& flags, Workbench& wb, FractalPictures& pics,
                              Host& host) {
    const IFSEntry& ifs = wb.CurrentIFS;
    if (!flags.UseTreeRecursion || wb.RecursionOff[BinaryTreeSlot] || ifs.nMaps < 2) return false;
    if (!CheckBinaryTree(ifs) && !CheckNonSymBinaryTree(ifs) && !wb.TableRecursionFlags[BinaryTreeSlot])
        return false;
    const TreeBranches br = BranchesOf(ifs);
    const Trunk trunk = trunkOf(wb);
    RecursiveTreeRun run(wb, pics, host);
    const int depth = BinaryTreeDepth(br, PixelSize(pics), trunk.length);
    if (depth - 1 <= run.level) run.level = std::max(depth - 1, 0);
    run.maximum = int64_t{1} << std::min(run.level + 2, 62);
    run.clearPictures();
    TreePainter paint;
    paint.picfractal = &pics.picfractal;
    paint.picImage = &pics.picImage;
    paint.colourOf = [&run](int d, int c) { return run.colourOf(d, c); };
    paint.step = [&run] { return run.step(); };
    DrawBinaryTree(br, paint, run.level + 1, trunk.x, trunk.y, trunk.length, trunk.angle, 2);
    return true;
}

std::shared_ptr<BinaryTreeRecursion> InstallBinaryTreeDrawing(FractalPictures& pics) {
    auto flags = std::make_shared<BinaryTreeRecursion>();
    pics.Det.RecursiveDrawings[BinaryTreeSlot] = [flags](Workbench& wb, FractalPictures& p, Host& host) {
        return BinaryTreeRecursiveLevel(*flags, wb, p, host);
    };
    return flags;
}

}  // namespace quillane
