#include "app/grid_size.h"

#include <cmath>

#include "app/design_view.h"
#include "core/evaluator.h"
#include "core/host.h"
#include "core/workbench.h"
#include "design/design_pictures.h"

namespace quillane {

const char* GridSizeLabel(bool chkScale) {
    return chkScale ? XGridSizeCaption : GridSizeCaption;
}

std::optional<GridSpacing> EvaluateGridSize(const GridSizeInput& in, Host& host) {
    const std::optional<float> x = EvaluateText(in.txtGrid);
    if (!x || std::isinf(*x)) {
        host.warn("Error", GridSizeErrorText);
        return std::nullopt;
    }
    GridSpacing g{*x, *x};
    if (in.chkScale) {
        const std::optional<float> y = EvaluateText(in.txtygrid);
        if (!y || std::isinf(*y)) {
            host.warn("Error", YGridSizeErrorText);
            return std::nullopt;
        }
        g.y = *y;
    }
    // Also refuses NaN, which compares false.
    if (!(g.x > 0) || !(g.y > 0)) {
        host.warn("Error", GridSizePositiveText);
        return std::nullopt;
    }
    return g;
}

void DesignGridSize(Workbench& wb, DesignPictures& d, const GridSpacing& g) {
    // DesignGrid inverts the item: unchecked first, it switches the grid on.
    wb.Menu.setChecked("mnuDesignGrid", false);
    wb.GridX = g.x;
    wb.GridY = g.y;
    DesignGrid(wb, d);
}

}  // namespace quillane
